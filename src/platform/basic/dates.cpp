#include "platform/basic/dates.h"

#include "platform/basic/error_numbers.h"
#include "platform/basic/names.h"
#include "platform/basic/text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace basic {

namespace {

enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

Interval intervalOf(std::string_view name) {
    constexpr std::array<std::string_view, 10> names = {"yyyy", "q", "m", "y", "d", "w", "ww", "h", "n", "s"};
    const auto found = std::find(names.begin(), names.end(), foldCase(name));
    if (found == names.end()) raise(ErrorNumber::InvalidCall);
    return static_cast<Interval>(found - names.begin());
}

std::int64_t floorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

int checkedFirstDay(int firstDayOfWeek) {
    if (firstDayOfWeek < 0 || firstDayOfWeek > 7) raise(ErrorNumber::InvalidCall);
    return firstDayOfWeek == 0 ? 2 : firstDayOfWeek;
}

int checkedFirstWeek(int firstWeek) {
    if (firstWeek < 0 || firstWeek > 3) raise(ErrorNumber::InvalidCall);
    return firstWeek == 0 ? 2 : firstWeek;
}

/// 1 to 7 within a week that begins on `firstDay`. Day 0, 30.12.1899, was a Saturday.
int weekdayOf(std::int64_t day, int firstDay) {
    const std::int64_t shifted = day + 7 - firstDay;
    return static_cast<int>(shifted - floorDivide(shifted, 7) * 7) + 1;
}

/// Number of the week by a count that runs through all years.
std::int64_t weekOf(std::int64_t day, int firstDay) { return floorDivide(day + 7 - firstDay, 7); }

/// Also one year beyond either end of what a Date can hold.
std::int64_t newYearsDay(int year) {
    using std::chrono::sys_days;
    constexpr sys_days dayZero = std::chrono::year(1899) / 12 / 30;
    return (sys_days(std::chrono::year(year) / 1 / 1) - dayZero).count();
}

/// The day on which week 1 of the year begins.
std::int64_t firstWeekBegin(int year, int firstDay, int firstWeek) {
    const std::int64_t newYear = newYearsDay(year);
    const int before = weekdayOf(newYear, firstDay) - 1;
    const bool belongs = firstWeek == 1 || (firstWeek == 2 && before <= 3) || before == 0;
    return newYear - before + (belongs ? 0 : 7);
}

std::int64_t weekOfYear(Date date, int firstDay, int firstWeek) {
    const int day = date.dayNumber();
    const int year = partsOf(date).year;
    if (firstWeek == 2 && day >= firstWeekBegin(year + 1, firstDay, firstWeek)) return 1;
    std::int64_t begin = firstWeekBegin(year, firstDay, firstWeek);
    if (day < begin) begin = firstWeekBegin(year - 1, firstDay, firstWeek);
    return (day - begin) / 7 + 1;
}

std::int64_t monthsOf(Date date) {
    const DateParts parts = partsOf(date);
    return parts.year * 12 + parts.month - 1;
}

Date addMonths(Date date, std::int64_t months) {
    const std::int64_t total = monthsOf(date) + months;
    if (total < 100 * 12 || total >= 10000 * 12) raise(ErrorNumber::InvalidCall);
    const auto year = static_cast<int>(total / 12);
    const auto month = static_cast<int>(total % 12) + 1;
    const int day = std::min(partsOf(date).day, daysInMonth(year, month));
    return fromSeconds(secondsOf(Date::fromYmd(year, month, day)) + date.secondOfDay());
}

std::int64_t wholeCount(double count) {
    constexpr double limit = 1e12;
    const double whole = std::nearbyint(count);
    if (!(std::abs(whole) < limit)) raise(ErrorNumber::InvalidCall);
    return static_cast<std::int64_t>(whole);
}

int windowedYear(int year) {
    if (year < 0) raise(ErrorNumber::InvalidCall);
    if (year >= 100) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

} // namespace

std::int64_t DateDiff(std::string_view interval, Date a, Date b, int firstDayOfWeek, int firstWeek) {
    static_cast<void>(checkedFirstWeek(firstWeek));
    const int firstDay = checkedFirstDay(firstDayOfWeek);
    const auto boundaries = [&](auto countOf) { return countOf(b) - countOf(a); };
    const auto seconds = [&](std::int64_t unit) {
        return boundaries([=](Date date) { return floorDivide(secondsOf(date), unit); });
    };
    switch (intervalOf(interval)) {
    case Interval::Year:
        return boundaries([](Date date) { return partsOf(date).year; });
    case Interval::Quarter:
        return boundaries([](Date date) { return monthsOf(date) / 3; });
    case Interval::Month:
        return boundaries(monthsOf);
    case Interval::DayOfYear:
    case Interval::Day:
        return boundaries([](Date date) { return date.dayNumber(); });
    case Interval::Weekday:
        return (b.dayNumber() - a.dayNumber()) / 7;
    case Interval::Week:
        return boundaries([=](Date date) { return weekOf(date.dayNumber(), firstDay); });
    case Interval::Hour:
        return seconds(3600);
    case Interval::Minute:
        return seconds(60);
    case Interval::Second:
        break;
    }
    return seconds(1);
}

Date DateAdd(std::string_view interval, double count, Date date) {
    constexpr std::int64_t day = 86400;
    const Interval unit = intervalOf(interval);
    const std::int64_t whole = wholeCount(count);
    const auto seconds = [&](std::int64_t each) { return fromSeconds(secondsOf(date) + whole * each); };
    switch (unit) {
    case Interval::Year:
        return addMonths(date, whole * 12);
    case Interval::Quarter:
        return addMonths(date, whole * 3);
    case Interval::Month:
        return addMonths(date, whole);
    case Interval::DayOfYear:
    case Interval::Day:
    case Interval::Weekday:
        return seconds(day);
    case Interval::Week:
        return seconds(7 * day);
    case Interval::Hour:
        return seconds(3600);
    case Interval::Minute:
        return seconds(60);
    case Interval::Second:
        break;
    }
    return seconds(1);
}

std::int64_t DatePart(std::string_view interval, Date date, int firstDayOfWeek, int firstWeek) {
    const int firstDay = checkedFirstDay(firstDayOfWeek);
    const int week = checkedFirstWeek(firstWeek);
    const DateParts parts = partsOf(date);
    switch (intervalOf(interval)) {
    case Interval::Year:
        return parts.year;
    case Interval::Quarter:
        return (parts.month - 1) / 3 + 1;
    case Interval::Month:
        return parts.month;
    case Interval::DayOfYear:
        return date.dayNumber() - newYearsDay(parts.year) + 1;
    case Interval::Day:
        return parts.day;
    case Interval::Weekday:
        return weekdayOf(date.dayNumber(), firstDay);
    case Interval::Week:
        return weekOfYear(date, firstDay, week);
    case Interval::Hour:
        return parts.hour;
    case Interval::Minute:
        return parts.minute;
    case Interval::Second:
        break;
    }
    return parts.second;
}

int Weekday(Date date, int firstDayOfWeek) { return weekdayOf(date.dayNumber(), checkedFirstDay(firstDayOfWeek)); }

Date DateSerial(int year, int month, int day) { return Date::fromYmd(windowedYear(year), month, day); }

Date TimeSerial(int hour, int minute, int second) {
    const std::int64_t seconds = std::int64_t{hour} * 3600 + std::int64_t{minute} * 60 + second;
    const Date time(static_cast<double>(seconds) / 86400);
    static_cast<void>(time.dayNumber());
    return time;
}

std::string MonthName(int month, bool abbreviate) {
    if (month < 1 || month > 12) raise(ErrorNumber::InvalidCall);
    return std::string(nameOfMonth(month, abbreviate));
}

std::string WeekdayName(int weekday, bool abbreviate, int firstDayOfWeek) {
    if (weekday < 1 || weekday > 7) raise(ErrorNumber::InvalidCall);
    const int firstDay = checkedFirstDay(firstDayOfWeek);
    return std::string(nameOfWeekday((weekday + firstDay - 2) % 7 + 1, abbreviate));
}

} // namespace basic
