#include "plan/colours.h"
#include "plan/imagined_source.h"
#include "plan/navigation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string_view>

namespace plan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Farbe Grundlinie = 0x111111;
constexpr Farbe Wochenende = 0x80FFFF;
constexpr Farbe Festtag = 0xC0C0FF;

std::vector<int> linien(const std::vector<Farbe>& all, Farbe farbe) {
    std::vector<int> found;
    for (std::size_t k = 0; k < all.size(); ++k)
        if (all[k] == farbe) found.push_back(static_cast<int>(k));
    return found;
}

TEST(DayLines, WeekendsHaveTheirLinesWhateverDayThePlanBegins) {
    const auto wochenenden = [](int day) {
        return linien(Tageslinien(tag(day), 10, tag(1, 1), {}, Grundlinie), Wochenende);
    };
    EXPECT_THAT(wochenenden(1), ElementsAre(0, 6, 7)); // Monday
    EXPECT_THAT(wochenenden(2), ElementsAre(5, 6));
    EXPECT_THAT(wochenenden(3), ElementsAre(4, 5));
    EXPECT_THAT(wochenenden(4), ElementsAre(3, 4, 10));
    EXPECT_THAT(wochenenden(5), ElementsAre(2, 3, 9, 10));
    EXPECT_THAT(wochenenden(6), ElementsAre(1, 2, 8, 9));
    EXPECT_THAT(wochenenden(7), ElementsAre(0, 1, 7, 8)); // Sunday
}

TEST(DayLines, TodayGivesWayToTheWeekendAndBothToAHoliday) {
    EXPECT_THAT(linien(Tageslinien(tag(1), 10, tag(3), {}, Grundlinie), Weiß), ElementsAre(3));
    EXPECT_THAT(linien(Tageslinien(tag(2), 10, tag(1), {}, Grundlinie), Weiß), ElementsAre(0));
    EXPECT_THAT(linien(Tageslinien(tag(1), 10, tag(6), {}, Grundlinie), Weiß), IsEmpty());
    EXPECT_THAT(linien(Tageslinien(tag(1), 10, tag(11), {}, Grundlinie), Weiß), IsEmpty());
    const std::vector<tplFeiertag> feste = {{"06.06.2026", "Sommerfest", 5}, {"11.06.2026", "Markt", 10}};
    const auto all = Tageslinien(tag(1), 10, tag(6), feste, Grundlinie);
    EXPECT_THAT(linien(all, Festtag), ElementsAre(5, 6, 10));
    EXPECT_THAT(linien(all, Wochenende), ElementsAre(0, 7));
}

TEST(DayLines, HolidayIsNamedOnItsDayAndColoursNoCell) {
    GedachterPlan plan;
    plan.quelle.feiertage = {{tag(4), "Fronleichnam"}};
    plan.zeige({});
    EXPECT_EQ(plan.raster.Feiertag(tag(4)), "Fronleichnam");
    EXPECT_EQ(plan.raster.Feiertag(tag(5)), "");
    ASSERT_EQ(plan.raster.Feiertage().size(), 1U);
    EXPECT_EQ(plan.raster.Feiertage()[0].Datum, "04.06.2026");
    EXPECT_EQ(plan.raster.Feiertage()[0].Spalte, 3);
    EXPECT_EQ(plan.raster.Bild(4).Fuellung, plan.raster.Bild(3).Fuellung);
}

TEST(Header, WeekLineStandsAtTheChosenWeekdayWithItsDate) {
    const auto kopf = Kopfzeile(tag(1), 10, 2);
    ASSERT_EQ(kopf.size(), 11U);
    EXPECT_EQ(kopf[0].Tag, "01");
    EXPECT_EQ(kopf[10].Tag, "11");
    EXPECT_EQ(kopf[0].ToolTipText, "Mo, 01.Jun.2026");
    EXPECT_EQ(kopf[7].ToolTipText, "Mo, 08.Jun.26");
    EXPECT_EQ(kopf[7].Wochentag, "Mo");
    for (const std::size_t i : {1U, 2U, 3U, 4U, 5U, 6U, 8U, 9U})
        EXPECT_FALSE(kopf[i].Wochenlinie) << i;
    EXPECT_EQ(Kopfzeile(tag(29), 5, 2)[0].Monatsfarbe, 0xFFC0FF);
    EXPECT_EQ(Kopfzeile(tag(29), 5, 2)[2].Monatsfarbe, 0xD2D200);
    for (const int keiner : {0, 8, -1})
        for (const auto& spalte : Kopfzeile(tag(1), 10, keiner))
            EXPECT_FALSE(spalte.Wochenlinie);
}

TEST(Header, MonthIsNamedAtItsFirstColumnUnlessThePlanBeginsLateInIt) {
    const auto früh = Monatsnamen(tag(23), 20);
    ASSERT_EQ(früh.size(), 2U);
    EXPECT_EQ(früh[0].Caption, "Juni");
    EXPECT_TRUE(früh[0].Visible);
    EXPECT_EQ(früh[1].Caption, "Juli");
    EXPECT_EQ(früh[1].Spalte, 9);
    EXPECT_EQ(früh[1].Spalten, 12);
    EXPECT_FALSE(Monatsnamen(tag(24), 20)[0].Visible);
    EXPECT_TRUE(Monatsnamen(tag(24), 20)[1].Visible);
    EXPECT_TRUE(passtInsRaster(früh[1], 12.0, 20));
    EXPECT_FALSE(passtInsRaster(früh[1], 12.1, 20));
}

TEST(NavigationButtons, MoveThePlanByCalendarRules) {
    const auto von = basic::Date::fromYmd(2027, 1, 31);
    const std::map<std::string_view, basic::Date> erwartet = {{"cmdPrevDay", basic::Date::fromYmd(2027, 1, 30)},
                                                              {"cmdNextDay", basic::Date::fromYmd(2027, 2, 1)},
                                                              {"cmdPrevWeek", basic::Date::fromYmd(2027, 1, 24)},
                                                              {"cmdNextWeek", basic::Date::fromYmd(2027, 2, 7)},
                                                              {"cmdPrevMonth", basic::Date::fromYmd(2026, 12, 31)},
                                                              {"cmdNextMonth", basic::Date::fromYmd(2027, 2, 28)},
                                                              {"cmdPrev3Months", basic::Date::fromYmd(2026, 10, 31)},
                                                              {"cmdNext3Months", basic::Date::fromYmd(2027, 4, 30)},
                                                              {"cmdHeute", tag(8)},
                                                              {"cmdAktualisieren", von}};
    ASSERT_EQ(Navigationsleiste.size(), erwartet.size());
    for (const auto& button : Navigationsleiste)
        EXPECT_EQ(NeuerPlanStart(button, von, tag(10)), erwartet.at(button.Name)) << button.Name;
}

TEST(Colours, BrighteningStopsAtFullChannels) {
    EXPECT_EQ(aufgehellt(0x602000, 60), 0x9C5C3C);
    EXPECT_EQ(aufgehellt(0xFFF0C4, 60), 0xFFFFFF);
    EXPECT_EQ(aufgehellt(0xFF7805, 0), 0xFF7805);
    EXPECT_EQ(aufgehellt(0x000005, 255), 0xFFFFFF);
}

TEST(Colours, WritingIsReadableOnEveryBar) {
    EXPECT_EQ(Schriftfarbe(0x000000), Weiß);
    EXPECT_EQ(Schriftfarbe(0xFFFFFF), Schwarz);
    EXPECT_EQ(Schriftfarbe(0x00FFFF), Schwarz); // yellow
    EXPECT_EQ(Schriftfarbe(0x800000), Weiß);    // navy
    EXPECT_EQ(Schriftfarbe(0x00FF00), Schwarz);
    EXPECT_EQ(Schriftfarbe(0x202080), Weiß);
}

} // namespace
} // namespace plan
