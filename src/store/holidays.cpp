#include "store/holidays.h"

namespace store {

using basic::Date;

Date easterSunday(int year) {
    const int golden = year % 19;
    const int century = year / 100;
    const int skippedLeapDays = century / 4;
    const int moonCorrection = (century - (century + 8) / 25 + 1) / 3;
    const int epact = (19 * golden + century - skippedLeapDays - moonCorrection + 15) % 30;
    const int toSunday = (32 + 2 * (century % 4) + 2 * (year % 100 / 4) - epact - year % 100 % 4) % 7;
    const int lateMoon = (golden + 11 * epact + 22 * toSunday) / 451;
    const int marchDay = epact + toSunday - 7 * lateMoon + 22;
    return Date::fromYmd(year, 3, 1) + (marchDay - 1);
}

std::vector<Holiday> nationwideHolidays(int year) {
    const Date easter = easterSunday(year);
    return {{"Neujahr", Date::fromYmd(year, 1, 1)},
            {"Karfreitag", easter - 2},
            {"Ostermontag", easter + 1},
            {"Tag der Arbeit", Date::fromYmd(year, 5, 1)},
            {"Christi Himmelfahrt", easter + 39},
            {"Pfingstmontag", easter + 50},
            {"Tag der Deutschen Einheit", Date::fromYmd(year, 10, 3)},
            {"1. Weihnachtstag", Date::fromYmd(year, 12, 25)},
            {"2. Weihnachtstag", Date::fromYmd(year, 12, 26)}};
}

} // namespace store
