#include "platform/jet/syntax_error.h"

#include <algorithm>

namespace jet {

namespace {

constexpr std::size_t shownCharacters = 30;

bool startsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }

} // namespace

std::size_t characterAt(std::string_view sql, std::size_t offset) {
    return static_cast<std::size_t>(std::ranges::count_if(sql.substr(0, offset), startsCharacter)) + 1;
}

std::string shortened(std::string_view text) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (startsCharacter(text[i]) && ++characters > shownCharacters) return std::string(text.substr(0, i)) + "…";
    return std::string(text);
}

void raiseAt(ErrorNumber number, std::string_view sql, std::size_t offset, std::string_view message) {
    std::string detail(message);
    detail.append(" (Zeichen ").append(std::to_string(characterAt(sql, offset))).append(").");
    raise(number, detail);
}

} // namespace jet
