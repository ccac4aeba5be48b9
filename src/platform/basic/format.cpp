#include "platform/basic/format.h"

#include "platform/basic/convert.h"
#include "platform/basic/format_parts.h"
#include "platform/basic/reading.h"
#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <algorithm>
#include <array>
#include <utility>

namespace basic {

namespace {

enum class Kind { Number, Date, Text };

constexpr std::array<std::pair<std::string_view, std::string_view>, 15> namedPatterns = {{
    {"standard", "#,##0.00"},
    {"fixed", "0.00"},
    {"percent", "0.00%"},
    {"currency", "#,##0.00 €"},
    {"scientific", "0.00E+00"},
    {"yes/no", R"("Ja";"Ja";"Nein")"},
    {"true/false", R"("Wahr";"Wahr";"Falsch")"},
    {"on/off", R"("Ein";"Ein";"Aus")"},
    {"general date", "c"},
    {"long date", "dddddd"},
    {"medium date", "dd. mmm. yy"},
    {"short date", "ddddd"},
    {"long time", "ttttt"},
    {"medium time", "hh:nn AM/PM"},
    {"short time", "hh:nn"},
}};

std::string_view patternBehindName(std::string_view pattern) {
    const std::string name = foldCase(pattern);
    const auto* const found = std::find_if(namedPatterns.begin(), namedPatterns.end(),
                                           [&](const auto& entry) { return entry.first == name; });
    return found == namedPatterns.end() ? pattern : found->second;
}

/// The first character with a meaning decides; a pattern of literals alone is a number's.
Kind kindOf(std::string_view pattern) {
    std::string literal;
    while (!pattern.empty()) {
        if (takeLiteral(pattern, literal)) continue;
        const char c = lowerAscii(pattern.front());
        if (c == '0' || c == '#' || c == '%') return Kind::Number;
        if (std::string_view("@&<>!").find(c) != std::string_view::npos) return Kind::Text;
        if (std::string_view("dmywqhnsc").find(c) != std::string_view::npos) return Kind::Date;
        if (pattern.starts_with("ttttt") || pattern.starts_with("TTTTT")) return Kind::Date;
        pattern.remove_prefix(1);
    }
    return Kind::Number;
}

std::vector<std::string_view> sectionsOf(std::string_view pattern) {
    std::vector<std::string_view> sections;
    std::string literal;
    std::string_view rest = pattern;
    while (!rest.empty()) {
        if (takeLiteral(rest, literal)) continue;
        const bool ends = rest.front() == ';';
        const std::size_t length = pattern.size() - rest.size();
        rest.remove_prefix(1);
        if (!ends) continue;
        sections.push_back(pattern.substr(0, length));
        pattern = rest;
    }
    sections.push_back(pattern);
    return sections;
}

/// The value as the number that a pattern of this kind shows; none for a text that is neither number nor date.
std::optional<double> numberFor(Kind kind, const Value& value, std::optional<Date> today) {
    if (!value.isText()) return CDbl(value);
    const auto number = [&] { return parseNumber(value.text()); };
    const auto date = [&]() -> std::optional<double> {
        if (const auto found = readDate(value.text(), today)) return found->serial();
        return std::nullopt;
    };
    const auto first = kind == Kind::Date ? date() : number();
    if (first) return first;
    return kind == Kind::Date ? number() : date();
}

std::string formatNull(Kind kind, std::string_view pattern) {
    if (kind != Kind::Number) return {};
    const std::vector<std::string_view> sections = sectionsOf(pattern);
    return sections.size() < 4 ? std::string() : formatNumber(0, {sections[3]});
}

std::string formatTextSections(const std::string& text, std::string_view pattern) {
    const std::vector<std::string_view> sections = sectionsOf(pattern);
    return formatText(text, text.empty() && sections.size() > 1 ? sections[1] : sections[0]);
}

} // namespace

bool takeLiteral(std::string_view& rest, std::string& literal) {
    if (rest.front() == '\\') {
        std::size_t end = 1;
        if (end < rest.size()) static_cast<void>(nextCharacter(rest, end));
        literal = rest.substr(1, end - 1);
        rest.remove_prefix(end);
        return true;
    }
    if (rest.front() != '"') return false;
    const std::size_t close = std::min(rest.find('"', 1), rest.size());
    literal = rest.substr(1, close - 1);
    rest.remove_prefix(std::min(close + 1, rest.size()));
    return true;
}

std::string Format(const Value& value, std::string_view pattern, std::optional<Date> today) {
    const std::string_view meant = patternBehindName(pattern);
    const bool isGeneral = foldCase(meant) == "general number";
    const Kind kind = isGeneral ? Kind::Number : kindOf(meant);
    if (value.isNull()) return formatNull(kind, meant);
    if (meant.empty()) return CStr(value);
    if (kind == Kind::Text) return formatTextSections(CStr(value), meant);
    const std::optional<double> number = numberFor(kind, value, today);
    if (!number) return value.text();
    if (isGeneral) return numberText(*number, ',');
    return kind == Kind::Date ? formatDate(Date(*number), meant) : formatNumber(*number, sectionsOf(meant));
}

} // namespace basic
