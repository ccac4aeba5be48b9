#include "store/table_fields.h"

#include "store/database_files.h"
#include "store/quotes.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

namespace {

using basic::Value;
using jet::FieldType;
using store::clsTabFelder;
using support::TestHouse;

/// A house whose source file is open to changes of its tables.
struct UpgradedHouse {
    TestHouse house;
    UpgradedHouse() { house.db().Close(); }
    [[nodiscard]] clsTabFelder change(std::string table, std::string field, FieldType type) const {
        return {house.file("Herbergo.mdb"), std::string(store::kPassword), std::move(table), std::move(field), type};
    }
    [[nodiscard]] std::vector<jet::FieldDef> fields(std::string_view table) const {
        return house.open("Herbergo.mdb").GetTableDef(table).Fields;
    }
};

TEST(TableFields, AppendsAFieldOnceWhateverItsCase) {
    const UpgradedHouse upgraded;
    const std::size_t before = upgraded.fields("tbZimmernummern").size();
    clsTabFelder change = upgraded.change("tbZimmernummern", "Größe", FieldType::Text);
    change.FeldGroesse = 50;
    change.LeerErlaubt = true;
    EXPECT_TRUE(change.Anfügen(upgraded.house.workspace()));
    change.FeldName = "GRÖßE";
    EXPECT_TRUE(change.Anfügen(upgraded.house.workspace()));
    const std::vector<jet::FieldDef> fields = upgraded.fields("tbZimmernummern");
    ASSERT_EQ(fields.size(), before + 1);
    EXPECT_EQ(fields.back().Name, "Größe");
    EXPECT_EQ(fields.back().Size, 50);
    EXPECT_TRUE(fields.back().AllowZeroLength);
}

TEST(TableFields, RowsThatAreThereHaveNothingInANewField) {
    UpgradedHouse upgraded;
    jet::Database source = upgraded.house.open("Herbergo.mdb");
    source.Execute("INSERT INTO tbZimmernummern ( Zimmernummer, NeueNummer ) values( 1, '101')");
    EXPECT_TRUE(upgraded.change("tbZimmernummern", "Balkon", FieldType::Boolean).Anfügen(upgraded.house.workspace()));
    EXPECT_TRUE(upgraded.change("tbZimmernummern", "Fläche", FieldType::Double).Anfügen(upgraded.house.workspace()));
    jet::Recordset rows = source.OpenRecordset("tbZimmernummern");
    EXPECT_EQ(rows.Fields("Balkon").Value(), Value(false));
    EXPECT_TRUE(rows.Fields("Fläche").Value().isNull());
}

TEST(TableFields, ANewTableStartsWithItsNumberOrItsField) {
    const UpgradedHouse upgraded;
    const jet::Workspace& workspace = upgraded.house.workspace();
    EXPECT_TRUE(upgraded.change("tbAusflug", "Ziel", FieldType::Integer).NeueTabelle(workspace));
    EXPECT_TRUE(upgraded.change("tbWort", "blWort", FieldType::Text).NeueTabelle(workspace));
    EXPECT_TRUE(upgraded.change("TBWORT", "anderes", FieldType::Text).NeueTabelle(workspace));
    ASSERT_EQ(upgraded.fields("tbAusflug").size(), 1U);
    EXPECT_EQ(upgraded.fields("tbAusflug").front().Name, "IDAusflug");
    EXPECT_EQ(upgraded.fields("tbAusflug").front().Type, FieldType::Integer);
    EXPECT_EQ(upgraded.fields("tbWort").front().Name, "blWort");
    // rows of one block share its number
    jet::Database source = upgraded.house.open("Herbergo.mdb");
    source.Execute("INSERT INTO tbAusflug ( IDAusflug ) values( 1)");
    source.Execute("INSERT INTO tbAusflug ( IDAusflug ) values( 1)");
    EXPECT_EQ(source.OpenRecordset("tbAusflug").RecordCount(), 2);
}

TEST(TableFields, AFailedChangeSaysSo) {
    const UpgradedHouse upgraded;
    const jet::Workspace& workspace = upgraded.house.workspace();
    EXPECT_FALSE(upgraded.change("tbFehlt", "Feld", FieldType::Long).Anfügen(workspace));
    clsTabFelder wrong = upgraded.change("tbWort", "Wort", FieldType::Text);
    wrong.Passwort = "falsch";
    EXPECT_FALSE(wrong.NeueTabelle(workspace));
    wrong.DatenbankPfad = upgraded.house.file("Fehlt.mdb");
    EXPECT_FALSE(wrong.NeueTabelle(workspace));
}

TEST(Quotes, AnOddCountIsReported) {
    EXPECT_FALSE(store::DoppZeichen(""));
    EXPECT_FALSE(store::DoppZeichen("Zimmer \"Seeblick\""));
    EXPECT_TRUE(store::DoppZeichen("Zimmer \"Seeblick"));
    EXPECT_FALSE(store::DoppZeichen("'einfach'"));
}

} // namespace
