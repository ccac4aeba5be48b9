#include "platform/basic/format_parts.h"
#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <algorithm>

namespace basic {

namespace {

struct Layout {
    std::size_t places = 0;
    bool fromLeft = false;
    char letters = 0; ///< '<' or '>', the last one given
};

Layout layoutOf(std::string_view pattern) {
    Layout layout;
    std::string literal;
    while (!pattern.empty()) {
        if (takeLiteral(pattern, literal)) continue;
        const char c = pattern.front();
        pattern.remove_prefix(1);
        if (c == '@' || c == '&') ++layout.places;
        if (c == '!') layout.fromLeft = true;
        if (c == '<' || c == '>') layout.letters = c;
    }
    return layout;
}

/// Hands out the text's characters to the places, from the right unless told otherwise. What has no place stands before
/// the first (behind the last).
class Filling {
public:
    Filling(std::string_view text, const Layout& layout)
        : characters_(toCharacters(text)), layout_(layout),
          padding_(layout.fromLeft ? 0 : layout.places - std::min(layout.places, characters_.size())) {}

    void fillPlace(char place, std::string& result) {
        if (place_ == 0 && !layout_.fromLeft)
            takeUntil(characters_.size() - std::min(layout_.places, characters_.size()), result);
        if (place_++ >= padding_ && next_ < characters_.size()) {
            appendCharacter(result, characters_[next_++]);
        } else if (place == '@') {
            result.push_back(' ');
        }
        if (place_ == layout_.places) takeUntil(characters_.size(), result);
    }

    void takeRest(std::string& result) { takeUntil(characters_.size(), result); }

private:
    void takeUntil(std::size_t end, std::string& result) {
        while (next_ < end)
            appendCharacter(result, characters_[next_++]);
    }

    std::u32string characters_;
    Layout layout_;
    std::size_t padding_;
    std::size_t place_ = 0;
    std::size_t next_ = 0;
};

std::string inLetters(std::string_view text, char letters) {
    if (letters == '<') return LCase(text);
    return letters == '>' ? UCase(text) : std::string(text);
}

} // namespace

std::string formatText(std::string_view text, std::string_view section) {
    const Layout layout = layoutOf(section);
    Filling filling(inLetters(text, layout.letters), layout);
    std::string result;
    std::string literal;
    while (!section.empty()) {
        if (takeLiteral(section, literal)) {
            result += literal;
            continue;
        }
        const char c = section.front();
        section.remove_prefix(1);
        if (c == '@' || c == '&') {
            filling.fillPlace(c, result);
        } else if (c != '<' && c != '>' && c != '!') {
            result.push_back(c);
        }
    }
    filling.takeRest(result);
    return result;
}

} // namespace basic
