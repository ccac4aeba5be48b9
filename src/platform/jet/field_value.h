#pragma once

#include "platform/jet/catalogue.h"
#include "platform/jet/error.h"

namespace jet {

/// The value as the field keeps it: converted to the field's type by the rules of the house (comma decimal, days
/// first), checked for range, width, zero length and Null. Raises 3421 (not convertible), 6 (out of range), 3163 (text
/// too long), 3315 (zero length), 3314 (Null not allowed), each with the field's name. Null in a YESNO is False.
[[nodiscard]] Value storedValue(const Column& column, const Value& value);

} // namespace jet
