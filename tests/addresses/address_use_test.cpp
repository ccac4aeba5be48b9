#include "addresses/address_use.h"

#include "addresses/address_deletion.h"
#include "support/jet_files.h"
#include "support/scripted_dialogs.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

namespace addresses {
namespace {

using services::MsgButtons;
using services::MsgResult;
using support::allRows;
using support::day;
using support::TestHouse;

const Nutzer Haupt{0, "Herbergo"};

std::string marks(TestHouse& house, std::int64_t id) {
    std::string text;
    for (const char* column : {"BenutztVon", "Herkunft"})
        for (int slot = 1; slot <= 5; ++slot)
            text += house
                        .value("SELECT " + (column + std::to_string(slot)) +
                               " FROM Address WHERE ID = " + std::to_string(id))
                        .textOr("-") +
                    (slot < 5           ? " "
                     : column[0] == 'B' ? " | "
                                        : "");
    return text;
}

TEST(AddressUse, EachInstallationMarksItsOwnSlot) {
    TestHouse house;
    const auto id = house.guest({});
    house.db().Execute("UPDATE Address SET BenutztVon2 = 'Kontaktor', Herkunft5 = 'Alt', Herkunft4 = 'Import'");
    AdresseBenutzen(house.db(), id, true, Haupt);
    EXPECT_EQ(marks(house, id), "Herbergo Kontaktor - - - | Herbergo - - Import Alt");
    AdresseBenutzen(house.db(), id, true, {1, "Haus am See"});
    AdresseBenutzen(house.db(), id, true, {2, "Villa"});
    EXPECT_EQ(marks(house, id), "Herbergo Kontaktor Haus am See Villa - | Herbergo - Haus am See Import Alt");
    AdresseBenutzen(house.db(), id, true, {0, "Neuer Name"});
    EXPECT_EQ(marks(house, id), "Neuer Name Kontaktor Haus am See Villa - | Herbergo - Haus am See Import Alt")
        << "who brought the address in stays";
    for (const int instanz : {0, 1, 2})
        AdresseBenutzen(house.db(), id, false, {instanz, "egal"});
    EXPECT_EQ(marks(house, id), "- Kontaktor - - - | Herbergo - Haus am See Import Alt");
    AdresseBenutzen(house.db(), id, true, {1, std::string(200, 'x')}); // a title wider than the column
    AdresseBenutzen(house.db(), 999, true, Haupt);                     // gone meanwhile
    EXPECT_EQ(house.value("SELECT Len(BenutztVon3) FROM Address"), jet::Value(80));
}

TEST(AddressUse, AMarkStaysWhileAStayHasTheGuest) {
    TestHouse house;
    const auto id = house.guest({});
    const auto payer = house.guest({});
    const auto stay =
        house.stay({.Von = day(1, 6), .Bis = day(3, 6), .GastID = id, .Gelöscht = true, .IDAdressRechnung = payer});
    AdresseBenutzen(house.db(), id, true, Haupt);
    AdresseBenutzen(house.db(), payer, true, Haupt);
    AdresseBenutzen(house.db(), id, false, Haupt);
    EXPECT_EQ(marks(house, id).substr(0, 8), "Herbergo");
    EXPECT_TRUE(AdresseHatReservierung(house.db(), id));
    EXPECT_FALSE(AdresseHatReservierung(house.db(), payer)) << "one who only pays";
    house.db().Execute("DELETE FROM tblBelegung WHERE ID = " + std::to_string(stay));
    AdresseBenutzen(house.db(), id, false, Haupt);
    EXPECT_EQ(marks(house, id), "- - - - - | Herbergo - - - -");
}

TEST(AddressUse, CleaningTakesOnlyTheOwnMarksOfAddressesWithoutAStay) {
    TestHouse house;
    const auto guest = house.guest({});
    const auto twice = house.guest({});
    const auto nobody = house.guest({});
    house.stay({.Von = day(1, 6), .Bis = day(3, 6), .GastID = guest});
    house.stay({.Von = day(1, 6), .Bis = day(3, 6), .GastID = twice});
    house.stay({.Von = day(3, 6), .Bis = day(5, 6), .GastID = twice});
    for (const auto id : {guest, twice, nobody})
        for (const int instanz : {0, 1, 2})
            AdresseBenutzen(house.db(), id, true, {instanz, "H" + std::to_string(instanz)});
    house.db().Execute("UPDATE Address SET BenutztVon2 = 'K', BenutztVon5 = 'W'");
    AdressBenutzungBereinigen(house.db(), {1, "H1"});
    EXPECT_EQ(marks(house, guest), "H0 K H1 H2 W | H0 - H1 H2 -");
    EXPECT_EQ(marks(house, twice), "H0 K H1 H2 W | H0 - H1 H2 -");
    EXPECT_EQ(marks(house, nobody), "H0 K - H2 W | H0 - H1 H2 -");
    AdressBenutzungBereinigen(house.db(), {0, "H0"});
    AdressBenutzungBereinigen(house.db(), {2, "H2"});
    EXPECT_EQ(marks(house, nobody), "- K - - W | H0 - H1 H2 -");
    EXPECT_EQ(BenutzerDerAdresse(house.db(), guest), (std::vector<std::string>{"H0", "K", "H1", "H2", "W"}));
    EXPECT_EQ(BenutzerDerAdresse(house.db(), nobody), (std::vector<std::string>{"K", "W"}));
    EXPECT_TRUE(BenutzerDerAdresse(house.db(), 999).empty());
}

/// Everything that can refer to the address 5.
constexpr const char* kReferences[] = {
    "INSERT INTO tblBelegung (GastID) VALUES (5)",
    "INSERT INTO tblBelegung (IDAdressRechnung) VALUES (5)",
    "INSERT INTO tbRechnungen (ReNummer, IDAdresseRe) VALUES (1, 5)",
    "INSERT INTO tbAdress_zu_Adress (IDAdresseOber, idAdresseUnter) VALUES (5, 6)",
    "INSERT INTO tbAdress_zu_Adress (IDAdresseOber, idAdresseUnter) VALUES (6, 5)",
    "INSERT INTO tbRePosten (IDAdressePo) VALUES (5)",
    "INSERT INTO WeitereGäste (ID_Adresse) VALUES (5)",
};

TEST(AddressUse, EveryReferenceKeepsAnAddress) {
    for (const char* reference : kReferences) {
        TestHouse house;
        house.db().Execute("INSERT INTO Address (ID, LastName) VALUES (5, 'Gast')");
        house.db().Execute("INSERT INTO Address (ID, LastName) VALUES (15, 'Anders')");
        EXPECT_TRUE(AdresseFrei(house.db(), 5)) << reference;
        house.db().Execute(reference);
        EXPECT_FALSE(AdresseFrei(house.db(), 5)) << reference;
        EXPECT_TRUE(AdresseFrei(house.db(), 15)) << reference;
        support::ScriptedDialogs dialogs;
        dialogs.press(MsgResult::OK);
        dialogs.acknowledge();
        EXPECT_FALSE(AdresseLöschenMitFrage(house.db(), 5, Haupt, dialogs)) << reference;
        EXPECT_EQ(house.count("Address"), 2) << reference;
        EXPECT_EQ(dialogs.last().text,
                  "Die ausgewählte Adresse wird noch  benutzt und kann deswegen nicht gelöscht werden.");
    }
}

TEST(AddressDeletion, TellsWhichProgramsUseTheAddress) {
    TestHouse house;
    const auto id = house.guest({});
    house.stay({.Von = day(1, 6), .Bis = day(3, 6), .GastID = id});
    AdresseBenutzen(house.db(), id, true, Haupt);
    house.db().Execute("UPDATE Address SET BenutztVon5 = 'Auswerter', BenutztVon2 = ''");
    support::ScriptedDialogs dialogs;
    dialogs.press(MsgResult::OK);
    dialogs.acknowledge();
    EXPECT_FALSE(AdresseLöschenMitFrage(house.db(), id, Haupt, dialogs));
    EXPECT_EQ(dialogs.last().text,
              "Die ausgewählte Adresse wird noch von folgenden Programmen benutzt: \nHerbergo\nAuswerter");
}

TEST(AddressDeletion, AsksFirstAndDeletesOneRow) {
    TestHouse house;
    const auto id = house.guest({.LastName = "Weg"});
    house.guest({.LastName = "Bleibt"});
    AdresseBenutzen(house.db(), id, true, Haupt); // marked, though its last stay is gone
    support::ScriptedDialogs dialogs;
    dialogs.press(MsgResult::Cancel);
    EXPECT_FALSE(AdresseLöschenMitFrage(house.db(), id, Haupt, dialogs));
    EXPECT_EQ(dialogs.last().text, "Soll die ausgewählte Adresse gelöscht werden?");
    EXPECT_EQ(dialogs.last().style.buttons, MsgButtons::OKCancel);
    EXPECT_EQ(services::defaultResult(dialogs.last().style), MsgResult::Cancel);
    EXPECT_EQ(house.count("Address"), 2);
    dialogs.press(MsgResult::OK);
    EXPECT_TRUE(AdresseLöschenMitFrage(house.db(), id, Haupt, dialogs));
    EXPECT_EQ(allRows(house.db(), "SELECT LastName FROM Address"), "Bleibt");
}

} // namespace
} // namespace addresses
