#include "plan/grid.h"
#include "plan/settings_reader.h"
#include "platform/jet/workspace.h"
#include "store/database_files.h"
#include "store/new_house.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace plan {
namespace {

using testing::ElementsAre;

basic::Date tag(int day, int month = 6) { return basic::Date::fromYmd(2026, month, day); }

/// An empty house, opened as a run opens it.
struct House : testing::Test {
    jet::Database made() {
        store::createHouse(workspace, {.Ordner = folder.path().string(), .Jetzt = tag(1)});
        return workspace.OpenDatabase(folder.file("Lokal.mdb"), false, false, store::openConnect());
    }
    void room(int nummer, const std::string& name) {
        db.Execute("INSERT INTO tbZimmernummern (Zimmernummer, NeueNummer, AnzahlGästeDefault) VALUES (" +
                   std::to_string(nummer) + ", '" + name + "', 2)");
    }
    void guest(int id, const std::string& first) {
        db.Execute("INSERT INTO Address (ID, FirstName, LastName) VALUES (" + std::to_string(id) + ", " + first +
                   ", 'Röhrig')");
    }
    void stay(const std::string& values) {
        db.Execute("INSERT INTO tblBelegung (ID, Zimmernummer, Von, Bis, GastID, Belegungsart, AnzahlGäste, Gelöscht, "
                   "Checked, Kürzel) VALUES (" +
                   values + ")");
    }
    void type(int id, const std::string& name) {
        db.Execute("INSERT INTO tbBelegArten (BelegungsID, BelegungsArt) VALUES (" + std::to_string(id) + ", '" + name +
                   "')");
    }
    void setting(const std::string& satz, const std::string& values) {
        db.Execute("INSERT INTO tblParameter (Satz, F1, F2, F3) VALUES ('" + satz + "', " + values + ")");
    }

    support::TempFolder folder;
    services::FixedClock clock{tag(1)};
    jet::Workspace workspace{clock};
    jet::Database db = made();
};

TEST_F(House, PlanReadsItsRowsInKeyOrder) {
    room(1, "101");
    type(1, "Meier");
    type(3, "ANGEBOT");
    guest(5, "NULL");
    stay("9, 1, #06-03-2026#, #06-05-2026#, 5, 3, 1, False, False, 'neun'");
    stay("2, 1, #06-04-2026#, #06-06-2026#, 5, 1, 2, True, True, 'zwei'");
    stay("3, 1, #06-04-2026#, #06-06-2026#, 6, 1, 2, False, False, 'ohne Adresse'");
    stay("4, 7, #06-04-2026#, #06-06-2026#, 5, 1, 2, False, False, 'ohne Zimmer'");
    stay("5, 1, #06-20-2026#, #06-21-2026#, 5, 1, 2, False, False, 'später'");
    stay("6, 1, #05-20-2026#, #05-26-2026#, 5, 1, 2, False, False, 'früher'");
    PlanAusDatenbank quelle(db);
    const auto& rows = quelle.Reservierungen(tag(27, 5), tag(11));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].ID, 2);
    EXPECT_TRUE(rows[0].Gelöscht && rows[0].Checked);
    EXPECT_FALSE(rows[0].Angebot);
    EXPECT_EQ(rows[0].Diff, 0);
    EXPECT_EQ(rows[1].ID, 9);
    EXPECT_EQ(rows[1].Von, tag(3));
    EXPECT_EQ(rows[1].Bis, tag(5));
    EXPECT_EQ(rows[1].Kürzel, "neun");
    EXPECT_EQ(rows[1].NeueNummer, "101");
    EXPECT_EQ(rows[1].Firstname, "");
    EXPECT_EQ(rows[1].Lastname, "Röhrig");
    EXPECT_EQ(rows[1].GastID, 5);
    EXPECT_EQ(rows[1].IDAdressRechnung, 0);
    EXPECT_EQ(rows[1].AnzahlGäste, 1);
    EXPECT_EQ(rows[1].Diff, 1);
    EXPECT_EQ(rows[1].BelegungsID, 3);
    EXPECT_TRUE(rows[1].Angebot);
}

TEST_F(House, MarginAroundTheWindowIsIncluded) {
    room(1, "101");
    type(1, "Meier");
    guest(5, "'Anke'");
    stay("1, 1, #05-20-2026#, #05-27-2026#, 5, 1, 2, False, False, 'a'");
    stay("2, 1, #06-11-2026#, #06-12-2026#, 5, 1, 2, False, False, 'b'");
    PlanAusDatenbank quelle(db);
    EXPECT_EQ(quelle.Reservierungen(tag(27, 5), tag(11)).size(), 2U);
    EXPECT_TRUE(quelle.Reservierungen(tag(28, 5), tag(10)).empty());
}

TEST_F(House, RoomsBringTheirExtras) {
    db.Execute("INSERT INTO tbZusätze (ZusatzFeld, Beschriftung, Bedeutung, Farbe, Spalte) VALUES (4, 'TV', 'mit "
               "Fernseher', 255, 1)");
    room(2, "102");
    room(1, "101");
    EXPECT_FALSE(masterdata::Zusatzspaltenbelegt(db));
    db.Execute(
        "UPDATE tbZimmernummern SET Zusatz1 = 4, Bemerkungen = 'ruhig', PreisDefault = 45.5 WHERE Zimmernummer = "
        "2");
    EXPECT_TRUE(masterdata::Zusatzspaltenbelegt(db));
    const auto zimmer = masterdata::ZimmerEinlesen(db);
    ASSERT_EQ(zimmer.size(), 2U);
    EXPECT_EQ(zimmer[0].NeueNummer, "101");
    EXPECT_EQ(zimmer[0].Z1Farbe, masterdata::Menüfarbe);
    EXPECT_EQ(zimmer[1].Z1Farbe, 255);
    EXPECT_EQ(zimmer[1].Z1Beschriftung, "TV");
    EXPECT_EQ(zimmer[1].Z1Bedeutung, "mit Fernseher");
    EXPECT_EQ(zimmer[1].Z2Farbe, masterdata::Menüfarbe);
    EXPECT_EQ(zimmer[1].Bemerkungen, "ruhig");
    EXPECT_EQ(zimmer[1].AnzahlGaeste, 2);
    const auto vorgaben = masterdata::VorgabeZimmerEinlesen(db);
    ASSERT_EQ(vorgaben.size(), 2U);
    EXPECT_EQ(vorgaben[0].Preisdefault, 0);
    EXPECT_EQ(vorgaben[1].Preisdefault, 45.5);
}

TEST_F(House, HolidaysOfTheWindowIncludeItsEnds) {
    db.Execute("DELETE FROM tbFeiertage");
    db.Execute(
        "INSERT INTO tbFeiertage (IDFeiertage, FTBezeichnung, FTDatum) VALUES (1, 'Fronleichnam', #06-04-2026#)");
    EXPECT_EQ(masterdata::FeiertageEinlesen(db, tag(4), tag(9)).size(), 1U);
    EXPECT_EQ(masterdata::FeiertageEinlesen(db, tag(1), tag(4))[0].Bezeichnung, "Fronleichnam");
    EXPECT_TRUE(masterdata::FeiertageEinlesen(db, tag(5), tag(9)).empty());
}

TEST_F(House, SettingsFallBackOnTheirDefaults) {
    const auto e = EinstellungenEinlesen(db, nullptr);
    EXPECT_EQ(e.AnzahlZimmer, 9);
    EXPECT_EQ(e.SichtbareZeilen, 10);
    EXPECT_EQ(e.ZeilenHoehe, 320);
    EXPECT_EQ(e.AnzahlTage, 35);
    EXPECT_EQ(e.WochentagLinie, 2);
    EXPECT_EQ(e.Farben[1], 16742405);
    EXPECT_EQ(e.FarbeSamstag, aufgehellt(9399613, 60));
    EXPECT_EQ(e.strTitel, "Herbergo");
    EXPECT_FALSE(e.FarbeTeilbelegt);
}

TEST_F(House, SettingsAreReadAsTheyWereTyped) {
    setting("Räumlichkeiten", "'12', '8', '400 twips'");
    setting("zeitdarstellung", "'viele', '7', NULL");
    setting("ErsterTag", "'0', NULL, NULL");
    setting("farben", "'1000', 'rot', '-1'");
    setting("Belegungsarten", "'frei', 'Meier', 'TeilBelegt'");
    const auto e = EinstellungenEinlesen(db, nullptr);
    EXPECT_EQ(e.AnzahlZimmer, 12);
    EXPECT_EQ(e.SichtbareZeilen, 8);
    EXPECT_EQ(e.ZeilenHoehe, 400);
    EXPECT_EQ(e.AnzahlTage, 35);
    EXPECT_EQ(e.WochentagLinie, 7);
    EXPECT_EQ(e.Farben[0], 1000);
    EXPECT_EQ(e.Farben[1], 0);
    EXPECT_EQ(e.Farben[2], 0xFFFFFF);
    EXPECT_EQ(e.FarbeSonntag, 1000);
    EXPECT_EQ(e.FarbeTeilbelegt, 0xFFFFFF);
    EXPECT_EQ(e.Belegungsarten[2], "");
}

} // namespace
} // namespace plan
