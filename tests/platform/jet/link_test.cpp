#include "support/jet_files.h"
#include "support/station.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using support::allRows;
using support::errorNumber;
using support::JetFolder;
using support::oneValue;

/// Two home files and a link file, as a workstation has them.
class LinkedTables : public testing::Test {
protected:
    LinkedTables() {
        jet::Database shared = house.create("Zentral.mdb", ";PWD=geheim77");
        shared.Execute("CREATE TABLE tblBelegung (ID COUNTER PRIMARY KEY, Zimmernummer SHORT, Gelöscht YESNO)");
        shared.Execute("INSERT INTO tblBelegung (Zimmernummer) VALUES (1)");
        jet::Database source = house.create("Herbergo.mdb", ";PWD=geheim77");
        source.Execute("CREATE TABLE tbZimmernummern (Zimmernummer SHORT PRIMARY KEY, NeueNummer TEXT(20))");
        source.Execute("INSERT INTO tbZimmernummern VALUES (1, 'Seeblick')");
        jet::Database local = house.create("Lokal.mdb", ";PWD=geheim77");
        local.AppendTableDef(link("tblBelegung", "Zentral.mdb"));
        local.AppendTableDef(link("tbZimmernummern", "Herbergo.mdb"));
    }

    [[nodiscard]] std::string connectTo(std::string_view name) const {
        return ";DATABASE=" + house.file(name) + ";PWD=geheim77";
    }
    [[nodiscard]] jet::TableDef link(const std::string& table, std::string_view file) const {
        jet::TableDef definition;
        definition.Name = definition.SourceTableName = table;
        definition.Connect = connectTo(file);
        return definition;
    }
    [[nodiscard]] jet::Database openLocal() const { return house.open("Lokal.mdb", ";PWD=geheim77"); }
    void move(std::string_view from, std::string_view to) const {
        std::filesystem::rename(house.file(from), house.file(to));
    }

    JetFolder house;
    const std::string joined = "SELECT NeueNummer, tblBelegung.ID FROM tblBelegung INNER JOIN tbZimmernummern ON "
                               "tblBelegung.Zimmernummer = tbZimmernummern.Zimmernummer";
};

} // namespace

TEST_F(LinkedTables, StatementsReadAndWriteAcrossHomeFiles) {
    jet::Database local = openLocal();
    EXPECT_EQ("Seeblick 1", allRows(local, joined));
    local.Execute("UPDATE tblBelegung INNER JOIN tbZimmernummern ON tblBelegung.Zimmernummer = "
                  "tbZimmernummern.Zimmernummer SET tblBelegung.Gelöscht = True WHERE NeueNummer = 'SEEBLICK'");
    EXPECT_EQ(1, local.RecordsAffected());
    jet::Recordset rows = local.OpenRecordset(joined);
    rows.Edit();
    rows.Fields("NeueNummer") = "Bergblick";
    rows.Update();
    jet::Database home = house.open("Herbergo.mdb", ";PWD=geheim77");
    EXPECT_EQ("Bergblick", oneValue(home, "SELECT NeueNummer FROM tbZimmernummern"));
    EXPECT_EQ((std::vector<std::string>{"tblBelegung", "tbZimmernummern"}), local.TableNames());
}

TEST_F(LinkedTables, TellWhereTheyLead) {
    jet::Database local = openLocal();
    const jet::TableDef definition = local.GetTableDef("TBLBELEGUNG");
    EXPECT_EQ("tblBelegung", definition.Name);
    EXPECT_EQ(connectTo("Zentral.mdb"), definition.Connect);
    EXPECT_EQ("tblBelegung", definition.SourceTableName);
    ASSERT_EQ(3U, definition.Fields.size());
    EXPECT_TRUE(definition.Fields[0].Counter);
    EXPECT_EQ(3265, errorNumber([&] { std::ignore = local.GetTableDef("tbNichts"); }));
}

TEST_F(LinkedTables, RefuseWhatLeadsNowhere) {
    jet::Database local = openLocal();
    EXPECT_EQ(3024, errorNumber([&] { local.AppendTableDef(link("tbNeu", "fehlt.mdb")); }));
    EXPECT_EQ(3011, errorNumber([&] { local.AppendTableDef(link("tbNeu", "Zentral.mdb")); }));
    EXPECT_EQ(3010, errorNumber([&] { local.AppendTableDef(link("tblBelegung", "Zentral.mdb")); }));
    EXPECT_EQ(3024, errorNumber([&] { local.RefreshLink("tblBelegung", connectTo("fehlt.mdb")); }));
    EXPECT_EQ(3011, errorNumber([&] { local.RefreshLink("tblBelegung", connectTo("Herbergo.mdb")); }));
    const std::string wrong = ";DATABASE=" + house.file("Zentral.mdb") + ";PWD=falsch88";
    EXPECT_EQ(3031, errorNumber([&] { local.RefreshLink("tblBelegung", wrong); }));
    EXPECT_EQ(3265, errorNumber([&] { local.RefreshLink("tbNeu", connectTo("Zentral.mdb")); }));
    EXPECT_EQ(3251, errorNumber([&] { local.Execute("ALTER TABLE tblBelegung ADD COLUMN Neu LONG"); }));
    EXPECT_EQ(3251, errorNumber([&] { local.Execute("DROP TABLE tblBelegung"); }));
    EXPECT_EQ("Seeblick 1", allRows(local, joined));
}

TEST_F(LinkedTables, AStaleLinkHealsWithAGoodPath) {
    move("Zentral.mdb", "Verzogen.mdb");
    jet::Database local = openLocal();
    EXPECT_EQ(3024, errorNumber([&] { std::ignore = allRows(local, joined); }));
    EXPECT_EQ("Seeblick", oneValue(local, "SELECT NeueNummer FROM tbZimmernummern"));
    EXPECT_EQ(connectTo("Zentral.mdb"), local.GetTableDef("tblBelegung").Connect);
    local.RefreshLink("tblBelegung", connectTo("Verzogen.mdb"));
    EXPECT_EQ("Seeblick 1", allRows(local, joined));
    EXPECT_EQ("Seeblick 1", [&] {
        jet::Database again = openLocal();
        return allRows(again, joined);
    }());
}

TEST_F(LinkedTables, AHomeFileThatComesBackIsFoundAgain) {
    move("Zentral.mdb", "weg.mdb");
    jet::Database local = openLocal();
    EXPECT_EQ(3024, errorNumber([&] { local.Execute("DELETE FROM tblBelegung"); }));
    move("weg.mdb", "Zentral.mdb");
    EXPECT_EQ("Seeblick 1", allRows(local, joined));
}

TEST_F(LinkedTables, PointingElsewhereReadsTheOtherFileAtOnce) {
    {
        jet::Database other = house.create("Zweite.mdb");
        other.Execute("CREATE TABLE tblBelegung (ID COUNTER PRIMARY KEY, Zimmernummer SHORT, Neu TEXT(5))");
        other.Execute("INSERT INTO tblBelegung (ID, Zimmernummer, Neu) VALUES (77, 1, 'ja')");
    }
    jet::Database local = openLocal();
    const std::string select = "SELECT ID FROM tblBelegung";
    EXPECT_EQ("1", oneValue(local, select));
    jet::Recordset old = local.OpenRecordset("tblBelegung");
    local.RefreshLink("tblBelegung", ";DATABASE=" + house.file("Zweite.mdb"));
    EXPECT_EQ("77", oneValue(local, select));
    EXPECT_EQ("ja", oneValue(local, "SELECT Neu FROM tblBelegung"));
    old.Edit();
    old.Fields("Zimmernummer") = 9;
    EXPECT_NE(0, errorNumber([&] { old.Update(); })) << "a recordset of the old file writes nowhere";
    EXPECT_EQ("1", oneValue(local, "SELECT Zimmernummer FROM tblBelegung"));
    local.DeleteTableDef("tblBelegung");
    EXPECT_FALSE(local.HasTable("tblBelegung"));
}

TEST_F(LinkedTables, ATransactionWritesOneHomeFileOnly) {
    support::Station other([&](support::Channel& channel) {
        house.workspace.setLockTimeout(30);
        jet::Database mine = openLocal();
        std::ignore = channel.hear();
        mine.Execute("UPDATE tbZimmernummern SET NeueNummer = 'Talblick'");
        channel.say(std::to_string(errorNumber([&] { mine.Execute("DELETE FROM tblBelegung"); })));
    });
    jet::Database local = openLocal();
    {
        jet::Transaction transaction(local, "tblBelegung");
        local.Execute("INSERT INTO tblBelegung (Zimmernummer) VALUES (7)");
        EXPECT_EQ("2", oneValue(local, "SELECT Count(*) FROM tblBelegung"));
        EXPECT_THROW(local.Execute("UPDATE tbZimmernummern SET NeueNummer = 'x'"), std::logic_error);
        // Another station goes on with the other file meanwhile, and finds this one locked.
        other.channel().say("los");
        EXPECT_EQ("3218", other.channel().hear());
        EXPECT_EQ(0, other.wait());
    }
    EXPECT_EQ("1", oneValue(local, "SELECT Count(*) FROM tblBelegung")) << "rolled back";
    jet::Transaction transaction(local, "tblBelegung");
    local.Execute("INSERT INTO tblBelegung (Zimmernummer) VALUES (7)");
    transaction.Commit();
    EXPECT_EQ(3034, errorNumber([&] { transaction.Commit(); }));
    EXPECT_EQ("2 Talblick", oneValue(local, "SELECT Count(*) FROM tblBelegung") + " " +
                                oneValue(local, "SELECT NeueNummer FROM tbZimmernummern"));
}

TEST_F(LinkedTables, SeesWhatAnotherStationDoesToTheTables) {
    jet::Database local = openLocal();
    const std::string all = "SELECT * FROM tblBelegung";
    EXPECT_EQ("1 1 Falsch", allRows(local, all));
    EXPECT_NE(0, errorNumber([&] { std::ignore = allRows(local, "SELECT Neu FROM tblBelegung"); }));
    support::Station other([&](support::Channel& channel) {
        jet::Database home = house.open("Zentral.mdb", ";PWD=geheim77");
        home.AppendField("tblBelegung", jet::CreateField("Neu", jet::FieldType::Text, 20));
        home.Execute("UPDATE tblBelegung SET Neu = 'da'");
        home.Execute("CREATE TABLE tbSpäter (Nr LONG PRIMARY KEY)");
        jet::Database theirs = openLocal();
        theirs.AppendTableDef(link("tbSpäter", "Zentral.mdb"));
        channel.say("fertig");
    });
    ASSERT_EQ("fertig", other.channel().hear());
    EXPECT_EQ("1 1 Falsch da", allRows(local, all)) << "a statement that was known already";
    EXPECT_EQ("da", oneValue(local, "SELECT Neu FROM tblBelegung"));
    EXPECT_EQ("0", oneValue(local, "SELECT Count(*) FROM tbSpäter"));
    local.Execute("INSERT INTO tbSpäter VALUES (5)");
    EXPECT_EQ(1, local.RecordsAffected());
    EXPECT_EQ(0, other.wait());
}

TEST_F(LinkedTables, AKnownChangeMeetsADroppedField) {
    jet::Database local = openLocal();
    const std::string change = "UPDATE tblBelegung SET Zimmernummer = 2";
    local.Execute(change);
    EXPECT_EQ("Seeblick 1", allRows(local, joined + " OR tblBelegung.ID = 1"));
    {
        jet::Database home = house.open("Zentral.mdb", ";PWD=geheim77");
        home.Execute("DROP TABLE tblBelegung");
    }
    EXPECT_EQ(3011, errorNumber([&] { std::ignore = allRows(local, joined + " OR tblBelegung.ID = 1"); }));
    EXPECT_EQ(3011, errorNumber([&] { local.Execute(change); }));
    EXPECT_EQ(3011, errorNumber([&] { std::ignore = allRows(local, joined); }));
    {
        jet::Database home = house.open("Zentral.mdb", ";PWD=geheim77");
        home.Execute("CREATE TABLE tblBelegung (Neu LONG)");
    }
    EXPECT_EQ(3061, errorNumber([&] { local.Execute(change); }));
}
