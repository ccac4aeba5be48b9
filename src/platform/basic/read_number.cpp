#include "platform/basic/convert.h"
#include "platform/basic/decimal.h"
#include "platform/basic/error_numbers.h"
#include "platform/basic/reading.h"
#include "platform/basic/utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace basic {

namespace {

constexpr std::string_view euro = "€";

struct Spelling {
    char decimal;
    char ignored;
};

constexpr Spelling german{',', '.'};
constexpr Spelling english{'.', ' '};

/// Moves the digits at the front of `rest` to the end of `target`.
bool takeDigits(std::string_view& rest, char ignored, std::string& target) {
    const std::size_t before = target.size();
    while (!rest.empty() && (isDigit(rest.front()) || rest.front() == ignored)) {
        if (isDigit(rest.front())) target.push_back(rest.front());
        rest.remove_prefix(1);
    }
    return target.size() > before;
}

/// The exponent at the front, with its 'e'; nothing is taken where no digits follow.
std::string takeExponent(std::string_view& rest) {
    if (rest.empty() || std::string_view("eEdD").find(rest.front()) == std::string_view::npos) return {};
    std::string_view ahead = rest.substr(1);
    std::string exponent = "e";
    if (!ahead.empty() && (ahead.front() == '-' || ahead.front() == '+')) {
        if (ahead.front() == '-') exponent.push_back('-');
        ahead.remove_prefix(1);
    }
    std::string digits;
    if (!takeDigits(ahead, '0', digits)) return {};
    rest = ahead;
    // Six digits are beyond any double already; more would only overflow the reading of the exponent itself.
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
    return exponent + digits.substr(0, 6);
}

/// The unsigned number at the front of `rest`; infinite where it is too large.
std::optional<double> takeNumber(std::string_view& rest, Spelling spelling) {
    std::string text;
    std::string_view ahead = rest;
    bool found = takeDigits(ahead, spelling.ignored, text);
    if (!ahead.empty() && ahead.front() == spelling.decimal) {
        ahead.remove_prefix(1);
        if (!found) text = "0";
        text.push_back('.');
        found = takeDigits(ahead, spelling.ignored, text) || found;
    }
    if (!found) return std::nullopt;
    rest = ahead;
    text += takeExponent(rest);
    return readDouble(text);
}

double signedBits(std::uint64_t bits, bool isLong) {
    if (bits <= 0xFFFF && !isLong) return static_cast<std::int16_t>(bits);
    if (bits <= 0xFFFFFFFF) return static_cast<std::int32_t>(bits);
    return static_cast<double>(bits);
}

/// A "&H" or "&O" number at the front; none without the prefix, 0 without digits.
std::optional<double> takeRadixNumber(std::string_view& rest) {
    if (rest.size() < 2 || rest[0] != '&') return std::nullopt;
    const char kind = lowerAscii(rest[1]);
    if (kind != 'h' && kind != 'o') return std::nullopt;
    std::uint64_t bits = 0;
    const char* end = rest.data() + rest.size();
    const auto [stop, error] = std::from_chars(rest.data() + 2, end, bits, kind == 'h' ? 16 : 8);
    if (error == std::errc::result_out_of_range) bits = std::numeric_limits<std::uint64_t>::max();
    rest.remove_prefix(static_cast<std::size_t>(stop - rest.data()));
    const bool isLong = !rest.empty() && rest.front() == '&';
    if (isLong) rest.remove_prefix(1);
    return signedBits(bits, isLong);
}

bool takeFront(std::string_view& rest, std::string_view mark) {
    if (!rest.starts_with(mark)) return false;
    rest = withoutBlanks(rest.substr(mark.size()));
    return true;
}

bool takeBack(std::string_view& rest, std::string_view mark) {
    if (!rest.ends_with(mark)) return false;
    rest = withoutBlanks(rest.substr(0, rest.size() - mark.size()));
    return true;
}

/// Takes the sign, in front or behind; true for minus.
bool takeSign(std::string_view& rest) {
    if (takeFront(rest, "-")) return true;
    if (takeFront(rest, "+")) return false;
    if (takeBack(rest, "-")) return true;
    takeBack(rest, "+");
    return false;
}

std::string withoutAnyBlanks(std::string_view text) {
    std::string result;
    std::copy_if(text.begin(), text.end(), std::back_inserter(result),
                 [](char c) { return blanks.find(c) == std::string_view::npos; });
    return result;
}

/// Infinite where the number is too large.
std::optional<double> readGermanNumber(std::string_view text) {
    std::string_view rest = withoutBlanks(text);
    if (rest.starts_with('&') && rest.size() > 2) {
        const std::optional<double> number = takeRadixNumber(rest);
        return rest.empty() ? number : std::nullopt;
    }
    if (!takeFront(rest, euro)) takeBack(rest, euro);
    const bool minus = takeSign(rest);
    const std::optional<double> number = takeNumber(rest, german);
    if (!number || !rest.empty()) return std::nullopt;
    return minus ? -*number : *number;
}

} // namespace

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<double> parseNumber(std::string_view text) {
    const std::optional<double> number = readGermanNumber(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

double numberOfText(std::string_view text) {
    const std::optional<double> number = readGermanNumber(text);
    if (!number) raise(ErrorNumber::TypeMismatch);
    if (!std::isfinite(*number)) raise(ErrorNumber::Overflow);
    return *number;
}

double Val(const Value& value) {
    if (value.isNull()) raise(ErrorNumber::InvalidNull);
    const std::string text = withoutAnyBlanks(CStr(value));
    std::string_view rest = text;
    if (const std::optional<double> number = takeRadixNumber(rest)) return *number;
    const bool minus = rest.starts_with('-');
    if (minus || rest.starts_with('+')) rest.remove_prefix(1);
    const double number = std::min(takeNumber(rest, english).value_or(0), std::numeric_limits<double>::max());
    return minus ? -number : number;
}

} // namespace basic
