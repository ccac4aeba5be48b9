#include "platform/basic/convert.h"
#include "platform/basic/dates.h"
#include "platform/basic/format_parts.h"
#include "platform/basic/names.h"
#include "platform/basic/utf8.h"

#include <algorithm>
#include <array>

namespace basic {

namespace {

/// A run of one letter, or a literal (field 0). Field 'a' is the half of the day, in the spelling of its literal.
struct Token {
    char field = 0;
    std::size_t length = 0;
    std::string literal;
};

constexpr std::array<std::string_view, 3> halves = {"am/pm", "a/p", "ampm"};

std::size_t longestRun(char field) {
    switch (field) {
    case 'd':
        return 6;
    case 't':
        return 5;
    case 'y':
    case 'm':
        return 4;
    case 'w':
    case 'h':
    case 'n':
    case 's':
        return 2;
    case 'q':
    case 'c':
        return 1;
    default:
        return 0;
    }
}

bool takeHalf(std::string_view& rest, Token& token) {
    for (const std::string_view half : halves) {
        const std::string_view front = rest.substr(0, half.size());
        if (!std::equal(front.begin(), front.end(), half.begin(), half.end(),
                        [](char a, char b) { return lowerAscii(a) == b; }))
            continue;
        token = {.field = 'a', .length = half.size(), .literal = std::string(front)};
        rest.remove_prefix(half.size());
        return true;
    }
    return false;
}

bool takeField(std::string_view& rest, Token& token) {
    const char field = lowerAscii(rest.front());
    const std::size_t most = std::min(longestRun(field), rest.size());
    std::size_t length = 0;
    while (length < most && lowerAscii(rest[length]) == field)
        ++length;
    if (field == 'y' && length == 3) length = 2;
    if (length == 0 || (field == 't' && length < 5)) return false;
    token = {.field = field, .length = length, .literal = {}};
    rest.remove_prefix(length);
    return true;
}

Token takeToken(std::string_view& rest) {
    Token token;
    if (takeLiteral(rest, token.literal) || takeHalf(rest, token) || takeField(rest, token)) return token;
    token.literal = rest.front() == '/' ? '.' : rest.front();
    rest.remove_prefix(1);
    return token;
}

std::vector<Token> tokensOf(std::string_view pattern) {
    std::vector<Token> tokens;
    char before = 0;
    while (!pattern.empty()) {
        Token token = takeToken(pattern);
        if (token.field == 'm' && token.length <= 2 && before == 'h') token.field = 'n';
        if (token.field != 0) before = token.field;
        tokens.push_back(std::move(token));
    }
    return tokens;
}

std::string padded(std::int64_t number, std::size_t length) {
    std::string text = std::to_string(number);
    if (text.size() < length) text.insert(0, length - text.size(), '0');
    return text;
}

std::string dayText(Date date, const DateParts& parts, std::size_t length) {
    switch (length) {
    case 3:
    case 4:
        return std::string(nameOfWeekday(parts.weekday, length == 3));
    case 5:
        return formatDate(date, "dd.mm.yyyy");
    case 6:
        return formatDate(date, "dddd, d. mmmm yyyy");
    default:
        return padded(parts.day, length);
    }
}

std::string yearText(Date date, const DateParts& parts, std::size_t length) {
    if (length == 1) return std::to_string(DatePart("y", date));
    return length == 2 ? padded(parts.year % 100, 2) : padded(parts.year, 4);
}

std::string halfText(const std::string& spelling, int hour) {
    const bool isLower = spelling.front() == 'a';
    std::string half = hour < 12 ? (isLower ? "am" : "AM") : (isLower ? "pm" : "PM");
    return spelling.size() == 3 ? half.substr(0, 1) : half;
}

std::string textOf(const Token& token, Date date, const DateParts& parts, bool hasHalves) {
    const int hour = hasHalves ? (parts.hour + 11) % 12 + 1 : parts.hour;
    switch (token.field) {
    case 'd':
        return dayText(date, parts, token.length);
    case 'm':
        return token.length > 2 ? std::string(nameOfMonth(parts.month, token.length == 3))
                                : padded(parts.month, token.length);
    case 'y':
        return yearText(date, parts, token.length);
    case 'w':
        return std::to_string(DatePart(token.length == 1 ? "w" : "ww", date));
    case 'q':
        return std::to_string(DatePart("q", date));
    case 'h':
        return padded(hour, token.length);
    case 'n':
        return padded(parts.minute, token.length);
    case 's':
        return padded(parts.second, token.length);
    case 't':
        return formatDate(date, "hh:nn:ss");
    case 'c':
        return CStr(date);
    case 'a':
        return halfText(token.literal, parts.hour);
    default:
        return token.literal;
    }
}

} // namespace

std::string formatDate(Date date, std::string_view pattern) {
    const std::vector<Token> tokens = tokensOf(pattern);
    const bool hasHalves =
        std::any_of(tokens.begin(), tokens.end(), [](const Token& token) { return token.field == 'a'; });
    const DateParts parts = partsOf(date);
    std::string result;
    for (const Token& token : tokens)
        result += textOf(token, date, parts, hasHalves);
    return result;
}

} // namespace basic
