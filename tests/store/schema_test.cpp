#include "store/schema.h"

#include "support/test_house.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using basic::Value;
using jet::FieldType;
using support::TestHouse;

const jet::FieldDef* findField(const jet::TableDef& table, std::string_view name) {
    const auto found = std::ranges::find(table.Fields, name, &jet::FieldDef::Name);
    return found == table.Fields.end() ? nullptr : &*found;
}

struct KnownField {
    std::string_view table;
    std::string_view field;
    FieldType type;
    int atLeast = 0; ///< characters that houses have stored in it
};

/// Columns of a house that has run for years. What it has stored must fit into a new house.
constexpr KnownField kKnownFields[] = {
    {"tblBelegung", "ID", FieldType::Long},
    {"tblBelegung", "Zimmernummer", FieldType::Integer},
    {"tblBelegung", "Von", FieldType::Date},
    {"tblBelegung", "IDAdressRechnung", FieldType::Long},
    {"tblBelegung", "Kürzel", FieldType::Text, 50},
    {"tblBelegung", "Info", FieldType::Memo},
    {"tblBelegung", "Gelöscht", FieldType::Boolean},
    {"tblBelegung", "PreisProNacht", FieldType::Double},
    {"tblBelegung", "BelegNummer", FieldType::Long},
    {"tblBelegung", "Abgerechnet", FieldType::Integer},
    {"tblBelegung", "IST_Geteilt", FieldType::Text, 1},
    {"tblBelegung", "Re_text", FieldType::Memo},
    {"tblBelegung", "Zahlart", FieldType::Text, 50},
    {"tblBelegung", "Wäsche2", FieldType::Integer},
    {"tblBelegung", "Frühstück", FieldType::Boolean},
    {"Address", "AdressNummer", FieldType::Text, 20},
    {"Address", "AdressNr", FieldType::Text, 20},
    {"Address", "CompanyName", FieldType::Text, 100},
    {"Address", "Address", FieldType::Text, 100},
    {"Address", "EMAIL", FieldType::Text, 100},
    {"Address", "Tele-Fax", FieldType::Text, 30},
    {"Address", "HandyGeschäft", FieldType::Text, 30},
    {"Address", "Geburtstag", FieldType::Date},
    {"Address", "IDÜberAdresse", FieldType::Long},
    {"Address", "Herkunft5", FieldType::Text, 50},
    {"Address", "BenutztVon5", FieldType::Text, 50},
    {"Address", "BemerkAdr", FieldType::Memo},
    {"Address", "Data", FieldType::Memo},
    {"WeitereGäste", "Strasse", FieldType::Text, 100},
    {"tbRePosten", "IDSteuerschlüssel", FieldType::Long},
    {"tbRePosten", "ArtikelPo", FieldType::Text, 100},
    {"tbRePosten", "BemerkungPo", FieldType::Text, 255},
    {"tbRePosten", "KeinDatum", FieldType::Boolean},
    {"tbRePosten", "AnzGästePo", FieldType::Integer},
    {"tbRechnungen", "Beszaehler", FieldType::Long},
    {"tbRechnungen", "Rabatt_Bezeichnung", FieldType::Text, 100},
    {"tbRechnungen", "RE_TEXT2", FieldType::Memo},
    {"tbRechnungen_zu_Posten", "Reihenfolge", FieldType::Long},
    {"tbZahlung", "Zahlung_Bem", FieldType::Text, 255},
    {"tbArtKategorie", "ArtKategorie", FieldType::Text, 100},
    {"tbArtKategorie", "IstStandard", FieldType::Integer},
    {"tbSteuerschluessel", "GUeltigseit", FieldType::Date},
    {"tbSteuerschluessel", "IDNachfolger", FieldType::Long},
    {"tbZusätze", "Bedeutung", FieldType::Text, 100},
    {"tblTexte", "Inhalt", FieldType::Memo},
    {"tbBlockbuchung", "IDBelegung", FieldType::Long},
    {"tbBlockbuchung", "BlNachname", FieldType::Text, 50},
    {"tbZimmernummern", "Bemerkungen", FieldType::Memo},
    {"tbZimmernummern", "katBlockBuchung", FieldType::Text, 50},
    {"tbZimmernummern", "Reihenfolge_Hilf", FieldType::Integer},
    {"tblParameter", "F28", FieldType::Text, 50},
    {"tblTarife", "Tarif", FieldType::Text, 20},
    {"tbFeiertage", "FTBezeichnung", FieldType::Text, 50},
};

TEST(Schema, HoldsWhatHousesHaveStoredForYears) {
    for (const KnownField& known : kKnownFields) {
        SCOPED_TRACE(std::string(known.table) + "." + std::string(known.field));
        const store::SchemaTable* table = store::findTable(known.table);
        ASSERT_NE(table, nullptr);
        const jet::FieldDef* field = findField(table->definition, known.field);
        ASSERT_NE(field, nullptr);
        EXPECT_EQ(field->Type, known.type);
        EXPECT_GE(field->Size, known.atLeast);
    }
}

TEST(Schema, WhatHangsOnStaysAndAddressesLiesInTheSharedFile) {
    for (const auto& [table, home] : std::initializer_list<std::pair<std::string_view, store::HomeFile>>{
             {"tblBelegung", store::HomeFile::Zentral},
             {"WEITEREGÄSTE", store::HomeFile::Zentral},
             {"tbZahlung", store::HomeFile::Zentral},
             {"tblTexte", store::HomeFile::Zentral},
             {"tbBlockbuchung", store::HomeFile::Herbergo},
             {"tblParameter", store::HomeFile::Herbergo},
             {"tblTarife", store::HomeFile::Herbergo},
             {"tbZimmernummern", store::HomeFile::Herbergo}}) {
        ASSERT_NE(store::findTable(table), nullptr) << table;
        EXPECT_EQ(store::findTable(table)->home, home) << table;
    }
    EXPECT_EQ(store::findTable("tbSpaltenbreiten"), nullptr);
}

TEST(Schema, IndexesNameFieldsThatAreThere) {
    for (const store::SchemaTable& entry : store::schema())
        for (const jet::IndexDef& index : entry.definition.Indexes)
            for (const std::string& name : index.Fields)
                EXPECT_NE(findField(entry.definition, name), nullptr) << entry.definition.Name << ": " << name;
}

TEST(Schema, ABlockReachesStaysBeyondSixteenBits) {
    TestHouse house;
    house.db().Execute("INSERT INTO tbBlockbuchung ( IDBlockbuchung, IDBelegung, Master ) values( 1, 40000, True)");
    EXPECT_EQ(house.value("SELECT IDBelegung FROM tbBlockbuchung"), Value(40000));
    EXPECT_THROW(house.db().Execute("INSERT INTO tbBlockbuchung ( IDBlockbuchung ) values( 40000 )"), jet::Error);
}

TEST(Schema, ARateWithoutNumberGetsTheNextOne) {
    TestHouse house;
    house.db().Execute("INSERT INTO tbSteuerschluessel ( IDSteuerschluessel, Steuersatz ) values( 7, 19)");
    house.db().Execute("INSERT INTO tbSteuerschluessel ( Steuersatz, Standard ) values( 16, True)");
    EXPECT_EQ(house.value("SELECT IDSteuerschluessel FROM tbSteuerschluessel WHERE Steuersatz = 16"), Value(8));
    house.db().Execute("DELETE FROM tbSteuerschluessel WHERE IDSteuerschluessel = 8");
    house.db().Execute("INSERT INTO tbSteuerschluessel ( Steuersatz ) values( 5)");
    EXPECT_EQ(house.value("SELECT IDSteuerschluessel FROM tbSteuerschluessel WHERE Steuersatz = 5"), Value(9));
}

/// Number of the error that a second row of this name gives.
int errorOfSecond(TestHouse& house, std::string_view table, std::string_view key, std::string_view name) {
    jet::Recordset rows = house.db().OpenRecordset(table);
    rows.AddNew();
    rows.Fields(key) = name;
    try {
        rows.Update();
        return 0;
    } catch (const jet::Error& error) {
        return error.number();
    }
}

TEST(Schema, RecordsAndBlocksOfTextHaveOneRowEach) {
    TestHouse house;
    house.parameter("Räumlichkeiten", {"9"});
    EXPECT_EQ(errorOfSecond(house, "tblParameter", "Satz", "RÄUMLICHKEITEN"), 3022);
    house.db().Execute("INSERT INTO tblTexte ( Textbaustein, Inhalt ) values( 'Bank', 'Sparkasse')");
    EXPECT_EQ(errorOfSecond(house, "tblTexte", "Textbaustein", "bank"), 3022);
    // lists without a key may say a thing twice
    house.db().Execute("INSERT INTO tblTarife ( Tarif ) values( '50,00')");
    house.db().Execute("INSERT INTO tblTarife ( Tarif ) values( '50,00')");
    EXPECT_EQ(house.count("tblTarife"), 2);
}

TEST(Schema, TextFieldsTakeTheEmptyText) {
    TestHouse house;
    house.db().Execute("INSERT INTO Address ( LastName, FirstName, BemerkAdr ) values( '', '', '')");
    EXPECT_EQ(house.value("SELECT LastName FROM Address"), Value(""));
    EXPECT_EQ(house.value("SELECT BemerkAdr FROM Address"), Value(""));
}

} // namespace
