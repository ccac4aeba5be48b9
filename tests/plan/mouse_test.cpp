#include "plan/desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace plan {
namespace {

using support::day;
using testing::ElementsAre;
using testing::HasSubstr;

// ---- the pointer ----

TEST(Pointer, TellsTheStayBelowItInTheHelpLine) {
    Tisch t;
    const auto guest = t.house.guest({.LastName = "Wübben", .FirstName = "Hanna", .City = "Emden"});
    const auto id =
        t.house.stay({.Zimmernummer = 2, .Von = day(15, 6), .Bis = day(18, 6), .GastID = guest, .Belegungsart = 2});
    t.house.db().Execute("UPDATE tblBelegung SET BelegNummer_eigen = 'Res 7' WHERE ID = " + std::to_string(id));
    for (const int tag : {15, 16, 17}) {
        t.form().MouseMove(2, Tisch::spalte(tag));
        EXPECT_EQ(t.form().lblHilfe.Caption,
                  "Reservierung (Res 7) vom: 15.06.2026 bis: 18.06.2026  von Hanna Wübben, Emden Sie können die "
                  "Reservierung mit der rechten Maustaste öffnen.");
        EXPECT_EQ(t.form().txtIDBelegung, id);
    }
    t.form().MouseMove(2, Tisch::spalte(18)); // departure
    EXPECT_EQ(t.form().lblHilfe.Caption, "");
    EXPECT_EQ(t.form().txtIDBelegung, 0);
    t.form().MouseMove(2, Tisch::spalte(17));
    t.form().MouseMove(0, 0);
    EXPECT_EQ(t.form().lblHilfe.Caption + t.form().fldDatum.Text, "");
}

TEST(Pointer, ScrolledRowsAskForTheRoomThatTheyShow) {
    Tisch t({.zimmer = 8, .sichtbar = 3});
    t.house.stay({.Zimmernummer = 7,
                  .Von = day(15, 6),
                  .Bis = day(18, 6),
                  .GastID = t.house.guest({.LastName = "Sieben"}),
                  .Belegungsart = 2});
    t.form().cmdLetzter_Click(); // rows 6 to 8
    t.form().MouseMove(2, Tisch::spalte(16));
    EXPECT_THAT(t.form().lblHilfe.Caption, HasSubstr("Sieben"));
    t.form().MouseMove(1, Tisch::spalte(16));
    EXPECT_EQ(t.form().lblHilfe.Caption, "");
}

TEST(Pointer, WaitingRowTellsTheStayThatItShows) {
    Tisch t;
    for (const auto* name : {"Erster", "Letzter"})
        t.house.stay({.Zimmernummer = 1,
                      .Von = day(15, 6),
                      .Bis = day(18, 6),
                      .GastID = t.house.guest({.LastName = name}),
                      .Belegungsart = 2,
                      .Gelöscht = true});
    t.form().MouseMove(4, Tisch::spalte(15));
    EXPECT_THAT(t.form().lblHilfe.Caption, HasSubstr("von  Letzter, "));
    EXPECT_THAT(t.form().lblHilfe.Caption, HasSubstr("bis: 18.06.2026"));
    t.form().MouseMove(1, Tisch::spalte(15));
    EXPECT_EQ(t.form().lblHilfe.Caption, "") << "the room is not taken by a stay of the waiting row";
}

TEST(Pointer, AsksOnceForEachCellAndAgainAfterAReload) {
    Tisch t;
    const auto id = t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
    const int spalte = Tisch::spalte(16);
    EXPECT_EQ(t.form().MouseMove(1, spalte), Wirkung::Status);
    const auto before = t.form().lblHilfe.Caption;
    t.house.db().Execute("UPDATE tblBelegung SET BelegNummer_eigen = 'neu' WHERE ID = " + std::to_string(id));
    EXPECT_EQ(t.form().MouseMove(1, spalte), Wirkung::Nichts);
    EXPECT_EQ(t.form().lblHilfe.Caption, before);
    t.form().cmdAktualisieren_Click();
    t.form().MouseMove(1, spalte);
    EXPECT_THAT(t.form().lblHilfe.Caption, HasSubstr("(neu)"));
}

TEST(Pointer, FailingQueryEndsQuietlyAndTheNextCellIsHandled) {
    Tisch t;
    t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
    t.form().MouseMove(1, 1);
    t.house.db().Close();
    t.form().MouseMove(1, Tisch::spalte(16));
    EXPECT_EQ(t.form().lblHilfe.Caption, "");
    EXPECT_EQ(t.form().fldDatum.Text, "16.06.26");
    t.form().MouseMove(3, Tisch::spalte(17));
    EXPECT_EQ(t.form().fldDatum.Text, "17.06.26");
    EXPECT_TRUE(t.dialogs.asked().empty());
}

TEST(Pointer, StayThatIsGoneLeavesTheHelpLineEmpty) {
    Tisch t;
    t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
    t.form();
    t.house.db().Execute("DELETE FROM tblBelegung");
    t.form().MouseMove(1, Tisch::spalte(16));
    EXPECT_EQ(t.form().lblHilfe.Caption, "");
}

TEST(Pointer, LastColumnTellsTheStayThatComesFromBeforeTheNextLine) {
    Tisch t;
    t.house.stay({.Zimmernummer = 2,
                  .Von = day(10, 6),
                  .Bis = day(15, 6),
                  .GastID = t.house.guest({.LastName = "Früher"}),
                  .Belegungsart = 2});
    t.form().MouseMove(1, 14);
    EXPECT_THAT(t.form().lblHilfe.Caption, HasSubstr("Früher"));
}

TEST(Pointer, DaysBehindTheTwoDigitYearsAreFound) {
    Tisch t;
    t.house.stay({.Von = day(15, 6, 2031), .Bis = day(18, 6, 2031), .Belegungsart = 2});
    t.form().subZeigeDatum(day(13, 6, 2031));
    t.form().MouseMove(1, 4);
    EXPECT_THAT(t.form().lblHilfe.Caption, HasSubstr("vom: 15.06.2031"));
}

TEST(Pointer, RequestedRefreshComesWithTheNextMoveEvenInTheSameCell) {
    Tisch t;
    t.form().MouseMove(1, 5);
    t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
    t.aktualisieren = 1;
    EXPECT_EQ(t.form().MouseMove(1, 5), Wirkung::Plan);
    EXPECT_EQ(t.aktualisieren, 0);
    EXPECT_FALSE(t.frei(1, 5));
    EXPECT_NE(t.form().lblHilfe.Caption, "");
    EXPECT_EQ(t.form().MouseMove(1, 5), Wirkung::Nichts);
}

TEST(Pointer, PaidStateIsAskedOnlyWhenThePointerRestsOnAStay) {
    Tisch t;
    const auto id = t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
    std::vector<int> asked;
    bool paid = true;
    t.mehr.istBezahlt = [&](int stay) {
        asked.push_back(stay);
        return paid;
    };
    t.form().MouseMove(1, 5);
    EXPECT_TRUE(asked.empty());
    t.form().MouseRest();
    EXPECT_EQ(t.form().cmdBezahlt.Caption, "Bezahlt");
    EXPECT_TRUE(t.form().cmdBezahlt.BackColor.has_value());
    t.form().MouseMove(1, 9);
    EXPECT_EQ(t.form().cmdBezahlt.Caption, "inaktiv");
    EXPECT_FALSE(t.form().cmdBezahlt.BackColor.has_value());
    t.form().MouseRest();
    paid = false;
    t.form().MouseMove(1, 5);
    t.form().MouseRest();
    EXPECT_EQ(t.form().cmdBezahlt.Caption, "Offen");
    EXPECT_THAT(asked, ElementsAre(id, id));
}

TEST(Pointer, BarExplainsItselfWithGuestDaysRoomAndPrice) {
    Tisch t;
    t.house.stay({.Zimmernummer = 2,
                  .Von = day(15, 6),
                  .Bis = day(18, 6),
                  .GastID = t.house.guest({.LastName = "Wübben", .FirstName = "Hanna"}),
                  .Belegungsart = 2,
                  .AnzahlGäste = 1,
                  .PreisProNacht = 450.5});
    for (const auto* name : {"Eins", "Zwei"})
        t.house.stay({.Von = day(15, 6),
                      .Bis = day(18, 6),
                      .GastID = t.house.guest({.LastName = name}),
                      .Belegungsart = 2,
                      .Gelöscht = true});
    EXPECT_EQ(t.form().ToolTip(2, 4), "Wübben, Hanna\nMo 15.06.2026 – Do 18.06.2026\nZimmer Zimmer 2, 1 Gast\nPreis "
                                      "1.351,50 EUR");
    EXPECT_THAT(t.form().ToolTip(4, 4), testing::AllOf(HasSubstr("Eins\n"), HasSubstr("\n\nZwei\n")));
    for (const auto& [zeile, spalte] : {std::pair{1, 4}, {2, 6}, {0, 4}, {5, 4}, {2, 0}, {2, 15}})
        EXPECT_EQ(t.form().ToolTip(zeile, spalte), "") << zeile << ' ' << spalte;
    for (int i = 0; i < 30; ++i)
        t.house.stay({.Von = day(16, 6), .Bis = day(17, 6), .Belegungsart = 2, .Gelöscht = true});
    t.form().cmdAktualisieren_Click();
    EXPECT_THAT(t.form().ToolTip(4, 4), testing::AllOf(HasSubstr("Eins\n"), testing::EndsWith("\n\n… und 26 weitere")));
}

// ---- drawing a new stay ----

TEST(Drawing, RefusalsComeInTheirOrder) {
    struct Case {
        int zeile;
        int tag;
        bool artGewählt;
        std::string text;
        std::string titel;
    };
    const std::string warten =
        "Diese Zeile ist für vorläufige Reservierungen vorgesehen. Wählen Sie ein anderes Zimmer "
        "und speichern die Reservierung dann in der Warteposition.";
    const std::string art = "Wählen Sie vor Anlegen einer neuen Reservierung 'Reserviert von:' aus.";
    const std::string besetzt = "Hier besteht bereits eine Reservierung.";
    const Case cases[] = {
        {4, 16, false, warten, "Herbergo"}, // free cell and no type: the row comes first
        {4, 20, true, warten, "Herbergo"},  // a stay in the waiting row
        {1, 16, false, art, "Herbergo"},    // taken, but the type comes first
        {1, 16, true, besetzt, "Reservierung"}, {1, 14, true, besetzt, "Reservierung"}, // free, but not for one night
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.zeile << ' ' << c.tag);
        Tisch t;
        t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
        t.house.stay({.Von = day(20, 6), .Bis = day(22, 6), .Belegungsart = 2, .Gelöscht = true});
        if (c.artGewählt) t.wähleArt();
        t.dialogs.acknowledge();
        t.form().MouseDown(c.zeile, Tisch::spalte(c.tag));
        EXPECT_EQ(t.dialogs.last().text, c.text);
        EXPECT_EQ(t.dialogs.last().title, c.titel);
        EXPECT_FALSE(t.form().AuswahlAktiv());
        t.form().MouseUp();
        EXPECT_TRUE(t.anfragen.empty());
    }
}

TEST(Drawing, LastLineIsTheWaitingRowAtEveryScrollPosition) {
    for (const int position : {0, 2, 5}) {
        Tisch t({.zimmer = 8, .sichtbar = 3});
        t.wähleArt();
        t.form().ScrollBar_Change(position);
        t.dialogs.acknowledge();
        t.form().MouseDown(4, 5);
        EXPECT_THAT(t.dialogs.last().text, testing::StartsWith("Diese Zeile ist für vorläufige")) << position;
        t.form().MouseDown(3, 5);
        EXPECT_TRUE(t.form().AuswahlAktiv()) << position;
    }
}

TEST(Drawing, PressBesideTheCellsOrWithoutAFormDoesNothing) {
    Tisch t;
    t.wähleArt();
    for (const auto& [zeile, spalte] : {std::pair{0, 5}, {5, 5}, {2, 0}, {2, 15}})
        EXPECT_EQ(t.form().MouseDown(zeile, spalte), Wirkung::Nichts);
    t.windows.vorhanden.clear();
    t.form().MouseDown(2, 5);
    EXPECT_FALSE(t.form().AuswahlAktiv());
    EXPECT_TRUE(t.dialogs.asked().empty());
}

TEST(Drawing, StayGoesToItsFormWithRoomDaysAndType) {
    Tisch t({.zimmer = 8, .sichtbar = 3});
    t.wähleArt();
    t.form().cmdLetzter_Click();
    t.neueID = 77;
    t.imFormular = [&] {
        EXPECT_FALSE(t.form().AuswahlAktiv());
        EXPECT_TRUE(t.gemalt(2, 7)) << "the drawn days stay in sight behind the form";
        t.house.stay({.Zimmernummer = 7, .Von = day(17, 6), .Bis = day(20, 6), .Kürzel = "neu"});
    };
    t.ziehe(2, Tisch::spalte(17), Tisch::spalte(20));
    for (const int tag : {17, 18, 19, 20})
        EXPECT_TRUE(t.gemalt(2, Tisch::spalte(tag)));
    t.form().MouseUp();
    ASSERT_EQ(t.anfragen.size(), 1U);
    EXPECT_EQ(t.anfragen[0].Zimmernummer, 7);
    EXPECT_EQ(t.anfragen[0].Von, day(17, 6));
    EXPECT_EQ(t.anfragen[0].Bis, day(20, 6));
    EXPECT_EQ(t.anfragen[0].Art, 2);
    EXPECT_TRUE(t.anfragen[0].IDs.empty());
    EXPECT_EQ(t.form().LetzteReservierung, 77);
    EXPECT_EQ(t.raster().Tage(t.raster().Zelle(2, 5)).Kuerzel, "neu") << "the plan was read again";
    EXPECT_TRUE(t.frei(2, Tisch::spalte(20)));
}

TEST(Drawing, PressWithoutADragAsksForTheSameDayTwice) {
    Tisch t;
    t.wähleArt();
    t.form().MouseDown(1, 5);
    t.form().MouseUp();
    ASSERT_EQ(t.anfragen.size(), 1U);
    EXPECT_EQ(t.anfragen[0].Von, t.anfragen[0].Bis);
    EXPECT_EQ(t.form().LetzteReservierung, 0) << "nothing was stored";
    EXPECT_TRUE(t.frei(1, 5));
}

TEST(Drawing, NewStayMayBeginOnADepartureDayAndInTheLastColumn) {
    Tisch t;
    t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
    t.wähleArt();
    t.form().MouseDown(1, Tisch::spalte(18));
    EXPECT_TRUE(t.form().AuswahlAktiv());
    t.form().MouseDown(1, 14);
    EXPECT_TRUE(t.form().AuswahlAktiv());
    EXPECT_FALSE(t.gemalt(1, Tisch::spalte(18))) << "a second press gives up the first selection";
}

TEST(Drawing, MovingBackGivesTheDaysTheirColoursAgain) {
    Tisch t;
    t.wähleArt();
    t.ziehe(2, 6, 10); // over a weekend
    t.form().MouseMove(2, 10, Maustaste::Links);
    t.form().MouseMove(2, 7, Maustaste::Links);
    for (int spalte = 1; spalte <= 14; ++spalte) {
        EXPECT_EQ(t.gemalt(2, spalte), spalte == 6 || spalte == 7) << spalte;
        if (spalte == 6 || spalte == 7) continue;
        EXPECT_EQ(t.raster().Bild(t.raster().Zelle(2, spalte)).Fuellung, t.raster().FreieFarbe(spalte));
    }
    t.form().MouseMove(2, 3, Maustaste::Links); // before its first day
    EXPECT_EQ(t.form().Auswahlplatz(), (Platz{2, 6, 6}));
    t.form().MouseMove(2, 0, Maustaste::Links); // beside the cells
    t.form().MouseMove(3, 9, Maustaste::Links); // another row: the days follow, the row does not
    EXPECT_EQ(t.form().Auswahlplatz(), (Platz{2, 6, 9}));
}

TEST(Drawing, EndsBeforeTheNextStayHoweverQuickThePointerIs) {
    Tisch t;
    t.house.stay({.Zimmernummer = 2, .Von = day(20, 6), .Bis = day(22, 6), .Belegungsart = 1});
    t.wähleArt();
    t.form().MouseDown(2, Tisch::spalte(16));
    EXPECT_EQ(t.form().MouseMove(2, Tisch::spalte(21), Maustaste::Links), Wirkung::Auswahl);
    t.form().MouseMove(2, Tisch::spalte(24), Maustaste::Links);
    EXPECT_EQ(t.form().Auswahlplatz(), (Platz{2, Tisch::spalte(16), Tisch::spalte(19)}));
    EXPECT_EQ(t.raster().Tage(t.raster().Zelle(2, Tisch::spalte(20))).ID, 1);
    t.form().MouseMove(2, Tisch::spalte(17), Maustaste::Links);
    EXPECT_EQ(t.form().Auswahlplatz(), (Platz{2, Tisch::spalte(16), Tisch::spalte(17)}));
}

TEST(Drawing, PlanGoesOnUnderTheStayAtTheLastColumn) {
    Tisch t;
    t.wähleArt();
    const auto start = t.raster().PlanStart();
    t.ziehe(2, 12, 14);
    EXPECT_EQ(t.raster().PlanStart(), start + 1);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(t.form().MouseHold(), Wirkung::Plan);
    EXPECT_EQ(t.raster().PlanStart(), start + 21);
    EXPECT_EQ(t.form().Auswahlplatz(), (Platz{2, 1, 13})) << "its first day has left the window";
    t.form().MouseUp();
    EXPECT_EQ(t.anfragen.at(0).Von, start + 11);
    EXPECT_EQ(t.anfragen.at(0).Bis, start + 33);
    EXPECT_EQ(t.form().MouseHold(), Wirkung::Nichts);
}

TEST(Drawing, StayOfTheNextLineInTheLastColumnIsInNobodysWay) {
    Tisch t;
    t.house.stay({.Zimmernummer = 3, .Von = day(10, 6), .Bis = day(18, 6), .Belegungsart = 1});
    t.wähleArt();
    const auto start = t.raster().PlanStart();
    ASSERT_FALSE(t.frei(2, 14));
    t.ziehe(2, 12, 14);
    EXPECT_EQ(t.raster().PlanStart(), start + 1);
    t.form().MouseHold();
    t.form().MouseUp();
    EXPECT_EQ(t.anfragen.at(0).Bis, start + 13);
}

TEST(Drawing, RefreshMeanwhileKeepsTheStay) {
    Tisch t;
    t.wähleArt();
    t.ziehe(2, 5, 8);
    t.house.stay({.Zimmernummer = 1, .Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 1, .Gelöscht = true});
    t.form().cmdAktualisieren_Click();
    for (int spalte = 5; spalte <= 8; ++spalte)
        EXPECT_TRUE(t.gemalt(2, spalte)) << spalte;
    EXPECT_EQ(t.raster().BalkenDerZeile(2).front().ID, 0);
    EXPECT_TRUE(t.raster().BalkenDerZeile(2).front().Kuerzel.empty());
    EXPECT_EQ(t.raster().BalkenDerZeile(4).size(), 1U) << "the drawn stay has not gone to the waiting row";
    t.form().MouseMove(2, 6, Maustaste::Links);
    EXPECT_FALSE(t.gemalt(2, 7));
}

TEST(Drawing, EscapeGivesItUp) {
    Tisch t;
    t.wähleArt();
    t.ziehe(2, 5, 8);
    EXPECT_TRUE(t.form().KeyDown(Plantaste::Esc));
    EXPECT_FALSE(t.form().AuswahlAktiv());
    EXPECT_TRUE(t.raster().BalkenDerZeile(2).empty());
    t.form().MouseUp();
    EXPECT_TRUE(t.anfragen.empty());
    EXPECT_FALSE(t.form().KeyDown(Plantaste::Esc)) << "there is nothing left to give up";
}

TEST(Drawing, LostReleaseGivesItUpAndShowsWhatCameMeanwhile) {
    Tisch t;
    t.wähleArt();
    EXPECT_EQ(t.form().MouseLost(), Wirkung::Nichts);
    t.ziehe(2, 5, 8);
    t.house.stay({.Zimmernummer = 2, .Von = day(18, 6), .Bis = day(22, 6), .Belegungsart = 1});
    t.form().cmdAktualisieren_Click();
    ASSERT_TRUE(t.gemalt(2, 7)) << "the drawn stay lies over the new one";
    EXPECT_EQ(t.form().MouseLost(), Wirkung::Plan);
    EXPECT_FALSE(t.form().AuswahlAktiv());
    EXPECT_TRUE(t.frei(2, 5));
    EXPECT_EQ(t.raster().Tage(t.raster().Zelle(2, 7)).WeitereIDs, "");
    EXPECT_FALSE(t.frei(2, 7));
    EXPECT_EQ(t.form().MouseUp(), Wirkung::Nichts);
    EXPECT_TRUE(t.anfragen.empty());
}

TEST(Drawing, NothingElseOpensWhileTheButtonIsHeld) {
    Tisch t;
    t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
    t.wähleArt();
    t.form().Kontext_Öffnen(Kontext::KontextDatum); // of an earlier press, given up
    t.ziehe(2, 5, 8);
    for (const auto wo : {Kontext::KontextZimmer, Kontext::kontextZusätze, Kontext::KONTEXTBelArt}) {
        t.form().Kontext_Öffnen(wo);
        EXPECT_TRUE(t.form().Kontextmenü.Entries.empty());
    }
    t.form().RechteTaste(1, Tisch::spalte(16));
    EXPECT_TRUE(t.form().Kontextmenü.Entries.empty());
    t.form().Beschriftung_Ändern(Planbeschriftung::Zimmerspalte);
    EXPECT_TRUE(t.dialogs.asked().empty());
    EXPECT_EQ(t.form().Auswahlplatz(), (Platz{2, 5, 8}));
}

TEST(Drawing, EventsThatReachThePlanBehindTheFormAreKeptOut) {
    Tisch t;
    t.wähleArt();
    t.imFormular = [&] {
        EXPECT_EQ(t.form().MouseMove(2, 9), Wirkung::Nichts);
        EXPECT_EQ(t.form().MouseDown(2, 9), Wirkung::Nichts);
        t.form().RechteTaste(2, 9);
        EXPECT_TRUE(t.form().Kontextmenü.Entries.empty());
        t.form().cmdNeu_Click();
        EXPECT_FALSE(t.form().KeyDown(Plantaste::F6));
    };
    t.form().MouseDown(1, 5);
    t.form().MouseUp();
    EXPECT_EQ(t.anfragen.size(), 1U);
}

// ---- the refresh ----

TEST(Refresh, FirstComesAfterSixMinutesAndThenEveryFive) {
    Tisch t;
    t.form();
    std::vector<int> minutes;
    for (int minute = 1; minute <= 17; ++minute) {
        t.house.db().Execute("DELETE FROM tblBelegung");
        t.form().subZeigeDatum(day(13, 6));
        t.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
        t.form().TimerAktualisieren_Timer();
        if (!t.frei(1, 5)) minutes.push_back(minute);
    }
    EXPECT_THAT(minutes, ElementsAre(6, 11, 16));
}

TEST(Refresh, WaitsForAnOpenFormAndKeepsThePlace) {
    Tisch t({.zimmer = 8, .sichtbar = 3});
    t.form().subZeigeDatum(day(14, 6));
    t.form().ScrollBar_Change(2);
    t.form().optBelArt_Click(0);
    bool free = false;
    t.imFormular = [&] {
        t.house.stay({.Zimmernummer = 3, .Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
        for (int i = 0; i < 6; ++i)
            t.form().TimerAktualisieren_Timer();
        free = t.frei(1, 3);
    };
    t.form().cmdNeu_Click();
    EXPECT_TRUE(free) << "the plan behind the form does not move";
    EXPECT_FALSE(t.frei(1, 3));
    EXPECT_EQ(t.raster().PlanStart(), day(14, 6));
    EXPECT_EQ(t.raster().ErsteZeile(), 3);
    EXPECT_EQ(t.form().AuswahlArt, 1);
}

// ---- the log ----

struct Log : testing::Test {
    Tisch t;
    std::string file = t.house.file("Zeitlog.txt");

    [[nodiscard]] std::string content() const {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }
};

TEST_F(Log, HoldsABlockForEachCellWithItsStagesInOrder) {
    {
        Tisch open;
        open.mehr.Zeitlogdatei = file;
        open.house.stay({.Von = day(15, 6), .Bis = day(18, 6), .Belegungsart = 2});
        open.aktualisieren = 1;
        open.form().MouseMove(1, 5);
        open.form().MouseMove(1, 5);
        open.form().MouseMove(0, 0);
        EXPECT_FALSE(std::filesystem::exists(file)) << "the mouse never waits for a file";
    }
    std::string expected = "  \nMouse  \n";
    for (const auto* stage :
         {"Position des Cursers ermittelt  ", "Aktualisieren wurde angefordert und ist durchgeführt ",
          "Tag eingetragen  ", "Zimmer eingetragen  ", "Datum eingetragen  ", "Feiertag ermittelt  ",
          "Kürzel sichtbar  ", "Zugehörige Markierung gesucht  ", "Abfrage zusammengestellt  ", "Abfrage geöffnet  ",
          "Überhänge eingefüllt  ", "Felder gefüllt  ", "Labelfled ausgerichtet  ", "Zahlung ermittelt  ",
          "recordset geschlossen  "})
        expected += std::string("10:30:00  ") + stage + "\n";
    expected += "  \nMouse  \n10:30:00  Position des Cursers ermittelt  \n";
    EXPECT_EQ(content(), expected);
}

TEST_F(Log, IsAppendedToAndWrittenWhenMuchHasComeTogether) {
    std::ofstream(file) << "früher\n";
    Zeitlog log(file, t.house.clock());
    for (int i = 0; i < 4000; ++i) {
        log.Kopf();
        log.Stufe("Tag eingetragen  ");
    }
    EXPECT_THAT(content(), testing::StartsWith("früher\n  \nMouse  \n10:30:00  Tag eingetragen  \n"));
}

TEST_F(Log, FileThatCannotBeWrittenIsNoError) {
    Zeitlog log(t.house.file("fehlt/Zeitlog.txt"), t.house.clock());
    log.Kopf();
    log.flush();
    log.Stufe("Tag eingetragen  ");
}

} // namespace
} // namespace plan
