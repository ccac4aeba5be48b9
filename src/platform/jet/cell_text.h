#pragma once

#include "platform/jet/error.h"

#include <string>
#include <string_view>

namespace jet {

// How tools print rows: one line a row, cells between tabs.

/// "NULL"; -1 or 0; dates as dd.mm.yyyy, with " hh:mm:ss" where there is a time; numbers with a decimal point and at
/// most 15 digits; texts by escaped().
[[nodiscard]] std::string cellText(const Value& value);

/// Backslash, tab and newline as \\, \t and \n, so that a cell never breaks its line.
[[nodiscard]] std::string escaped(std::string_view text);

} // namespace jet
