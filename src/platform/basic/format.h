#pragma once

#include "platform/basic/value.h"

namespace basic {

/// Format() of the run-time library with German separators and names. Number patterns (0 # , . % E+ and up to four
/// sections by ';', quoted and escaped literals), date patterns (d dd ddd dddd ddddd m mm mmm mmmm yy yyyy y w ww q h
/// hh n nn s ss c AM/PM, 'm' right behind 'h' means minutes, '/' prints a point, ':' a colon), text patterns (@ & < >
/// !), and the named ones ("Standard", "Fixed", "Percent", "Currency", "Yes/No", "True/False", "General Number", "Short
/// Date", "Long Date", "Short Time", ...). Rounds half away from zero on the value's 15 decimal digits. A text that is
/// a German number (date) is formatted as number (date), another stays as it is under a number or date pattern. Null
/// gives the empty text (or the fourth section of a number pattern). An empty pattern gives CStr. What rounds to zero
/// has no sign. `today` as with CDate.
[[nodiscard]] std::string Format(const Value& value, std::string_view pattern = {}, std::optional<Date> today = {});

} // namespace basic
