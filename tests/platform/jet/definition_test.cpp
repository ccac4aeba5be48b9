#include "support/jet_files.h"

#include <gtest/gtest.h>

namespace {

using support::allRows;
using support::errorNumber;
using support::JetFolder;
using support::oneValue;

jet::TableDef allTypes() {
    jet::TableDef table;
    table.Name = "tbÜbersicht";
    table.Fields = {
        jet::CreateField("Nr", jet::FieldType::Long),       jet::CreateField("Ja", jet::FieldType::Boolean),
        jet::CreateField("Klein", jet::FieldType::Integer), jet::CreateField("Preis", jet::FieldType::Double),
        jet::CreateField("Tag", jet::FieldType::Date),      jet::CreateField("Wort", jet::FieldType::Text, 12),
        jet::CreateField("Notiz", jet::FieldType::Memo)};
    table.Fields[0].Counter = true;
    table.Fields[5].AllowZeroLength = true;
    table.Indexes = {{"Schlüssel", {"Wort"}, true, true, ""},
                     {"Tag", {"Tag", "preis"}, false, false, ""},
                     {"JaNr", {"Nr"}, false, false, "ja = True"}};
    return table;
}

} // namespace

TEST(Definition, ATableReadsBackAsItWasMade) {
    const JetFolder house;
    { house.create("Zentral.mdb").AppendTableDef(allTypes()); }
    const jet::Database database = house.open("Zentral.mdb");
    const jet::TableDef made = allTypes();
    const jet::TableDef read = database.GetTableDef("TBÜBERSICHT");
    ASSERT_EQ(made.Fields.size(), read.Fields.size());
    for (std::size_t i = 0; i < made.Fields.size(); ++i) {
        EXPECT_EQ(made.Fields[i].Name, read.Fields[i].Name);
        EXPECT_EQ(made.Fields[i].Type, read.Fields[i].Type) << made.Fields[i].Name;
        EXPECT_EQ(made.Fields[i].Size, read.Fields[i].Size) << made.Fields[i].Name;
        EXPECT_EQ(made.Fields[i].Counter, read.Fields[i].Counter) << made.Fields[i].Name;
    }
    EXPECT_TRUE(read.Fields[5].AllowZeroLength);
    EXPECT_FALSE(read.Fields[6].AllowZeroLength);
    ASSERT_EQ(3U, read.Indexes.size());
    EXPECT_EQ("Schlüssel", read.Indexes[0].Name);
    EXPECT_TRUE(read.Indexes[0].Primary && read.Indexes[0].Unique);
    EXPECT_EQ("Tag", read.Indexes[2].Name == "Tag" ? read.Indexes[2].Name : read.Indexes[1].Name);
    EXPECT_TRUE(read.Indexes[1].Where == "[Ja] = True" || read.Indexes[2].Where == "[Ja] = True");
}

TEST(Definition, TheKeyOfATableRefusesNullAndDoubles) {
    const JetFolder house;
    jet::Database database = house.create("Zentral.mdb");
    database.AppendTableDef(allTypes());
    database.Execute("CREATE TABLE tbLang (Nr LONG PRIMARY KEY, Wort TEXT(5))");
    jet::Recordset rows = database.OpenRecordset("tbLang");
    rows.AddNew();
    rows.Fields("Wort") = "a";
    EXPECT_EQ(3314, errorNumber([&] { rows.Update(); })) << "a key is never numbered by itself";
    EXPECT_EQ(3314, errorNumber([&] { rows.Fields("Nr") = nullptr; }));
    jet::Recordset named = database.OpenRecordset("tbÜbersicht");
    for (const int number : {0, 3022}) {
        named.AddNew();
        named.Fields("Wort") = number == 0 ? "müll" : "MÜLL";
        EXPECT_EQ(number, errorNumber([&] { named.Update(); }));
    }
    EXPECT_EQ(3314, errorNumber([&] { named.Fields("Wort") = nullptr; }));
}

TEST(Definition, StatementsDefineAndDrop) {
    const JetFolder house;
    jet::Database database = house.create("Zentral.mdb");
    database.Execute("CREATE TABLE [tb Zwei-Wort] (A LONG, B TEXT(10), CONSTRAINT pk PRIMARY KEY (A, B))");
    database.Execute("INSERT INTO [tb Zwei-Wort] VALUES (1, 'x')");
    database.Execute("INSERT INTO [tb Zwei-Wort] VALUES (1, 'X')");
    EXPECT_EQ(0, database.RecordsAffected());
    database.Execute("ALTER TABLE [tb Zwei-Wort] ADD COLUMN Ja YESNO");
    EXPECT_EQ("1 x Falsch", allRows(database, "SELECT * FROM [TB ZWEI-WORT]"));
    database.Execute("CREATE UNIQUE INDEX nurA ON [tb Zwei-Wort] (A)");
    database.Execute("INSERT INTO [tb Zwei-Wort] VALUES (1, 'y', False)");
    EXPECT_EQ(0, database.RecordsAffected());
    database.Execute("DROP INDEX nurA ON [tb Zwei-Wort]");
    database.Execute("INSERT INTO [tb Zwei-Wort] VALUES (1, 'y', False)");
    EXPECT_EQ(1, database.RecordsAffected());
    EXPECT_EQ(3022, errorNumber([&] { database.Execute("CREATE UNIQUE INDEX nurA ON [tb Zwei-Wort] (A)"); }));
    database.Execute("DROP TABLE [tb Zwei-Wort]");
    EXPECT_TRUE(database.TableNames().empty());
    // The same name may be used again, with nothing left of the old table.
    database.Execute("CREATE TABLE [tb Zwei-Wort] (B LONG)");
    EXPECT_EQ("", allRows(database, "SELECT B FROM [tb Zwei-Wort]"));
}

TEST(Definition, AnIndexBecomesTheKeyOfATable) {
    const JetFolder house;
    jet::Database database = house.create("Zentral.mdb");
    database.Execute("CREATE TABLE tb (Nr COUNTER, Wort TEXT(10))");
    database.Execute("CREATE INDEX PrimaryKey ON tb (Wort) WITH PRIMARY");
    EXPECT_EQ(3292, errorNumber([&] { database.Execute("CREATE INDEX zweiter ON tb (Nr) WITH PRIMARY"); }));
    database.Execute("INSERT INTO tb (Wort) VALUES ('b')");
    database.Execute("INSERT INTO tb (Wort) VALUES ('a')");
    database.Execute("INSERT INTO tb (Wort) VALUES ('A')");
    EXPECT_EQ("2", oneValue(database, "SELECT Count(*) FROM tb"));
    EXPECT_TRUE(database.GetTableDef("tb").Indexes[0].Primary);
}

TEST(Definition, RefusesWhatCannotBe) {
    const JetFolder house;
    jet::Database database = house.create("Zentral.mdb");
    database.Execute("CREATE TABLE tbÄ (Nr LONG)");
    EXPECT_EQ(3010, errorNumber([&] { database.Execute("CREATE TABLE TBÄ (Nr LONG)"); }));
    EXPECT_EQ(3191, errorNumber([&] { database.Execute("CREATE TABLE t (Ö LONG, ö LONG)"); }));
    EXPECT_EQ(3191, errorNumber([&] { database.AppendField("tbä", jet::CreateField("NR", jet::FieldType::Date)); }));
    EXPECT_EQ(3125, errorNumber([&] { database.Execute("CREATE TABLE [~links] (Nr LONG)"); }));
    EXPECT_EQ(3125, errorNumber([&] { database.Execute("CREATE TABLE [sqlite_x] (Nr LONG)"); }));
    EXPECT_EQ(3292, errorNumber([&] { database.Execute("CREATE TABLE t (a COUNTER, b COUNTER)"); }));
    EXPECT_EQ(3292,
              errorNumber([&] { database.AppendField("tbÄ", jet::CreateField("w", jet::FieldType::Text, 256)); }));
    EXPECT_EQ(3011, errorNumber([&] { database.Execute("DROP TABLE tbNichts"); }));
    EXPECT_EQ(3265, errorNumber([&] { database.Execute("CREATE INDEX i ON tbÄ (Fehlt)"); }));
    EXPECT_EQ(3265, errorNumber([&] { database.Execute("DROP INDEX i ON tbÄ"); }));
    EXPECT_EQ((std::vector<std::string>{"tbÄ"}), database.TableNames());
}

TEST(Definition, AppendedFieldsTakeTheirRules) {
    const JetFolder house;
    jet::Database database = house.create("Zentral.mdb");
    database.Execute("CREATE TABLE tb (Nr LONG PRIMARY KEY)");
    database.Execute("INSERT INTO tb VALUES (1)");
    jet::FieldDef word = jet::CreateField("Wort", jet::FieldType::Text, 5);
    word.Required = true;
    database.AppendField("tb", word);
    jet::Recordset rows = database.OpenRecordset("tb");
    EXPECT_TRUE(rows.Fields("Wort").Value().isNull());
    rows.Edit();
    EXPECT_EQ(3315, errorNumber([&] { rows.Fields("Wort") = ""; }));
    EXPECT_EQ(3314, errorNumber([&] { rows.Fields("Wort") = nullptr; }));
    database.SetAllowZeroLength("tb", "WORT", true);
    jet::Recordset again = database.OpenRecordset("tb");
    again.Edit();
    again.Fields("Wort") = "";
    again.Update();
    EXPECT_EQ("1", oneValue(database, "SELECT Count(*) FROM tb WHERE Wort = ''"));
    EXPECT_TRUE(house.open("Zentral.mdb").GetTableDef("tb").Fields[1].AllowZeroLength);
}

TEST(Definition, ARolledBackTableIsGone) {
    const JetFolder house;
    jet::Database database = house.create("Zentral.mdb");
    database.Execute("CREATE TABLE tb (Nr LONG)");
    {
        const jet::Transaction transaction(database, "tb");
        database.Execute("CREATE TABLE tbNeu (Nr LONG)");
        database.Execute("INSERT INTO tbNeu VALUES (3)");
        EXPECT_EQ("3", oneValue(database, "SELECT Nr FROM tbNeu"));
    }
    EXPECT_FALSE(database.HasTable("tbNeu"));
    EXPECT_EQ(3078, errorNumber([&] { std::ignore = database.OpenRecordset("tbNeu"); }));
}
