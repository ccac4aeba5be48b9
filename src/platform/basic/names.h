#pragma once

#include <string_view>

namespace basic {

// Names and lengths of months and days; months 1 to 12, weekdays Sunday 1 to Saturday 7.

[[nodiscard]] std::string_view nameOfMonth(int month, bool abbreviated);
[[nodiscard]] std::string_view nameOfWeekday(int weekday, bool abbreviated);
/// Month of a folded name or abbreviation, 0 where it is none.
[[nodiscard]] int monthOfName(std::string_view folded);
[[nodiscard]] int daysInMonth(int year, int month);

} // namespace basic
