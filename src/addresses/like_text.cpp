#include "addresses/like_text.h"

namespace addresses {

std::string LikeText(std::string_view text) {
    std::string muster;
    for (const char c : text) {
        const bool platzhalter = std::string_view("*?#[%").find(c) != std::string_view::npos;
        muster += platzhalter ? std::string("[") + c + "]" : std::string(1, c);
    }
    return muster;
}

} // namespace addresses
