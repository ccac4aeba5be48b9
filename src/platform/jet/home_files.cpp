#include "platform/jet/home_files.h"

#include "platform/basic/text.h"
#include "platform/jet/data_file.h"
#include "platform/jet/properties.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

namespace jet {

namespace {

const PropertyName collationProperty{"", "", "Collation"};

bool isReadOnly(sqlite3* storage, const std::string& schema) {
    return sqlite3_db_readonly(storage, schema.c_str()) != 0;
}

std::int64_t schemaVersion(sqlite3* storage, const std::string& schema) {
    return queryNumber(storage, "PRAGMA " + jet::quoted(schema) + ".schema_version");
}

void reindex(sqlite3* storage, const std::string& schema) {
    for (const auto& [name, table] : readTables(storage, schema))
        run(storage, "REINDEX " + jet::quoted(schema) + "." + jet::quoted(table->storedName));
}

} // namespace

void storeCollationVersion(sqlite3* storage, const std::string& schema) {
    writeProperty(storage, schema, collationProperty, basic::collationVersion());
}

void rebuildOutdatedIndexes(sqlite3* storage, const std::string& schema) {
    if (readProperty(storage, schema, collationProperty) == basic::collationVersion()) return;
    if (isReadOnly(storage, schema)) return;
    reindex(storage, schema);
    storeCollationVersion(storage, schema);
}

HomeFiles::HomeFiles(sqlite3* storage, const std::string& mainPath, bool readOnly)
    : storage_(storage), readOnly_(readOnly) {
    main_.path = mainPath;
    main_.schema = "main";
    main_.attached = true;
}

HomeFile& HomeFiles::entry(const std::string& path) {
    const auto [place, isNew] = homes_.try_emplace(path);
    if (isNew) {
        place->second.path = path;
        place->second.schema = "h" + std::to_string(homes_.size());
    }
    return place->second;
}

std::vector<HomeFile*> HomeFiles::inOrder() {
    std::vector<HomeFile*> files;
    for (auto& [path, file] : homes_)
        files.push_back(&file);
    std::ranges::stable_sort(files, {}, [](const HomeFile* file) {
        return std::pair(std::filesystem::path(file->path).filename().string(), file->path);
    });
    return files;
}

void HomeFiles::detach(HomeFile& file) {
    if (file.attached) run(storage_, "DETACH " + jet::quoted(file.schema));
    file.attached = false;
    file.tables.clear();
    file.passwords.clear();
}

void HomeFiles::attach(HomeFile& file) {
    requireReadableFile(file.path);
    const std::array texts{fileUri(file.path, readOnly_ ? FileMode::ReadOnly : FileMode::ReadWrite)};
    try {
        run(storage_, "ATTACH ?1 AS " + jet::quoted(file.schema), texts);
        file.attached = true;
        requireDataFile(storage_, file.schema, file.path);
        rebuildOutdatedIndexes(storage_, file.schema);
        load(file);
    } catch (const Error& error) {
        const bool foreign = sqlite3_errcode(storage_) == SQLITE_NOTADB;
        detach(file);
        if (foreign) raiseForeignFile(file.path);
        throw Error(error.number(), error.text() + " " + file.path);
    }
}

/// All or none stay attached on the way, since the place in the order counts, not the time of coming.
void HomeFiles::attachInOrder() {
    const std::vector<HomeFile*> files = inOrder();
    for (HomeFile* file : files)
        detach(*file);
    for (HomeFile* file : files) {
        if (!wanted_.contains(file->path)) continue;
        try {
            attach(*file);
        } catch (const Error&) {
            // Its tables raise the error when a statement names them.
            file->attached = false;
        }
    }
}

void HomeFiles::attachAll(const std::set<std::string>& paths) {
    for (const std::string& path : paths)
        if (path != main_.path) std::ignore = entry(path);
    // Attaching costs several reads of the file, perhaps over the network: not for links that lead to the same files.
    if (std::exchange(wanted_, paths) != paths) attachInOrder();
}

HomeFile& HomeFiles::require(const std::string& path, const std::string& password) {
    HomeFile& file = path == main_.path ? main_ : entry(path);
    if (!file.attached) {
        requireReadableFile(path);
        attach(file);
        wanted_.insert(path);
        attachInOrder();
        if (!file.attached) raise(ErrorNumber::CannotOpen, path);
    }
    if (!fits(file, password)) raise(ErrorNumber::WrongPassword, path);
    return file;
}

bool HomeFiles::fits(HomeFile& file, const std::string& password) {
    if (file.passwords.contains(password)) return true;
    if (!passwordFits(storage_, file.schema, password)) return false;
    file.passwords.insert(password);
    return true;
}

void HomeFiles::tryPassword(const std::string& path, const std::string& password) {
    const auto found = homes_.find(path);
    if (found != homes_.end() && found->second.attached) std::ignore = fits(found->second, password);
}

void HomeFiles::load(HomeFile& file) {
    file.schemaVersion = schemaVersion(storage_, file.schema);
    file.tables = readTables(storage_, file.schema);
}

void HomeFiles::reload() {
    load(main_);
    for (auto& [path, file] : homes_)
        if (file.attached) load(file);
}

bool HomeFiles::changed() const {
    const auto differs = [this](const HomeFile& file) {
        return file.attached && schemaVersion(storage_, file.schema) != file.schemaVersion;
    };
    return differs(main_) ||
           std::ranges::any_of(homes_, differs, [](const auto& item) -> const HomeFile& { return item.second; });
}

} // namespace jet
