#include "store/upgrades.h"

#include "platform/jet/sql_name.h"
#include "store/database_files.h"
#include "store/schema.h"
#include "support/jet_files.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using jet::FieldType;
using store::HomeFile;
using store::UpgradeTarget;
using support::fileBytes;

const std::set<std::string> kLateTables = {"tbBlockbuchung", "tbKategorie", "tbZahlart"};
const std::set<std::string> kLateFields = {
    "katBlockBuchung",    "F24",          "F25",       "F26",     "F27",     "F28",      "Zahlart",
    "AnzahlGästeDefault", "PreisDefault", "BemerkAdr", "Wäsche1", "Wäsche2", "Frühstück"};

/// The table as houses of long ago have it.
jet::TableDef asItWas(jet::TableDef table) {
    if (table.Name != "tbRechnungen" && table.Name != "tbZahlung")
        std::erase_if(table.Fields, [](const jet::FieldDef& field) { return kLateFields.contains(field.Name); });
    return table;
}

std::vector<jet::TableDef> asTheyWere(const std::vector<jet::TableDef>& tables) {
    std::vector<jet::TableDef> result;
    for (const jet::TableDef& table : tables)
        if (!kLateTables.contains(table.Name)) result.push_back(asItWas(table));
    return result;
}

/// A house of long ago: all its files lack the tables and fields that came later.
class OldHouse : public testing::Test {
protected:
    support::JetFolder folder{.folder = support::TempFolder(support::TempFolder::Place::Memory)};
    store::UpgradeFiles files{folder.file("Beispiel.mdb"),
                              folder.file("Zentral.mdb"),
                              folder.file("Herbergo.mdb"),
                              {folder.file("Lokal.mdb"), folder.file("Zentral.mdb")}};
    int questions = 0;

    OldHouse() {
        make("Zentral.mdb", store::tablesOf(HomeFile::Zentral));
        make("Herbergo.mdb", store::tablesOf(HomeFile::Herbergo));
        make("Beispiel.mdb", store::sampleFileTables());
        std::vector<jet::TableDef> links;
        for (const auto& file : {files.Zentral, files.Pfad})
            for (const std::string& table : open(file).TableNames())
                links.push_back(store::linkDef(store::linkConnect(file), table));
        folder.create("Lokal.mdb", store::openConnect()).AppendTableDefs(links);
    }

    void make(std::string_view name, const std::vector<jet::TableDef>& tables) {
        folder.create(name, store::openConnect()).AppendTableDefs(asTheyWere(tables));
    }
    [[nodiscard]] jet::Database open(const std::string& path) const {
        return folder.workspace.OpenDatabase(path, false, false, store::openConnect());
    }
    void upgrade(UpgradeTarget target) {
        const bool sample = target == UpgradeTarget::Beispiel;
        const std::string& zentral = sample ? files.Beispiel : files.Zentral;
        store::addBemerkAdr(folder.workspace, zentral);
        store::CreateFieldWäscheHaupt(folder.workspace, zentral, sample ? files.Beispiel : files.Pfad);
        store::upgradeTables(folder.workspace, files, target, [&] {
            ++questions;
            return false;
        });
    }
    [[nodiscard]] std::optional<jet::FieldDef> field(const std::string& file, std::string_view table,
                                                     std::string_view name) const {
        jet::Database database = open(file);
        if (!database.HasTable(table)) return std::nullopt;
        for (const jet::FieldDef& found : database.GetTableDef(table).Fields)
            if (jet::SqlName(found.Name) == jet::SqlName(name)) return found;
        return std::nullopt;
    }
};

struct LateField {
    HomeFile home;
    std::string_view table, name;
    FieldType type;
    bool emptyAllowed = false;
};
constexpr LateField kAdded[] = {
    {HomeFile::Herbergo, "tbZimmernummern", "katBlockBuchung", FieldType::Text, true},
    {HomeFile::Herbergo, "tbBlockbuchung", "IDBlockbuchung", FieldType::Integer},
    {HomeFile::Herbergo, "tbBlockbuchung", "IDBelegung", FieldType::Integer},
    {HomeFile::Herbergo, "tbBlockbuchung", "WannAngelegt", FieldType::Date},
    {HomeFile::Herbergo, "tbBlockbuchung", "BlVorname", FieldType::Text},
    {HomeFile::Herbergo, "tbBlockbuchung", "BlNachname", FieldType::Text},
    {HomeFile::Herbergo, "tbBlockbuchung", "Master", FieldType::Boolean},
    {HomeFile::Herbergo, "tbKategorie", "blKategorie", FieldType::Text, true},
    {HomeFile::Herbergo, "tbZahlart", "Zahlarten", FieldType::Text, true},
    {HomeFile::Herbergo, "tblParameter", "F24", FieldType::Text, true},
    {HomeFile::Herbergo, "tblParameter", "F28", FieldType::Text, true},
    {HomeFile::Herbergo, "tbZimmernummern", "AnzahlGästeDefault", FieldType::Integer},
    {HomeFile::Herbergo, "tbZimmernummern", "PreisDefault", FieldType::Double},
    {HomeFile::Zentral, "tblBelegung", "Zahlart", FieldType::Text, true},
    {HomeFile::Zentral, "tblBelegung", "Wäsche1", FieldType::Integer},
    {HomeFile::Zentral, "tblBelegung", "Wäsche2", FieldType::Integer},
    {HomeFile::Zentral, "tblBelegung", "Frühstück", FieldType::Boolean},
    {HomeFile::Zentral, "Address", "BemerkAdr", FieldType::Memo, true},
};

TEST_F(OldHouse, GetsWhatCameLaterInTheFileThatIsMeant) {
    for (const UpgradeTarget target : {UpgradeTarget::Echt, UpgradeTarget::Beispiel}) {
        const bool sample = target == UpgradeTarget::Beispiel;
        const std::string sampleBefore = fileBytes(files.Beispiel);
        const std::string realBefore =
            fileBytes(files.Zentral) + fileBytes(files.Pfad) + fileBytes(files.Links.LokalDB);
        upgrade(target);
        for (const LateField& added : kAdded) {
            SCOPED_TRACE(std::string(added.table) + "." + std::string(added.name));
            const std::string& home = added.home == HomeFile::Zentral ? files.Zentral : files.Pfad;
            const auto found = field(sample ? files.Beispiel : home, added.table, added.name);
            ASSERT_TRUE(found);
            EXPECT_EQ(found->Type, added.type);
            if (added.type == FieldType::Text || added.type == FieldType::Memo) {
                EXPECT_EQ(found->AllowZeroLength, added.emptyAllowed);
            }
            EXPECT_EQ(found->Size, added.type == FieldType::Text ? 50 : 0);
        }
        if (sample)
            EXPECT_EQ(fileBytes(files.Zentral) + fileBytes(files.Pfad) + fileBytes(files.Links.LokalDB), realBefore);
        else
            EXPECT_EQ(fileBytes(files.Beispiel), sampleBefore);
    }
    EXPECT_EQ(questions, 0);
}

TEST_F(OldHouse, TheSecondTimeNothingChanges) {
    upgrade(UpgradeTarget::Echt);
    upgrade(UpgradeTarget::Beispiel);
    open(files.Zentral).Execute("INSERT INTO tblBelegung ( ID, Wäsche1 ) values( 1, 2)");
    const auto bytes = [&] {
        return fileBytes(files.Zentral) + fileBytes(files.Pfad) + fileBytes(files.Beispiel) +
               fileBytes(files.Links.LokalDB);
    };
    const std::string before = bytes();
    upgrade(UpgradeTarget::Echt);
    upgrade(UpgradeTarget::Beispiel);
    store::BeispielBlockSicherung(folder.workspace, files.Beispiel);
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(questions, 0);
}

TEST_F(OldHouse, AFieldInOtherLettersIsThere) {
    open(files.Zentral).AppendField("tblBelegung", jet::CreateField("WÄSCHE1", FieldType::Integer));
    open(files.Zentral).AppendField("Address", jet::CreateField("bemerkadr", FieldType::Memo));
    open(files.Pfad).AppendField("tblParameter", jet::CreateField("f26", FieldType::Text, 20));
    open(files.Zentral).Execute("INSERT INTO tblBelegung ( ID, Wäsche1 ) values( 1, 2)");
    upgrade(UpgradeTarget::Echt);
    EXPECT_EQ(questions, 0);
    EXPECT_EQ(field(files.Pfad, "tblParameter", "F26")->Size, 20);
    EXPECT_TRUE(field(files.Pfad, "tblParameter", "F28"));
    // the days were there: what a stay has is its own
    jet::Database shared = open(files.Zentral);
    EXPECT_EQ(support::allRows(shared, "SELECT Wäsche1, Wäsche2, Frühstück FROM tblBelegung"), "2 Null Falsch");
}

TEST_F(OldHouse, StaysThatWereThereGetTheirLaundryDays) {
    jet::Database shared = open(files.Zentral);
    shared.Execute("INSERT INTO tblBelegung ( ID ) values( 1)");
    shared.Execute("INSERT INTO tblBelegung ( ID ) values( 2)");
    store::CreateFieldWäscheHaupt(folder.workspace, files.Zentral, files.Pfad);
    EXPECT_EQ(support::allRows(shared, "SELECT Wäsche1, Wäsche2, Frühstück FROM tblBelegung"), "6 3 Wahr | 6 3 Wahr");
}

TEST_F(OldHouse, AddedTablesGetTheirLinkAndTheOpenHouseReachesThem) {
    jet::Database house = open(files.Links.LokalDB);
    EXPECT_FALSE(house.HasTable("tbBlockbuchung"));
    upgrade(UpgradeTarget::Echt);
    house.Execute("INSERT INTO tbBlockbuchung ( IDBlockbuchung, IDBelegung, Master ) values( 1, 7, True)");
    house.Execute("INSERT INTO tblBelegung ( ID, Zahlart ) values( 7, '')");
    EXPECT_EQ(support::allRows(house, "SELECT IDBelegung, Zahlart FROM tbBlockbuchung INNER JOIN tblBelegung ON "
                                      "tbBlockbuchung.IDBelegung = tblBelegung.ID"),
              "7 ");
    EXPECT_EQ(house.OpenRecordset("tbKategorie").RecordCount(), 0);
    // another workstation added the table: this one still lacks the link
    house.DeleteTableDef("tbZahlart");
    upgrade(UpgradeTarget::Echt);
    EXPECT_EQ(house.OpenRecordset("tbZahlart").RecordCount(), 0);
}

TEST_F(OldHouse, AFailedStepAsksAndARetryDoesAllOfIt) {
    open(files.Pfad).DeleteTableDef("tblParameter");
    int asked = 0;
    store::upgradeTables(folder.workspace, files, UpgradeTarget::Echt, [&] {
        if (++asked == 1) return true;
        jet::TableDef table = asItWas(store::findTable("tblParameter")->definition);
        open(files.Pfad).AppendTableDef(table);
        return true;
    });
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(field(files.Pfad, "tblParameter", "F28"));
    EXPECT_TRUE(field(files.Zentral, "tblBelegung", "Zahlart"));
}

TEST_F(OldHouse, ACancelledStepLeavesTheOthersTheirTurn) {
    open(files.Pfad).DeleteTableDef("tblParameter");
    open(files.Pfad).DeleteTableDef("tbZimmernummern");
    upgrade(UpgradeTarget::Echt);
    EXPECT_EQ(questions, 2);
    EXPECT_FALSE(field(files.Pfad, "tbBlockbuchung", "IDBlockbuchung")); // behind the failure of its step
    EXPECT_TRUE(field(files.Pfad, "tbKategorie", "blKategorie"));
    EXPECT_TRUE(field(files.Zentral, "tblBelegung", "Zahlart"));

    questions = 0;
    files = {"", "", folder.file("Fehlt.mdb"), {}};
    upgrade(UpgradeTarget::Echt);
    EXPECT_EQ(questions, 4);
    EXPECT_FALSE(std::filesystem::exists(folder.file("Fehlt.mdb")));
    upgrade(UpgradeTarget::Beispiel); // no path, nothing to do
    EXPECT_EQ(questions, 4);
}

TEST_F(OldHouse, TheParametersCanBeDoneAlone) {
    store::upgradeParameters(folder.workspace, files, UpgradeTarget::Echt, [] { return false; });
    EXPECT_TRUE(field(files.Pfad, "tblParameter", "F28"));
    EXPECT_FALSE(field(files.Pfad, "tbKategorie", "blKategorie"));
    store::BeispielBlockSicherung(folder.workspace, files.Beispiel);
    ASSERT_TRUE(field(files.Beispiel, "tbKategorie", "blKategorie"));
    EXPECT_TRUE(field(files.Beispiel, "tbKategorie", "blKategorie")->AllowZeroLength);
    EXPECT_EQ(field(files.Beispiel, "tbKategorie", "blKategorie")->Size, 50);
}

} // namespace
