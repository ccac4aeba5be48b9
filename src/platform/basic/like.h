#pragma once

#include "platform/basic/value.h"

#include <utility>
#include <vector>

namespace basic {

/// A pattern of Like, compiled once: '*' and '%' any length, '?' one character, '#' one digit, "[a-f]", "[!a-f]",
/// "[*]".
/// '_' is a plain character. Case is ignored, umlauts too. An unclosed '[' is plain text. A range holds what the
/// dictionary has between its ends, so "[a-z]" holds the umlauts. The time to match grows with pattern times text at
/// most.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern);

    [[nodiscard]] bool matches(std::string_view text) const;

private:
    enum class Kind { Any, One, Digit, Literal, Set };
    struct Element {
        Kind kind;
        char32_t literal = 0;
        bool negated = false;
        std::vector<std::pair<char32_t, char32_t>> ranges = {}; ///< folded, both ends included
    };

    [[nodiscard]] static Element parseSet(std::u32string_view body);
    [[nodiscard]] static bool accepts(const Element& element, char32_t character);
    template <typename Text>
    [[nodiscard]] bool matchesFolded(const Text& text) const;

    std::vector<Element> elements_;
};

/// Does the pattern hold any of * % ? # [ ? Without one, Like is equality without case.
[[nodiscard]] bool hasWildcard(std::string_view pattern);

/// The operator: Null with anything is Null; numbers and dates are turned into text as by '&'.
[[nodiscard]] Value like(const Value& value, const Value& pattern);

} // namespace basic
