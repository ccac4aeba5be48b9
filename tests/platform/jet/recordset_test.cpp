#include "support/jet_files.h"
#include "support/station.h"

#include <gtest/gtest.h>

namespace {

using support::allRows;
using support::errorNumber;
using support::JetFolder;

/// Three guests with two stays; guest 3 has none.
class RecordsetRules : public testing::Test {
protected:
    RecordsetRules() {
        database.Execute("CREATE TABLE Address (ID COUNTER PRIMARY KEY, LastName TEXT(20), Anrede TEXT(10))");
        database.Execute("CREATE TABLE tblBelegung (ID COUNTER PRIMARY KEY, GastID LONG, Von DATETIME, Preis DOUBLE, "
                         "Checked YESNO, Info MEMO, Kürzel TEXT(17) NOT NULL)");
        database.Execute("CREATE UNIQUE INDEX Kürzel ON tblBelegung (Kürzel)");
        for (const char* name : {"Müller", "Österreicher", "Zahn"})
            database.Execute("INSERT INTO Address (LastName) VALUES ('" + std::string(name) + "')");
        database.Execute("INSERT INTO tblBelegung (GastID, Von, Preis, Kürzel) VALUES (1, #06-15-2026#, 80.5, 'Mü')");
        database.Execute("INSERT INTO tblBelegung (GastID, Von, Preis, Kürzel) VALUES (1, #06-20-2026#, 99, 'Mü2')");
    }

    JetFolder house;
    jet::Database database = house.create("Zentral.mdb");
    const std::string stays =
        "SELECT tblBelegung.*, Address.ID, Address.LastName FROM tblBelegung INNER JOIN Address ON "
        "tblBelegung.GastID = Address.ID ORDER BY tblBelegung.ID";
};

} // namespace

TEST_F(RecordsetRules, MovesOverRowsAndStopsAtTheEnds) {
    jet::Recordset rows = database.OpenRecordset("SELECT * FROM Address ORDER BY LastName");
    EXPECT_EQ(3, rows.RecordCount());
    EXPECT_FALSE(rows.Bof() || rows.Eof());
    EXPECT_EQ("Müller", rows.Fields("LASTNAME").Value().text());
    rows.MovePrevious();
    EXPECT_TRUE(rows.Bof());
    EXPECT_EQ(3021, errorNumber([&] { rows.MovePrevious(); }));
    EXPECT_EQ(3021, errorNumber([&] { std::ignore = rows.Fields("LastName").Value(); }));
    rows.MoveNext();
    EXPECT_EQ("Müller", rows.At(1).text());
    rows.MoveLast();
    EXPECT_EQ("Zahn", rows.At(1).text());
    rows.MoveNext();
    EXPECT_TRUE(rows.Eof());
    EXPECT_EQ(3021, errorNumber([&] { rows.MoveNext(); }));
    rows.MovePrevious();
    EXPECT_EQ("Zahn", rows.At(1).text());

    jet::Recordset none = database.OpenRecordset("SELECT * FROM Address WHERE ID = 99");
    EXPECT_TRUE(none.Bof() && none.Eof());
    EXPECT_EQ(0, none.RecordCount());
    EXPECT_EQ(3021, errorNumber([&] { none.MoveFirst(); }));
    EXPECT_EQ(3021, errorNumber([&] { none.MoveLast(); }));
}

TEST_F(RecordsetRules, FindsFieldsByEverySpelling) {
    jet::Recordset rows = database.OpenRecordset(stays);
    rows.MoveLast();
    EXPECT_EQ(2, rows.Fields("tblBelegung.ID").Value().longOr());
    EXPECT_EQ(2, rows.Fields("TBLBELEGUNG.id").Value().longOr());
    EXPECT_EQ(1, rows.Fields("Address.ID").Value().longOr());
    EXPECT_EQ("Mü2", rows.Fields("KÜRZEL").Value().text());
    EXPECT_EQ("Mü2", rows.Fields("tblBelegung.Kürzel").Value().text());
    EXPECT_EQ(2, rows.Fields("ID").Value().longOr());
    EXPECT_EQ(3265, errorNumber([&] { std::ignore = rows.Fields("gibtsnicht"); }));
    EXPECT_EQ(3265, errorNumber([&] { std::ignore = rows.Fields(99); }));
    EXPECT_EQ(jet::ExprType::Date, rows.FieldTypeAt(rows.Ordinal("Von")));
    EXPECT_EQ(jet::Date::fromYmd(2026, 6, 20), rows.Fields("Von").Value().dateOr());
}

TEST_F(RecordsetRules, AddsARowAndFindsItByItsBookmark) {
    jet::Recordset rows = database.OpenRecordset("tblBelegung");
    EXPECT_EQ(3020, errorNumber([&] { rows.Fields("GastID") = 3; }));
    EXPECT_EQ(3020, errorNumber([&] { rows.Update(); }));
    rows.AddNew();
    rows.Fields("GastID") = "2";
    rows.Fields("preis") = "7,25";
    rows.Fields("von") = "24.12.26";
    rows.Fields("Kürzel") = "Ö";
    EXPECT_EQ("Ö", rows.Fields("Kürzel").Value().text());
    rows.Update();
    EXPECT_EQ(1, rows.Fields("ID").Value().longOr()) << "the current record stays";
    rows.setBookmark(rows.LastModified());
    EXPECT_EQ(3, rows.RecordCount());
    EXPECT_EQ(3, rows.Fields("ID").Value().longOr());
    EXPECT_FALSE(rows.Fields("Checked").Value().boolOr(true));
    EXPECT_TRUE(rows.Fields("Info").Value().isNull());
    EXPECT_EQ("2 24.12.2026 7,25 Falsch Ö",
              allRows(database, "SELECT GastID, Von, Preis, Checked, Kürzel FROM tblBelegung WHERE ID = 3"));
}

TEST_F(RecordsetRules, GivesNoCounterTwice) {
    jet::Recordset rows = database.OpenRecordset("SELECT * FROM Address");
    rows.AddNew();
    rows.Fields("ID") = 40;
    rows.Update();
    database.Execute("DELETE FROM Address WHERE ID = 40");
    rows.AddNew();
    rows.Fields("LastName") = "Neu";
    rows.Update();
    rows.MoveLast();
    EXPECT_EQ(41, rows.Fields("ID").Value().longOr());
    rows.AddNew();
    rows.Fields("ID") = 41;
    EXPECT_EQ(3022, errorNumber([&] { rows.Update(); }));
    rows.CancelUpdate();
    EXPECT_EQ(3020, errorNumber([&] { rows.CancelUpdate(); }));
}

TEST_F(RecordsetRules, RefusesWhatTheFieldCannotHold) {
    jet::Recordset rows = database.OpenRecordset("tblBelegung");
    rows.AddNew();
    EXPECT_EQ(3163, errorNumber([&] { rows.Fields("Kürzel") = "länger als siebzehn"; }));
    EXPECT_EQ(3421, errorNumber([&] { rows.Fields("Von") = "kein Datum"; }));
    rows.Fields("GastID") = 1;
    EXPECT_EQ(3314, errorNumber([&] { rows.Update(); }));
    rows.Fields("Kürzel") = "mü2";
    EXPECT_EQ(3022, errorNumber([&] { rows.Update(); }));
    rows.Fields("Kürzel") = "frei";
    rows.Update();
    EXPECT_EQ(3, rows.RecordCount());
}

TEST_F(RecordsetRules, ChangesOnlyTheRowThatWasRead) {
    jet::Recordset rows = database.OpenRecordset("SELECT * FROM tblBelegung ORDER BY ID");
    rows.Edit();
    rows.Fields("Info") = "erst";
    rows.Update();
    EXPECT_EQ("erst", rows.Fields("Info").Value().text());
    support::Station other([&](support::Channel& channel) {
        jet::Database mine = house.open("Zentral.mdb");
        std::ignore = channel.hear();
        mine.Execute("UPDATE tblBelegung SET Info = 'ERST' WHERE ID = 1");
        mine.Execute("DELETE FROM tblBelegung WHERE ID = 2");
        channel.say("fertig");
    });
    rows.Edit();
    other.channel().say("los");
    ASSERT_EQ("fertig", other.channel().hear());
    rows.Fields("Preis") = 1;
    EXPECT_EQ(3197, errorNumber([&] { rows.Update(); })) << "only the case of a letter differs";
    rows.CancelUpdate();
    rows.Edit();
    EXPECT_EQ(3197, errorNumber([&] { rows.Update(); })) << "nothing is assigned";
    rows.MoveNext();
    rows.Edit();
    rows.Fields("Preis") = 1;
    EXPECT_EQ(3167, errorNumber([&] { rows.Update(); }));
    EXPECT_EQ(3167, errorNumber([&] { rows.Delete(); }));
    EXPECT_EQ("1 80,5 ERST", allRows(database, "SELECT ID, Preis, Info FROM tblBelegung"));
    rows.Requery();
    rows.Edit();
    rows.Fields("Preis") = 1;
    rows.Update();
    EXPECT_EQ("1", support::oneValue(database, "SELECT Preis FROM tblBelegung"));
}

TEST_F(RecordsetRules, AnotherFieldsChangeOutsideTheListIsNoConflict) {
    jet::Recordset rows = database.OpenRecordset("SELECT Preis FROM tblBelegung WHERE ID = 1");
    database.Execute("UPDATE tblBelegung SET Info = 'anders' WHERE ID = 1");
    rows.Edit();
    rows.Fields("Preis") = 5;
    rows.Update();
    EXPECT_EQ("5 anders", allRows(database, "SELECT Preis, Info FROM tblBelegung WHERE ID = 1"));
}

TEST_F(RecordsetRules, DeletesInALoop) {
    jet::Recordset rows = database.OpenRecordset("tblBelegung");
    rows.Delete();
    EXPECT_EQ(3167, errorNumber([&] { std::ignore = rows.Fields("ID").Value(); }));
    EXPECT_EQ(1, rows.RecordCount());
    rows.MoveNext();
    EXPECT_EQ(2, rows.Fields("ID").Value().longOr());
    rows.MovePrevious();
    EXPECT_TRUE(rows.Bof());
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        rows.Delete();
    EXPECT_EQ("0", support::oneValue(database, "SELECT Count(*) FROM tblBelegung"));
    EXPECT_EQ(0, rows.RecordCount());
}

TEST_F(RecordsetRules, WritesThroughAJoinToTheTableOfTheField) {
    jet::Recordset rows = database.OpenRecordset(stays);
    rows.Edit();
    rows.Fields("LastName") = "Meier";
    rows.Fields("Info") = "über zwei Tabellen";
    rows.Update();
    EXPECT_EQ("Meier", support::oneValue(database, "SELECT LastName FROM Address WHERE ID = 1"));
    EXPECT_EQ("über zwei Tabellen", support::oneValue(database, "SELECT Info FROM tblBelegung WHERE ID = 1"));
    rows.MoveNext();
    EXPECT_EQ("Meier", rows.Fields("LastName").Value().text()) << "the same guest in the next row";
    rows.Edit();
    rows.Fields("LastName") = "Mayer";
    rows.Update();
    rows.Delete();
    EXPECT_EQ("1 Mayer", allRows(database, "SELECT tblBelegung.ID, LastName FROM tblBelegung INNER JOIN Address ON "
                                           "tblBelegung.GastID = Address.ID"));
}

TEST_F(RecordsetRules, TheMissingSideOfAnOuterJoinHasNoRecord) {
    jet::Recordset rows = database.OpenRecordset("SELECT Address.LastName, tblBelegung.Info FROM Address LEFT JOIN "
                                                 "tblBelegung ON Address.ID = tblBelegung.GastID "
                                                 "WHERE Address.ID = 3");
    rows.Edit();
    EXPECT_EQ(3021, errorNumber([&] { rows.Fields("Info") = "nirgends"; }));
    rows.Fields("LastName") = "Zahnlos";
    rows.Update();
    EXPECT_EQ("Zahnlos", support::oneValue(database, "SELECT LastName FROM Address WHERE ID = 3"));
}

TEST_F(RecordsetRules, RefusesToWriteWhatIsNoRow) {
    jet::Recordset snapshot = database.OpenRecordset("tblBelegung", jet::RecordsetType::Snapshot);
    EXPECT_EQ(3251, errorNumber([&] { snapshot.Edit(); }));
    EXPECT_EQ(3251, errorNumber([&] { snapshot.Delete(); }));
    for (const char* select : {"SELECT DISTINCT GastID FROM tblBelegung", "SELECT Count(*) AS n FROM tblBelegung",
                               "SELECT ID FROM Address UNION SELECT ID FROM tblBelegung"}) {
        jet::Recordset rows = database.OpenRecordset(select);
        EXPECT_EQ(3027, errorNumber([&] { rows.AddNew(); })) << select;
        EXPECT_EQ(3027, errorNumber([&] { rows.Edit(); })) << select;
    }
    jet::Recordset rows = database.OpenRecordset("SELECT ID, Preis * 2 AS Doppelt FROM tblBelegung");
    rows.Edit();
    EXPECT_EQ(3027, errorNumber([&] { rows.Fields("Doppelt") = 3; }));
}

TEST_F(RecordsetRules, TellsStatementsApart) {
    EXPECT_EQ(3065, errorNumber([&] { database.Execute("SELECT * FROM Address"); }));
    EXPECT_EQ(3065, errorNumber([&] { std::ignore = database.OpenRecordset("DELETE FROM Address"); }));
    std::ignore = database.OpenRecordset("SELECT * FROM Address", jet::RecordsetType::Snapshot);
    EXPECT_EQ(3065, errorNumber([&] { database.Execute("SELECT * FROM Address"); })) << "also when it is known";
    EXPECT_EQ(3078, errorNumber([&] { std::ignore = database.OpenRecordset("gibtsnicht"); }));
    EXPECT_EQ(3, database.OpenRecordset("[address]").RecordCount());
    // One shape, other values.
    EXPECT_EQ("Müller", support::oneValue(database, "SELECT LastName FROM Address WHERE ID = 1"));
    EXPECT_EQ("Zahn", support::oneValue(database, "SELECT LastName FROM Address WHERE ID = 3"));
    EXPECT_EQ(1, database.OpenRecordset("SELECT TOP 1 * FROM Address ORDER BY ID").RecordCount());
    EXPECT_EQ(2, database.OpenRecordset("SELECT TOP 2 * FROM Address ORDER BY ID").RecordCount());
}

TEST_F(RecordsetRules, CountsHitRowsAndSkipsThoseThatBreakAKey) {
    database.Execute("UPDATE tblBelegung SET Preis = Preis");
    EXPECT_EQ(2, database.RecordsAffected());
    database.Execute("UPDATE tblBelegung SET Kürzel = 'gleich'");
    EXPECT_EQ(1, database.RecordsAffected());
    database.Execute("INSERT INTO Address (ID, LastName) VALUES (1, 'doppelt')");
    EXPECT_EQ(0, database.RecordsAffected());
    EXPECT_NE(0, errorNumber([&] { database.Execute("INSERT INTO tblBelegung (Von) VALUES (CDate('kein Datum'))"); }));
    EXPECT_EQ("2", support::oneValue(database, "SELECT Count(*) FROM tblBelegung"));
}
