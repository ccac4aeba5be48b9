#include "store/first_run.h"

#include "support/test_house.h"

#include <gtest/gtest.h>

namespace {

using basic::Value;
using support::TestHouse;

Value parameter(TestHouse& house, std::string_view record, std::string_view field = "F1") {
    return house.value("SELECT " + std::string(field) + " FROM tblParameter WHERE Satz = '" + std::string(record) +
                       "'");
}

TEST(FirstRun, ReplacesWhatWasThere) {
    TestHouse house;
    house.rooms(3);
    house.parameter("titel", {"Pension Rosengarten"});
    house.parameter("Währung", {"CHF"});
    house.db().Execute("INSERT INTO tbZusätze ( Beschriftung, Spalte ) values( 'TV', 1)");
    house.db().Execute("INSERT INTO tblTexte ( Textbaustein, Inhalt ) values( 'Eigener', 'Text')");

    store::writeDefaults(house.db(), false);

    EXPECT_EQ(house.count("tbZusätze"), 0);
    EXPECT_EQ(house.count("tbZimmernummern"), 10);
    EXPECT_EQ(house.value("SELECT NeueNummer FROM tbZimmernummern WHERE Zimmernummer = 9"), Value("301"));
    EXPECT_EQ(house.count("tblTexte WHERE Textbaustein = 'Eigener'"), 0);
    EXPECT_EQ(house.count("tbBelegArten"), 9);
    EXPECT_EQ(parameter(house, "titel"), Value());
    EXPECT_EQ(parameter(house, "Währung"), Value("€"));
    EXPECT_EQ(parameter(house, "Räumlichkeiten"), Value("9"));
    EXPECT_EQ(parameter(house, "ZimVonBis", "F2"), Value("10"));
}

TEST(FirstRun, SeedsWhatTheOfficeStartsWith) {
    TestHouse house;
    store::writeDefaults(house.db(), false);
    const auto all = [&](const std::string& sql) {
        std::string text;
        for (jet::Recordset rows = house.db().OpenRecordset(sql); !rows.Eof(); rows.MoveNext())
            text += rows.Fields(0).Value().textOr("Null") + "|";
        return text;
    };
    EXPECT_EQ(all("SELECT NeueNummer FROM tbZimmernummern"), "101|102|103|104|201|202|203|204|301|Vorläufig|");
    EXPECT_EQ(all("SELECT BelegungsArt FROM tbBelegArten"), "Frei|Meier|Schulze|Tresen|Angebot|||||");
    EXPECT_EQ(all("SELECT Textbaustein FROM tblTexte ORDER BY ID"),
              "Absender1|Absender2|Absender3|Absender4|Absender5|Grußformel|Brieftext|Betreff|Adresse|Anrede|PLZ|"
              "Telefon|FAX|EMAIL|Internet|Bank|Steuernummer|DruckAnzahl|WordProgramm|");
    EXPECT_EQ(all("SELECT Satz FROM tblParameter ORDER BY Satz"),
              "Belegungsarten|Beschriftungen|Farben|Räumlichkeiten|SpaltenBeschriftung|Spaltenbreiten|Währung|"
              "ZeitDarstellung|ZimVonBis|");
    // both lists name all columns of the guest list, no more
    for (const std::string_view record : {"SpaltenBeschriftung", "Spaltenbreiten"}) {
        EXPECT_FALSE(parameter(house, record, "F23").isNull());
        EXPECT_TRUE(parameter(house, record, "F24").isNull());
    }
    EXPECT_EQ(parameter(house, "SpaltenBeschriftung", "F22"), Value("Vorläufige Reservierung"));
    EXPECT_EQ(parameter(house, "Beschriftungen"), Value("Reserviert von:"));
    EXPECT_EQ(parameter(house, "Zeitdarstellung", "F2"), Value("2"));
}

TEST(FirstRun, MayKeepTheNumberOfRooms) {
    struct Case {
        std::string_view before;
        bool keep;
        std::string_view after;
    };
    for (const Case& c :
         {Case{"14", true, "14"}, Case{"14", false, "9"}, Case{"0", true, "9"}, Case{"viele", true, "9"}}) {
        TestHouse house;
        house.parameter("räumlichkeiten", {c.before, "12", "300"});
        store::writeDefaultParameters(house.db(), c.keep);
        EXPECT_EQ(parameter(house, "Räumlichkeiten"), Value(c.after)) << c.before;
        EXPECT_EQ(parameter(house, "Räumlichkeiten", "F3"), Value("300"));
        EXPECT_EQ(house.count("tblParameter WHERE Satz = 'Räumlichkeiten'"), 1);
    }
}

} // namespace
