#include "store/new_house.h"

#include "store/base_lists.h"
#include "store/database_files.h"
#include "store/links.h"
#include "store/postal_codes.h"
#include "store/sample_house.h"
#include "store/schema.h"

#include <filesystem>
#include <system_error>

namespace store {

namespace {

namespace fs = std::filesystem;

/// Takes back files and folders that were made, the last one first, unless they are to stay.
class Scaffold {
public:
    Scaffold() = default;
    Scaffold(const Scaffold&) = delete;
    Scaffold& operator=(const Scaffold&) = delete;
    ~Scaffold() {
        std::error_code ignored;
        for (; !made_.empty(); made_.pop_back()) {
            fs::remove(made_.back(), ignored);
            fs::remove(made_.back().string() + "-journal", ignored);
        }
    }

    void add(fs::path path) { made_.push_back(std::move(path)); }
    void keep() { made_.clear(); }

private:
    std::vector<fs::path> made_;
};

void requireNoHouse(const std::string& folder) {
    for (const std::string& name : houseFiles()) {
        std::error_code ignored;
        if (fs::symlink_status(joinPath(folder, name), ignored).type() != fs::file_type::not_found)
            throw jet::Error(static_cast<int>(jet::ErrorNumber::FileExists), "Im Ordner '" + folder +
                                                                                 "' liegt bereits die Datei " + name +
                                                                                 ". Es wurde nichts verändert.");
    }
}

// Links name their files in a text whose parts a semicolon separates.
void requireLinkable(const fs::path& folder) {
    if (folder.string().find(';') != std::string::npos)
        throw jet::Error(static_cast<int>(jet::ErrorNumber::InvalidPath),
                         "Im Pfad '" + folder.string() + "' darf kein Semikolon stehen.");
}

void makeFolder(const fs::path& folder, Scaffold& scaffold) {
    if (folder.empty() || fs::is_directory(folder)) return;
    makeFolder(folder.parent_path(), scaffold);
    std::error_code error;
    if (!fs::create_directory(folder, error) || error) jet::raise(jet::ErrorNumber::InvalidPath, folder.string());
    scaffold.add(folder);
}

jet::Database createFile(const jet::Workspace& workspace, const std::string& path, Scaffold& scaffold) {
    jet::Database database = workspace.CreateDatabase(path, openConnect());
    scaffold.add(path);
    return database;
}

template <typename Fill>
void inOneTransaction(jet::Database& database, std::string_view homeTable, Fill fill) {
    jet::Transaction transaction(database, homeTable);
    fill(database);
    transaction.Commit();
}

void createZentral(const jet::Workspace& workspace, const std::string& path, Scaffold& scaffold) {
    jet::Database database = createFile(workspace, path, scaffold);
    database.AppendTableDefs(tablesOf(HomeFile::Zentral));
    inOneTransaction(database, "tblBelegung", fillSharedLists);
}

void createHerbergo(const jet::Workspace& workspace, const std::string& path, Scaffold& scaffold) {
    jet::Database database = createFile(workspace, path, scaffold);
    database.AppendTableDefs(tablesOf(HomeFile::Herbergo));
    inOneTransaction(database, "tblParameter", fillSourceLists);
}

void createLokal(const jet::Workspace& workspace, const std::string& folder, Scaffold& scaffold) {
    const FileNames names = fileNames();
    jet::Database database = createFile(workspace, joinPath(folder, names.Lokal), scaffold);
    const std::string zentral = fs::absolute(joinPath(folder, names.Zentral)).lexically_normal().string();
    const std::string herbergo = fs::absolute(joinPath(folder, names.Herbergo)).lexically_normal().string();
    std::vector<jet::TableDef> links;
    for (const SchemaTable& entry : schema())
        links.push_back(
            linkDef(linkConnect(entry.home == HomeFile::Zentral ? zentral : herbergo), entry.definition.Name));
    database.AppendTableDefs(links);
}

void createBeispiel(const jet::Workspace& workspace, const std::string& path, const NewHouse& house,
                    Scaffold& scaffold) {
    jet::Database database = createFile(workspace, path, scaffold);
    database.AppendTableDefs(sampleFileTables());
    inOneTransaction(database, "tblBelegung", fillSharedLists);
    inOneTransaction(database, "tblParameter", fillSourceLists);
    if (house.beispieldatei) fillSampleHouse(database, house.Jetzt);
}

void createFeiertag(const jet::Workspace& workspace, const std::string& path, const NewHouse& house,
                    Scaffold& scaffold) {
    jet::Database database = createFile(workspace, path, scaffold);
    database.AppendTableDefs(holidayFileTables());
    if (!house.postleitzahlen) return;
    storePostalCodes(database, readPostalCodes(builtInPostalCodes()).rows, ExistingCodes::Replace);
}

void createFiles(const jet::Workspace& workspace, const NewHouse& house, Scaffold& scaffold) {
    const FileNames names = fileNames();
    createZentral(workspace, joinPath(house.Ordner, names.Zentral), scaffold);
    createHerbergo(workspace, joinPath(house.Ordner, names.Herbergo), scaffold);
    createBeispiel(workspace, joinPath(house.Ordner, names.Beispiel), house, scaffold);
    createFeiertag(workspace, joinPath(house.Ordner, kHolidayFile), house, scaffold);
    createLokal(workspace, house.Ordner, scaffold);
}

void fillHouse(const jet::Workspace& workspace, const NewHouse& house) {
    jet::Database database =
        workspace.OpenDatabase(joinPath(house.Ordner, fileNames().Lokal), false, false, openConnect());
    fillSampleHouse(database, house.Jetzt);
}

} // namespace

std::vector<std::string> houseFiles() {
    const FileNames names = fileNames();
    return {names.Zentral, names.Herbergo, names.Lokal, names.Beispiel, std::string(kHolidayFile)};
}

void createHouse(const jet::Workspace& workspace, const NewHouse& house) {
    requireNoHouse(house.Ordner);
    const fs::path folder = fs::absolute(house.Ordner).lexically_normal();
    requireLinkable(folder);
    Scaffold scaffold;
    makeFolder(folder, scaffold);
    createFiles(workspace, house, scaffold);
    if (house.mitBeispiel) fillHouse(workspace, house);
    scaffold.keep();
}

} // namespace store
