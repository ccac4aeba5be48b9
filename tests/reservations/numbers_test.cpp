#include "reservations/numbers.h"
#include "support/jet_files.h"
#include "support/station.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

namespace reservations {
namespace {

using support::day;
using support::TestHouse;

int stay(TestHouse& house, basic::Value nummer, const std::string& text = {}) {
    const auto id = house.stay({.Von = day(1, 6), .Bis = day(3, 6)});
    auto rs = house.db().OpenRecordset("SELECT * FROM tblBelegung WHERE ID = " + std::to_string(id));
    rs.Edit();
    rs.Fields("BelegNummer") = nummer;
    rs.Fields("BelegNummer_eigen") = text;
    rs.Update();
    return static_cast<int>(id);
}

std::int64_t next(TestHouse& house, const char* fehlende) {
    return NächsteBelegnummer(house.db(), {.Fehlende = fehlende});
}

TEST(ReservationNumbers, TheFirstStayHasOneWhateverStandsWithoutNumber) {
    TestHouse house;
    EXPECT_EQ(next(house, "Alle"), 1);
    stay(house, {});
    stay(house, 0, "von Hand");
    stay(house, -7, "alt");
    EXPECT_EQ(next(house, "Alle"), 1);
    EXPECT_EQ(next(house, "Freilassen"), 1);
}

TEST(ReservationNumbers, AMissingNumberIsNeverGivenAgain) {
    TestHouse house;
    for (const int nummer : {1, 2, 2, 5})
        stay(house, nummer, "Nr " + std::to_string(nummer));
    stay(house, 2, "andere Schreibweise");
    for (const auto* fehlende : {"Alle", "Freilassen", "", "alle'"})
        EXPECT_EQ(next(house, fehlende), 6) << fehlende;
}

TEST(ReservationNumbers, TheEndOfTheCounterIsToldInWords) {
    TestHouse house;
    stay(house, 2147483646);
    EXPECT_EQ(next(house, "Alle"), 2147483647);
    stay(house, 2147483647);
    EXPECT_EQ(support::errorNumber([&] { (void)next(house, "Freilassen"); }), 6);
    EXPECT_EQ(support::errorText([&] { (void)next(house, "Alle"); }),
              "Die höchste Reservierungsnummer ist vergeben (2147483647). Es kann keine weitere vergeben werden.");
}

TEST(ReservationNumbers, ANumberOfAnotherStationIsSeenAtOnce) {
    TestHouse house;
    stay(house, 7);
    support::Station other([&](support::Channel& channel) {
        jet::Database db = house.open("Lokal.mdb");
        db.Execute("UPDATE tblBelegung SET BelegNummer = 12, BelegNummer_eigen = 'R 0012'");
        channel.say("geschrieben");
    });
    EXPECT_EQ(other.channel().hear(), "geschrieben");
    EXPECT_EQ(other.wait(), 0);
    EXPECT_EQ(next(house, "Alle"), 13);
    EXPECT_TRUE(BelegnummerVergeben(house.db(), 12, 0));
    EXPECT_FALSE(BelegnummerVergeben(house.db(), 7, 0));
}

TEST(ReservationNumbers, AreTakenOnlyWhenAnotherStayHasThem) {
    TestHouse house;
    const int id = stay(house, 7, "Haus 'Möwe' 0007 \"26");
    const int other = stay(house, 8, "");
    EXPECT_FALSE(BelegnummerVergeben(house.db(), 7, id));
    EXPECT_TRUE(BelegnummerVergeben(house.db(), 7, other));
    EXPECT_TRUE(BelegnummerVergeben(house.db(), 7, 0));
    EXPECT_FALSE(BelegnummerVergeben(house.db(), 3000000000, 0));
    EXPECT_TRUE(BelegnummerTextVergeben(house.db(), "HAUS 'möwe' 0007 \"26", other));
    EXPECT_FALSE(BelegnummerTextVergeben(house.db(), "Haus 'Möwe' 0007 \"26", id));
    EXPECT_FALSE(BelegnummerTextVergeben(house.db(), "' or ''='", 0));
}

TEST(ReservationNumbers, TheTextKeepsItsBlanks) {
    struct Case {
        Nummernmuster muster;
        std::int64_t nummer;
        const char* text;
    };
    for (const Case& c : {Case{{}, 1, " 0001 "},
                          {{.Vor = "R"}, 12, "R 0012 "},
                          {{.Vor = " 'R\" ", .Datumsformat = "yy"}, 12345, " 'R\"  12345 26"},
                          {{.Datumsformat = "mmm yyyy"}, 7, " 0007 Mrz 2026"},
                          {{.Datumsformat = "dd mm yy"}, 7, " 0007 05 03 26"},
                          {{.Datumsformat = "ww yy"}, 7, " 0007 10 26"}})
        EXPECT_EQ(BelegnummerText(c.muster, c.nummer, day(5, 3)), c.text);
}

TEST(ReservationNumbers, APatternThatWasNeverStoredIsEmpty) {
    EXPECT_EQ(MusterAus({}).Fehlende, "");
    EXPECT_EQ(MusterAus({"R", "yy"}).Datumsformat, "yy");
    EXPECT_EQ(MusterAus({"R", "yy", "7", "Alle", "x"}).Fehlende, "Alle");
}

} // namespace
} // namespace reservations
