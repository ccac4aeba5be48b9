#include "platform/basic/text.h"

#include "platform/basic/error_numbers.h"
#include "platform/basic/utf8.h"

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <array>

namespace basic {

namespace {

constexpr std::int64_t longestText = std::int64_t{1} << 26;

std::size_t offsetBehind(std::string_view text, std::int64_t characters) {
    std::size_t position = 0;
    for (; characters > 0 && position < text.size(); --characters)
        static_cast<void>(nextCharacter(text, position));
    return position;
}

std::string mapCharacters(std::string_view text, char32_t (*map)(char32_t)) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
        appendCharacter(result, map(nextCharacter(text, position)));
    return result;
}

char32_t folded(char32_t character) {
    if (character < 0x80) return static_cast<char32_t>(lowerAscii(static_cast<char>(character)));
    return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT));
}

char32_t upper(char32_t character) { return static_cast<char32_t>(u_toupper(static_cast<UChar32>(character))); }

char32_t lower(char32_t character) { return static_cast<char32_t>(u_tolower(static_cast<UChar32>(character))); }

std::u32string foldedCharacters(std::string_view text) {
    std::u32string result = toCharacters(text);
    std::transform(result.begin(), result.end(), result.begin(), folded);
    return result;
}

void refuseNegative(std::int64_t length) {
    if (length < 0) raise(ErrorNumber::InvalidCall);
}

/// What Windows-1252 has from 0x80 to 0x9F; its five gaps stand for themselves.
constexpr std::array<char32_t, 32> windowsCharacters = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                                        0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                                        0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                        0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

} // namespace

std::string foldCase(std::string_view text) {
    if (!isAscii(text)) return normalised(mapCharacters(text, folded));
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lowerAscii);
    return result;
}

std::string UCase(std::string_view text) { return mapCharacters(text, upper); }

std::string LCase(std::string_view text) { return mapCharacters(text, lower); }

std::int64_t Len(std::string_view text) {
    std::int64_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count)
        static_cast<void>(nextCharacter(text, position));
    return count;
}

std::string Left(std::string_view text, std::int64_t length) {
    refuseNegative(length);
    return std::string(text.substr(0, offsetBehind(text, length)));
}

std::string Right(std::string_view text, std::int64_t length) {
    refuseNegative(length);
    return std::string(text.substr(offsetBehind(text, Len(text) - length)));
}

std::string Mid(std::string_view text, std::int64_t start, std::optional<std::int64_t> length) {
    if (start < 1) raise(ErrorNumber::InvalidCall);
    refuseNegative(length.value_or(0));
    const std::string_view rest = text.substr(offsetBehind(text, start - 1));
    return length ? Left(rest, *length) : std::string(rest);
}

std::string Trim(std::string_view text) { return LTrim(RTrim(text)); }

std::string LTrim(std::string_view text) {
    return std::string(text.substr(std::min(text.find_first_not_of(' '), text.size())));
}

std::string RTrim(std::string_view text) { return std::string(text.substr(0, text.find_last_not_of(' ') + 1)); }

std::int64_t InStr(std::int64_t start, std::string_view text, std::string_view pattern) {
    if (start < 1) raise(ErrorNumber::InvalidCall);
    const std::u32string where = foldedCharacters(text);
    if (start > static_cast<std::int64_t>(where.size())) return 0;
    const std::size_t found = where.find(foldedCharacters(pattern), static_cast<std::size_t>(start - 1));
    return found == std::u32string::npos ? 0 : static_cast<std::int64_t>(found) + 1;
}

std::int64_t InStrRev(std::string_view text, std::string_view pattern) {
    const std::u32string where = foldedCharacters(text);
    if (where.empty()) return 0;
    if (pattern.empty()) return static_cast<std::int64_t>(where.size());
    const std::size_t found = where.rfind(foldedCharacters(pattern));
    return found == std::u32string::npos ? 0 : static_cast<std::int64_t>(found) + 1;
}

std::string Replace(std::string_view text, std::string_view find, std::string_view with) {
    if (find.empty()) return std::string(text);
    std::string result;
    for (std::size_t found = text.find(find); found != std::string_view::npos; found = text.find(find)) {
        result.append(text.substr(0, found)).append(with);
        text.remove_prefix(found + find.size());
    }
    return result.append(text);
}

std::string String(std::int64_t count, std::string_view character) {
    refuseNegative(count);
    if (character.empty()) raise(ErrorNumber::InvalidCall);
    if (count > longestText) raise(ErrorNumber::Overflow);
    const std::string_view first = character.substr(0, offsetBehind(character, 1));
    std::string result;
    result.reserve(static_cast<std::size_t>(count) * first.size());
    for (std::int64_t i = 0; i < count; ++i)
        result.append(first);
    return result;
}

std::string Space(std::int64_t count) { return String(count, " "); }

std::string Chr(std::int64_t code) {
    if (code < 0 || code > 255) raise(ErrorNumber::InvalidCall);
    const auto byte = static_cast<char32_t>(code);
    std::string result;
    appendCharacter(result, byte >= 0x80 && byte < 0xA0 ? windowsCharacters[byte - 0x80] : byte);
    return result;
}

std::int64_t Asc(std::string_view text) {
    if (text.empty()) raise(ErrorNumber::InvalidCall);
    std::size_t position = 0;
    const char32_t character = nextCharacter(text, position);
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<std::int64_t>(character);
    const auto found = std::find(windowsCharacters.begin(), windowsCharacters.end(), character);
    return found == windowsCharacters.end() ? '?' : 0x80 + (found - windowsCharacters.begin());
}

std::vector<std::string> Split(std::string_view text, std::string_view delimiter) {
    if (text.empty()) return {};
    if (delimiter.empty()) return {std::string(text)};
    std::vector<std::string> parts;
    for (std::size_t found = text.find(delimiter); found != std::string_view::npos; found = text.find(delimiter)) {
        parts.emplace_back(text.substr(0, found));
        text.remove_prefix(found + delimiter.size());
    }
    parts.emplace_back(text);
    return parts;
}

bool isValidText(std::string_view text) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t begin = position;
        if (nextCharacter(text, position) == replacementCharacter &&
            text.substr(begin, position - begin) != replacement)
            return false;
    }
    return true;
}

std::string normalised(std::string_view text) {
    if (isAscii(text)) return std::string(text);
    // Replaces what is ill-formed, which the normaliser would not define.
    std::string valid = mapCharacters(text, [](char32_t character) { return character; });
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* composer = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status)) return valid;
    if (composer->isNormalizedUTF8(valid, status) && U_SUCCESS(status)) return valid;
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    composer->normalizeUTF8(0, valid, sink, nullptr, status);
    return U_SUCCESS(status) ? result : valid;
}

} // namespace basic
