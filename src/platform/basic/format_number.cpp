#include "platform/basic/decimal.h"
#include "platform/basic/format_parts.h"
#include "platform/basic/utf8.h"

#include <algorithm>
#include <cmath>

namespace basic {

namespace {

struct Element {
    enum class Kind { Literal, Digit, Point, Exponent } kind;
    std::string literal;
};

struct Section {
    std::vector<Element> elements;
    int integerPlaces = 0;
    int integerLeast = 0; ///< digits printed even where they are leading zeros
    int fractionPlaces = 0;
    int fractionLeast = 0;
    int exponentLeast = 0;
    int scale = 0; ///< power of ten by which the value is shown larger
    bool groups = false;
    bool hasPoint = false;
    bool hasExponent = false;
    bool showsPlus = false;

    [[nodiscard]] bool hasDigits() const { return integerPlaces + fractionPlaces > 0; }
};

class SectionReader {
public:
    explicit SectionReader(std::string_view pattern) : rest_(pattern) {}

    Section read() {
        while (!rest_.empty())
            readElement();
        endInteger();
        return std::move(section_);
    }

private:
    void readElement() {
        std::string quoted;
        if (takeLiteral(rest_, quoted)) return addLiteral(quoted);
        if (takeExponent()) return;
        const char c = rest_.front();
        rest_.remove_prefix(1);
        if (c == '0' || c == '#') return addDigit(c == '0');
        if (c == ',') return addComma();
        if (c == '.' && !section_.hasPoint) return addPoint();
        if (c == '%') section_.scale += 2;
        addLiteral({&c, 1});
    }

    void addLiteral(std::string_view text) {
        if (section_.elements.empty() || section_.elements.back().kind != Element::Kind::Literal)
            section_.elements.push_back({Element::Kind::Literal, {}});
        section_.elements.back().literal.append(text);
    }

    void addDigit(bool isZero) {
        section_.elements.push_back({Element::Kind::Digit, {}});
        if (section_.hasPoint) {
            ++section_.fractionPlaces;
            if (isZero) section_.fractionLeast = section_.fractionPlaces;
            return;
        }
        ++section_.integerPlaces;
        if (isZero || section_.integerLeast > 0) ++section_.integerLeast;
        section_.groups = section_.groups || commas_ > 0;
        commas_ = 0;
    }

    void addComma() {
        if (!section_.hasPoint && section_.integerPlaces > 0) ++commas_;
    }

    void addPoint() {
        endInteger();
        section_.elements.push_back({Element::Kind::Point, {}});
        section_.hasPoint = true;
    }

    /// Commas behind the last digit divide by a thousand each.
    void endInteger() {
        section_.scale -= 3 * commas_;
        commas_ = 0;
    }

    bool takeExponent() {
        if (section_.hasExponent || rest_.size() < 3 || lowerAscii(rest_[0]) != 'e') return false;
        if ((rest_[1] != '+' && rest_[1] != '-') || (rest_[2] != '0' && rest_[2] != '#')) return false;
        section_.elements.push_back({Element::Kind::Exponent, std::string(1, rest_[0])});
        section_.hasExponent = true;
        section_.showsPlus = rest_[1] == '+';
        for (rest_.remove_prefix(2); !rest_.empty() && (rest_[0] == '0' || rest_[0] == '#'); rest_.remove_prefix(1))
            section_.exponentLeast += rest_[0] == '0' ? 1 : 0;
        return true;
    }

    std::string_view rest_;
    Section section_;
    int commas_ = 0;
};

struct Shown {
    Decimal number;
    int exponent = 0;
};

Shown shownNumber(const Section& section, double value) {
    Shown shown{.number = decimalOf(std::abs(value))};
    Decimal& number = shown.number;
    if (number.isZero()) return shown;
    number.point += section.scale;
    if (section.hasExponent) {
        shown.exponent = number.point - section.integerPlaces;
        number.point = section.integerPlaces;
    }
    number = rounded(number, section.fractionPlaces, Rounding::HalfAwayFromZero);
    if (section.hasExponent && number.point > section.integerPlaces) {
        --number.point;
        ++shown.exponent;
    }
    return shown;
}

class SectionWriter {
public:
    SectionWriter(const Section& section, const Shown& shown)
        : section_(section), shown_(shown), integerDigits_(std::max(shown.number.point, section.integerLeast)),
          fractionDigits_(
              std::max(static_cast<int>(shown.number.digits.size()) - shown.number.point, section.fractionLeast)) {}

    std::string write() {
        for (const Element& element : section_.elements)
            writeElement(element);
        return std::move(result_);
    }

private:
    void writeElement(const Element& element) {
        switch (element.kind) {
        case Element::Kind::Literal:
            result_ += element.literal;
            break;
        case Element::Kind::Digit:
            writePlace();
            break;
        case Element::Kind::Point:
            writePoint();
            break;
        case Element::Kind::Exponent:
            writeExponent(element.literal);
            break;
        }
    }

    /// The first place takes all digits that stand before it; a place may also stay empty.
    void writePlace() {
        const int weight = section_.integerPlaces - 1 - place_;
        if (weight < 0) {
            if (-weight <= fractionDigits_) result_ += shown_.number.digitAt(weight);
        } else if (place_ == 0) {
            writeIntegers(weight);
        } else if (weight < integerDigits_) {
            writeInteger(weight);
        }
        ++place_;
    }

    void writePoint() {
        if (section_.integerPlaces == 0) writeIntegers(0);
        result_ += ',';
    }

    void writeIntegers(int last) {
        for (int weight = integerDigits_ - 1; weight >= last; --weight)
            writeInteger(weight);
    }

    void writeInteger(int weight) {
        result_ += shown_.number.digitAt(weight);
        if (section_.groups && weight > 0 && weight % 3 == 0) result_ += '.';
    }

    void writeExponent(const std::string& letter) {
        const std::string digits = std::to_string(std::abs(shown_.exponent));
        const int missing = section_.exponentLeast - static_cast<int>(digits.size());
        result_ += letter;
        if (shown_.exponent < 0 || section_.showsPlus) result_ += shown_.exponent < 0 ? '-' : '+';
        result_.append(static_cast<std::size_t>(std::max(missing, 0)), '0').append(digits);
    }

    const Section& section_;
    const Shown& shown_;
    int integerDigits_;
    int fractionDigits_;
    int place_ = 0;
    std::string result_;
};

std::string written(std::string_view pattern, double value, bool withSign) {
    const Section section = SectionReader(pattern).read();
    const Shown shown = shownNumber(section, value);
    const std::string text = SectionWriter(section, shown).write();
    const bool minus = withSign && value < 0 && section.hasDigits() && !shown.number.isZero();
    return minus ? "-" + text : text;
}

bool roundsToZero(std::string_view pattern, double value) {
    const Section section = SectionReader(pattern).read();
    return section.hasDigits() && shownNumber(section, value).number.isZero();
}

} // namespace

std::string formatNumber(double value, const std::vector<std::string_view>& sections) {
    const auto has = [&](std::size_t section) { return section < sections.size() && !sections[section].empty(); };
    if (value < 0 && has(1))
        return roundsToZero(sections[1], value) ? written(sections[0], 0, true) : written(sections[1], value, false);
    if (value == 0 && has(2)) return written(sections[2], value, false);
    return written(sections[0], value, true);
}

} // namespace basic
