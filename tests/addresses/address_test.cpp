#include "addresses/address.h"

#include "addresses/countries.h"
#include "support/jet_files.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

namespace addresses {
namespace {

using support::day;
using support::errorNumber;
using support::oneValue;
using support::TestHouse;

const Speichernder Anna{"anna", day(15, 6)};

Adresse voll() {
    Adresse a;
    a.LastName = "Müller";
    a.FirstName = "Anna";
    a.CompanyName = "Müller & Söhne";
    a.Anrede = "Frau";
    a.Address = "Am Wall 3";
    a.PostalCode = "28195";
    a.City = "Bremen";
    a.Country = "Phantasien";
    a.Phone = "0421 1";
    a.TeleFax = "0421 2";
    a.EMAIL = "anna@mueller.example";
    a.Raucher = "Nichtraucher";
    a.BemerkAdr = "leise\r\nzum Hof";
    a.Stammkunde = true;
    a.WerErstellt = "chef";
    return a;
}

TEST(Address, ComesBackAsItWasStored) {
    TestHouse house;
    Adresse a = voll();
    a.ID = AdresseSpeichern(house.db(), a, Anna);
    a.WannErstellt = day(15, 6);
    EXPECT_EQ(AdresseLesen(house.db(), a.ID), a);

    a.City = "Oslo";
    a.Stammkunde = false;
    EXPECT_EQ(AdresseSpeichern(house.db(), a, {"bert", day(16, 6)}), a.ID);
    a.WerGeändert = "bert";
    a.WannGeändert = day(16, 6);
    EXPECT_EQ(AdresseLesen(house.db(), a.ID), a) << "who made it and when stays";
    EXPECT_EQ(house.count("Address"), 1);
}

TEST(Address, WhatIsGoneIsNotMadeAnew) {
    TestHouse house;
    Adresse a = voll();
    a.ID = 77;
    EXPECT_EQ(AdresseSpeichern(house.db(), a, Anna), 0);
    EXPECT_EQ(house.count("Address"), 0);
    EXPECT_EQ(AdresseLesen(house.db(), 77), std::nullopt);
    EXPECT_EQ(AdresseLesen(house.db(), 0), std::nullopt);
}

TEST(Address, ATextTooLongForItsFieldWritesNothing) {
    TestHouse house;
    Adresse a = voll();
    a.ID = AdresseSpeichern(house.db(), a, Anna);
    a.City = "anderswo";
    a.LastName = std::string(81, 'x');
    EXPECT_EQ(errorNumber([&] { static_cast<void>(AdresseSpeichern(house.db(), a, Anna)); }), 3163);
    a.ID = 0;
    EXPECT_EQ(errorNumber([&] { static_cast<void>(AdresseSpeichern(house.db(), a, Anna)); }), 3163);
    EXPECT_EQ(house.count("Address"), 1);
    EXPECT_EQ(oneValue(house.db(), "SELECT City FROM Address"), "Bremen");
}

TEST(Address, RowsOfSiblingProgramsWithNullsAndKeysAreRead) {
    TestHouse house;
    house.db().Execute("INSERT INTO Address (Country) VALUES (Null)");
    const auto leer = AdresseLesen(house.db(), 1);
    ASSERT_TRUE(leer);
    EXPECT_EQ(leer->LastName + leer->Country + leer->Anrede + leer->BemerkAdr, "");
    EXPECT_FALSE(leer->Stammkunde) << "a guest nobody called regular";

    const auto land = LandSuchen(house.db(), "irland");
    house.db().Execute(
        "INSERT INTO Address (LastName, Country, IDLand, Anrede, IDAnrede) VALUES ('O''Neill', 'Eire', " +
        std::to_string(land) + ", Null, 2)");
    auto keys = AdresseLesen(house.db(), 2);
    ASSERT_TRUE(keys);
    EXPECT_EQ(keys->Country + "/" + keys->Anrede, "Irland/Frau") << "the lists come before the free texts";

    keys->Phone = "1";
    EXPECT_EQ(AdresseSpeichern(house.db(), *keys, Anna), 2);
    EXPECT_EQ(oneValue(house.db(), "SELECT IDAnrede FROM Address WHERE ID = 2"), "2");
    keys->Anrede = "Herr Doktor";
    EXPECT_EQ(AdresseSpeichern(house.db(), *keys, Anna), 2);
    EXPECT_EQ(AdresseLesen(house.db(), 2)->Anrede, "Herr Doktor") << "the old key must not hide the new text";

    house.db().Execute("DELETE FROM tbLänder");
    EXPECT_EQ(AdresseLesen(house.db(), 2)->Country, "Irland") << "a country that has left the list";
    EXPECT_EQ(AdresseLesen(house.db(), 2)->IDLand, 0);
}

TEST(Countries, AreKeptOnceWhateverTheirCase) {
    TestHouse house;
    const auto before = LänderLesen(house.db()).size();
    EXPECT_EQ(LandSuchen(house.db(), "Côte d'Ivoire"), 0);
    EXPECT_EQ(LandSuchen(house.db(), ""), 0);
    const auto neu = LandAnlegen(house.db(), "Côte d'Ivoire");
    EXPECT_GT(neu, 0);
    EXPECT_EQ(LandAnlegen(house.db(), "CÔTE D'IVOIRE"), neu);
    EXPECT_EQ(LandAnlegen(house.db(), "österreich"), LandSuchen(house.db(), "Österreich"));
    EXPECT_EQ(LänderLesen(house.db()).size(), before + 1);
    LandLöschen(house.db(), neu);
    LandLöschen(house.db(), 0);
    EXPECT_EQ(LänderLesen(house.db()).size(), before);
    house.db().Execute("INSERT INTO tbLänder (Länder) VALUES (Null)");
    EXPECT_EQ(LänderLesen(house.db()).size(), before) << "a row without a name is none";
    EXPECT_EQ(AnredenLesen(house.db()).front().Name, "Herr");
}

} // namespace
} // namespace addresses
