#include "plan/desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace plan {
namespace {

using services::MsgResult;
using start::Fenster;
using support::day;
using testing::ElementsAre;

std::vector<std::string> captions(const services::Menu& menu) {
    std::vector<std::string> all;
    for (const auto& entry : menu.Entries)
        if (entry.Visible) all.push_back((entry.Enabled ? "" : "-") + entry.Caption);
    return all;
}

struct Context : testing::Test {
    Tisch t;

    int stay(int zimmer, int von, int bis, int art = 2, bool checked = false) {
        return static_cast<int>(t.house.stay(
            {.Zimmernummer = zimmer, .Von = day(von, 6), .Bis = day(bis, 6), .Belegungsart = art, .Checked = checked}));
    }
    int wait(int von, int bis) {
        return static_cast<int>(
            t.house.stay({.Von = day(von, 6), .Bis = day(bis, 6), .Belegungsart = 2, .Gelöscht = true}));
    }
    void rightClick(int zeile, int tag) { t.form().RechteTaste(zeile, Tisch::spalte(tag)); }
    bool checked(int id) {
        return t.house.value("SELECT Checked FROM tblBelegung WHERE ID = " + std::to_string(id)).boolOr();
    }
};

TEST_F(Context, BarOffersWhatFitsItsState) {
    stay(1, 15, 18);
    stay(2, 15, 18, 2, true);
    stay(3, 15, 18, 4); // an offer
    wait(15, 18);
    rightClick(1, 16);
    EXPECT_THAT(captions(t.form().Kontextmenü),
                ElementsAre("&Reservierung öffnen", "Check &in", "-R&echnungen", "-&Zahlungen",
                            "-&Übersicht für Reservierungsadresse", "-Übersicht für Rechnungs&adresse",
                            "-&Status anzeigen", "A&bbrechen"));
    rightClick(2, 16);
    EXPECT_EQ(captions(t.form().Kontextmenü).at(1), "Check &out");
    for (const int zeile : {3, 4}) {
        rightClick(zeile, 16);
        EXPECT_EQ(captions(t.form().Kontextmenü).at(1), "-Check &in") << zeile;
        EXPECT_EQ(captions(t.form().Kontextmenü).at(2), "-A&ngebot") << zeile;
    }
}

TEST_F(Context, EntriesFollowTheWindowsThatAreThere) {
    stay(1, 15, 18);
    t.windows.vorhanden = {Fenster::Rechnungen, Fenster::Zahlungen};
    t.mehr.istBezahlt = [](int) { return false; };
    rightClick(1, 16);
    const auto all = captions(t.form().Kontextmenü);
    EXPECT_THAT(all, testing::IsSupersetOf({"-&Reservierung öffnen", "R&echnungen", "&Zahlungen", "&Status anzeigen"}));
    t.form().Kontext_Click("mnuReservierungÖffnen");
    EXPECT_TRUE(t.anfragen.empty());
}

TEST_F(Context, OtherPlacesHaveTheirMenus) {
    stay(1, 15, 18);
    rightClick(1, 18); // departure: free
    EXPECT_THAT(captions(t.form().Kontextmenü), ElementsAre("-Daten &suchen", "neue &Reservierung", "-&Einstellungen"));
    t.form().RechteTaste(1, 0);
    EXPECT_TRUE(t.form().Kontextmenü.Entries.empty());
    const auto at = [&](Kontext wo) {
        t.form().Kontext_Öffnen(wo);
        return captions(t.form().Kontextmenü);
    };
    EXPECT_THAT(at(Kontext::KontextZimmer), ElementsAre("-&Einstellungen ändern"));
    EXPECT_THAT(at(Kontext::kontextZusätze), ElementsAre("-Zusatzspalten &einrichten", "-Zusatzspalten &zuordnen"));
    EXPECT_THAT(at(Kontext::KONTEXTBelArt), ElementsAre("-&Einstellungen ändern"));
    EXPECT_THAT(at(Kontext::KontextDatum), ElementsAre("Daten &anzeigen ab:"));
    t.dialogs.type("24.12.2026");
    t.form().Kontext_Click("mnuKontextDatenAb");
    EXPECT_EQ(t.dialogs.last().title, "Zeitleiste verschieben");
    EXPECT_EQ(t.raster().PlanStart(), day(24, 12));
}

TEST_F(Context, FreeCellBeginsAStayInItsRoomOnItsDay) {
    rightClick(2, 19);
    t.form().Kontext_Click("mnuNeu");
    ASSERT_EQ(t.anfragen.size(), 1U);
    EXPECT_EQ(t.anfragen[0].Zimmernummer, 2);
    EXPECT_EQ(t.anfragen[0].Von, day(19, 6));
    EXPECT_EQ(t.anfragen[0].Bis, day(19, 6));
    t.form().Kontext_Click("mnuNeu"); // the menu is closed
    EXPECT_EQ(t.anfragen.size(), 1U);
}

TEST_F(Context, WaitingRowHandsItsWholeDayToTheForm) {
    const int first = wait(14, 18);
    const int second = wait(15, 17);
    wait(20, 22);
    rightClick(4, 16);
    t.form().Kontext_Click("mnuReservierungÖffnen");
    ASSERT_EQ(t.anfragen.size(), 1U);
    EXPECT_THAT(t.anfragen[0].IDs, ElementsAre(first, second));
    EXPECT_EQ(t.anfragen[0].Wartetag, day(16, 6));
    rightClick(4, 17); // the second one has left
    t.form().Kontext_Click("mnuReservierungÖffnen");
    EXPECT_THAT(t.anfragen.at(1).IDs, ElementsAre(first));
}

TEST_F(Context, StayFromBeforeTheWaitingRowIsFoundAtTheEndOfTheLineAbove) {
    const int id = wait(10, 13); // leaves on the plan's first day
    t.form().RechteTaste(3, 14);
    t.form().Kontext_Click("mnuReservierungÖffnen");
    ASSERT_EQ(t.anfragen.size(), 1U);
    EXPECT_THAT(t.anfragen[0].IDs, ElementsAre(id));
    EXPECT_EQ(t.anfragen[0].Wartetag, day(12, 6));
}

TEST_F(Context, SharedCellAsksWhichStayIsMeant) {
    const int under = stay(1, 14, 19, 4);
    const int over = stay(1, 15, 18, 2, true);
    std::vector<std::string> offered;
    int choice = 0;
    t.mehr.Zimmerauswahl = [&](frmZimmerauswahl& form) {
        offered.clear();
        for (int i = 0; i < form.lstReservierungen.Items.ListCount(); ++i)
            offered.push_back(form.lstReservierungen.Items.List(i));
        if (choice < 0) return form.cmdAbbrechen_Click();
        form.lstReservierungen.ListIndex = choice;
        form.cmdAuswählen_Click();
        EXPECT_TRUE(form.geschlossen());
    };
    rightClick(1, 16);
    EXPECT_THAT(offered, ElementsAre("Zimmer 1: Gast1, 14.06.2026 bis 19.06.2026",
                                     "Zimmer 1: Gast2, 15.06.2026 bis 18.06.2026"));
    EXPECT_EQ(captions(t.form().Kontextmenü).at(1), "-Check &in") << "the menu is that of the chosen offer";
    t.form().Kontext_Click("mnuReservierungÖffnen");
    choice = 1;
    rightClick(1, 16);
    EXPECT_EQ(captions(t.form().Kontextmenü).at(1), "Check &out");
    t.form().Kontext_Click("mnuReservierungÖffnen");
    EXPECT_THAT(t.anfragen.at(0).IDs, ElementsAre(under));
    EXPECT_THAT(t.anfragen.at(1).IDs, ElementsAre(over));
    choice = -1;
    rightClick(1, 16);
    EXPECT_TRUE(t.form().Kontextmenü.Entries.empty());
    rightClick(1, 14); // not shared
    t.form().Kontext_Click("mnuReservierungÖffnen");
    EXPECT_THAT(t.anfragen.at(2).IDs, ElementsAre(under));
}

TEST_F(Context, BarOfAStayThatIsGoneOpensNothingAndIsReadAgain) {
    stay(1, 15, 18);
    t.form();
    t.house.db().Execute("DELETE FROM tblBelegung");
    rightClick(1, 16);
    EXPECT_TRUE(t.form().Kontextmenü.Entries.empty());
    EXPECT_TRUE(t.frei(1, Tisch::spalte(16)));
}

TEST_F(Context, CheckInAndOutShowAtOnce) {
    const int id = stay(1, 15, 18);
    rightClick(1, 16);
    t.form().Kontext_Click("mnuCheckOut"); // not offered
    EXPECT_FALSE(checked(id));
    t.form().Kontext_Click("mnuCheckIn");
    EXPECT_TRUE(checked(id));
    EXPECT_EQ(t.raster().Bild(t.raster().Zelle(1, 5)).Rahmen, 3);
    rightClick(1, 16);
    t.form().Kontext_Click("mnuCheckOut");
    EXPECT_FALSE(checked(id));
    EXPECT_TRUE(t.dialogs.asked().empty()) << "there are no invoices to ask for";
}

TEST_F(Context, StayThatBecameAnOfferMeanwhileIsNotCheckedIn) {
    const int id = stay(1, 15, 18);
    for (const bool in : {true, false}) {
        t.house.db().Execute("UPDATE tblBelegung SET Belegungsart = 2, Checked = " +
                             std::string(in ? "false" : "true"));
        t.form().cmdAktualisieren_Click();
        rightClick(1, 16);
        t.house.db().Execute("UPDATE tblBelegung SET Belegungsart = 4");
        t.dialogs.acknowledge();
        t.form().Kontext_Click(in ? "mnuCheckIn" : "mnuCheckOut");
        EXPECT_EQ(t.dialogs.last().text, std::string("Die Reservierung ist als Angebot gekennzeichnet, deshalb ist ein "
                                                     "'Check ") +
                                             (in ? "in" : "out") + "' nicht möglich.");
        EXPECT_EQ(checked(id), !in);
    }
}

TEST_F(Context, WhatTheUserAskedForAndCouldNotBeDoneIsTold) {
    stay(1, 15, 18);
    rightClick(1, 16);
    t.house.db().Close();
    t.dialogs.acknowledge();
    t.form().Kontext_Click("mnuCheckIn");
    EXPECT_EQ(t.dialogs.last().style.icon, services::MsgIcon::Exclamation);
    EXPECT_FALSE(t.dialogs.last().text.empty());
    t.nichtSchreibbar = true;
    t.dialogs.type("Wohnung");
    t.dialogs.acknowledge();
    t.form().Beschriftung_Ändern(Planbeschriftung::Zimmerspalte);
    EXPECT_EQ(t.dialogs.last().text, "Datensatz ist momentan gesperrt.");
    EXPECT_NE(t.raster().Einstellungen().Zimmerspalte, "Wohnung");
    t.form().MouseMove(1, 3);
    EXPECT_EQ(t.form().fldDatum.Text, "15.06.26") << "events come in again";
}

TEST_F(Context, CheckOutLeadsToTheInvoiceWhereThereAreInvoices) {
    const int id = stay(1, 15, 18, 2, true);
    t.windows.vorhanden.insert(Fenster::Rechnungen);
    for (const auto answer : {MsgResult::No, MsgResult::Yes}) {
        t.house.db().Execute("UPDATE tblBelegung SET Checked = true");
        t.form().cmdAktualisieren_Click();
        rightClick(1, 16);
        t.dialogs.press(answer);
        t.form().Kontext_Click("mnuCheckOut");
        EXPECT_EQ(t.dialogs.last().text, "Rechnung schreiben?");
        EXPECT_EQ(t.dialogs.last().style.buttons, services::MsgButtons::YesNo);
        EXPECT_FALSE(checked(id)) << "whatever the answer";
    }
    EXPECT_THAT(t.geöffnet, ElementsAre(Fenster::Rechnungen));
}

TEST_F(Context, StatusTellsWhetherTheStayIsPaid) {
    stay(1, 15, 18);
    bool paid = false;
    t.mehr.istBezahlt = [&](int) { return paid; };
    for (const auto* text : {"Status: Offen", "Status: Bezahlt"}) {
        rightClick(1, 16);
        t.dialogs.acknowledge();
        t.form().Kontext_Click("mnuStatusAnzeigen");
        EXPECT_EQ(t.dialogs.last().text, text);
        paid = true;
    }
}

// ---- rooms, headings, the last stay ----

TEST_F(Context, RoomNameOpensItsCurrentStay) {
    stay(1, 1, 12); // left three days ago
    const int left = stay(1, 10, 13);
    stay(1, 17, 20);
    const int running = stay(2, 1, 30);
    t.form().Zimmer_Click(1);
    t.form().Zimmer_Click(2);
    ASSERT_EQ(t.anfragen.size(), 2U);
    EXPECT_THAT(t.anfragen[0].IDs, ElementsAre(left));
    EXPECT_THAT(t.anfragen[1].IDs, ElementsAre(running));
    stay(3, 18, 20); // in three days
    t.dialogs.acknowledge();
    t.form().Zimmer_Click(3);
    EXPECT_EQ(t.dialogs.last().text,
              "Es gibt keine aktuelle Reservierung zwischen dem 13.06.2026 und dem 17.06.2026 für das Zimmer Zimmer 3");
    t.form().Zimmer_Click(0);
    t.form().Zimmer_Click(5);
    t.windows.vorhanden.clear();
    t.form().Zimmer_Click(1);
    EXPECT_EQ(t.anfragen.size(), 2U);
}

TEST_F(Context, LastOpenedStayOpensAgain) {
    stay(1, 15, 18);
    const int second = stay(2, 15, 18);
    t.dialogs.acknowledge();
    t.form().Menu_Click("mnuLetzteReservierung");
    EXPECT_EQ(t.dialogs.last().text, "Es wurde noch keine Reservierung geöffnet.");
    EXPECT_TRUE(t.anfragen.empty());
    rightClick(2, 16);
    t.form().Kontext_Click("mnuReservierungÖffnen");
    t.form().cmdNeu_Click(); // given up in its form
    t.form().Menu_Click("mnuLetzteReservierung");
    EXPECT_THAT(t.anfragen.at(2).IDs, ElementsAre(second));
    EXPECT_FALSE(t.anfragen.at(1).Von.has_value());
}

TEST_F(Context, HeadingTakesAnyWordWithoutTheSeparatorsOfTheLetters) {
    for (const auto was : {Planbeschriftung::Belegungsrahmen, Planbeschriftung::Zimmerspalte}) {
        t.dialogs.type("Gebucht; von");
        t.dialogs.acknowledge();
        t.dialogs.type("Gebucht~von");
        t.dialogs.acknowledge();
        t.dialogs.type("Gebucht durch");
        t.form().Beschriftung_Ändern(was);
        const auto& asked = t.dialogs.asked();
        const auto at = asked.size() - 5;
        EXPECT_EQ(asked[at].text, "Bitte geben Sie die neue Bezeichnung ein.");
        EXPECT_EQ(asked[at + 1].text, "Bitte verwenden Sie in der Bezeichnung kein Semikolon ';'.");
        EXPECT_EQ(asked[at + 2].vorgabe, "Gebucht; von") << "what was typed is not lost";
        EXPECT_EQ(asked[at + 3].text, "Bitte verwenden Sie in der Bezeichnung keine Tilde '~'.");
        EXPECT_EQ(t.beschriftet.back(), std::pair(was, std::string("Gebucht durch")));
    }
    EXPECT_EQ(t.form().optBelArt.Caption, "Gebucht durch");
    EXPECT_EQ(t.raster().Einstellungen().Zimmerspalte, "Gebucht durch");
    for (const auto& answer : {std::optional<std::string>(), std::optional<std::string>(" ")}) {
        t.dialogs.type(answer);
        t.form().Beschriftung_Ändern(Planbeschriftung::Zimmerspalte);
    }
    EXPECT_EQ(t.beschriftet.size(), 2U);
}

// ---- the keyboard ----

struct Keys : Context {
    void press(std::initializer_list<Plantaste> keys, Umschalt shift = Umschalt::Los) {
        for (const auto key : keys)
            t.form().KeyDown(key, shift);
    }
};

TEST_F(Keys, PlainKeysDoNothingUntilTheCursorIsCalled) {
    t.wähleArt();
    for (const auto key : {Plantaste::Links, Plantaste::Ab, Plantaste::Return, Plantaste::Menü, Plantaste::Esc})
        EXPECT_FALSE(t.form().KeyDown(key));
    EXPECT_FALSE(t.form().Cursor().has_value());
    EXPECT_TRUE(t.anfragen.empty());
    press({Plantaste::F6});
    EXPECT_EQ(t.form().Cursor(), (Zellcursor{1, 1}));
    press({Plantaste::Esc});
    EXPECT_FALSE(t.form().Cursor().has_value());
}

TEST_F(Keys, CursorTellsItsCellAndStopsAtTheEdges) {
    using enum Plantaste;
    const int id = stay(2, 15, 18);
    press({F6, Ab, Rechts, Rechts});
    EXPECT_EQ(t.form().fldDatum.Text, "15.06.26");
    EXPECT_EQ(t.form().txtIDBelegung, id);
    press({Ab, Ab, Ab, Ab});
    EXPECT_EQ(t.form().Cursor(), (Zellcursor{4, 3}));
    press({Links, Links, Links, Links, Links});
    EXPECT_EQ(t.form().Cursor(), (Zellcursor{4, 0})) << "the name of the row";
    press({Auf, Auf, Auf, Auf, Auf});
    EXPECT_EQ(t.form().Cursor(), (Zellcursor{0, 0}));
}

TEST_F(Keys, ReturnOpensWhatTheCursorIsOn) {
    using enum Plantaste;
    const int id = stay(2, 15, 18);
    const int waiting = wait(15, 18);
    t.wähleArt();
    press({F6, Ab, Rechts, Rechts, Return});
    EXPECT_THAT(t.anfragen.at(0).IDs, ElementsAre(id));
    press({Ab, Ab, Return});
    EXPECT_EQ(t.anfragen.at(1).Wartetag, day(15, 6));
    EXPECT_THAT(t.anfragen.at(1).IDs, ElementsAre(waiting));
    press({Auf, Return});
    EXPECT_EQ(t.anfragen.at(2).Zimmernummer, 3);
    EXPECT_EQ(t.anfragen.at(2).Von, day(15, 6));
    press({Links, Links, Links, Auf, Return}); // the room's name
    EXPECT_THAT(t.anfragen.at(3).IDs, ElementsAre(id));
    EXPECT_TRUE(t.form().Cursor().has_value());
}

TEST_F(Keys, ShiftDrawsAStay) {
    using enum Plantaste;
    t.wähleArt();
    press({F6, Ab, Rechts});
    press({Rechts, Rechts, Rechts, Links}, Umschalt::Gedrückt);
    EXPECT_EQ(t.form().Auswahlplatz(), (Platz{2, 2, 4}));
    EXPECT_EQ(t.form().Cursor(), (Zellcursor{2, 4}));
    press({Ab, Auf}, Umschalt::Gedrückt);
    EXPECT_EQ(t.form().Auswahlplatz(), (Platz{2, 2, 4}));
    press({Return});
    ASSERT_EQ(t.anfragen.size(), 1U);
    EXPECT_EQ(t.anfragen[0].Von, day(14, 6));
    EXPECT_EQ(t.anfragen[0].Bis, day(16, 6));
    press({Rechts}, Umschalt::Gedrückt);
    press({Esc});
    EXPECT_TRUE(t.raster().BalkenDerZeile(2).empty());
    EXPECT_TRUE(t.form().Cursor().has_value()) << "Esc gives up one thing at a time";
}

TEST_F(Keys, CursorAndDrawnStayMoveThePlanAtItsEdges) {
    using enum Plantaste;
    Tisch big({.zimmer = 5, .tage = 4, .sichtbar = 2});
    big.wähleArt();
    auto& form = big.form();
    const auto start = big.raster().PlanStart();
    for (const auto key : {F6, Rechts, Rechts, Rechts, Rechts, Rechts})
        form.KeyDown(key);
    EXPECT_EQ(big.raster().PlanStart(), start + 2);
    EXPECT_EQ(form.Cursor(), (Zellcursor{1, 4}));
    for (int i = 0; i < 5; ++i)
        form.KeyDown(Ab);
    EXPECT_EQ(big.raster().ErsteZeile(), 4);
    EXPECT_EQ(form.Cursor(), (Zellcursor{3, 4})) << "the waiting row, behind the last room";
    for (int i = 0; i < 5; ++i)
        form.KeyDown(Auf);
    EXPECT_EQ(big.raster().ErsteZeile(), 1);
    EXPECT_EQ(form.Cursor(), (Zellcursor{1, 4}));
    for (int i = 0; i < 3; ++i)
        form.KeyDown(Rechts, Umschalt::Gedrückt);
    form.KeyDown(Return);
    EXPECT_EQ(big.anfragen.at(0).Von, start + 5);
    EXPECT_EQ(big.anfragen.at(0).Bis, start + 8);
}

TEST_F(Keys, MenuKeyOpensTheMenuOfThePlace) {
    using enum Plantaste;
    stay(1, 13, 18);
    press({F6, Menü});
    EXPECT_EQ(t.form().Kontextmenü.Entries.front().Caption, "&Reservierung öffnen");
    press({Ab, Menü});
    EXPECT_EQ(t.form().Kontextmenü.Entries.front().Caption, "Daten &suchen");
    press({Auf, Auf, Menü});
    EXPECT_EQ(t.form().Kontextmenü.Entries.front().Caption, "Daten &anzeigen ab:");
    press({Links, Menü});
    EXPECT_EQ(t.form().Kontextmenü.Entries.front().Caption, "&Einstellungen ändern");
}

} // namespace
} // namespace plan
