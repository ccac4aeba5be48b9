#include "reservations/blocks.h"

#include "store/rows.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

namespace reservations {
namespace {

using basic::Value;
using support::day;
using support::TestHouse;

/// Three stays with a remark of their own; the first two stand in block 5.
class Blocks : public testing::Test {
protected:
    Blocks() {
        house.rooms(3);
        imBlock(erster, 5);
        imBlock(zweiter, 5);
    }

    int stay(const std::string& kürzel) {
        return static_cast<int>(house.stay({.Von = day(10, 6), .Bis = day(15, 6), .Kürzel = kürzel, .Info = "eigene"}));
    }
    void imBlock(int id, int block) {
        auto rows = house.db().OpenRecordset("tbBlockbuchung");
        store::addRow(rows, {{"IDBlockbuchung", block}, {"IDBelegung", id}});
    }
    Value feld(const char* name, int id) {
        return house.value("SELECT " + std::string(name) + " FROM tblBelegung WHERE ID = " + std::to_string(id));
    }

    TestHouse house;
    int erster = stay("Verein12_05-15_05");
    int zweiter = stay("Verein12_05-15_05/1");
    int fremder = stay("Fremd10_06-15_06");
};

TEST_F(Blocks, MembersAreKnownByNumberAndByName) {
    EXPECT_TRUE(istBlockmitglied(house.db(), erster));
    EXPECT_FALSE(istBlockmitglied(house.db(), fremder));
    EXPECT_FALSE(istBlockmitglied(house.db(), 0));
    EXPECT_TRUE(istBlockmitgliedMitKürzel(house.db(), "VEREIN12_05-15_05"));
    EXPECT_FALSE(istBlockmitgliedMitKürzel(house.db(), "Fremd10_06-15_06"));
    EXPECT_FALSE(istBlockmitgliedMitKürzel(house.db(), ""));
}

TEST_F(Blocks, ANameMeansItselfWhateverSignsItHas) {
    for (const char* kürzel : {"Meier#7", "Bus [Süd]", "100%", "O'Brien", "Wer?", "*", "[", "]", "a]b[c"}) {
        imBlock(stay(kürzel), 6);
        EXPECT_TRUE(istBlockmitgliedMitKürzel(house.db(), kürzel)) << kürzel;
    }
    for (const char* kürzel : {"Fremd*", "Fremd??_06-15_06", "Meier37", "1000", "Wer!"})
        EXPECT_FALSE(istBlockmitgliedMitKürzel(house.db(), kürzel)) << kürzel;
}

TEST_F(Blocks, AFixedPriceIsThatOfTheWholeBlock) {
    FixÜbernehmen(house.db(), erster, true);
    EXPECT_EQ(feld("Fix", zweiter), Value(true));
    EXPECT_EQ(feld("Fix", fremder), Value(false));
    FixÜbernehmen(house.db(), zweiter, false);
    EXPECT_EQ(feld("Fix", erster), Value(false));
    FixÜbernehmen(house.db(), fremder, true);
    EXPECT_EQ(house.value("SELECT Count(*) FROM tblBelegung WHERE Fix"), Value(0));
}

TEST_F(Blocks, WhoIsTakenOutLeavesTheOthersIn) {
    AusBlockNehmen(house.db(), erster);
    EXPECT_FALSE(istBlockmitglied(house.db(), erster));
    EXPECT_TRUE(istBlockmitglied(house.db(), zweiter));
    EXPECT_EQ(house.count("tblBelegung"), 3);
}

TEST_F(Blocks, ARemarkWithAnApostropheChangesNothingAtAll) {
    for (const char* bemerkung :
         {"Anna's Gruppe", "'", "x'), tblBelegung.Kürzel = CStr('gekapert", "x') WHERE 1=1 OR CStr('"}) {
        EXPECT_FALSE(BemerkungÜbernehmen(house.db(), erster, bemerkung)) << bemerkung;
        EXPECT_EQ(house.value("SELECT Count(*) FROM tblBelegung WHERE Info = 'eigene'"), Value(3)) << bemerkung;
        EXPECT_EQ(feld("Kürzel", zweiter), Value("Verein12_05-15_05/1")) << bemerkung;
    }
}

TEST_F(Blocks, ARemarkReachesAllMembers) {
    const std::string bemerkung = "Bus um 18 Uhr; \"große\" Gruppe\r\n#06-15-2026# [Süd]";
    EXPECT_TRUE(BemerkungÜbernehmen(house.db(), zweiter, bemerkung));
    EXPECT_EQ(feld("Info", erster), Value(bemerkung));
    EXPECT_EQ(feld("Info", zweiter), Value(bemerkung));
    EXPECT_EQ(feld("Info", fremder), Value("eigene"));
    EXPECT_TRUE(BemerkungÜbernehmen(house.db(), erster, ""));
    EXPECT_TRUE(feld("Info", zweiter).isNull());
}

TEST_F(Blocks, ARemarkOfAStayInTwoBlocksOrInNoneIsWrittenNowhere) {
    EXPECT_TRUE(BemerkungÜbernehmen(house.db(), fremder, "neu"));
    imBlock(erster, 6);
    EXPECT_FALSE(BemerkungÜbernehmen(house.db(), erster, "neu"));
    EXPECT_EQ(house.value("SELECT Count(*) FROM tblBelegung WHERE Info = 'eigene'"), Value(3));
}

} // namespace
} // namespace reservations
