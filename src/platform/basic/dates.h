#pragma once

#include "platform/basic/value.h"

namespace basic {

/// Weekday numbers of the first-day-of-week argument: 1 Sunday to 7 Saturday; 0 (the system's) is Monday here.
/// First-week argument: 1 the week of 1 January, 2 first with four days (ISO), 3 first full week; 0 (the system's)
/// is 2.

/// Boundaries of the interval crossed from a to b, negative when b is earlier. Intervals: yyyy q m y d w ww h n s
/// (case ignored; others raise 5).
[[nodiscard]] std::int64_t DateDiff(std::string_view interval, Date a, Date b, int firstDayOfWeek = 1,
                                    int firstWeek = 1);
/// Raises 5 outside the years 100 to 9999. Adds whole intervals (a fractional count is rounded half to even first);
/// keeps the day and cuts it to the month's end.
[[nodiscard]] Date DateAdd(std::string_view interval, double count, Date date);
[[nodiscard]] std::int64_t DatePart(std::string_view interval, Date date, int firstDayOfWeek = 1, int firstWeek = 1);
/// 1 for the first day of the week, Sunday unless told otherwise.
[[nodiscard]] int Weekday(Date date, int firstDayOfWeek = 1);
/// Years 0 to 29 mean 2000 to 2029, 30 to 99 mean 1930 to 1999; month and day roll over.
[[nodiscard]] Date DateSerial(int year, int month, int day);
[[nodiscard]] Date TimeSerial(int hour, int minute, int second);
[[nodiscard]] std::string MonthName(int month, bool abbreviate = false);
[[nodiscard]] std::string WeekdayName(int weekday, bool abbreviate = false, int firstDayOfWeek = 1);

} // namespace basic
