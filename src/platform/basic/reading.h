#pragma once

#include "platform/basic/value.h"

namespace basic {

// The readings behind convert.h that its functions share.

inline constexpr std::string_view blanks = " \t\r\n";
/// Without blanks at both ends.
[[nodiscard]] std::string_view withoutBlanks(std::string_view text);

/// parseNumber, but raises 13 for what is no number and 6 for what is too large.
[[nodiscard]] double numberOfText(std::string_view text);
/// parseDate that asks the machine for the day only where the text has no year.
[[nodiscard]] std::optional<Date> readDate(std::string_view text, std::optional<Date> today);
/// The value as text where it stands beside another text: Booleans as -1 and 0, else as CStr.
[[nodiscard]] std::string operandText(const Value& value);

} // namespace basic
