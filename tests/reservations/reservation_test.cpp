#include "reservations/reservation.h"

#include "store/rows.h"
#include "support/test_house.h"

#include <gmock/gmock.h>

#include <array>

namespace reservations {
namespace {

using basic::Value;
using support::day;
using support::TestHouse;
using testing::HasSubstr;

class ReservationRow : public testing::Test {
protected:
    /// Every field other than what a fresh row would hold.
    static Reservierung volle() {
        Reservierung r;
        r.Zimmernummer = 3;
        r.Von = day(10, 6);
        r.Bis = day(14, 6);
        r.GastID = 17;
        r.IDAdressRechnung = 18;
        r.Belegungsart = 4;
        r.VerpflegungAusweisen = true;
        r.Wäsche1 = 6;
        r.Wäsche2 = 2;
        r.Frühstück = r.Mittag = r.Abendessen = true;
        r.Alter_Kinder = "3, 7";
        r.BelegNummer = 70000;
        r.BelegNummer_eigen = "R 70000 26";
        r.AnzahlGäste = 4;
        r.WannErstellt = day(1, 2);
        r.Anz_Kinder = 2;
        r.Fix = true;
        r.WerErstellt = "Müller; Tresen";
        r.WerGeändert = "O'Neill";
        r.Info = "kommt spät \"nachts\"\n\U0001F600 \u05D0";
        r.Kürzel = "Müller10_06-14_06";
        r.PreisProNacht = 80.5;
        r.Preis = 322;
        r.AnzahlÜbernachtungen = 4;
        r.Checked = true;
        return r;
    }
    Reservierung gelesen(int id) { return ReservierungenLesen(house.db(), std::array{id}).at(0); }
    Value feld(const char* name, int id) {
        return house.value("SELECT " + std::string(name) + " FROM tblBelegung WHERE ID = " + std::to_string(id));
    }
    std::string fehler(Reservierung r) {
        try {
            (void)ReservierungSpeichern(house.db(), r);
        } catch (const basic::Error& error) {
            return error.text();
        }
        return {};
    }

    TestHouse house;
};

void expectGleich(const Reservierung& a, const Reservierung& b) {
    EXPECT_EQ(a.Zimmernummer, b.Zimmernummer);
    EXPECT_EQ(a.Von, b.Von);
    EXPECT_EQ(a.Bis, b.Bis);
    EXPECT_EQ(a.GastID, b.GastID);
    EXPECT_EQ(a.IDAdressRechnung, b.IDAdressRechnung);
    EXPECT_EQ(a.Belegungsart, b.Belegungsart);
    EXPECT_EQ(a.VerpflegungAusweisen, b.VerpflegungAusweisen);
    EXPECT_EQ(std::pair(a.Wäsche1, a.Wäsche2), std::pair(b.Wäsche1, b.Wäsche2));
    EXPECT_EQ(std::tuple(a.Frühstück, a.Mittag, a.Abendessen), std::tuple(b.Frühstück, b.Mittag, b.Abendessen));
    EXPECT_EQ(a.Alter_Kinder, b.Alter_Kinder);
    EXPECT_EQ(std::pair(a.BelegNummer, a.BelegNummer_eigen), std::pair(b.BelegNummer, b.BelegNummer_eigen));
    EXPECT_EQ(std::pair(a.AnzahlGäste, a.Anz_Kinder), std::pair(b.AnzahlGäste, b.Anz_Kinder));
    EXPECT_EQ(a.WannErstellt, b.WannErstellt);
    EXPECT_EQ(a.Fix, b.Fix);
    EXPECT_EQ(std::pair(a.WerErstellt, a.WerGeändert), std::pair(b.WerErstellt, b.WerGeändert));
    EXPECT_EQ(std::pair(a.Info, a.Kürzel), std::pair(b.Info, b.Kürzel));
    EXPECT_EQ(std::pair(a.PreisProNacht, a.Preis), std::pair(b.PreisProNacht, b.Preis));
    EXPECT_EQ(a.AnzahlÜbernachtungen, b.AnzahlÜbernachtungen);
    EXPECT_EQ(std::pair(a.Checked, a.Gelöscht), std::pair(b.Checked, b.Gelöscht));
}

TEST_F(ReservationRow, WhatDoesNotFitIsToldByItsFieldAndNothingIsWritten) {
    struct Case {
        const char* feld;
        std::function<void(Reservierung&)> setzt;
    };
    const std::string lang(300, 'x');
    Reservierung alt = volle();
    ASSERT_EQ(ReservierungSpeichern(house.db(), alt), Speicherergebnis::Gespeichert);
    for (const Case& c : {Case{"Alter_Kinder", [&](auto& r) { r.Alter_Kinder = lang; }},
                          {"Kürzel", [&](auto& r) { r.Kürzel = lang; }},
                          {"BelegNummer_eigen", [&](auto& r) { r.BelegNummer_eigen = lang; }},
                          {"WerErstellt", [&](auto& r) { r.WerErstellt = lang; }},
                          {"AnzahlGäste", [](auto& r) { r.AnzahlGäste = 32768; }},
                          {"AnzahlÜbernachtungen", [](auto& r) { r.AnzahlÜbernachtungen = 40000; }},
                          {"Wäsche2", [](auto& r) { r.Wäsche2 = -40000; }}}) {
        for (const int id : {0, alt.ID}) {
            Reservierung r = volle();
            r.ID = id;
            r.Kürzel = "anders";
            r.Zimmernummer = 9;
            c.setzt(r);
            EXPECT_THAT(fehler(r), HasSubstr(c.feld)) << id;
        }
        EXPECT_EQ(house.count("tblBelegung"), 1) << c.feld;
        EXPECT_EQ(feld("Zimmernummer", alt.ID), Value(3)) << c.feld;
    }
}

TEST_F(ReservationRow, ANewRowIsRefusedWhereItsShortNameIsTakenEvenInTheWaitingRow) {
    house.stay({.Von = day(1, 1), .Bis = day(2, 1), .Kürzel = "müller10_06-14_06", .Gelöscht = true});
    Reservierung r = volle();
    bool gefragt = false;
    EXPECT_EQ(ReservierungSpeichern(house.db(), r, [&](auto&) { gefragt = true; }), Speicherergebnis::KürzelVergeben);
    EXPECT_FALSE(gefragt);
    EXPECT_EQ(r.ID, 0);
    EXPECT_EQ(house.count("tblBelegung"), 1);
}

TEST_F(ReservationRow, ARowThatIsGoneIsNotMadeAgain) {
    Reservierung r = volle();
    r.ID = 77;
    EXPECT_EQ(ReservierungSpeichern(house.db(), r), Speicherergebnis::Verschwunden);
    EXPECT_EQ(house.count("tblBelegung"), 0);
    EXPECT_TRUE(ReservierungenLesen(house.db(), std::array{77}).empty());
    EXPECT_TRUE(ReservierungenLesen(house.db(), {}).empty());
}

TEST_F(ReservationRow, EveryFieldComesBackAsItWasStored) {
    Reservierung r = volle();
    ASSERT_EQ(ReservierungSpeichern(house.db(), r, [](auto& neu) { neu.IDAdressRechnung = 99; }),
              Speicherergebnis::Gespeichert);
    EXPECT_EQ(r.IDAdressRechnung, 99);
    expectGleich(gelesen(r.ID), r);

    Reservierung leer;
    leer.ID = r.ID;
    leer.Kürzel = "leer";
    leer.Gelöscht = true;
    ASSERT_EQ(ReservierungSpeichern(house.db(), leer), Speicherergebnis::Gespeichert);
    Reservierung erwartet = leer;
    erwartet.Zimmernummer = 3;         // no room: the old one stays
    erwartet.AnzahlGäste = 1;          // nobody counts as one
    erwartet.WannErstellt = day(1, 2); // no date: the old one stays
    expectGleich(gelesen(r.ID), erwartet);
    EXPECT_TRUE(feld("IDAdressRechnung", r.ID).isNull());
    EXPECT_EQ(feld("Preis", r.ID), Value(0.0));
}

TEST_F(ReservationRow, AStayWithoutARoomLiesInTheFirstRow) {
    Reservierung r = volle();
    r.Zimmernummer = 0;
    r.Gelöscht = true;
    ASSERT_EQ(ReservierungSpeichern(house.db(), r), Speicherergebnis::Gespeichert);
    EXPECT_EQ(feld("Zimmernummer", r.ID), Value(1));
}

TEST_F(ReservationRow, BilledIsWhatWasBilledOrDivided) {
    struct Case {
        Value abgerechnet;
        const char* geteilt;
        bool gilt;
    };
    const int id = static_cast<int>(house.stay({.Von = day(1, 1), .Bis = day(2, 1)}));
    for (const Case& c :
         {Case{0, "", false}, {1, "", true}, {2, "", false}, {0, "Y", true}, {{}, "", false}, {2, "N", false}}) {
        house.db().Execute("UPDATE tblBelegung SET Abgerechnet = " + jet::sqlValue(c.abgerechnet) +
                           ", IST_Geteilt = " + jet::sqlText(c.geteilt));
        EXPECT_EQ(gelesen(id).Abgerechnet, c.gilt) << c.geteilt << jet::sqlValue(c.abgerechnet);
    }
}

TEST_F(ReservationRow, TheWaitingListIsReadInOrderWithoutWhatIsGone) {
    const int a = static_cast<int>(house.stay({.Von = day(1, 1), .Bis = day(2, 1)}));
    const int b = static_cast<int>(house.stay({.Von = day(1, 1), .Bis = day(2, 1)}));
    const auto liste = ReservierungenLesen(house.db(), std::array{b, 900, a});
    ASSERT_EQ(liste.size(), 2U);
    EXPECT_EQ(liste[0].ID, a);
    EXPECT_EQ(liste[1].ID, b);
}

TEST_F(ReservationRow, TheDefaultShortNameIsTheNameAndTheDaysAndUnique) {
    struct Case {
        const char* name;
        const char* kürzel;
    };
    for (const Case& c : {Case{"Müllerburg, Karl, 23552 LÜBECK", "Müller12_05-15_05"},
                          {"Ott", "Ott12_05-15_05"},
                          {"  von Übel", "von Üb12_05-15_05"},
                          {"O'Neill", "O'Neil12_05-15_05"},
                          {"\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600",
                           "\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F60012_05-15_05"}})
        EXPECT_EQ(VorgabeKürzel(house.db(), c.name, "12.05.2026", "15.05.2026", 0), c.kürzel);
    house.stay({.Von = day(1, 1), .Bis = day(2, 1), .Kürzel = "OTT12_05-15_05", .Gelöscht = true});
    const auto zweites = house.stay({.Von = day(1, 1), .Bis = day(2, 1), .Kürzel = "Ott12_05-15_05/1"});
    EXPECT_EQ(VorgabeKürzel(house.db(), "Ott", "12.05.2026", "15.05.2026", 0), "Ott12_05-15_05/2");
    EXPECT_EQ(VorgabeKürzel(house.db(), "Ott", "12.05.2026", "15.05.2026", static_cast<int>(zweites)),
              "Ott12_05-15_05/1");
    EXPECT_TRUE(KürzelVergeben(house.db(), "ott12_05-15_05/1", 0));
    EXPECT_FALSE(KürzelVergeben(house.db(), "ott12_05-15_05/1", static_cast<int>(zweites)));
    EXPECT_FALSE(KürzelVergeben(house.db(), "", 0));
}

TEST_F(ReservationRow, TheLastBillingAddressIsThatOfTheNewestEndedStayThatAnotherPaid) {
    const auto gast = house.guest({.LastName = "Groß"});
    EXPECT_EQ(LetzteRechnungsadresse(house.db(), gast), 0);
    const auto bezahlt = [&](basic::Date bis, Value zahler, std::int64_t wessen) {
        house.stay({.Von = bis - 1, .Bis = bis, .GastID = wessen, .IDAdressRechnung = std::move(zahler)});
    };
    bezahlt(day(15, 6), 901, gast); // leaves today: not ended
    bezahlt(day(14, 6), gast, gast);
    bezahlt(day(13, 6), {}, gast);
    bezahlt(day(12, 6), 902, gast + 1);
    EXPECT_EQ(LetzteRechnungsadresse(house.db(), gast), 0);
    bezahlt(day(10, 6), 903, gast);
    bezahlt(day(11, 6), 904, gast);
    EXPECT_EQ(LetzteRechnungsadresse(house.db(), gast), 904);
}

TEST_F(ReservationRow, ADeletedStayTakesItsPostsAndTheirLinksAndNoOthers) {
    const int weg = static_cast<int>(house.stay({.Von = day(1, 1), .Bis = day(2, 1)}));
    const int bleibt = static_cast<int>(house.stay({.Von = day(3, 1), .Bis = day(4, 1)}));
    for (const int id : {weg, bleibt}) {
        auto posten = house.db().OpenRecordset("tbRePosten");
        store::addRow(posten, {{"IDBelegung", id}, {"ArtikelPo", "Telefon"}});
        auto links = house.db().OpenRecordset("tbRechnungen_zu_Posten");
        store::addRow(links, {{"IDBelegung", id}, {"IDRechnung", 5}});
    }
    bool dazwischen = false;
    ReservierungLöschen(house.db(), weg,
                        [&] { dazwischen = house.count("tblBelegung") == 1 && house.count("tbRePosten") == 2; });
    EXPECT_TRUE(dazwischen);
    for (const auto* table : {"tbRePosten", "tbRechnungen_zu_Posten"})
        EXPECT_EQ(house.value("SELECT IDBelegung FROM " + std::string(table)), Value(bleibt)) << table;
    EXPECT_EQ(house.value("SELECT ID FROM tblBelegung"), Value(bleibt));
}

} // namespace
} // namespace reservations
