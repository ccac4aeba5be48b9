#include "values.h"

#include "platform/basic/dates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace basic {
namespace {

const Date today = Date::fromYmd(2019, 7, 15);

Date at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return Date::fromYmdHms(year, month, day, hour, minute, second);
}

std::string readAs(std::string_view text) {
    const std::optional<Date> date = parseDate(text, today);
    return date ? CStr(*date) : "none";
}

TEST(Date, CountsDaysFromItsEpoch) {
    EXPECT_EQ(Date::fromYmd(1899, 12, 30).serial(), 0);
    EXPECT_EQ(Date::fromYmd(1900, 3, 1).serial(), 61);
    EXPECT_EQ(Date::fromYmd(2019, 12, 24).serial(), 43823);
    EXPECT_EQ(Date::fromYmd(100, 1, 1).serial(), -657434);
    EXPECT_EQ(Date::fromYmd(9999, 12, 31).serial(), 2958465);
    EXPECT_EQ(at(2019, 12, 24, 18).serial(), 43823.75);
    EXPECT_EQ(at(2019, 12, 24) - at(2019, 12, 20, 12), 3.5);
    EXPECT_EQ((today + 1).dayNumber(), today.dayNumber() + 1);
}

TEST(Date, CountsTheTimeForwardBeforeItsEpochToo) {
    const Date morning(-1.25);
    EXPECT_EQ(CStr(morning), "29.12.1899 06:00:00");
    EXPECT_EQ(morning.dayNumber(), -1);
    EXPECT_EQ(at(1899, 12, 29, 6), morning);
    EXPECT_EQ(fromSeconds(secondsOf(morning)), morning);
    EXPECT_EQ(CStr(fromSeconds(-1)), "29.12.1899 23:59:59");
}

TEST(Date, RoundsToTheSecondIntoTheNextDay) {
    const Date almost(43823.9999999);
    EXPECT_EQ(CStr(almost), "25.12.2019");
    EXPECT_EQ(almost.dayNumber(), 43824);
    EXPECT_EQ(almost.secondOfDay(), 0);
    for (int second = 0; second < 86400; second += 7)
        EXPECT_EQ(fromSeconds(second).secondOfDay(), second);
}

TEST(Date, RefusesWhatIsOutsideItsYears) {
    EXPECT_EQ(errorOf([] { return Date::fromYmd(99, 12, 31); }), 5);
    EXPECT_EQ(errorOf([] { return Date::fromYmd(9999, 12, 32); }), 5);
    EXPECT_EQ(errorOf([] { return Date::fromYmd(2147483647, 2147483647, 2147483647); }), 5);
    for (const double serial :
         {1e9, -1e9, 2958466.0, -657435.0, 2958465.9999999, std::nan(""), std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(errorOf([=] { return partsOf(Date(serial)); }), 6) << serial;
        EXPECT_EQ(errorOf([=] { return Date(serial).secondOfDay(); }), 6) << serial;
        EXPECT_EQ(errorOf([=] { return CDate(serial); }), 6) << serial;
    }
}

TEST(Date, HasPartsOfCalendarAndClock) {
    const DateParts parts = partsOf(at(2020, 2, 29, 23, 59, 58));
    EXPECT_EQ(parts.year * 10000 + parts.month * 100 + parts.day, 20200229);
    EXPECT_EQ(parts.hour * 10000 + parts.minute * 100 + parts.second, 235958);
    EXPECT_EQ(parts.weekday, 7);
}

TEST(DateText, IsReadDayFirst) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"9.4.31", "09.04.1931"},         {"9.4.29", "09.04.2029"},
        {"9.4.30", "09.04.1930"},         {"24.12.2019", "24.12.2019"},
        {"24/12/2019", "24.12.2019"},     {"24-12-19", "24.12.2019"},
        {"  24.12.2019  ", "24.12.2019"}, {"24 . 12 . 2019", "24.12.2019"},
        {"2019-12-24", "24.12.2019"},     {"1.1.5", "01.01.2005"},
        {"1.1.100", "01.01.0100"},        {"24.12", "24.12.2019"},
        {"24.12.", "24.12.2019"},         {"12.2018", "01.12.2018"},
        {"29.2.2020", "29.02.2020"},      {"24. Dezember 2018", "24.12.2018"},
        {"24.Dez.2018", "24.12.2018"},    {"3. MÄRZ 20", "03.03.2020"},
        {"3 Mrz", "03.03.2019"},          {"Mai 2018", "01.05.2018"},
        {"Mai 3 2018", "03.05.2018"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(readAs(text), expected) << text;
}

TEST(DateText, TriesOtherOrdersWhereTheDayCannotBe) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"5.25.2018", "25.05.2018"}, {"5.25", "25.05.2019"},       {"30.02.18", "18.02.1930"},
        {"95.12.24", "24.12.1995"},  {"2018-25-05", "25.05.2018"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(readAs(text), expected) << text;
}

TEST(DateText, IsReadWithATime) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"24.12.2019 18:30", "24.12.2019 18:30:00"},
        {"24.12.2019  18:30:05 ", "24.12.2019 18:30:05"},
        {"18:30 24.12.2019", "24.12.2019 18:30:00"},
        {"24.12. 8:05", "24.12.2019 08:05:00"},
        {"18:30", "18:30:00"},
        {"12:15 AM", "00:15:00"},
        {"12:15pm", "12:15:00"},
        {"1.1.1850 06:00", "01.01.1850 06:00:00"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(readAs(text), expected) << text;
}

TEST(DateText, RefusesNonsense) {
    for (const std::string text : {"",
                                   " ",
                                   "kein Datum",
                                   "30.02.2018",
                                   "29.2.2019",
                                   "31.4.2019",
                                   "0.1.2019",
                                   "1.0.2019",
                                   "32.13.2019",
                                   "24",
                                   "43823",
                                   "7,5",
                                   "24 12 2019",
                                   "24.12.2019.",
                                   "24-12-",
                                   "..",
                                   "1.2.3.4",
                                   "1..2",
                                   "24.12.20190",
                                   "24.12.2019 24:00",
                                   "24.12.2019 12:60",
                                   "24.12.2019 12:",
                                   "12:30:",
                                   "12:30:61",
                                   "24.12.2019x",
                                   "x24.12.2019",
                                   "24.12.2019 12:30 x",
                                   "24.12.201912:30",
                                   "1.1.2019 12:30 2.2.2019",
                                   "13:00 PM",
                                   "Mai",
                                   "Mai Mai 2019",
                                   "24.Foo.2019",
                                   "1.1.0099 :",
                                   "123:30",
                                   "99999999999999999999.1.2019",
                                   "\xFF.1.2019",
                                   "1.2.2019\xC3"})
        EXPECT_EQ(readAs(text), "none") << text;
    EXPECT_EQ(readAs(std::string("1.2.2019\0", 9)), "none");
    EXPECT_EQ(readAs(std::string(100000, '1')), "none");
    EXPECT_EQ(readAs(std::string(100000, '.')), "none");
}

TEST(CDate, ConvertsEveryKind) {
    EXPECT_EQ(CDate(43823.5), at(2019, 12, 24, 12));
    EXPECT_EQ(CDate("24.12.", today), at(2019, 12, 24));
    EXPECT_EQ(partsOf(CDate("24.12.")).year, partsOf(systemToday()).year);
    EXPECT_EQ(errorOf([] { return CDate("kein Datum"); }), 13);
    EXPECT_EQ(errorOf([] { return CDate(Value()); }), 94);
    EXPECT_EQ(outcome([] { return CVDate(Value()); }), "Null");
    EXPECT_EQ(outcome([] { return CVDate("9.4.31"); }), "Date 09.04.1931");
    EXPECT_TRUE(IsDate(Date(1)) && IsDate("12:30") && IsDate("1.2.2019"));
    EXPECT_FALSE(IsDate(5) || IsDate(Value()) || IsDate("30.02.2018") || IsDate("29.2.", today));
}

TEST(CStr, PrintsTheTimeOnlyWhereThereIsOne) {
    EXPECT_EQ(CStr(at(2019, 4, 9)), "09.04.2019");
    EXPECT_EQ(CStr(at(2019, 4, 9, 7, 5)), "09.04.2019 07:05:00");
    EXPECT_EQ(CStr(Date(0.25)), "06:00:00");
    EXPECT_EQ(CStr(at(333, 1, 2)), "02.01.0333");
}

TEST(DateDiff, CountsBoundaries) {
    const auto difference = [](std::string_view interval, std::string_view a, std::string_view b) {
        return DateDiff(interval, CDate(a), CDate(b));
    };
    EXPECT_EQ(difference("m", "30.06.2019", "01.07.2019"), 1);
    EXPECT_EQ(difference("yyyy", "31.12.2018", "01.01.2019"), 1);
    EXPECT_EQ(difference("q", "31.03.2019", "01.04.2019"), 1);
    EXPECT_EQ(difference("d", "23.12.2019 23:00", "24.12.19"), 1);
    EXPECT_EQ(difference("D", "24.12.2019", "24.12.2019 23:59"), 0);
    EXPECT_EQ(difference("y", "25.12.2019", "24.12.2019"), -1);
    EXPECT_EQ(difference("m", "01.07.2019", "30.06.2018"), -13);
    EXPECT_EQ(difference("h", "24.12.2019 10:59", "24.12.2019 11:00"), 1);
    EXPECT_EQ(difference("n", "24.12.2019 11:00", "24.12.2019 10:59:59"), -1);
    EXPECT_EQ(difference("s", "30.12.1899", "29.12.1899 23:59:30"), -30);
    EXPECT_EQ(errorOf([&] { return difference("x", "1.1.2019", "1.1.2019"); }), 5);
}

TEST(DateDiff, CountsSundaysAndFullWeeks) {
    const Date saturday = at(2019, 12, 21);
    EXPECT_EQ(DateDiff("ww", saturday, saturday + 1), 1);
    EXPECT_EQ(DateDiff("ww", saturday + 1, saturday + 7), 0);
    EXPECT_EQ(DateDiff("ww", saturday + 1, saturday), -1);
    EXPECT_EQ(DateDiff("ww", saturday + 1, saturday + 2, 2), 1);
    EXPECT_EQ(DateDiff("w", saturday, saturday + 6), 0);
    EXPECT_EQ(DateDiff("w", saturday, saturday + 7), 1);
    EXPECT_EQ(DateDiff("w", saturday + 13, saturday), -1);
    EXPECT_EQ(DateDiff("ww", Date(-8), Date(-1)), 1);
}

TEST(DateAdd, CutsToTheMonthsEnd) {
    EXPECT_EQ(DateAdd("m", 1, at(2019, 5, 31)), at(2019, 6, 30));
    EXPECT_EQ(DateAdd("m", -1, at(2019, 3, 31, 10, 30)), at(2019, 2, 28, 10, 30));
    EXPECT_EQ(DateAdd("yyyy", 1, at(2020, 2, 29)), at(2021, 2, 28));
    EXPECT_EQ(DateAdd("q", -2, at(2019, 5, 31)), at(2018, 11, 30));
    for (const char* interval : {"d", "w", "y"})
        EXPECT_EQ(DateAdd(interval, 3, at(2019, 12, 30)), at(2020, 1, 2));
    EXPECT_EQ(DateAdd("ww", -1, at(2019, 1, 3)), at(2018, 12, 27));
    EXPECT_EQ(DateAdd("h", 25, at(2019, 1, 1)), at(2019, 1, 2, 1));
    EXPECT_EQ(DateAdd("n", -1, at(1899, 12, 30)), at(1899, 12, 29, 23, 59));
    EXPECT_EQ(DateAdd("d", 2.5, at(2019, 1, 1)), at(2019, 1, 3));
}

TEST(DateAdd, RefusesWhatLeavesTheYears) {
    for (const char* interval : {"yyyy", "q", "m", "d", "ww", "h", "n", "s"})
        for (const double count : {3e11, -3e11, 1e300, std::nan("")})
            EXPECT_EQ(errorOf([=] { return DateAdd(interval, count, today); }), 5) << interval << count;
    EXPECT_EQ(errorOf([] { return DateAdd("d", 1, at(9999, 12, 31)); }), 5);
    EXPECT_EQ(errorOf([] { return DateAdd("foo", 1, today); }), 5);
}

TEST(DatePart, CountsWeeksFromTheFirstOfJanuary) {
    EXPECT_EQ(DatePart("ww", at(2019, 1, 5)), 1);
    EXPECT_EQ(DatePart("ww", at(2019, 1, 6)), 2);
    EXPECT_EQ(DatePart("ww", at(2019, 12, 31)), 53);
    EXPECT_EQ(DatePart("ww", at(2028, 12, 31)), 54);
    EXPECT_EQ(DatePart("ww", at(100, 1, 1), 1, 2), 52);
}

TEST(DatePart, CountsCalendarWeeksWhereAsked) {
    const std::vector<std::pair<Date, int>> isoWeeks = {
        {at(2019, 12, 29), 52}, {at(2019, 12, 30), 1}, {at(2021, 1, 3), 53},  {at(2021, 1, 4), 1},
        {at(2026, 12, 31), 53}, {at(2027, 1, 3), 53},  {at(2003, 12, 29), 1}, {at(2016, 1, 1), 53},
    };
    for (const auto& [date, week] : isoWeeks) {
        EXPECT_EQ(DatePart("ww", date, 2, 2), week) << CStr(date);
        EXPECT_EQ(DatePart("ww", date, 0, 0), week) << CStr(date);
    }
    EXPECT_EQ(DatePart("ww", at(2019, 1, 6), 2, 3), 53);
    EXPECT_EQ(DatePart("ww", at(2019, 1, 7), 2, 3), 1);
}

TEST(DatePart, ReadsTheOtherParts) {
    const Date date = at(2019, 12, 24, 18, 30, 5);
    const std::vector<std::pair<const char*, int>> parts = {{"yyyy", 2019}, {"q", 4},  {"m", 12}, {"y", 358}, {"d", 24},
                                                            {"w", 3},       {"h", 18}, {"n", 30}, {"s", 5}};
    for (const auto& [interval, expected] : parts)
        EXPECT_EQ(DatePart(interval, date), expected) << interval;
    EXPECT_EQ(Weekday(date), 3);
    EXPECT_EQ(Weekday(date, 2), 2);
    EXPECT_EQ(Weekday(date, 0), 2);
    EXPECT_EQ(Weekday(Date(-1), 1), 6);
    EXPECT_EQ(errorOf([&] { return Weekday(date, 8); }), 5);
    EXPECT_EQ(errorOf([&] { return DatePart("ww", date, 1, 4); }), 5);
}

TEST(DateSerial, RollsOverAndWindowsTheYear) {
    EXPECT_EQ(DateSerial(2019, 13, 1), at(2020, 1, 1));
    EXPECT_EQ(DateSerial(2019, 3, 0), at(2019, 2, 28));
    EXPECT_EQ(DateSerial(2019, -1, 1), at(2018, 11, 1));
    EXPECT_EQ(DateSerial(29, 1, 1), at(2029, 1, 1));
    EXPECT_EQ(DateSerial(30, 1, 1), at(1930, 1, 1));
    EXPECT_EQ(errorOf([] { return DateSerial(-1, 1, 1); }), 5);
    EXPECT_EQ(TimeSerial(18, 30, 0), Date(0.770833333333333333));
    EXPECT_EQ(TimeSerial(0, -15, 0).serial(), -900.0 / 86400);
}

TEST(Names, AreGerman) {
    EXPECT_EQ(MonthName(3), "März");
    EXPECT_EQ(MonthName(3, true), "Mrz");
    EXPECT_EQ(WeekdayName(1), "Sonntag");
    EXPECT_EQ(WeekdayName(1, true, 2), "Mo");
    EXPECT_EQ(WeekdayName(7, false, 2), "Sonntag");
    EXPECT_EQ(errorOf([] { return MonthName(13); }), 5);
    EXPECT_EQ(errorOf([] { return WeekdayName(0); }), 5);
}

} // namespace
} // namespace basic
