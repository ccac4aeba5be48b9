#include "support/test_house.h"

#include <gtest/gtest.h>

namespace {

using basic::Value;
using support::TestHouse;

class SampleHouse : public testing::Test {
protected:
    TestHouse house{TestHouse::Content::Sample};

    std::int64_t stays(std::string_view condition) {
        return house.count("tblBelegung WHERE " + std::string(condition));
    }
};

TEST_F(SampleHouse, ShowsEveryKindOfStayAroundToday) {
    const std::string today = jet::sqlDate(house.today());
    const std::string windowEnd = jet::sqlDate(house.today() - 2 + 35);
    EXPECT_GE(house.count("Address"), 24);
    EXPECT_GE(stays("Gelöscht = False"), 40);
    EXPECT_GE(stays("Gelöscht = True"), 5);
    EXPECT_GE(stays("Checked = True AND Von <= " + today + " AND Bis >= " + today), 5);
    EXPECT_GE(stays("Belegungsart = 4"), 3);
    EXPECT_GE(stays("Abgerechnet = 1"), 3);
    EXPECT_GE(stays("Abgerechnet = 2"), 1);
    EXPECT_GE(stays("Von < " + jet::sqlDate(house.today() - 2) + " AND Bis > " + today), 3);
    EXPECT_GE(stays("Von < " + windowEnd + " AND Bis > " + windowEnd), 2);
    EXPECT_EQ(house.value("SELECT Count(*) FROM tbBlockbuchung INNER JOIN tblBelegung ON tbBlockbuchung.IDBelegung = "
                          "tblBelegung.ID"),
              Value(3));
    // what moves sample data to another day goes by the first row
    EXPECT_EQ(house.value("SELECT Von FROM tblBelegung"), Value(house.today()));
}

TEST_F(SampleHouse, NoTwoStaysShareARoomAndANight) {
    EXPECT_EQ(house.value("SELECT Count(*) FROM tblBelegung AS a INNER JOIN tblBelegung AS b ON a.Zimmernummer = "
                          "b.Zimmernummer WHERE a.ID < b.ID AND a.Gelöscht = False AND b.Gelöscht = False AND a.Von < "
                          "b.Bis AND b.Von < a.Bis"),
              Value(0));
    EXPECT_EQ(
        house.value(
            "SELECT Count(*) FROM (SELECT Kürzel FROM tblBelegung GROUP BY Kürzel HAVING Count(*) > 1) AS doppelt"),
        Value(0));
    EXPECT_EQ(house.value("SELECT Count(*) FROM tblBelegung LEFT JOIN Address ON tblBelegung.GastID = Address.ID WHERE "
                          "Address.ID Is Null"),
              Value(0));
}

TEST_F(SampleHouse, EverySettledStayHasItsInvoice) {
    EXPECT_EQ(house.value("SELECT Count(*) FROM tblBelegung LEFT JOIN tbRechnungen_zu_Posten ON tblBelegung.ID = "
                          "tbRechnungen_zu_Posten.IDBelegung WHERE tblBelegung.Abgerechnet = 1 AND "
                          "tbRechnungen_zu_Posten.IDRechnung Is Null"),
              Value(0));
    EXPECT_EQ(house.value("SELECT Count(*) FROM tbRechnungen INNER JOIN tbZahlung ON tbRechnungen.ReNummer = "
                          "tbZahlung.IdRechnung WHERE tbRechnungen.BetragBrutto <> tbZahlung.Betrag"),
              Value(0));
}

TEST_F(SampleHouse, HasTheTenRoomsAndTheSettingsOfThePlan) {
    EXPECT_EQ(house.value("SELECT NeueNummer FROM tbZimmernummern WHERE Zimmernummer = 10"), Value("Vorläufig"));
    EXPECT_EQ(house.count("tbZimmernummern"), 10);
    EXPECT_EQ(house.value("SELECT F1 FROM tblParameter WHERE Satz = 'Räumlichkeiten'"), Value("9"));
    EXPECT_EQ(house.value("SELECT F1 FROM tblParameter WHERE Satz = 'Zeitdarstellung'"), Value("35"));
    EXPECT_EQ(house.value("SELECT F5 FROM tblParameter WHERE Satz = 'Farben'"), Value("16056285"));
    EXPECT_EQ(house.value("SELECT BelegungsArt FROM tbBelegArten WHERE BelegungsID = 4"), Value("Angebot"));
    EXPECT_EQ(house.value("SELECT Inhalt FROM tblTexte WHERE Textbaustein = 'Absender5'"), Value("Hamburg - Altona"));
}

} // namespace
