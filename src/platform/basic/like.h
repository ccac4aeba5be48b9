#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace basic {

/// A pattern of Like, compiled once: '*' and '%' any length, '?' one character, '#' one digit, "[a-f]", "[!a-f]", "[*]".
/// '_' is a plain character. Case is ignored, umlauts too. An unclosed '[' is plain text.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern);

    [[nodiscard]] bool matches(std::string_view text) const;

private:
    struct Element;
    std::vector<Element> elements_;
};

/// Does the pattern hold any of * % ? # [ ? Without one, Like is equality without case.
[[nodiscard]] bool hasWildcard(std::string_view pattern);

} // namespace basic
