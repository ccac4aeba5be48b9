#include "platform/basic/text.h"
#include "store/sample_dates.h"
#include "store/sample_stays.h"
#include "support/jet_files.h"
#include "support/test_house.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

namespace {

using basic::Value;
using store::SampleState;
using store::SampleStay;
using support::day;
using support::TestHouse;

class SampleHouse : public testing::Test {
protected:
    TestHouse house{TestHouse::Content::Sample};

    std::int64_t stays(std::string_view condition) {
        return house.count("tblBelegung WHERE " + std::string(condition));
    }
    /// Rows of `table` whose field finds no row in the other table.
    std::int64_t orphans(std::string_view table, std::string_view field, std::string_view other, std::string_view key,
                         std::string_view condition = "True") {
        const auto of = [](std::string_view t, std::string_view f) { return std::string(t) + "." + std::string(f); };
        return house.count(std::string(table) + " LEFT JOIN " + std::string(other) + " ON " + of(table, field) + " = " +
                           of(other, key) + " WHERE " + of(other, key) + " Is Null AND " + of(table, field) +
                           " Is Not Null AND " + std::string(condition));
    }
};

TEST_F(SampleHouse, ShowsEveryKindOfStayAroundToday) {
    const std::string today = jet::sqlDate(house.today());
    const std::string windowEnd = jet::sqlDate(house.today() - 2 + 35);
    EXPECT_GE(house.count("Address"), 40);
    EXPECT_GE(stays("Gelöscht = False"), 60);
    EXPECT_GE(stays("Gelöscht = True"), 5);
    EXPECT_GE(stays("Checked = True AND Von <= " + today + " AND Bis >= " + today), 5);
    EXPECT_GE(stays("Belegungsart = 4"), 3);
    EXPECT_GE(stays("Abgerechnet = 1"), 3);
    EXPECT_EQ(stays("Abgerechnet = 2"), 1);
    EXPECT_GE(stays("Von < " + jet::sqlDate(house.today() - 2) + " AND Bis > " + today), 2);
    EXPECT_GE(stays("Von < " + windowEnd + " AND Bis > " + windowEnd), 2);
    EXPECT_EQ(house.count("tbBlockbuchung INNER JOIN tblBelegung ON tbBlockbuchung.IDBelegung = tblBelegung.ID"), 3);
    EXPECT_EQ(house.count("tbBlockbuchung WHERE Master = True"), 1);
    EXPECT_GE(house.count("tblBelegung INNER JOIN tbZimmernummern ON tblBelegung.Zimmernummer = "
                          "tbZimmernummern.Zimmernummer WHERE AnzahlGäste < AnzahlGästeDefault"),
              4);
    EXPECT_EQ(house.value("SELECT F6 FROM tblParameter WHERE Satz = 'Belegungsarten'"), Value("teilbelegt"));
    EXPECT_EQ(house.value("SELECT BelegungsArt FROM tbBelegArten WHERE BelegungsID = 5"), Value("teilbelegt"));
    EXPECT_GT(house.count("tblParameter WHERE Satz = 'Farben' AND F6 Is Not Null"), 0);
}

/// Holds on every day of the week on which the sample may be made.
TEST(SampleStays, AreAHouseInUseOnEveryDayOfTheWeek) {
    for (int weekday = 0; weekday < 7; ++weekday) {
        const basic::Date today = day(16 + weekday, 11);
        SCOPED_TRACE(today.dayNumber());
        const std::vector<SampleStay> stays = store::sampleStays(today);
        EXPECT_EQ(stays.front().Von, today);
        EXPECT_EQ(stays.front().Zustand, SampleState::Offen);
        std::map<SampleState, int> count;
        int leavingToday = 0;
        for (const SampleStay& stay : stays) {
            ++count[stay.Zustand];
            EXPECT_LT(stay.Von, stay.Bis);
            EXPECT_TRUE(stay.Belegungsart != 4 || stay.Von > today); // past offers would be offers no more
            leavingToday += stay.Bis == today && stay.Zustand == SampleState::ImHaus ? 1 : 0;
        }
        EXPECT_EQ(count.size(), 6U);
        EXPECT_GE(count[SampleState::ImHaus], 5);
        EXPECT_GE(count[SampleState::Bezahlt], 5);
        EXPECT_GE(leavingToday, 2);
    }
}

TEST(SampleStays, ShareNoRoomForANightButInTheWaitingRow) {
    for (int weekday = 0; weekday < 7; ++weekday) {
        std::vector<SampleStay> stays = store::sampleStays(day(16 + weekday, 11));
        std::erase_if(stays, [](const SampleStay& stay) { return stay.Zustand == SampleState::Warteschlange; });
        std::ranges::sort(stays, {}, [](const SampleStay& stay) { return std::pair(stay.Zimmernummer, stay.Von); });
        for (std::size_t i = 1; i < stays.size(); ++i)
            EXPECT_TRUE(stays[i - 1].Zimmernummer < stays[i].Zimmernummer || stays[i - 1].Bis <= stays[i].Von)
                << "Zimmer " << stays[i].Zimmernummer << ", " << stays[i].Gast;
    }
}

TEST_F(SampleHouse, EveryRowLeadsToTheRowsItNames) {
    EXPECT_EQ(orphans("tblBelegung", "GastID", "Address", "ID"), 0);
    EXPECT_EQ(orphans("tblBelegung", "Zimmernummer", "tbZimmernummern", "Zimmernummer"), 0);
    EXPECT_EQ(orphans("tblBelegung", "Belegungsart", "tbBelegArten", "BelegungsID"), 0);
    EXPECT_EQ(orphans("tblBelegung", "Zahlart", "tbZahlart", "Zahlarten"), 0);
    EXPECT_EQ(orphans("Address", "IDLand", "tbLänder", "ID"), 0);
    EXPECT_EQ(house.count("Address WHERE IDAnrede Is Null OR IDLand Is Null"), 0);
    EXPECT_EQ(orphans("tbZimmernummern", "Zusatz1", "tbZusätze", "ZusatzFeld"), 0);
    EXPECT_EQ(orphans("tbZimmernummern", "Zusatz2", "tbZusätze", "ZusatzFeld"), 0);
    EXPECT_EQ(orphans("tbZimmernummern", "katBlockBuchung", "tbKategorie", "blKategorie"), 0);
    EXPECT_EQ(orphans("tbRePosten", "IDBelegung", "tblBelegung", "ID"), 0);
    EXPECT_EQ(orphans("tbRePosten", "IDAdressePo", "Address", "ID"), 0);
    EXPECT_EQ(orphans("tbRePosten", "IDSteuerschlüssel", "tbSteuerschluessel", "IDSteuerschluessel"), 0);
    EXPECT_EQ(
        house.count("tbRePosten INNER JOIN tbArtKategorie ON tbRePosten.IDArtikel = tbArtKategorie.IDArtKategorie "
                    "WHERE ArtikelPo = ArtKategorie AND PreisPo = Preis AND IDSteuerschlüssel = MWST_SL"),
        house.count("tbRePosten"));
    EXPECT_EQ(orphans("tbRechnungen_zu_Posten", "IDRechnung", "tbRechnungen", "ReNummer"), 0);
    EXPECT_EQ(orphans("tbRechnungen_zu_Posten", "IDBelegung", "tblBelegung", "ID", "IDPostenRe = 0"), 0);
    EXPECT_EQ(orphans("tbRechnungen_zu_Posten", "IDPostenRe", "tbRePosten", "IDRePosten",
                      "tbRechnungen_zu_Posten.IDBelegung = 0"),
              0);
    EXPECT_EQ(orphans("tbZahlung", "IdBelegung", "tblBelegung", "ID"), 0);
    EXPECT_EQ(orphans("tbZahlung", "IdRechnung", "tbRechnungen", "ReNummer"), 0);
    EXPECT_EQ(orphans("tblBelegung", "ID", "tbRechnungen_zu_Posten", "IDBelegung", "Abgerechnet = 1"), 0);
}

TEST_F(SampleHouse, ShortNamesAreUniqueAndTellNoDay) {
    std::map<std::string, int> names;
    for (jet::Recordset rows = house.db().OpenRecordset("tblBelegung"); !rows.Eof(); rows.MoveNext()) {
        const std::string name = rows.Fields("Kürzel").Value().textOr();
        EXPECT_EQ(++names[basic::foldCase(name)], 1) << name;
        EXPECT_LE(basic::Len(name), 17);
        EXPECT_EQ(name.find_first_of("':$;)@><(]}{[*^=~/!\\%.?,\"_-"), std::string::npos) << name;
    }
}

TEST_F(SampleHouse, AmountsAddUpToTheCent) {
    for (jet::Recordset rows = house.db().OpenRecordset("tblBelegung"); !rows.Eof(); rows.MoveNext()) {
        const auto nights = rows.Fields("Bis").Value().dateOr() - rows.Fields("Von").Value().dateOr();
        EXPECT_EQ(rows.Fields("AnzahlÜbernachtungen").Value().doubleOr(0), nights);
        EXPECT_EQ(rows.Fields("Preis").Value().doubleOr(0), nights * rows.Fields("PreisProNacht").Value().doubleOr(0));
    }
    const auto sum = [&](const std::string& what, std::int64_t invoice) {
        return house.value("SELECT Sum(" + what + std::to_string(invoice)).doubleOr(0);
    };
    int paid = 0;
    int invoices = 0;
    for (jet::Recordset rows = house.db().OpenRecordset("tbRechnungen"); !rows.Eof(); rows.MoveNext()) {
        const std::int64_t number = rows.Fields("ReNummer").Value().longOr();
        SCOPED_TRACE(number);
        const std::string stayLines = " FROM tbRechnungen_zu_Posten INNER JOIN tblBelegung ON "
                                      "tbRechnungen_zu_Posten.IDBelegung = tblBelegung.ID WHERE IDRechnung = ";
        const std::string postLines =
            " FROM (tbRechnungen_zu_Posten INNER JOIN tbRePosten ON tbRechnungen_zu_Posten.IDPostenRe = "
            "tbRePosten.IDRePosten) INNER JOIN tbSteuerschluessel ON tbRePosten.IDSteuerschlüssel = "
            "tbSteuerschluessel.IDSteuerschluessel WHERE IDRechnung = ";
        const double gross = rows.Fields("BetragBrutto").Value().doubleOr(0);
        const double net = sum("Preis/107*100)" + stayLines, number) +
                           sum("MengePo*PreisPo/(Steuersatz+100)*100)" + postLines, number);
        EXPECT_NEAR(sum("Preis)" + stayLines, number) + sum("MengePo*PreisPo)" + postLines, number), gross, 0.0001);
        EXPECT_NEAR(rows.Fields("BetragMWST").Value().doubleOr(0), gross - net, 0.005001);
        EXPECT_EQ(std::round(gross * 100) / 100, gross);
        const double payments = sum("Betrag) FROM tbZahlung WHERE IdRechnung = ", number);
        EXPECT_TRUE(payments == 0 || std::abs(payments - gross) < 0.0001) << payments << " of " << gross;
        paid += payments > 0 ? 1 : 0;
        ++invoices;
    }
    EXPECT_GE(paid, 5);
    EXPECT_GE(invoices - paid, 1);
    EXPECT_GE(house.count("tbZahlung WHERE WasBezahlt = 'Restzahlung'"), 1);
    EXPECT_EQ(house.count("tbZahlung WHERE IdRechnung Is Null"), 1); // a deposit for a stay to come
}

TEST_F(SampleHouse, EveryDayOfSixteenYearsBelongsToOneSeason) {
    jet::Recordset rows = house.db().OpenRecordset("SELECT Start, Ende FROM tbSaisonzeiten ORDER BY Start");
    basic::Date reached = day(1, 1, 2020);
    for (; !rows.Eof(); rows.MoveNext()) {
        EXPECT_EQ(rows.Fields("Start").Value(), Value(reached));
        reached = rows.Fields("Ende").Value().dateOr();
    }
    EXPECT_GT(reached, day(31, 12, 2035));
    EXPECT_EQ(
        house.count("tbZimmernummern WHERE Zimmernummer < 10 AND (PreisDefault Is Null OR PreisHauptsaison Is Null "
                    "OR PreisZwischensaison Is Null OR PreisNebensaison Is Null OR PreisSondersaison Is Null)"),
        0);
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

/// All days that the shift moves, and those that it does not.
std::string days(jet::Database& sample, std::string_view by) {
    std::string text;
    for (const auto& [table, field] : {std::pair("tblBelegung", "Von"), std::pair("tblBelegung", "Bis"),
                                       std::pair("tbZahlung", "ZahlDatum"), std::pair("tbRePosten", "DatumPo"),
                                       std::pair("tbRePosten", "DatumPoBis"), std::pair("tbRechnungen", "DatumRe")})
        text += support::allRows(sample, std::string("SELECT ") + field + std::string(by) + " FROM " + table) + "\n";
    return text;
}
std::string standingDays(jet::Database& sample) {
    return support::allRows(sample, "SELECT WannErstellt FROM tblBelegung") +
           support::allRows(sample, "SELECT Start, Ende FROM tbSaisonzeiten") +
           support::allRows(sample, "SELECT FTDatum FROM tbFeiertage") +
           support::allRows(sample, "SELECT WannAngelegt FROM tbBlockbuchung");
}

class SampleDates : public testing::Test {
protected:
    TestHouse house;
    jet::Database sample = house.open("Beispiel.mdb");

    void row(std::string_view sql) { sample.Execute(sql); }
    void shiftTo(basic::Date today) { store::shiftSampleDates(house.workspace(), house.file("Beispiel.mdb"), today); }
};

TEST_F(SampleDates, MoveWithTheFirstStayToToday) {
    row("INSERT INTO tblBelegung ( ID, Von, Bis, WannErstellt ) values( 7, #01-02-2026#, #01-04-2026#, #01-01-2026#)");
    row("INSERT INTO tblBelegung ( ID, Von, Bis ) values( 3, #12-30-2025#, #01-02-2026#)"); // the first
    row("INSERT INTO tblBelegung ( ID, Von, Bis ) values( 9, Null, #01-09-2026#)");
    row("INSERT INTO tbZahlung ( ZahlDatum ) values( #01-02-2026#)");
    row("INSERT INTO tbRePosten ( DatumPo, DatumPoBis ) values( #12-30-2025#, Null)");
    row("INSERT INTO tbRechnungen ( ReNummer, DatumRe ) values( 1, #02-28-2026#)");
    row("INSERT INTO tbSaisonzeiten ( Start, Ende ) values( #01-01-2026#, #01-02-2026#)");
    const std::string standing = standingDays(sample);
    shiftTo(day(1, 3, 2028)); // 792 days, a leap day among them
    EXPECT_EQ(days(sample, ""), "01.03.2028 | 04.03.2028 | Null\n04.03.2028 | 06.03.2028 | 11.03.2028\n04.03.2028\n"
                                "01.03.2028\nNull\n30.04.2028\n");
    EXPECT_EQ(standingDays(sample), standing);
    shiftTo(day(30, 12, 2025)); // a clock that was set back
    EXPECT_EQ(sample.OpenRecordset("tblBelegung").Fields("Von").Value(), Value(day(30, 12, 2025)));
    EXPECT_EQ(sample.OpenRecordset("tbRechnungen").Fields("DatumRe").Value(), Value(day(28, 2)));
}

TEST_F(SampleDates, StandWhereThereIsNothingToGoBy) {
    shiftTo(day(1, 3));
    row("INSERT INTO tblBelegung ( ID, Von, Bis ) values( 1, Null, #01-02-2026#)");
    row("INSERT INTO tbZahlung ( ZahlDatum ) values( #01-02-2026#)");
    const std::string before = support::fileBytes(house.file("Beispiel.mdb"));
    shiftTo(day(1, 3));
    EXPECT_EQ(support::fileBytes(house.file("Beispiel.mdb")), before);
}

TEST_F(SampleDates, AShiftThatFailsMovesNothing) {
    row("INSERT INTO tblBelegung ( ID, Von, Bis ) values( 1, #01-02-2026#, #01-04-2026#)");
    row("INSERT INTO tbRechnungen ( ReNummer, DatumRe ) values( 1, #12-31-9999#)");
    EXPECT_THROW(shiftTo(day(1, 3)), std::exception);
    EXPECT_EQ(sample.OpenRecordset("tblBelegung").Fields("Von").Value(), Value(day(2, 1)));
    EXPECT_THROW(store::shiftSampleDates(house.workspace(), house.file("Fehlt.mdb"), day(1, 3)), jet::Error);
}

} // namespace
