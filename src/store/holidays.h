#pragma once

#include "platform/basic/date.h"

#include <string>
#include <vector>

namespace store {

struct Holiday {
    std::string Bezeichnung;
    basic::Date Datum;
};

/// Easter Sunday of the Gregorian calendar; years 1583 to 9999.
[[nodiscard]] basic::Date easterSunday(int year);

/// The nine public holidays that all federal states keep, in the order of the calendar. Those of single states are the
/// house's own business and are entered by hand. Years from 1995 on, without the one-off of 2017.
[[nodiscard]] std::vector<Holiday> nationwideHolidays(int year);

} // namespace store
