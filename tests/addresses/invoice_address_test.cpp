#include "addresses/invoice_address.h"

#include "support/jet_files.h"
#include "support/scripted_dialogs.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

namespace addresses {
namespace {

using support::day;
using support::oneValue;
using support::TestHouse;

TEST(InvoiceAddress, IsFoundByTheBeginningOfItsName) {
    TestHouse house;
    for (const char* name : {"Müller", "MÜLLERBURG", "Ärmel", "O'Neill", "100%", "Ab*c"})
        house.guest({.LastName = name});
    house.db().Execute("INSERT INTO Address (FirstName) VALUES ('ohne')");
    struct Case {
        std::string text;
        std::int64_t id;
    };
    for (const Case& c : {Case{"", 0},
                          {std::string(3, '\0'), 0},
                          {"mül", 1},
                          {std::string("MÜL") + '\0' + "LERB" + '\0', 2},
                          {"ä", 3},
                          {"a", 6},
                          {"o'n", 4},
                          {"'", 0},
                          {"*", 0},
                          {"[", 0},
                          {"%", 0},
                          {"100%", 5},
                          {"ab*", 6},
                          {"zz", 0}}) {
        std::string text = c.text;
        const auto found = clsADresse::AdrSuchen(house.db(), text);
        EXPECT_EQ(found ? found->ID : 0, c.id) << c.text;
        EXPECT_EQ(text.find('\0'), std::string::npos);
    }
    EXPECT_EQ(clsADresse::AdrSuchenID(house.db(), 4), (Adresstreffer{4, "O'Neill"}));
    EXPECT_EQ(clsADresse::AdrSuchenID(house.db(), 7), (Adresstreffer{7, ""}));
    EXPECT_EQ(clsADresse::AdrSuchenID(house.db(), 99), std::nullopt);
}

TEST(InvoiceAddress, IsFilledFromADocument) {
    TestHouse house;
    const auto id = house.guest({.LastName = "Müller", .City = "Bremen", .Country = "Eire"});
    house.db().Execute("UPDATE Address SET [Tele-Fax] = '0421 2', KKGültigBis = '0528', AdressNummer = '1001', "
                       "Postfach = '7', PLZPostfach = '28001', IDKreditkarte = 1, Anrede = 'Frau'");
    house.db().Execute("INSERT INTO tbRechnungen (ReNummer, IDAdresseRe, DatumRe, Renummer_eigen, Zahlart, RE_TEXT1) "
                       "VALUES (4, " +
                       std::to_string(id) + ", #06-14-2026#, 'R 4', 'Bar', 'Danke')");
    house.db().Execute("INSERT INTO tbRechnungen (ReNummer, IDAdresseRe) VALUES (5, 77)");
    clsADresse a;
    ASSERT_TRUE(a.Adressdaten(house.db(), 4));
    EXPECT_EQ(a.Anrede + "/" + a.Nachname + "/" + a.Vorname + "/" + a.Ort + "/" + a.Land, "Frau/Müller//Bremen/Eire");
    EXPECT_EQ(a.FAX + "/" + a.KKGültigBis + "/" + a.Adressnummer + "/" + a.Postfach + "/" + a.PLZPostfach,
              "0421 2/0528/1001/7/28001");
    EXPECT_EQ(a.Kreditkarte, "Visa");
    EXPECT_EQ(a.DatumRe + "/" + a.Renummer_eigen + "/" + a.Renummer + "/" + a.Zahlart + "/" + a.Re_TEXT1 + "/" +
                  a.BezahltDatumRe,
              "14.06.2026/R 4/4/Bar/Danke/");
    house.db().Execute("UPDATE Address SET IDLand = 25");
    ASSERT_TRUE(a.Adressdaten(house.db(), 4));
    EXPECT_EQ(a.Land, oneValue(house.db(), "SELECT Länder FROM tbLänder WHERE ID = 25"));

    EXPECT_FALSE(a.Adressdaten(house.db(), 5)) << "its address is gone";
    EXPECT_EQ(a, clsADresse()) << "nothing of another guest stays behind";
    EXPECT_FALSE(a.Adressdaten(house.db(), 99));
}

/// Stays and posts of one guest that began 40 and 10 days ago.
struct OldStays : testing::Test {
    OldStays() {
        guest = house.guest({});
        const auto old = house.stay({.Von = day(6, 5), .Bis = day(7, 5), .GastID = guest});
        const auto late = house.stay({.Von = day(5, 6), .Bis = day(9, 6), .GastID = guest});
        house.stay({.Von = day(1, 1), .Bis = day(2, 1)}); // of somebody else
        for (const auto stay : {old, old, late})
            house.db().Execute("INSERT INTO tbRePosten (IDBelegung, IDAdressePo, AbgerechnetPo) VALUES (" +
                               std::to_string(stay) + ", " + std::to_string(guest) + ", 'Nein')");
    }
    void run(std::int64_t id) {
        clsADresse::AlteReservierungenAendern(house.db(), id, house.today(), dialogs, "Titel");
    }
    [[nodiscard]] std::string states() {
        return support::allRows(house.db(), "SELECT Abgerechnet FROM tblBelegung ORDER BY ID") + " / " +
               support::allRows(house.db(), "SELECT AbgerechnetPo FROM tbRePosten");
    }

    TestHouse house;
    support::ScriptedDialogs dialogs;
    std::int64_t guest = 0;
};

TEST_F(OldStays, NothingHappensWithoutAnAddressOrACount) {
    dialogs.acknowledge();
    run(0);
    EXPECT_EQ(dialogs.last().text, "Wählen Sie zunächst eine Adresse aus.");
    for (const char* text : {"", "viele", "-3", "1e300", "30 Tage"}) {
        dialogs.type(text);
        dialogs.acknowledge();
        dialogs.type(std::nullopt);
        run(guest);
        EXPECT_EQ(dialogs.asked().at(dialogs.asked().size() - 2).text, "Geben Sie eine Anzahl Tage ein.") << text;
    }
    EXPECT_EQ(dialogs.last().title, "Korrektur vorhandener Reservierungsdaten");
    EXPECT_EQ(dialogs.last().vorgabe, "30");
    EXPECT_EQ(states(), "0 | 0 | 0 / Nein | Nein | Nein");
}

TEST_F(OldStays, TheReportCountsWhatWasChanged) {
    struct Case {
        const char* days;
        const char* report;
        const char* states;
    };
    for (const Case& c :
         {Case{"40", "Vor dem angegbenen Datum gab es keine nicht abgerechneten Daten.",
               "0 | 0 | 0 / Nein | Nein | Nein"},
          {"39", " Es wurden 1 Reservierungen und 2 Zusatzposten geändert.", "1 | 0 | 0 / Ja | Ja | Nein"},
          {"0", " Es wurden 2 Reservierungen und 3 Zusatzposten geändert.", "1 | 1 | 0 / Ja | Ja | Ja"}}) {
        dialogs.type(c.days);
        dialogs.acknowledge();
        run(guest);
        EXPECT_EQ(dialogs.last().text, c.report);
        EXPECT_EQ(states(), c.states) << c.days;
    }
    const auto payer = house.guest({});
    house.db().Execute("UPDATE tbRePosten SET IDAdressePo = " + std::to_string(payer));
    for (const auto& [id, report] :
         {std::pair{guest, " Es wurden 2 Reservierungen geändert."}, {payer, " Es wurden 3 Zusatzposten geändert."}}) {
        dialogs.type("1");
        dialogs.acknowledge();
        run(id);
        EXPECT_EQ(dialogs.last().text, report);
    }
}

} // namespace
} // namespace addresses
