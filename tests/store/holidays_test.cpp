#include "store/holidays.h"

#include "support/test_house.h"

#include <gtest/gtest.h>

namespace {

using basic::Date;
using support::TestHouse;

TEST(Holidays, EasterFallsOnItsKnownSundays) {
    struct Case {
        int year, month, day;
    };
    // 1818 and 2285 the earliest, 1943 and 2038 the latest; 1954, 1981 and 2049 need the exceptions of the reckoning
    for (const Case& c :
         {Case{1818, 3, 22}, Case{1943, 4, 25}, Case{1954, 4, 18}, Case{1981, 4, 19}, Case{2000, 4, 23},
          Case{2008, 3, 23}, Case{2020, 4, 12}, Case{2024, 3, 31}, Case{2025, 4, 20}, Case{2026, 4, 5},
          Case{2027, 3, 28}, Case{2035, 3, 25}, Case{2038, 4, 25}, Case{2049, 4, 18}, Case{2285, 3, 22}}) {
        EXPECT_EQ(store::easterSunday(c.year), Date::fromYmd(c.year, c.month, c.day)) << c.year;
    }
}

TEST(Holidays, ANewHouseKnowsTheNationwideOnesOfSixteenYears) {
    TestHouse house;
    EXPECT_EQ(house.count("tbFeiertage"), 16 * 9);
    EXPECT_EQ(house.value("SELECT Min(FTDatum) FROM tbFeiertage"), basic::Value(Date::fromYmd(2020, 1, 1)));
    EXPECT_EQ(house.value("SELECT Max(FTDatum) FROM tbFeiertage"), basic::Value(Date::fromYmd(2035, 12, 26)));
    const auto nameOn = [&](int day, int month, int year) {
        return house
            .value("SELECT FTBezeichnung FROM tbFeiertage WHERE FTDatum = " +
                   jet::sqlDate(Date::fromYmd(year, month, day)))
            .textOr("-");
    };
    EXPECT_EQ(nameOn(3, 4, 2026), "Karfreitag");
    EXPECT_EQ(nameOn(6, 4, 2026), "Ostermontag");
    EXPECT_EQ(nameOn(14, 5, 2026), "Christi Himmelfahrt");
    EXPECT_EQ(nameOn(25, 5, 2026), "Pfingstmontag");
    EXPECT_EQ(nameOn(3, 10, 2031), "Tag der Deutschen Einheit");
    // Reformation Day, Corpus Christi and All Saints belong to single states; Easter Sunday is a Sunday
    for (const auto& [day, month] : {std::pair(31, 10), std::pair(4, 6), std::pair(1, 11), std::pair(5, 4)})
        EXPECT_EQ(nameOn(day, month, 2026), "-") << day << '.' << month;
}

} // namespace
