#include "start/settings_reader.h"

#include "start/parameters.h"
#include "start/settings_table.h"
#include "start/start_main.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

namespace start {
namespace {

using services::MsgResult;
using support::TestStart;

/// A house that has been started before: with rooms, found and linked.
struct KnownHouse : TestStart {
    KnownHouse() {
        house();
        EXPECT_EQ(Main(g), Weg::Plan);
        db = open(file("Lokal.mdb"));
        SatzSchreiben(db, "Räumlichkeiten", {{"F1", "9"}, {"F2", "5"}, {"F3", "400"}});
        SatzSchreiben(db, "Farben", {{"F1", "255"}});
        arbeitsplatz = open(file("Beispiel.mdb"));
        SatzSchreiben(arbeitsplatz, "ZeitDarstellung", {{"F1", "40"}, {"F2", "1"}});
    }

    const Einstellungen& load() {
        EXPECT_EQ(EinstellungenLesen(g), Ladeergebnis::Fertig);
        return g.einstellungen;
    }
    [[nodiscard]] std::string stored(std::string_view satz, std::string_view feld = "F1") {
        const auto wert = FeldLesen(db, satz, feld);
        return wert ? wert->textOr("<Null>") : "<fehlt>";
    }

    jet::Database db{nullptr};
    jet::Database arbeitsplatz{nullptr};
};

TEST(Settings, MissingRecordsGiveTheirDefaultsAndSomeAreAdded) {
    KnownHouse h;
    const Einstellungen& e = h.load();
    EXPECT_EQ(e.strTitel, "Herbergo");
    EXPECT_TRUE(e.DruckenHardcopy);
    EXPECT_EQ(e.ErsterTagDifferenz, 60);
    EXPECT_EQ(e.Waehrung, "€");
    EXPECT_EQ(e.Stammkunden + e.AlleFreien + e.SuchOrt + e.MitGästezahlA + e.BlockbezR, "JaNeinJaJaNein");
    EXPECT_EQ(e.TextÜbernachtungMZ, "Übernachtungen");
    EXPECT_EQ(e.Zahlungsziele, (std::vector<std::string>{"Reiseantritt", "0", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(e.Menünamen.at(4), "Dokument 5");
    EXPECT_EQ(e.Spaltenbeschriftung.at(22), "ID");
    EXPECT_EQ(e.Wäsche1Name + std::to_string(e.Wäsche1Tage) + e.Wäsche2Name + std::to_string(e.Wäsche2Tage),
              "Handtücher7Bettwäsche3");

    EXPECT_EQ(h.stored("titel") + h.stored("Währung") + h.stored("VorgabeDatum") + h.stored("Aktualisieren"),
              "Herbergo€00");
    EXPECT_EQ(h.stored("Wäsche") + h.stored("Wäsche", "F3") + h.stored("Wäsche", "F5"), "Wäsche 1Wäsche 21");
    EXPECT_EQ(h.stored("Zahlungsziele") + h.stored("Zahlungsziele", "F8"), "Reiseantritt0");
    for (const auto* satz : {"ErsterTag", "Stammkunden", "MitGästezahlA", "Such_Ort", "ReNummer", "ZimVonBis"})
        EXPECT_EQ(h.stored(satz), "<fehlt>") << satz;
    EXPECT_EQ(h.db.OpenRecordset("SELECT Inhalt FROM tblTexte WHERE Textbaustein = 'DruckAnzahl'").Fields(0).Value(),
              "2");

    EXPECT_EQ(h.load().Wäsche1Name, "Wäsche 1"); // only the first run after an upgrade shows the other words
}

TEST(Settings, RecordsAreReadAsTheyStand) {
    KnownHouse h;
    SatzSchreiben(h.db, "TITEL", {{"F1", "Pension Möwe"}});
    SatzSchreiben(h.db, "DruckenHardcopy", {{"F1", "Falsch"}});
    SatzSchreiben(h.db, "Belegungsarten", {{"F1", "frei"}, {"F3", "Teilbelegt"}});
    SatzSchreiben(h.db, "Farben", {{"F10", "65280"}});
    JaNeinSchreiben(h.db, "ZwischenB", 0);
    const Einstellungen& e = h.load();
    EXPECT_EQ(e.strTitel, "Pension Möwe");
    EXPECT_FALSE(e.DruckenHardcopy);
    EXPECT_EQ(e.AnzahlZimmer, 9);
    EXPECT_EQ(e.SichtbareZeilen, 5);
    EXPECT_EQ(e.ZeilenHoehe, 400);
    EXPECT_EQ(e.AnzahlTage, 40);
    EXPECT_EQ(e.WochentagLinie, 1);
    EXPECT_EQ(e.Farben.at(0), 255);
    EXPECT_EQ(e.Farben.at(1), 16742405);
    EXPECT_EQ(e.FarbeSamstag, 65280);
    EXPECT_EQ(e.FarbeSonntag, std::nullopt);
    EXPECT_EQ(e.Belegungsarten.at(2), "Teilbelegt");
    EXPECT_EQ(e.Belegungsarten.at(1), ""); // an unused number, not the name of the sample
    EXPECT_EQ(e.ZwischenB, "Nein");
}

TEST(Settings, OddNumbersLeaveAPlanThatCanBeShown) {
    struct Case {
        const char* zimmer;
        int AnzahlZimmer;
        const char* zeilen;
        int SichtbareZeilen;
        const char* tage;
        int AnzahlTage;
    };
    KnownHouse h;
    for (const Case& c : {Case{"0", 0, "5", 10, "0", 35},
                          {"99", 98, "98", 98, "1000", 100},
                          {"300", 98, "99", 10, "-5", 35},
                          {"-1", 0, "-1", 10, "viele", 35},
                          {"neun", 0, "alle", 10, "99999999999999", 100},
                          {"12", 12, "13", 10, "7 Tage", 7},
                          {"", 0, "", 10, "", 35}}) {
        SatzSchreiben(h.db, "Räumlichkeiten", {{"F1", c.zimmer}, {"F2", c.zeilen}, {"F3", "hoch"}});
        SatzSchreiben(h.arbeitsplatz, "zeitdarstellung", {{"F1", c.tage}, {"F2", "montags"}});
        SatzSchreiben(h.db, "Farben", {{"F1", "grün"}, {"F2", "&HFF"}});
        SatzSchreiben(h.db, "ErsterTag", {{"F1", "999"}});
        const Einstellungen& e = h.load();
        EXPECT_EQ(e.AnzahlZimmer, c.AnzahlZimmer) << c.zimmer;
        EXPECT_EQ(e.SichtbareZeilen, c.SichtbareZeilen) << c.zeilen;
        EXPECT_EQ(e.AnzahlTage, c.AnzahlTage) << c.tage;
        EXPECT_EQ(e.ZeilenHoehe, 320);
        EXPECT_EQ(e.WochentagLinie, 0);
        EXPECT_EQ(e.Farben.at(0), 0);
        EXPECT_EQ(e.Farben.at(1), 255);
        EXPECT_EQ(e.ErsterTagDifferenz, 255);
    }
}

TEST(Settings, MissingDisplayIsToldAndNothingIsWritten) {
    KnownHouse h;
    h.arbeitsplatz.Execute("DELETE FROM tblParameter");
    h.db.Execute("DELETE FROM tblParameter WHERE Satz = 'Farben'");
    h.dialogs.acknowledge(2);
    const Einstellungen& e = h.load();
    ASSERT_EQ(h.dialogs.asked().size(), 2U);
    EXPECT_EQ(h.dialogs.last().text, "Zum Betrieb von Herbergo werden noch einige Angaben benötigt.");
    EXPECT_EQ(h.dialogs.last().title, "Einstellungen vornehmen");
    EXPECT_EQ(h.dialogs.last().style.icon, services::MsgIcon::Information);
    EXPECT_TRUE(h.windows.geöffnet.empty());
    EXPECT_EQ(e.AnzahlTage, 35);
    EXPECT_EQ(e.WochentagLinie, 2);
    EXPECT_EQ(e.Farben.at(4), 16056285);
    EXPECT_EQ(h.stored("Farben"), "<fehlt>");
    EXPECT_EQ(h.arbeitsplatz.OpenRecordset("tblParameter").RecordCount(), 0);
}

TEST(Settings, SettingsFormFillsWhatWasMissing) {
    KnownHouse h;
    h.db.Execute("DELETE FROM tblParameter WHERE Satz = 'Farben'");
    h.windows.vorhanden.insert(Fenster::Einstellungen);
    h.windows.beiEinstellungen = [&](const EinstellungenAnfrage& anfrage) {
        EXPECT_EQ(anfrage.Seite, 2);
        SatzSchreiben(h.db, "Farben", {{"F1", "7"}});
    };
    h.dialogs.acknowledge();
    EXPECT_EQ(h.load().Farben.at(0), 7);
}

TEST(Settings, YesNoRecordsAndCaptions) {
    KnownHouse h;
    EXPECT_EQ(JaNeinLesen(h.db, "AlleFreien"), std::nullopt);
    for (const auto& [wert, text] : {std::pair{1, "Ja"}, {0, "Nein"}, {2, "Nein"}}) {
        JaNeinSchreiben(h.db, "AlleFreien", wert);
        EXPECT_EQ(JaNeinLesen(h.db, "allefreien"), text);
    }
    EXPECT_EQ(BeschriftungLesen(h.db, "F1"), "Bezeichnung");
    SatzSchreiben(h.db, "Beschriftungen", {{"F2", "Räume"}});
    EXPECT_EQ(BeschriftungLesen(h.db, "F2"), "Räume");
    EXPECT_EQ(FeldLesen(h.db, "O'Hara"), std::nullopt);
}

TEST(Settings, EveryRecordStandsOnceAndReadsBackItsDefault) {
    Einstellungen e;
    for (const Satz& satz : Satztabelle()) {
        EXPECT_FALSE(satz.Felder.empty()) << satz.Name;
        for (const Feld& feld : satz.Felder)
            zuweisen(e, feld.ziel, feld.Vorgabe);
    }
    EXPECT_EQ(e.Rechnungsspalten.size(), 16U);
    EXPECT_EQ(e.WäscheOptionen, (std::vector<std::string>{"1", "", "", "", "", ""}));
    EXPECT_EQ(e.BeNummer.size(), 5U);
}

// The first run

TEST(FirstRun, NoWritesTheDefaultsAndGoesOn) {
    TestStart s;
    s.house();
    EXPECT_EQ(Main(s.g), Weg::Plan);
    s.dialogs.press(MsgResult::No);
    EXPECT_EQ(EinstellungenLesen(s.g), Ladeergebnis::Fertig);
    EXPECT_EQ(s.dialogs.last().text, "Möchten Sie die Anwendung: 'Herbergo' zunächst mit Beispieldaten ansehen?");
    EXPECT_EQ(s.dialogs.last().style.flags(), 35);
    EXPECT_TRUE(s.g.ErsterStart);
    EXPECT_EQ(s.g.einstellungen.AnzahlZimmer, 9);
    EXPECT_FALSE(s.g.BeispielAktiv);
    EXPECT_EQ(s.g.dbHaupt.OpenRecordset("tbZimmernummern").RecordCount(), 10);
    EXPECT_EQ(EinstellungenLesen(s.g), Ladeergebnis::Fertig); // not asked again
}

TEST(FirstRun, YesStartsOverOnTheSampleData) {
    TestStart s;
    s.house();
    EXPECT_EQ(Main(s.g), Weg::Plan);
    s.dialogs.press(MsgResult::Yes);
    const auto ersteAnkunft = [&] {
        jet::Database beispiel = s.open(s.file("Beispiel.mdb"));
        return beispiel.OpenRecordset("SELECT TOP 1 Von FROM tblBelegung ORDER BY ID").Fields(0).Value().dateOr();
    };
    s.clock.set(s.clock.now() + 400); // the sample has become stale
    EXPECT_NE(ersteAnkunft(), s.clock.today());
    EXPECT_EQ(EinstellungenLesen(s.g), Ladeergebnis::Neuladen);
    EXPECT_EQ(ersteAnkunft(), s.clock.today());
    EXPECT_TRUE(s.g.Neuaufbau);
    EXPECT_EQ(EinstellungenLesen(s.g), Ladeergebnis::Fertig);
    EXPECT_TRUE(s.g.BeispielAktiv);
    EXPECT_EQ(s.g.strDBAktuell, s.file("Beispiel.mdb"));
    EXPECT_GT(s.g.dbHaupt.OpenRecordset("tblBelegung").RecordCount(), 30);
    EXPECT_EQ(s.open(s.file("Lokal.mdb")).OpenRecordset("tbZimmernummern").RecordCount(), 0);

    s.g.BeispielAnzeigen = false; // back to the own data: No is taken without asking
    s.g.OhneBeispielFrage = true;
    EXPECT_EQ(EinstellungenLesen(s.g), Ladeergebnis::Fertig);
    EXPECT_FALSE(s.g.BeispielAktiv);
    EXPECT_EQ(s.g.dbHaupt.OpenRecordset("tbZimmernummern").RecordCount(), 10);
}

TEST(FirstRun, CancelStopsTheLoadAndLeavesTheHouseUndecided) {
    TestStart s;
    s.house();
    EXPECT_EQ(Main(s.g), Weg::Plan);
    for (int run = 0; run < 2; ++run) {
        s.dialogs.press(MsgResult::Cancel);
        EXPECT_EQ(EinstellungenLesen(s.g), Ladeergebnis::Ende);
    }
    EXPECT_EQ(s.g.dbHaupt.OpenRecordset("tbZimmernummern").RecordCount(), 0);
}

TEST(FirstRun, UnreadableHouseIsNotTakenForANewOne) {
    KnownHouse h;
    h.db.Close();
    // The rooms' record cannot be read: its table is gone.
    jet::Database source = h.open(h.file("Herbergo.mdb"));
    source.DeleteTableDef("tblParameter");
    h.dialogs.acknowledge();
    EXPECT_EQ(EinstellungenLesen(h.g), Ladeergebnis::Ende);
    EXPECT_EQ(h.dialogs.last().style.icon, services::MsgIcon::Critical);
    EXPECT_FALSE(h.g.ErsterStart);
}

} // namespace
} // namespace start
