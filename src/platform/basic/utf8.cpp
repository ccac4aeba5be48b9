#include "platform/basic/utf8.h"

#include <algorithm>

namespace basic {

namespace {

/// Length of a sequence and the range of its second byte, by the first; length 0 for what cannot begin one.
struct Lead {
    int length;
    unsigned low = 0x80;
    unsigned high = 0xBF;
};

Lead leadOf(unsigned byte) {
    if (byte < 0xC2 || byte > 0xF4) return {0};
    if (byte < 0xE0) return {2};
    if (byte == 0xE0) return {3, 0xA0, 0xBF};
    if (byte == 0xED) return {3, 0x80, 0x9F};
    if (byte < 0xF0) return {3};
    if (byte == 0xF0) return {4, 0x90, 0xBF};
    if (byte == 0xF4) return {4, 0x80, 0x8F};
    return {4};
}

unsigned byteAt(std::string_view text, std::size_t position) { return static_cast<unsigned char>(text[position]); }

} // namespace

char32_t nextCharacter(std::string_view text, std::size_t& position) {
    const unsigned first = byteAt(text, position++);
    if (first < 0x80) return first;
    Lead lead = leadOf(first);
    if (lead.length == 0) return replacementCharacter;
    char32_t character = first & (0x7FU >> lead.length);
    for (int i = 1; i < lead.length; ++i) {
        if (position >= text.size()) return replacementCharacter;
        const unsigned byte = byteAt(text, position);
        if (byte < lead.low || byte > lead.high) return replacementCharacter;
        character = character << 6 | (byte & 0x3FU);
        lead.low = 0x80;
        lead.high = 0xBF;
        ++position;
    }
    return character;
}

void appendCharacter(std::string& text, char32_t character) {
    const auto put = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 0x3F));
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

std::u32string toCharacters(std::string_view text) {
    std::u32string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
        result.push_back(nextCharacter(text, position));
    return result;
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace basic
