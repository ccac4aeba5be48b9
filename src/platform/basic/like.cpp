#include "platform/basic/like.h"

#include "platform/basic/reading.h"
#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <algorithm>

namespace basic {

namespace {

bool isAsciiLetterOrDigit(char32_t c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); }

std::string textOf(char32_t character) {
    std::string text;
    appendCharacter(text, character);
    return text;
}

bool isBetween(char32_t character, char32_t low, char32_t high) {
    if (character == low || character == high) return true;
    if (low == high) return false;
    if (isAsciiLetterOrDigit(low) && isAsciiLetterOrDigit(high) && isAsciiLetterOrDigit(character))
        return low <= character && character <= high;
    const std::string text = textOf(character);
    return compareText(textOf(low), text) <= 0 && compareText(text, textOf(high)) <= 0;
}

/// An ASCII text read without case, character by character, without a copy.
struct AsciiText {
    std::string_view text;

    [[nodiscard]] std::size_t size() const { return text.size(); }
    char32_t operator[](std::size_t i) const { return static_cast<unsigned char>(lowerAscii(text[i])); }
};

} // namespace

LikePattern::LikePattern(std::string_view pattern) {
    const std::u32string characters = toCharacters(foldCase(pattern));
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const char32_t character = characters[i];
        const std::size_t close = character == U'[' ? characters.find(U']', i + 1) : std::u32string::npos;
        if (close != std::u32string::npos) {
            const std::u32string_view body = std::u32string_view(characters).substr(i + 1, close - i - 1);
            if (!body.empty()) elements_.push_back(parseSet(body));
            i = close;
        } else if (character == U'*' || character == U'%') {
            if (elements_.empty() || elements_.back().kind != Kind::Any) elements_.push_back({.kind = Kind::Any});
        } else {
            const Kind kind = character == U'?' ? Kind::One : character == U'#' ? Kind::Digit : Kind::Literal;
            elements_.push_back({.kind = kind, .literal = character});
        }
    }
}

LikePattern::Element LikePattern::parseSet(std::u32string_view body) {
    Element set{.kind = Kind::Set};
    // "[!]" is the mark itself.
    set.negated = body.size() > 1 && body.front() == U'!';
    if (set.negated) body.remove_prefix(1);
    for (std::size_t i = 0; i < body.size(); ++i) {
        const bool isRange = i + 2 < body.size() && body[i + 1] == U'-';
        set.ranges.emplace_back(body[i], isRange ? body[i + 2] : body[i]);
        if (isRange) i += 2;
    }
    return set;
}

bool LikePattern::accepts(const Element& element, char32_t character) {
    switch (element.kind) {
    case Kind::Any:
    case Kind::One:
        return true;
    case Kind::Digit:
        return character >= U'0' && character <= U'9';
    case Kind::Literal:
        return character == element.literal;
    case Kind::Set:
        break;
    }
    const bool found = std::any_of(element.ranges.begin(), element.ranges.end(),
                                   [&](const auto& range) { return isBetween(character, range.first, range.second); });
    return found != element.negated;
}

/// Only the last '*' is ever taken up again: what stood before it has matched as far left as it can.
template <typename Text>
bool LikePattern::matchesFolded(const Text& text) const {
    constexpr std::size_t none = std::string::npos;
    std::size_t at = 0;
    std::size_t element = 0;
    std::size_t star = none;
    std::size_t starAt = 0;
    while (at < text.size()) {
        if (element < elements_.size() && elements_[element].kind == Kind::Any) {
            star = element++;
            starAt = at;
        } else if (element < elements_.size() && accepts(elements_[element], text[at])) {
            ++element;
            ++at;
        } else if (star != none) {
            element = star + 1;
            at = ++starAt;
        } else {
            return false;
        }
        if (star != none && star + 1 == elements_.size()) return true;
    }
    return element == elements_.size() || (element + 1 == elements_.size() && elements_[element].kind == Kind::Any);
}

bool LikePattern::matches(std::string_view text) const {
    if (isAscii(text)) return matchesFolded(AsciiText{text});
    return matchesFolded(toCharacters(foldCase(text)));
}

bool hasWildcard(std::string_view pattern) { return pattern.find_first_of("*%?#[") != std::string_view::npos; }

Value like(const Value& value, const Value& pattern) {
    if (value.isNull() || pattern.isNull()) return {};
    const std::string wanted = operandText(pattern);
    if (!hasWildcard(wanted)) return equalText(operandText(value), wanted);
    return LikePattern(wanted).matches(operandText(value));
}

} // namespace basic
