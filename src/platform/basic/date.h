#pragma once

#include <compare>
#include <cstdint>

namespace basic {

/// A point in time as the engine stores it: days since 30.12.1899, the time of day as the fraction. Years 100 to 9999.
/// Before day 0 the fraction still counts forward from midnight (-1.25 is 29.12.1899 06:00).
/// Times are exact to the second; no time zone. A value outside the years or not finite can be held (it may come from a
/// file), but asking for its day or time raises 6.
class Date {
public:
    constexpr Date() = default;
    constexpr explicit Date(double serial) : serial_(serial) {}

    /// Raises 5 outside the years. Calendar day; month and day outside their ranges roll over as in DateSerial (month
    /// 13 is January of the next year).
    [[nodiscard]] static Date fromYmd(int year, int month, int day);
    [[nodiscard]] static Date fromYmdHms(int year, int month, int day, int hour, int minute, int second);

    [[nodiscard]] constexpr double serial() const { return serial_; }
    /// Midnight of the day.
    [[nodiscard]] Date day() const;
    /// Whole days since 30.12.1899; -1 for 29.12.1899 whatever the time.
    [[nodiscard]] int dayNumber() const;
    /// 0 to 86399.
    [[nodiscard]] int secondOfDay() const;

    constexpr auto operator<=>(const Date&) const = default;

private:
    double serial_ = 0;
};

/// The parts of a date on the calendar and the clock.
struct DateParts {
    int year;    ///< 100 to 9999
    int month;   ///< 1 to 12
    int day;     ///< 1 to 31
    int hour;    ///< 0 to 23
    int minute;  ///< 0 to 59
    int second;  ///< 0 to 59
    int weekday; ///< Sunday 1 to Saturday 7
};

[[nodiscard]] DateParts partsOf(Date date);

/// Seconds since 30.12.1899 00:00, chronological also before that day (where the day number with its fraction is not).
[[nodiscard]] std::int64_t secondsOf(Date date);
/// The reverse of secondsOf; raises 5 outside the years.
[[nodiscard]] Date fromSeconds(std::int64_t seconds);

/// The local day by the machine's clock: the last resort of conversions that were not told what today is.
[[nodiscard]] Date systemToday();

[[nodiscard]] constexpr Date operator+(Date date, int days) { return Date(date.serial() + days); }
[[nodiscard]] constexpr Date operator-(Date date, int days) { return Date(date.serial() - days); }
/// Days between, with the time as fraction.
[[nodiscard]] constexpr double operator-(Date a, Date b) { return a.serial() - b.serial(); }

} // namespace basic
