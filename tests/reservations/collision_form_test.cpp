#include "reservations/collision_form.h"

#include "store/rows.h"
#include "support/test_house.h"
#include "support/test_start.h"

#include <gmock/gmock.h>

namespace reservations {
namespace {

using basic::Value;
using services::MsgResult;
using start::Kollisionsweg;
using support::day;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto kKeinZimmer = "Die Reservierung (Alt) konnte nicht gespeichert werden, weil kein Zimmer mehr frei war.";
constexpr auto kAbgerechnet =
    "Die Reservierung (Alt) konnte nicht gespeichert werden, weil sie bereits abgerechnet wurde.";

/// A new stay wants room 1 from the 10th to the 15th of June; the old ones are what the test books there.
class CollisionForm : public testing::Test {
protected:
    CollisionForm() {
        s.g.dbHaupt = house.open("Lokal.mdb");
        house.rooms(4);
    }

    int belegt(int zimmer, int von, int bis, const std::string& kürzel = {}) {
        return static_cast<int>(
            house.stay({.Zimmernummer = zimmer, .Von = day(von, 6), .Bis = day(bis, 6), .Kürzel = kürzel}));
    }
    /// Nothing is free besides room 1 in these days.
    void ausgebucht(int von, int bis) {
        for (int zimmer = 2; zimmer <= 4; ++zimmer)
            belegt(zimmer, von, bis);
    }
    void imBlock(int id) {
        auto rows = house.db().OpenRecordset("tbBlockbuchung");
        store::addRow(rows, {{"IDBlockbuchung", 1}, {"IDBelegung", id}});
    }
    std::vector<start::Kollision> kollisionen() {
        return Kollisionen(house.db(), {.Zimmer = 1, .Von = day(10, 6), .Bis = day(15, 6)});
    }
    start::KollisionAnfrage anfrage() {
        return {.Kürzel = "Neu",
                .Von = "10.06.2026",
                .Bis = "15.06.2026",
                .Zimmer = "Zimmer 1",
                .Kollisionen = kollisionen()};
    }
    frmCollision dialog() { return {s.g, anfrage()}; }
    Value feld(const char* name, int id) {
        return house.value("SELECT " + std::string(name) + " FROM tblBelegung WHERE ID = " + std::to_string(id));
    }
    /// Room and waiting flag of a stay.
    std::pair<std::int64_t, bool> platz(int id) {
        return {feld("Zimmernummer", id).longOr(), feld("Gelöscht", id).boolOr()};
    }
    void ändern(int id, const std::string& setzt) {
        house.db().Execute("UPDATE tblBelegung SET " + setzt + " WHERE ID = " + std::to_string(id));
    }
    static std::vector<std::string> angebotene(const frmCollision& form, std::size_t zeile) {
        std::vector<std::string> namen;
        for (int i = 0; i < form.cboBez[zeile].Items.ListCount(); ++i)
            namen.push_back(form.cboBez[zeile].Items.List(i));
        return namen;
    }
    static void leeren(frmCollision& form, int zeile) { tippen(form, zeile, ""); }
    static void tippen(frmCollision& form, int zeile, const std::string& text) {
        auto& combo = form.cboBez[static_cast<std::size_t>(zeile)];
        combo.Text = text;
        combo.ListIndex = -1;
        form.cboBez_Change(zeile);
    }
    static void wählen(frmCollision& form, int zeile, int index) {
        form.cboBez[static_cast<std::size_t>(zeile)].ListIndex = index;
        form.cboBez_Click(zeile);
    }

    support::TestHouse house;
    support::TestStart s;
};

TEST_F(CollisionForm, ShowsTheNewStayAndTheOldOneWithTheRoomsFreeInItsOwnDays) {
    s.g.einstellungen.Beschriftungen = {"Belegung", "Wohnung"};
    belegt(1, 14, 20, "Alt");
    belegt(2, 18, 19);
    belegt(3, 10, 14);
    const auto form = dialog();
    EXPECT_EQ(form.lblÜberschrift.Caption,
              "Die neue Reservierung überschneidet sich mit folgender bereits vorhandenen Reservierung:");
    EXPECT_EQ(form.lblBezeichnung.Caption, "Wohnung");
    EXPECT_EQ(form.txtKürzel.Text + form.txtVon.Text + form.txtBis.Text + form.txtBezeichnungNeu.Text,
              "Neu10.06.202615.06.2026Zimmer 1");
    EXPECT_EQ(form.lblKürzel[0].Caption + form.lblVon[0].Caption + form.lblBis[0].Caption, "Alt14.06.202620.06.2026");
    EXPECT_THAT(angebotene(form, 0), ElementsAre("Zimmer 3", "Zimmer 4")) << "room 3 is empty before the old stay";
    EXPECT_EQ(form.cboBez[0].Text, "Zimmer 3");
    EXPECT_FALSE(form.chkLöschen[0].Value);
    EXPECT_FALSE(form.lblKürzel[1].Visible || form.cboBez[1].Visible || form.chkLöschen[1].Visible);
    EXPECT_EQ(form.scrColliMax, 0);
    EXPECT_FALSE(form.Ergebnis());
}

TEST_F(CollisionForm, WithoutAFreeRoomTheWaitingRowIsChosenAlready) {
    belegt(1, 14, 20);
    ausgebucht(19, 21);
    belegt(1, 8, 11);
    const auto form = dialog();
    EXPECT_EQ(form.lblÜberschrift.Caption,
              "Die neue Reservierung überschneidet sich mit folgenden 2 bereits vorhandenen Reservierungen:");
    EXPECT_THAT(angebotene(form, 0), IsEmpty());
    EXPECT_EQ(form.cboBez[0].Text, "");
    EXPECT_TRUE(form.chkLöschen[0].Value);
    EXPECT_TRUE(form.chkLöschen[0].Enabled);
    EXPECT_FALSE(form.chkLöschen[1].Value);
}

TEST_F(CollisionForm, TheWantedRoomIsNotOfferedThoughAnotherStationHasEmptiedIt) {
    const int alt = belegt(1, 10, 14);
    const auto vorher = anfrage();
    ändern(alt, "Gelöscht = True");
    house.db().Execute("UPDATE tbZimmernummern SET NeueNummer = 'Zimmer 1' WHERE Zimmernummer = 3");
    const frmCollision form(s.g, vorher);
    EXPECT_THAT(angebotene(form, 0), ElementsAre("Zimmer 2", "Zimmer 1", "Zimmer 4")) << "another room of that name";
}

// The buttons

TEST_F(CollisionForm, ThreeButtonsTouchNoOldStay) {
    const int alt = belegt(1, 14, 20);
    const std::tuple<void (frmCollision::*)(), Kollisionsweg, bool> cases[] = {
        {&frmCollision::cmdÄndern_Click, Kollisionsweg::Ändern, false},
        {&frmCollision::cmdAbbrechen_Click, Kollisionsweg::Verwerfen, true},
        {&frmCollision::cmdWarten_Click, Kollisionsweg::Warten, true},
    };
    for (const auto& [knopf, weg, gelöst] : cases) {
        frmCollision form = dialog();
        form.txtBezeichnungNeu.Text = "Zimmer 9";
        (form.*knopf)();
        ASSERT_TRUE(form.Ergebnis());
        EXPECT_EQ(form.Ergebnis()->Weg, weg);
        EXPECT_EQ(form.Ergebnis()->gelöst, gelöst);
        EXPECT_EQ(form.Ergebnis()->Zimmer, "Zimmer 9") << "what stands in the dialog at its end";
        EXPECT_EQ(platz(alt), std::pair(std::int64_t(1), false));
    }
}

TEST_F(CollisionForm, OkMovesEachStayToItsRoom) {
    const int einer = belegt(1, 14, 20);
    const int anderer = belegt(1, 8, 11);
    frmCollision form = dialog();
    wählen(form, 1, 2);
    form.cmdOK_Click();
    EXPECT_EQ(form.Ergebnis()->Weg, Kollisionsweg::Verbuchen);
    EXPECT_TRUE(form.Ergebnis()->gelöst);
    EXPECT_EQ(platz(einer), std::pair(std::int64_t(2), false));
    EXPECT_EQ(platz(anderer), std::pair(std::int64_t(4), false));
    EXPECT_THAT(kollisionen(), IsEmpty());
}

TEST_F(CollisionForm, ARoomAndTheCheckBoxTogetherDoBothWithoutAQuestion) {
    const int alt = belegt(1, 14, 20);
    frmCollision form = dialog();
    form.chkLöschen[0].Value = true;
    form.chkLöschen_Click(0);
    form.cmdOK_Click();
    EXPECT_TRUE(form.Ergebnis()->gelöst);
    EXPECT_EQ(platz(alt), std::pair(std::int64_t(2), true));
}

TEST_F(CollisionForm, WithoutARoomTheUserDecidesAboutTheWaitingRow) {
    const int alt = belegt(1, 14, 20, "Alt");
    ausgebucht(14, 20);
    s.dialogs.press(MsgResult::No);
    s.dialogs.acknowledge();
    frmCollision nein = dialog();
    nein.cmdOK_Click();
    EXPECT_EQ(s.dialogs.asked()[0].text,
              "Möchten Sie die Reservierung mit dem Kürzel Alt in die Warteposition verschieben?");
    EXPECT_EQ(s.dialogs.asked()[1].text, kKeinZimmer);
    EXPECT_FALSE(nein.Ergebnis()->gelöst);
    EXPECT_EQ(platz(alt), std::pair(std::int64_t(1), false));

    s.dialogs.press(MsgResult::Yes);
    frmCollision ja = dialog();
    ja.cmdOK_Click();
    EXPECT_TRUE(ja.Ergebnis()->gelöst);
    EXPECT_EQ(platz(alt), std::pair(std::int64_t(1), true)) << "the room number stays";
}

TEST_F(CollisionForm, ABilledOrDividedStayStaysWhereItIs) {
    const int alt = belegt(1, 14, 20, "Alt");
    const int nächster = belegt(1, 8, 11);
    for (const char* stand : {"Abgerechnet = 1", "Abgerechnet = 0, IST_Geteilt = 'Y'"}) {
        ändern(alt, stand);
        ändern(nächster, "Zimmernummer = 1");
        s.dialogs.acknowledge();
        frmCollision form = dialog();
        form.cmdOK_Click();
        EXPECT_EQ(s.dialogs.last().text, kAbgerechnet) << stand;
        EXPECT_FALSE(form.Ergebnis()->gelöst) << stand;
        EXPECT_EQ(platz(alt).first, 1) << stand;
        EXPECT_EQ(platz(nächster).first, 2) << "one failure keeps no other back";
    }
}

// The combo

TEST_F(CollisionForm, AnEmptiedOrUnknownRoomIsNoRoom) {
    const int alt = belegt(1, 14, 20, "Alt");
    belegt(3, 14, 20);
    for (const char* text : {"", "   ", "Zimmer 99", "Zimmer 3", "Zimmer 1", "Vorläufig"}) {
        frmCollision form = dialog();
        tippen(form, 0, text);
        s.dialogs.acknowledge();
        form.cmdOK_Click();
        EXPECT_EQ(s.dialogs.last().text, kKeinZimmer) << text;
        EXPECT_FALSE(form.Ergebnis()->gelöst) << text;
        EXPECT_EQ(platz(alt).first, 1) << text;
    }
}

TEST_F(CollisionForm, ATypedNameIsFoundAmongTheRoomsOffered) {
    const int alt = belegt(1, 14, 20);
    frmCollision form = dialog();
    leeren(form, 0);
    tippen(form, 0, " zimmer 4 ");
    EXPECT_EQ(form.cboBez[0].Text, " zimmer 4 ") << "what is being typed stays";
    form.cmdOK_Click();
    EXPECT_TRUE(form.Ergebnis()->gelöst);
    EXPECT_EQ(platz(alt).first, 4);
}

TEST_F(CollisionForm, ANameThatIsTakenTwiceLeadsToTheFreeRoom) {
    const int alt = belegt(1, 14, 20);
    belegt(2, 14, 20);
    house.db().Execute("UPDATE tbZimmernummern SET NeueNummer = 'Suite' WHERE Zimmernummer IN (2, 4)");
    frmCollision form = dialog();
    tippen(form, 0, "Suite");
    form.cmdOK_Click();
    EXPECT_EQ(platz(alt).first, 4);
}

TEST_F(CollisionForm, ARoomRenamedMeanwhileIsStillTheRoomThatWasShown) {
    const int alt = belegt(1, 14, 20);
    frmCollision form = dialog();
    house.db().Execute("UPDATE tbZimmernummern SET NeueNummer = 'Suite' WHERE Zimmernummer = 2");
    house.db().Execute("UPDATE tbZimmernummern SET NeueNummer = 'Zimmer 2' WHERE Zimmernummer = 3");
    form.cmdOK_Click();
    EXPECT_EQ(platz(alt).first, 2);
}

// Blocks

TEST_F(CollisionForm, AMemberOfABlockMayChangeItsRoomOnly) {
    imBlock(belegt(1, 14, 20, "Verein#1"));
    belegt(1, 8, 11);
    frmCollision form = dialog();
    EXPECT_FALSE(form.chkLöschen[0].Enabled);
    EXPECT_TRUE(form.chkLöschen[1].Enabled);
    form.Form_Activate();
    EXPECT_FALSE(form.Ergebnis());
}

TEST_F(CollisionForm, AMemberWithoutAFreeRoomLeavesOnlyTheNewStayToChange) {
    belegt(1, 8, 11);
    imBlock(belegt(1, 14, 20, "O'Verein"));
    ausgebucht(14, 20);
    frmCollision form = dialog();
    s.dialogs.acknowledge();
    form.Form_Activate();
    EXPECT_EQ(s.dialogs.last().text,
              "Diese Reservierung kann nicht gespeichert werden. Es existieren Blockbuchugen, die nicht verschoben "
              "werden können. Bitte ändern Sie die aktuelle Reservierung.");
    ASSERT_TRUE(form.Ergebnis());
    EXPECT_EQ(form.Ergebnis()->Weg, Kollisionsweg::Ändern);
    EXPECT_FALSE(form.Ergebnis()->gelöst);
    form.Form_Activate(); // a window is activated again when a message box has closed
    EXPECT_EQ(s.dialogs.asked().size(), 1U);
}

// Other workstations

TEST_F(CollisionForm, AStayDeletedMeanwhileIsInNobodysWay) {
    const int weg = belegt(1, 14, 20);
    const int da = belegt(1, 8, 11);
    frmCollision form = dialog();
    house.db().Execute("DELETE * FROM tblBelegung WHERE ID = " + std::to_string(weg));
    form.cmdOK_Click();
    EXPECT_TRUE(form.Ergebnis()->gelöst);
    EXPECT_EQ(platz(da).first, 2);
    EXPECT_EQ(house.count("tblBelegung"), 1);
}

TEST_F(CollisionForm, AStayBilledMeanwhileIsNotMoved) {
    const int alt = belegt(1, 14, 20, "Alt");
    frmCollision form = dialog();
    ändern(alt, "Abgerechnet = 1");
    s.dialogs.acknowledge();
    form.cmdOK_Click();
    EXPECT_EQ(s.dialogs.last().text, kAbgerechnet);
    EXPECT_FALSE(form.Ergebnis()->gelöst);
}

TEST_F(CollisionForm, AStayChangedWhileTheQuestionStandsKeepsWhatTheOtherWrote) {
    const int alt = belegt(1, 14, 20);
    const int nächster = belegt(1, 8, 11);
    ausgebucht(14, 20);
    frmCollision form = dialog();
    s.dialogs.meanwhile([&] { ändern(alt, "Info = 'von nebenan'"); });
    s.dialogs.press(MsgResult::Yes);
    form.cmdOK_Click();
    EXPECT_FALSE(form.Ergebnis()->gelöst);
    EXPECT_EQ(feld("Info", alt), Value("von nebenan"));
    EXPECT_EQ(platz(alt), std::pair(std::int64_t(1), false));
    EXPECT_EQ(platz(nächster).first, 2);
}

TEST_F(CollisionForm, WithoutTheDataNothingIsSolved) {
    belegt(1, 14, 20);
    frmCollision form = dialog();
    s.g.dbHaupt.Close();
    form.cmdOK_Click();
    EXPECT_EQ(form.Ergebnis()->Weg, Kollisionsweg::Verbuchen);
    EXPECT_FALSE(form.Ergebnis()->gelöst);
}

// The visible part

TEST_F(CollisionForm, TheScrollBarBeginsWithFourRows) {
    for (int tag = 10; tag < 13; ++tag)
        belegt(1, tag, tag + 1);
    EXPECT_EQ(dialog().scrColliMax, 0);
    belegt(1, 13, 14);
    EXPECT_EQ(dialog().scrColliMax, 1);
    belegt(1, 14, 16);
    EXPECT_EQ(dialog().scrColliMax, 2);
}

TEST_F(CollisionForm, WhatWasChosenStaysWithItsRowWhenItScrollsAway) {
    std::vector<int> alte;
    for (int tag = 9; tag < 15; ++tag)
        alte.push_back(belegt(1, tag, tag + 1, "Alt" + std::to_string(tag)));
    belegt(1, 15, 16);
    alte.front() = belegt(1, 9, 11); // the first one left before
    frmCollision form = dialog();
    ASSERT_EQ(form.scrColliMax, 3);
    const unsigned vorher = form.cboBez[0].Items.version();
    wählen(form, 0, 2);
    form.chkLöschen[1].Value = true;
    form.chkLöschen_Click(1);
    form.scrColli_Change(3);
    EXPECT_NE(form.cboBez[0].Items.version(), vorher) << "a view fills its list anew only for a new version";
    EXPECT_EQ(form.lblKürzel[0].Caption, "Alt12");
    EXPECT_EQ(form.cboBez[0].Text, "Zimmer 2");
    EXPECT_FALSE(form.chkLöschen[1].Value);
    wählen(form, 2, 1);
    form.scrColli_Change(1);
    EXPECT_EQ(form.cboBez[0].Text, "Zimmer 4");
    EXPECT_TRUE(form.chkLöschen[1].Value);
    for (const int jenseits : {0, -5, 99}) {
        form.scrColli_Change(jenseits);
        EXPECT_TRUE(form.lblKürzel[3].Visible) << jenseits;
    }
    form.cmdOK_Click();
    EXPECT_TRUE(form.Ergebnis()->gelöst);
    EXPECT_EQ(platz(alte[1]), std::pair(std::int64_t(4), false));
    EXPECT_EQ(platz(alte[2]), std::pair(std::int64_t(2), true));
    EXPECT_EQ(platz(alte[5]), std::pair(std::int64_t(3), false));
}

TEST_F(CollisionForm, EventsOfRowsThatAreNotThereDoNothing) {
    belegt(1, 14, 20);
    frmCollision form = dialog();
    leeren(form, 3);
    wählen(form, 3, 0);
    form.chkLöschen_Click(3);
    form.cmdOK_Click();
    EXPECT_TRUE(form.Ergebnis()->gelöst);
}

} // namespace
} // namespace reservations
