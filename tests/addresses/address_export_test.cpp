#include "addresses/address_export.h"

#include "addresses/invoice_address.h"
#include "support/jet_files.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace addresses {
namespace {

using support::fileBytes;
using support::TempFolder;
using support::TestHouse;

const std::string Kopf = "Name;Vorname;Telefon;Fax;Strasse;PLZ;Ort;Land;Bemerkungen;Email;Anrede;Firma";

Adresse guest() {
    Adresse a;
    a.LastName = "Müller";
    a.FirstName = "Änne";
    a.Phone = "1";
    a.TeleFax = "2";
    a.Address = "Weg 3";
    a.PostalCode = "28195";
    a.City = "Bremen";
    a.Country = "Österreich";
    a.BemerkAdr = "ruhig";
    a.EMAIL = "a@b.example";
    a.Anrede = "Frau";
    a.CompanyName = "Söhne";
    return a;
}

TEST(AddressExport, BothKindsOfFileDifferInTheirEndingsOnly) {
    TempFolder folder;
    const std::string satz =
        "M\xFCller;\xC4nne;1;2;Weg 3;28195;Bremen;\xD6sterreich;\"ruhig\";a@b.example;Frau;S\xF6hne";
    EXPECT_TRUE(AdressdateiSchreiben(folder.file("adresse.doc"), guest(), Satzende::Tilde));
    EXPECT_EQ(fileBytes(folder.file("adresse.doc")), Kopf + "~\r\n" + satz + "~\r\n");
    EXPECT_TRUE(AdressdateiSchreiben(folder.file("adresse.doc"), guest(), Satzende::Ohne));
    EXPECT_EQ(fileBytes(folder.file("adresse.doc")), Kopf + "\r\n" + satz + "\r\n");
    EXPECT_TRUE(AdressdateiSchreiben(folder.file("adresse.doc"), {}, Satzende::Ohne));
    EXPECT_EQ(fileBytes(folder.file("adresse.doc")), Kopf + "\r\n;;;;;;;;\"\";;;\r\n");
}

TEST(AddressExport, NoValueMakesAColumnOrARecordOfItsOwn) {
    struct Case {
        const char* value;
        const char* written;
        const char* remark; ///< inside its quotes
    };
    for (const Case& c : {Case{"a;b~c", "a,b,c", "a,b,c"},
                          {"12\" \"x\"", "12' 'x'", "12' 'x'"},
                          {"a\r\nb\nc\rd\te", "a b c d e", "a\r\nb\r\nc\r\nd e"},
                          {"5 € – \xE2\x80\x9Eja\xE2\x80\x9C", "5 \x80 \x96 \x84ja\x93", "5 \x80 \x96 \x84ja\x93"},
                          {"😀 אב u\xCC\x88", "? ?? \xFC", "? ?? \xFC"},
                          {"\xFF", "?", "?"}}) {
        TempFolder folder;
        Adresse a;
        a.LastName = a.BemerkAdr = c.value;
        EXPECT_TRUE(AdressdateiSchreiben(folder.file("a.doc"), a, Satzende::Ohne));
        EXPECT_EQ(fileBytes(folder.file("a.doc")), Kopf + "\r\n" + c.written + ";;;;;;;;\"" + c.remark + "\";;;\r\n");
    }
}

TEST(AddressExport, WhatCannotBeWrittenLeavesTheOldFile) {
    TempFolder folder;
    std::filesystem::create_directories(folder.file("adresse.doc/alt"));
    EXPECT_FALSE(AdressdateiSchreiben(folder.file("adresse.doc"), guest(), Satzende::Tilde));
    EXPECT_TRUE(std::filesystem::exists(folder.file("adresse.doc/alt")));
    EXPECT_FALSE(std::filesystem::exists(folder.file("adresse.doc.neu"))) << "nothing is left lying about";
    EXPECT_FALSE(AdressdateiSchreiben(folder.file("fehlt/adresse.doc"), guest(), Satzende::Tilde));

    support::writeBytes(folder.file("gut.doc"), "alt");
    std::filesystem::create_directories(folder.file("gut.doc.neu/im Weg"));
    EXPECT_FALSE(AdressdateiSchreiben(folder.file("gut.doc"), guest(), Satzende::Tilde));
    EXPECT_EQ(fileBytes(folder.file("gut.doc")), "alt");
}

TEST(AddressExport, GoesBesideThePathThatIsGiven) {
    TestHouse house;
    TempFolder folder;
    const auto id = house.guest({.LastName = "Groß"});
    EXPECT_EQ(clsADresse::Adress_Export(house.db(), 0, folder.file("brief.doc")), std::nullopt);
    EXPECT_EQ(clsADresse::Adress_Export(house.db(), 99, folder.file("brief.doc")), std::nullopt);
    EXPECT_EQ(clsADresse::Adress_Export(house.db(), id, folder.file("fehlt/brief.doc")), std::nullopt);
    EXPECT_EQ(clsADresse::Adress_Export(house.db(), id, folder.file("brief.doc")), folder.file("adresse.doc"));
    EXPECT_EQ(fileBytes(folder.file("adresse.doc")), Kopf + "\r\nGro\xDF;;;;;;;;\"\";;;\r\n");
}

} // namespace
} // namespace addresses
