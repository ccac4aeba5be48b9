#include "reservations/overlap.h"

#include "platform/jet/explain.h"
#include "support/test_house.h"

#include <gmock/gmock.h>

namespace reservations {
namespace {

using support::day;
using support::Stay;
using support::TestHouse;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Tage {
    int Von;
    int Bis;
};

Wunsch wunsch(Tage tage, int id = 0) {
    return {.Zimmer = 1, .Von = day(tage.Von, 6), .Bis = day(tage.Bis, 6), .ID = id};
}

int belegt(TestHouse& house, Tage tage, int zimmer = 1) {
    return static_cast<int>(house.stay({.Zimmernummer = zimmer, .Von = day(tage.Von, 6), .Bis = day(tage.Bis, 6)}));
}

std::vector<int> ids(const std::vector<start::Kollision>& kollisionen) {
    std::vector<int> ids;
    for (const auto& kollision : kollisionen)
        ids.push_back(kollision.ID);
    return ids;
}

/// A house with rooms whose only stays are those that the test books.
class Overlap : public testing::Test {
protected:
    Overlap() { house.rooms(4); }

    TestHouse house;
};

/// One old stay, one new one, and which tests see the collision.
struct Begegnung {
    const char* Was;
    Tage Alt;
    Tage Neu;
    bool Vorher;
    bool Nachher;
};

TEST_F(Overlap, ANightBelongsToOneStay) {
    const Begegnung cases[] = {
        {"the departure day is free for the next arrival", {15, 20}, {10, 15}, false, false},
        {"the arrival day is free for the departure before", {5, 10}, {10, 15}, false, false},
        {"the old one arrives inside the new one", {14, 20}, {10, 15}, true, true},
        {"the old one leaves inside the new one", {5, 11}, {10, 15}, true, true},
        {"the new one lies inside the old one", {8, 20}, {10, 15}, true, true},
        {"the new one lies around the old one", {11, 14}, {10, 15}, true, true},
        {"same arrival, the new one leaves earlier", {10, 20}, {10, 15}, true, true},
        {"same departure, the new one arrives later", {8, 15}, {10, 15}, true, true},
        {"same arrival, the new one leaves later", {10, 12}, {10, 15}, true, true},
        {"same departure, the new one arrives earlier", {12, 15}, {10, 15}, true, true},
        {"the very same days are seen only after the write", {10, 15}, {10, 15}, false, true},
        {"one night, the very same", {10, 11}, {10, 11}, false, true},
        {"one night at the end of the old one", {8, 11}, {10, 11}, true, true},
        {"one night in front of the old one", {11, 12}, {10, 11}, false, false},
    };
    for (const Begegnung& c : cases) {
        const int alt = belegt(house, c.Alt);
        EXPECT_EQ(!Kollisionen(house.db(), wunsch(c.Neu)).empty(), c.Vorher) << c.Was;
        EXPECT_EQ(!ZimmerFrei(house.db(), wunsch(c.Neu)), c.Nachher) << c.Was;
        EXPECT_EQ(Überschneidungswarnung(house.db(), wunsch(c.Neu)), c.Nachher) << c.Was;
        house.db().Execute("DELETE * FROM tblBelegung WHERE ID = " + std::to_string(alt));
    }
}

TEST_F(Overlap, TheWaitingRowAndOtherRoomsBlockNothing) {
    house.stay({.Zimmernummer = 1, .Von = day(10, 6), .Bis = day(15, 6), .Gelöscht = true});
    house.stay({.Zimmernummer = 1, .Von = day(9, 6), .Bis = day(16, 6), .Gelöscht = true});
    belegt(house, {9, 16}, 2);
    EXPECT_THAT(Kollisionen(house.db(), wunsch({10, 15})), IsEmpty());
    EXPECT_TRUE(ZimmerFrei(house.db(), wunsch({10, 15})));
    EXPECT_FALSE(Überschneidungswarnung(house.db(), wunsch({10, 15})));
}

TEST_F(Overlap, AnOfferBlocksLikeAnyStay) {
    house.db().Execute("UPDATE tbBelegArten SET BelegungsArt = 'Angebot' WHERE BelegungsID = 2");
    house.stay({.Von = day(9, 6), .Bis = day(16, 6), .Belegungsart = 2});
    EXPECT_EQ(Kollisionen(house.db(), wunsch({10, 15})).size(), 1U);
    EXPECT_FALSE(ZimmerFrei(house.db(), wunsch({10, 15})));
}

TEST_F(Overlap, AStayIsNotInItsOwnWay) {
    const int eigene = belegt(house, {10, 15});
    EXPECT_THAT(Kollisionen(house.db(), wunsch({11, 16}, eigene)), IsEmpty());
    EXPECT_TRUE(ZimmerFrei(house.db(), wunsch({10, 15}, eigene)));
    EXPECT_FALSE(Überschneidungswarnung(house.db(), wunsch({10, 15}, eigene)));
    EXPECT_TRUE(Überschneidungswarnung(house.db(), wunsch({10, 15}))) << "a stay not stored yet has no row";

    const int andere = belegt(house, {14, 20});
    EXPECT_THAT(ids(Kollisionen(house.db(), wunsch({10, 15}, eigene))), ElementsAre(andere));
    EXPECT_FALSE(ZimmerFrei(house.db(), wunsch({10, 15}, eigene)));
    EXPECT_TRUE(Überschneidungswarnung(house.db(), wunsch({10, 15}, eigene))) << "itself and another one";
    EXPECT_TRUE(Überschneidungswarnung(house.db(), wunsch({16, 20}, eigene))) << "another one alone";
}

TEST_F(Overlap, WithoutARoomThereIsNothingToTest) {
    house.stay({.Zimmernummer = 0, .Von = day(9, 6), .Bis = day(16, 6)});
    Wunsch ohne = wunsch({10, 15});
    ohne.Zimmer = 0;
    EXPECT_FALSE(Überschneidungswarnung(house.db(), ohne));
}

TEST_F(Overlap, CollisionsComeInTheOrderOfTheirIDsWithWhatTheDialogShows) {
    const int spät = belegt(house, {14, 20});
    const int früh = static_cast<int>(
        house.stay({.Zimmernummer = 1, .Von = day(5, 6), .Bis = day(11, 6), .Kürzel = "Öz'bek & Söhne"}));
    const auto gefunden = Kollisionen(house.db(), wunsch({10, 15}));
    ASSERT_THAT(ids(gefunden), ElementsAre(spät, früh));
    EXPECT_EQ(
        gefunden.back(),
        (start::Kollision{.ID = früh, .Kürzel = "Öz'bek & Söhne", .Zimmer = 1, .Von = day(5, 6), .Bis = day(11, 6)}));
}

TEST_F(Overlap, AcrossTheTurnOfTheYear) {
    house.stay({.Von = day(30, 12), .Bis = day(2, 1, 2027)});
    const auto neue = [](int von, int monat, int jahr, int bis) {
        return Wunsch{.Zimmer = 1, .Von = day(von, monat, jahr), .Bis = day(bis, 1, 2027)};
    };
    EXPECT_FALSE(ZimmerFrei(house.db(), neue(31, 12, 2026, 1)));
    EXPECT_EQ(Kollisionen(house.db(), neue(1, 1, 2027, 5)).size(), 1U);
    EXPECT_TRUE(ZimmerFrei(house.db(), neue(2, 1, 2027, 5)));
}

// Free rooms

std::vector<int> freie(TestHouse& house, Tage tage) {
    std::vector<int> nummern;
    for (const auto& zimmer : FreieZimmer(house.db(), day(tage.Von, 6), day(tage.Bis, 6)))
        nummern.push_back(zimmer.Zimmernummer);
    return nummern;
}

TEST_F(Overlap, FreeRoomsAreThoseThatNoStayTouchesInside) {
    belegt(house, {5, 10}, 1);  // leaves on the first day
    belegt(house, {15, 20}, 2); // arrives on the last day
    belegt(house, {12, 13}, 3);
    house.stay({.Zimmernummer = 4, .Von = day(10, 6), .Bis = day(15, 6), .Gelöscht = true});
    EXPECT_THAT(freie(house, {10, 15}), ElementsAre(1, 2, 4));
    EXPECT_THAT(freie(house, {13, 15}), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(freie(house, {9, 16}), ElementsAre(4));
    EXPECT_THAT(freie(house, {11, 12}), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(freie(house, {16, 19}), ElementsAre(1, 3, 4));
}

TEST_F(Overlap, AStayWithoutNightsBlocksAFreeRoomButNoTest) {
    belegt(house, {10, 10}, 1);
    belegt(house, {15, 15}, 2);
    EXPECT_THAT(freie(house, {10, 15}), ElementsAre(3, 4));
    EXPECT_TRUE(ZimmerFrei(house.db(), wunsch({10, 15})));
}

TEST_F(Overlap, RoomsWithoutANameAndTheWaitingRowAreNotOffered) {
    house.db().Execute("UPDATE tbZimmernummern SET NeueNummer = Null WHERE Zimmernummer = 2");
    house.db().Execute("UPDATE tbZimmernummern SET NeueNummer = '' WHERE Zimmernummer = 3");
    EXPECT_THAT(FreieZimmer(house.db(), day(10, 6), day(15, 6)),
                ElementsAre(FreiesZimmer{1, "Zimmer 1"}, FreiesZimmer{4, "Zimmer 4"}));
}

TEST_F(Overlap, TheLastRoomIsNeverOfferedEvenWhereItIsTheOnlyFreeOne) {
    for (int zimmer = 1; zimmer <= 4; ++zimmer)
        belegt(house, {10, 15}, zimmer);
    EXPECT_THAT(freie(house, {10, 15}), IsEmpty());
    house.db().Execute("DELETE * FROM tbZimmernummern");
    EXPECT_THAT(freie(house, {10, 15}), IsEmpty());
}

TEST(FreeRooms, AreAHundredAtMost) {
    TestHouse house;
    house.rooms(105);
    const auto freie = FreieZimmer(house.db(), day(10, 6), day(15, 6));
    ASSERT_EQ(freie.size(), 100U);
    EXPECT_EQ(freie.back().Zimmernummer, 100);
}

/// The form asks these on each key.
TEST_F(Overlap, NoTestReadsMoreThanTheRowsOfItsRoom) {
    const Wunsch gewünscht = wunsch({10, 15}, 7);
    for (const auto& abfrage : {AbfrageVorDemSpeichern(gewünscht), AbfrageVorDemSpeichern(wunsch({10, 15})),
                                AbfrageNachDemSpeichern(gewünscht), AbfrageBeimTippen(gewünscht)})
        EXPECT_THAT(jet::explainedPlan(house.db(), abfrage),
                    Contains(AllOf(HasSubstr("SEARCH t1 USING COVERING INDEX"), HasSubstr("Zimmernummer=?"))))
            << abfrage;
    EXPECT_THAT(jet::explainedPlan(house.db(), AbfrageFreieZimmer(day(10, 6), day(15, 6))),
                Contains(AllOf(HasSubstr("t2"), HasSubstr("COVERING INDEX"))));
}

} // namespace
} // namespace reservations
