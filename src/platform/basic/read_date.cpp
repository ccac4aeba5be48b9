#include "platform/basic/convert.h"
#include "platform/basic/names.h"
#include "platform/basic/reading.h"
#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <algorithm>
#include <array>

namespace basic {

namespace {

void skipBlanks(std::string_view& rest) { rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size())); }

bool isSeparator(char c) { return c == '.' || c == '/' || c == '-'; }

bool isLetter(char c) {
    return (lowerAscii(c) >= 'a' && lowerAscii(c) <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

/// One part of a written day: a number of up to four digits, or a month's name.
struct Part {
    int value = 0;
    int digits = 0;
    bool isName = false;

    [[nodiscard]] bool isYear() const { return digits > 2; }
};

struct Parts {
    std::array<Part, 3> part;
    int count = 0;
};

std::string_view takeWhile(std::string_view& rest, bool (*belongs)(char)) {
    const auto end = std::find_if_not(rest.begin(), rest.end(), belongs);
    const std::string_view taken = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
    rest.remove_prefix(taken.size());
    return taken;
}

std::optional<Part> takeDigits(std::string_view& rest, std::size_t most) {
    const std::string_view digits = takeWhile(rest, isDigit);
    if (digits.empty() || digits.size() > most) return std::nullopt;
    Part part{.digits = static_cast<int>(digits.size())};
    for (const char c : digits)
        part.value = part.value * 10 + (c - '0');
    return part;
}

std::optional<Part> takePart(std::string_view& rest) {
    const std::string_view word = takeWhile(rest, isLetter);
    if (word.empty()) return takeDigits(rest, 4);
    const int month = monthOfName(foldCase(word));
    if (month == 0) return std::nullopt;
    return Part{.value = month, .isName = true};
}

/// Takes what stands between two parts. Blanks alone part them only where a month's name stands by; false elsewhere.
bool takeSeparator(std::string_view& rest, bool hasName) {
    skipBlanks(rest);
    if (rest.empty()) return true;
    if (!isSeparator(rest.front())) return hasName || isLetter(rest.front());
    rest.remove_prefix(1);
    skipBlanks(rest);
    return true;
}

std::optional<Parts> readParts(std::string_view text) {
    Parts parts;
    bool hasName = false;
    std::string_view rest = withoutBlanks(text);
    while (!rest.empty()) {
        if (parts.count == 3) return std::nullopt;
        const std::optional<Part> part = takePart(rest);
        const bool isLast = rest.empty();
        hasName = hasName || (part && part->isName);
        if (!part || !takeSeparator(rest, hasName)) return std::nullopt;
        parts.part[static_cast<std::size_t>(parts.count++)] = *part;
        // "24.12." is a day of this year; any other separator at the end is a slip.
        if (rest.empty() && !isLast && !(parts.count == 2 && withoutBlanks(text).ends_with('.'))) return std::nullopt;
    }
    return parts;
}

int fullYear(const Part& part) {
    if (part.value >= 100) return part.value;
    return part.value < 30 ? 2000 + part.value : 1900 + part.value;
}

bool isCalendarDay(int year, int month, int day) {
    return month >= 1 && month <= 12 && day >= 1 && day <= daysInMonth(year, month);
}

std::optional<Date> dayOf(const Part& year, const Part& month, const Part& day) {
    if (month.isYear() || day.isYear() || year.isName || day.isName) return std::nullopt;
    if (!isCalendarDay(fullYear(year), month.value, day.value)) return std::nullopt;
    return Date::fromYmd(fullYear(year), month.value, day.value);
}

Part thisYear(std::optional<Date> today) {
    return {.value = partsOf(today ? *today : systemToday()).year, .digits = 4};
}

std::optional<Date> dayOfTwo(const Part& a, const Part& b, std::optional<Date> today) {
    const Part first{.value = 1, .digits = 1};
    if (b.isYear()) return dayOf(b, a, first);
    if (a.isYear()) return dayOf(a, b, first);
    const Part year = thisYear(today);
    if (a.isName || b.isName) return a.isName ? dayOf(year, a, b) : dayOf(year, b, a);
    if (const auto date = dayOf(year, b, a)) return date;
    return dayOf(year, a, b);
}

std::optional<Date> dayOfThree(const Part& a, const Part& b, const Part& c) {
    if (a.isName) {
        if (const auto date = dayOf(c, a, b)) return date;
        return dayOf(b, a, c);
    }
    if (!a.isYear()) {
        if (const auto date = dayOf(c, b, a)) return date;
        if (const auto date = b.isName ? std::nullopt : dayOf(c, a, b)) return date;
    }
    if (const auto date = dayOf(a, b, c)) return date;
    return a.isYear() && !b.isName ? dayOf(a, c, b) : std::nullopt;
}

std::optional<Date> readDay(std::string_view text, std::optional<Date> today) {
    const std::optional<Parts> parts = readParts(text);
    if (!parts || parts->count < 2) return std::nullopt;
    const auto& [a, b, c] = parts->part;
    return parts->count == 2 ? dayOfTwo(a, b, today) : dayOfThree(a, b, c);
}

std::optional<int> takeHalf(std::string_view& rest, int hour) {
    std::string_view ahead = rest;
    skipBlanks(ahead);
    if (ahead.size() < 2 || lowerAscii(ahead[1]) != 'm') return hour;
    const char half = lowerAscii(ahead[0]);
    if (half != 'a' && half != 'p') return hour;
    if (hour < 1 || hour > 12) return std::nullopt;
    rest = ahead.substr(2);
    return hour % 12 + (half == 'p' ? 12 : 0);
}

std::optional<int> takeSexagesimal(std::string_view& rest) {
    rest.remove_prefix(1);
    const std::optional<Part> part = takeDigits(rest, 2);
    if (!part || part->value > 59) return std::nullopt;
    return part->value;
}

/// The time at the front, in seconds.
std::optional<int> takeTime(std::string_view& rest) {
    const std::optional<Part> written = takeDigits(rest, 2);
    if (!written || written->value > 23 || !rest.starts_with(':')) return std::nullopt;
    const std::optional<int> minute = takeSexagesimal(rest);
    const std::optional<int> second = rest.starts_with(':') ? takeSexagesimal(rest) : 0;
    const std::optional<int> hour = takeHalf(rest, written->value);
    if (!hour || !minute || !second) return std::nullopt;
    return *hour * 3600 + *minute * 60 + *second;
}

std::optional<Date> withTime(std::optional<Date> day, int seconds) {
    if (!day) return std::nullopt;
    return fromSeconds(secondsOf(*day) + seconds);
}

} // namespace

std::optional<Date> readDate(std::string_view text, std::optional<Date> today) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return readDay(text, today);
    std::size_t begin = colon;
    while (begin > 0 && isDigit(text[begin - 1]))
        --begin;
    const std::string_view before = text.substr(0, begin);
    std::string_view behind = text.substr(begin);
    const std::optional<int> seconds = takeTime(behind);
    if (!seconds) return std::nullopt;
    const bool hasDayBefore = !withoutBlanks(before).empty();
    const bool hasDayBehind = !withoutBlanks(behind).empty();
    if (!hasDayBefore && !hasDayBehind) return fromSeconds(*seconds);
    if (hasDayBefore && hasDayBehind) return std::nullopt;
    const char neighbour = hasDayBefore ? before.back() : behind.front();
    if (blanks.find(neighbour) == std::string_view::npos) return std::nullopt;
    return withTime(readDay(hasDayBefore ? before : behind, today), *seconds);
}

std::optional<Date> parseDate(std::string_view text, Date today) { return readDate(text, today); }

} // namespace basic
