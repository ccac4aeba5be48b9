#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace basic {

inline constexpr char32_t replacementCharacter = 0xFFFD;

/// Reads the character at `position` (below the size) and moves behind it. An ill-formed sequence counts as one
/// replacement character per maximal part, as ICU counts it.
[[nodiscard]] char32_t nextCharacter(std::string_view text, std::size_t& position);
void appendCharacter(std::string& text, char32_t character);

[[nodiscard]] std::u32string toCharacters(std::string_view text);
[[nodiscard]] bool isAscii(std::string_view text);

[[nodiscard]] constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
[[nodiscard]] constexpr char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

} // namespace basic
