#include "store/database_files.h"
#include "store/new_house.h"
#include "support/jet_files.h"
#include "support/statement_cases.h"

#include <gtest/gtest.h>

namespace {

using support::allRows;
using support::errorNumber;
using support::oneValue;

/// The selects through which the forms write, on the filled house and through its links: the keys of the rows are not
/// among the fields.
class RecordsetsOfTheHouse : public testing::Test {
protected:
    [[nodiscard]] jet::Database open() const {
        return workspace_.OpenDatabase(folder_.file("Lokal.mdb"), false, false, store::openConnect());
    }
    [[nodiscard]] jet::Database filled() const {
        store::NewHouse house;
        house.Ordner = folder_.path().string();
        house.Jetzt = clock_.now();
        store::createHouse(workspace_, house);
        jet::Database result = open();
        support::runScript(HERBERGO_TEST_DATA "/filled_house.sql", result);
        return result;
    }
    jet::Recordset offers(const std::string& inBlocks) {
        return database.OpenRecordset(
            "SELECT tblBelegung.Belegungsart, tblBelegung.Von, tblBelegung.Gelöscht, tbBelegArten.BelegungsArt, "
            "tbBlockbuchung.IDBelegung FROM (tblBelegung INNER JOIN tbBelegArten ON tblBelegung.Belegungsart = "
            "tbBelegArten.BelegungsID) LEFT JOIN  tbBlockbuchung ON tblBelegung.ID = tbBlockbuchung.IDBelegung  "
            "WHERE (((tblBelegung.Von)<=#06-15-2026#) AND ((tblBelegung.Gelöscht)=False) AND  "
            "((tbBelegArten.BelegungsArt)='Angebot') AND ((tbBlockbuchung.IDBelegung) Is " +
            inBlocks + "));");
    }
    std::string count(const std::string& from) { return oneValue(database, "SELECT Count(*) FROM " + from); }

    const support::TempFolder folder_{support::TempFolder::Place::Memory};
    const services::FixedClock clock_{jet::Date::fromYmdHms(2026, 6, 15, 10, 30, 0)};
    const jet::Workspace workspace_{clock_};
    jet::Database database = filled();
};

} // namespace

TEST_F(RecordsetsOfTheHouse, PastDueOffersGoToTheWaitingRow) {
    const std::string others = allRows(database, "SELECT ID FROM tblBelegung WHERE Gelöscht AND ID <> 7");
    jet::Recordset rows = offers("Null");
    ASSERT_EQ(1, rows.RecordCount());
    rows.Edit();
    rows.Fields("Gelöscht") = true;
    rows.Update();
    EXPECT_EQ(true, rows.Fields("Gelöscht").Value());
    EXPECT_EQ("10.06.2026 -1", allRows(database, "SELECT Von, Gelöscht & '' FROM tblBelegung WHERE ID = 7"));
    EXPECT_EQ(others, allRows(database, "SELECT ID FROM tblBelegung WHERE Gelöscht AND ID <> 7"));
}

TEST_F(RecordsetsOfTheHouse, DeletingAPastDueOfferTakesTheStayOnly) {
    const std::string before = count("tblBelegung") + count("tbBelegArten") + count("tbBlockbuchung");
    jet::Recordset rows = offers("not  Null");
    ASSERT_EQ(1, rows.RecordCount());
    rows.Delete();
    EXPECT_EQ(0, rows.RecordCount());
    EXPECT_EQ("0", count("tblBelegung WHERE ID = 8"));
    EXPECT_EQ(std::to_string(std::stoi(before.substr(0, 2)) - 1) + before.substr(2),
              count("tblBelegung") + count("tbBelegArten") + count("tbBlockbuchung"));
}

TEST_F(RecordsetsOfTheHouse, AnAddressIsChangedThroughItsMissingStays) {
    jet::Recordset rows = database.OpenRecordset(
        "SELECT Address.BenutztVon1,Address.BenutztVon3,Address.BenutztVon4, tblBelegung.ID, Address.ID, "
        "tblBelegung.GastID  FROM tblBelegung RIGHT JOIN Address ON tblBelegung.GastID = Address.ID WHERE "
        "(((tblBelegung.GastID) Is Null));");
    ASSERT_EQ(3, rows.RecordCount());
    for (; !rows.Eof(); rows.MoveNext()) {
        rows.Edit();
        EXPECT_EQ(3021, errorNumber([&] { rows.Fields("GastID") = 1; }));
        rows.Fields("BenutztVon3") = "Nr " + rows.Fields("Address.ID").Value().textOr();
        rows.Update();
    }
    EXPECT_EQ(3021, errorNumber([&] {
                  rows.MoveFirst();
                  rows.Delete();
              }));
    EXPECT_EQ("7 Nr 7 | 11 Nr 11 | 12 Nr 12",
              allRows(database, "SELECT ID, BenutztVon3 FROM Address WHERE BenutztVon3 Like 'Nr*'"));
}

TEST_F(RecordsetsOfTheHouse, OfEqualRowsWithoutKeyOneGoes) {
    database.Execute("INSERT INTO tblTarife (Tarif) VALUES ('72,25')");
    jet::Recordset rows = database.OpenRecordset("SELECT * FROM tblTarife WHERE format(Tarif,'#,##0.00')='72,25'");
    ASSERT_EQ(2, rows.RecordCount());
    rows.Delete();
    EXPECT_EQ(3167, errorNumber([&] { std::ignore = rows.Fields("Tarif").Value(); }));
    EXPECT_EQ("1", count("tblTarife WHERE Tarif = '72,25'"));
    rows.MoveNext();
    rows.Edit();
    rows.Fields("Tarif") = "73";
    rows.Update();
    EXPECT_EQ("45,00 | 1.234,50 | 9,50 | 110,00 | 73", allRows(database, "SELECT Tarif FROM tblTarife"));
}

TEST_F(RecordsetsOfTheHouse, BlocksAreDissolvedWhileWalkingThem) {
    jet::Recordset rows = database.OpenRecordset(
        "SELECT * FROM tbBlockbuchung WHERE IDBlockbuchung = 3 ORDER BY WannAngelegt DESC, Master");
    ASSERT_EQ(3, rows.RecordCount());
    for (int left = 2; !rows.Eof(); rows.MoveNext(), --left) {
        rows.Delete();
        EXPECT_EQ(left, rows.RecordCount());
    }
    EXPECT_EQ("0", count("tbBlockbuchung WHERE IDBlockbuchung = 3"));
    EXPECT_EQ("1 1 2 4 5 6", [&] {
        std::string all = allRows(database, "SELECT IDBlockbuchung FROM tbBlockbuchung");
        for (std::size_t bar; (bar = all.find(" |")) != std::string::npos;)
            all.erase(bar, 2);
        return all;
    }());
}

TEST_F(RecordsetsOfTheHouse, ARowInTheOldPlaceOfADeletedOneStays) {
    jet::Recordset rows = database.OpenRecordset("SELECT * FROM tblTarife");
    rows.MoveLast();
    jet::Database other = open();
    other.Execute("DELETE FROM tblTarife WHERE Tarif = '72,25'");
    other.Execute("INSERT INTO tblTarife (Tarif) VALUES ('80,00')");
    EXPECT_EQ(3197, errorNumber([&] { rows.Delete(); }));
    EXPECT_EQ("1", count("tblTarife WHERE Tarif = '80,00'"));
    other.Execute("DELETE FROM tblTarife");
    EXPECT_EQ(3167, errorNumber([&] { rows.Delete(); }));
}

TEST_F(RecordsetsOfTheHouse, ANewStayFindsItsNumber) {
    jet::Recordset rows = database.OpenRecordset("SELECT * FROM tblBelegung WHERE Kürzel='nirgends'");
    ASSERT_TRUE(rows.Bof() && rows.Eof());
    rows.AddNew();
    rows.Fields("Kürzel") = "nirgends";
    rows.Fields("Von") = "15.06.26";
    rows.Update();
    EXPECT_TRUE(rows.Eof());
    rows.setBookmark(rows.LastModified());
    const std::string number = rows.Fields("ID").Value().textOr();
    EXPECT_EQ(number + " 0", allRows(database, "SELECT ID, Checked & '' FROM tblBelegung WHERE Kürzel='nirgends'"));
    rows.Edit();
    rows.Fields("Info") = "nachgetragen";
    rows.Update();
    EXPECT_EQ("nachgetragen", oneValue(database, "SELECT Info FROM tblBelegung WHERE ID = " + number));
    rows.Delete();
    EXPECT_EQ("0", count("tblBelegung WHERE ID = " + number));
}

TEST_F(RecordsetsOfTheHouse, RoomsAreMovedFromTheLastToTheFirst) {
    jet::Recordset rows =
        database.OpenRecordset("SELECT tbZimmernummern.Zimmernummer, tbZimmernummern.Reihenfolge_Hilf "
                               "FROM tbZimmernummern ORDER BY tbZimmernummern.Zimmernummer");
    const int all = rows.RecordCount();
    std::vector<jet::Bookmark> passed;
    for (rows.MoveLast(); !rows.Bof(); rows.MovePrevious()) {
        passed.push_back(rows.bookmark());
        rows.Edit();
        rows.Fields("Zimmernummer") = rows.Fields("Zimmernummer").Value().longOr() + 100;
        rows.Update();
    }
    EXPECT_EQ(static_cast<std::size_t>(all), passed.size());
    rows.setBookmark(passed.front());
    EXPECT_EQ(100 + all, rows.Fields(0).Value().longOr());
    EXPECT_EQ(std::to_string(all), count("tbZimmernummern WHERE Zimmernummer > 100"));
    rows.Edit();
    rows.Fields("Zimmernummer") = 101;
    EXPECT_EQ(3022, errorNumber([&] { rows.Update(); }));
}

TEST_F(RecordsetsOfTheHouse, TwoStationsAtOneRow) {
    const std::string select = "SELECT tblBelegung.Abgerechnet, tblBelegung.Info From tblBelegung WHERE ID = 4";
    jet::Recordset mine = database.OpenRecordset(select);
    jet::Database other = open();
    jet::Recordset theirs = other.OpenRecordset(select);

    // The same value again is no change, so neither loses.
    theirs.Edit();
    theirs.Fields("Abgerechnet") = theirs.Fields("Abgerechnet").Value();
    theirs.Update();
    mine.Edit();
    mine.Fields("Info") = "von mir";
    mine.Update();

    theirs.Edit();
    theirs.Fields("Abgerechnet") = 1;
    EXPECT_EQ(3197, errorNumber([&] { theirs.Update(); }));
    EXPECT_EQ("von mir 0", allRows(database, "SELECT Info, Abgerechnet FROM tblBelegung WHERE ID = 4"));
    theirs.CancelUpdate();
    theirs.Requery();

    database.Execute("DELETE FROM tblBelegung WHERE ID = 4");
    theirs.Edit();
    theirs.Fields("Abgerechnet") = 2;
    EXPECT_EQ(3167, errorNumber([&] { theirs.Update(); }));
    EXPECT_EQ(3167, errorNumber([&] { theirs.Delete(); }));
}

TEST_F(RecordsetsOfTheHouse, OfTwoTablesNeitherIsWrittenWhenOneHasChanged) {
    jet::Recordset rows = database.OpenRecordset(
        "SELECT tblBelegung.Info, Address.Matchcode FROM tblBelegung INNER JOIN Address ON tblBelegung.GastID = "
        "Address.ID WHERE tblBelegung.ID = 4");
    ASSERT_FALSE(rows.Eof());
    rows.Edit();
    rows.Fields("Info") = "neu";
    rows.Fields("Matchcode") = "neu";
    jet::Database other = open();
    other.Execute("UPDATE Address SET Matchcode = 'anders'");
    EXPECT_EQ(3197, errorNumber([&] { rows.Update(); }));
    EXPECT_EQ("0", count("tblBelegung WHERE Info = 'neu'"));
}
