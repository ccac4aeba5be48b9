#pragma once

#include "platform/jet/error.h"

#include <string>
#include <string_view>

namespace jet {

// Values as they stand in statements. All text and numbers that come from outside go through these.

/// #mm-dd-yyyy#, the month first whatever the locale; the time is dropped.
[[nodiscard]] std::string sqlDate(Date date);
/// Decimal point, at most 15 digits.
[[nodiscard]] std::string sqlNumber(double number);
/// In single quotes, those inside doubled.
[[nodiscard]] std::string sqlText(std::string_view text);
/// Any value as a literal; Null as NULL, a date with its time.
[[nodiscard]] std::string sqlValue(const Value& value);

} // namespace jet
