#include "store/upgrades.h"

#include "platform/basic/quietly.h"
#include "platform/jet/sql_name.h"
#include "store/database_files.h"
#include "store/schema.h"
#include "store/table_fields.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>

namespace store {

namespace {

using basic::quietly;
using jet::FieldType;

// --- steps with a question

/// A field to append, or (FeldName of a number column left empty) a table to begin with.
struct Change {
    std::string_view TabellenName;
    std::string_view FeldName;
    FieldType FeldTyp;
    bool LeerErlaubt = false;
    bool NeueTabelle = false;
};

constexpr int kTextSize = 50;
constexpr auto kNew = true;
constexpr auto kEmptyAllowed = true;

constexpr std::array<Change, 7> kBlocks = {{
    {"tbZimmernummern", "katBlockBuchung", FieldType::Text, kEmptyAllowed},
    {"tbBlockbuchung", "", FieldType::Integer, false, kNew},
    // 16 bits, as in every file that was ever upgraded
    {"tbBlockbuchung", "IDBelegung", FieldType::Integer},
    {"tbBlockbuchung", "WannAngelegt", FieldType::Date},
    {"tbBlockbuchung", "BlVorname", FieldType::Text},
    {"tbBlockbuchung", "BlNachname", FieldType::Text},
    {"tbBlockbuchung", "Master", FieldType::Boolean},
}};
constexpr std::array<Change, 1> kCategories = {{
    {"tbKategorie", "blKategorie", FieldType::Text, kEmptyAllowed, kNew},
}};
constexpr std::array<Change, 1> kPaymentKinds = {{
    {"tbZahlart", "Zahlarten", FieldType::Text, kEmptyAllowed, kNew},
}};
constexpr std::array<Change, 5> kParameters = {{
    {"tblParameter", "F24", FieldType::Text, kEmptyAllowed},
    {"tblParameter", "F25", FieldType::Text, kEmptyAllowed},
    {"tblParameter", "F26", FieldType::Text, kEmptyAllowed},
    {"tblParameter", "F27", FieldType::Text, kEmptyAllowed},
    {"tblParameter", "F28", FieldType::Text, kEmptyAllowed},
}};
constexpr std::array<Change, 1> kStays = {{
    {"tblBelegung", "Zahlart", FieldType::Text, kEmptyAllowed},
}};

struct Step {
    HomeFile home;
    std::span<const Change> changes;
};

constexpr Step kParameterStep = {HomeFile::Herbergo, kParameters};
constexpr std::array<Step, 5> kSteps = {{{HomeFile::Herbergo, kBlocks},
                                         {HomeFile::Herbergo, kCategories},
                                         {HomeFile::Herbergo, kPaymentKinds},
                                         kParameterStep,
                                         {HomeFile::Zentral, kStays}}};

/// What one step works on.
struct Place {
    const jet::Workspace& workspace;
    const UpgradeFiles& files;
    UpgradeTarget target;

    [[nodiscard]] const std::string& file(HomeFile home) const {
        if (target == UpgradeTarget::Beispiel) return files.Beispiel;
        return home == HomeFile::Zentral ? files.Zentral : files.Pfad;
    }
};

bool hasField(const jet::TableDef& table, std::string_view name) {
    const jet::SqlName wanted(name);
    return std::ranges::any_of(table.Fields,
                               [&](const jet::FieldDef& field) { return jet::SqlName(field.Name) == wanted; });
}

bool isLinked(const Place& place, const std::string& table) {
    return tableIsLinked(place.workspace.OpenDatabase(place.files.Links.LokalDB, false, false, openConnect()), table);
}

bool link(const Place& place, const std::string& table, const std::string& file) {
    if (place.target == UpgradeTarget::Beispiel || place.files.Links.LokalDB.empty()) return true;
    return quietly([&] {
        if (!isLinked(place, table)) linkOrRefresh(place.workspace, place.files.Links, true, table, file);
    });
}

bool apply(const Place& place, const std::string& file, const Change& change) {
    const clsTabFelder felder = {file,
                                 std::string(kPassword),
                                 std::string(change.TabellenName),
                                 std::string(change.FeldName),
                                 change.FeldTyp,
                                 kTextSize,
                                 change.LeerErlaubt};
    if (!change.NeueTabelle) return felder.Anfügen(place.workspace);
    return felder.NeueTabelle(place.workspace) && link(place, felder.TabellenName, file);
}

void run(const Place& place, const Step& step, const RetryQuestion& retry) {
    const std::string& file = place.file(step.home);
    if (file.empty()) return;
    const auto succeeded = [&] {
        return std::ranges::all_of(step.changes, [&](const Change& change) { return apply(place, file, change); });
    };
    while (!succeeded() && retry()) {
    }
}

// --- the look that most starts leave it at

jet::Database open(const Place& place, const std::string& file) {
    return place.workspace.OpenDatabase(file, false, false, openConnect());
}

bool holdsAll(const jet::Database& database, std::span<const Change> changes) {
    jet::TableDef table;
    return std::ranges::all_of(changes, [&](const Change& change) {
        if (!database.HasTable(change.TabellenName)) return false;
        if (table.Name != change.TabellenName) table = database.GetTableDef(change.TabellenName);
        return change.NeueTabelle || hasField(table, change.FeldName);
    });
}

/// Has the file everything that the steps on it add?
bool fileHoldsAll(const Place& place, HomeFile home) {
    const std::string& file = place.file(home);
    if (file.empty()) return true;
    const jet::Database database = open(place, file);
    return std::ranges::all_of(kSteps,
                               [&](const Step& step) { return step.home != home || holdsAll(database, step.changes); });
}

bool linksHoldAll(const Place& place) {
    if (place.target == UpgradeTarget::Beispiel || place.files.Links.LokalDB.empty()) return true;
    const jet::Database links = open(place, place.files.Links.LokalDB);
    return std::ranges::all_of(kSteps, [&](const Step& step) {
        return std::ranges::all_of(step.changes, [&](const Change& change) {
            return !change.NeueTabelle || tableIsLinked(links, change.TabellenName);
        });
    });
}

/// The steps open their file for each change; a house that has everything is not to wait for that.
bool isUpToDate(const Place& place) {
    return quietly(false, [&] {
        return fileHoldsAll(place, HomeFile::Herbergo) && fileHoldsAll(place, HomeFile::Zentral) && linksHoldAll(place);
    });
}

// --- older steps

/// Appends the fields that the table lacks; gives the last of their names, empty where none was missing.
std::string appendMissing(jet::Database& database, std::string_view table,
                          std::initializer_list<jet::FieldDef> fields) {
    const jet::TableDef before = database.GetTableDef(table);
    std::string last;
    for (const jet::FieldDef& field : fields) {
        if (hasField(before, field.Name)) continue;
        database.AppendField(table, field);
        last = field.Name;
    }
    return last;
}

/// Opens the file for the step; an error ends it, what it did until then stays.
template <typename Action>
void inFile(const jet::Workspace& workspace, const std::string& file, Action action) {
    if (file.empty()) return;
    quietly([&] {
        jet::Database database = workspace.OpenDatabase(file, false, false, openConnect());
        action(database);
    });
}

void appendLaundry(jet::Database& database) {
    // Wäsche1 comes last: as long as it is absent, a step that was cut short starts over and the rows get their days.
    const std::string last = appendMissing(database, "tblBelegung",
                                           {jet::CreateField("Wäsche2", FieldType::Integer),
                                            jet::CreateField("Frühstück", FieldType::Boolean),
                                            jet::CreateField("Wäsche1", FieldType::Integer)});
    if (last == "Wäsche1")
        database.Execute("UPDATE tblBelegung SET tblBelegung.Wäsche1 = 6, tblBelegung.Wäsche2 = 3, "
                         "tblBelegung.Frühstück = True;");
}

void appendRoomDefaults(jet::Database& database) {
    appendMissing(database, "tbZimmernummern",
                  {jet::CreateField("AnzahlGästeDefault", FieldType::Integer),
                   jet::CreateField("PreisDefault", FieldType::Double)});
}

} // namespace

void upgradeTables(const jet::Workspace& workspace, const UpgradeFiles& files, UpgradeTarget target,
                   const RetryQuestion& retry) {
    const Place place = {workspace, files, target};
    if (isUpToDate(place)) return;
    for (const Step& step : kSteps)
        run(place, step, retry);
}

void upgradeParameters(const jet::Workspace& workspace, const UpgradeFiles& files, UpgradeTarget target,
                       const RetryQuestion& retry) {
    run({workspace, files, target}, kParameterStep, retry);
}

void addBemerkAdr(const jet::Workspace& workspace, const std::string& file) {
    inFile(workspace, file, [](jet::Database& database) {
        jet::FieldDef remark = jet::CreateField("BemerkAdr", FieldType::Memo);
        remark.AllowZeroLength = true;
        appendMissing(database, "Address", {remark});
    });
}

void BeispielBlockSicherung(const jet::Workspace& workspace, const std::string& beispiel) {
    inFile(workspace, beispiel, [](jet::Database& database) {
        if (database.HasTable("tbKategorie")) return;
        jet::FieldDef word = jet::CreateField("blKategorie", FieldType::Text, kTextSize);
        word.AllowZeroLength = true;
        jet::TableDef table;
        table.Name = "tbKategorie";
        table.Fields = {word};
        database.AppendTableDef(table);
    });
}

void CreateFieldWäscheHaupt(const jet::Workspace& workspace, const std::string& zentral, const std::string& pfad) {
    inFile(workspace, zentral, appendLaundry);
    inFile(workspace, pfad, appendRoomDefaults);
}

} // namespace store
