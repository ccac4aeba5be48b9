#include "platform/jet/connection.h"
#include "platform/jet/data_file.h"
#include "platform/jet/workspace.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

namespace jet {

namespace {

/// What is wrong with a file, one line for each finding; empty when all is well.
std::vector<std::string> findings(sqlite3* storage) {
    const StatementHandle statement = prepareStatement(storage, "PRAGMA main.integrity_check");
    std::vector<std::string> lines;
    while (stepRow(statement.get()))
        lines.push_back(columnText(statement.get(), 0));
    if (lines == std::vector<std::string>{"ok"}) lines.clear();
    return lines;
}

/// An index that misses rows, or has some too many, is made anew from the rows.
bool isIndexFinding(std::string_view line) {
    const bool rowMissing = line.starts_with("row ") && line.find(" missing from index ") != std::string_view::npos;
    return rowMissing || line.starts_with("wrong # of entries in index ") ||
           line.starts_with("non-unique entry in index ") || line.starts_with("index ");
}

void reindexAll(sqlite3* storage) {
    for (const auto& [name, table] : readTables(storage, "main"))
        run(storage, "REINDEX " + table->qualifiedName());
}

/// Raises 3049 when the rebuilt indexes do not fit the rows either: then the rows themselves are hurt.
void rebuildIndexes(sqlite3* storage, const std::string& path) {
    try {
        reindexAll(storage);
    } catch (const Error& error) {
        if (error.number() == static_cast<int>(ErrorNumber::KeyViolation)) raise(ErrorNumber::Corrupt, path);
        throw;
    }
    if (!findings(storage).empty()) raise(ErrorNumber::Corrupt, path);
}

std::shared_ptr<Connection> openAlone(const Workspace& workspace, const std::string& path, std::string_view connect) {
    const OpenOptions options{path, readConnect(connect).password, false, false, FileCatalogue::Links::Ignore};
    return std::make_shared<Connection>(workspace.settings(), options);
}

struct FinishBackup {
    void operator()(sqlite3_backup* backup) const noexcept { sqlite3_backup_finish(backup); }
};

/// The whole file in one step: nobody writes in between, so the copy is of one moment.
void copyAll(sqlite3* from, sqlite3* to, int timeout) {
    const std::unique_ptr<sqlite3_backup, FinishBackup> backup(sqlite3_backup_init(to, "main", from, "main"));
    if (!backup) raiseStorageError(to);
    sqlite3_busy_timeout(to, timeout);
    constexpr int wholeFile = -1;
    const int result = sqlite3_backup_step(backup.get(), wholeFile);
    if (result == SQLITE_BUSY || result == SQLITE_LOCKED) raise(ErrorNumber::Locked);
    if (result == SQLITE_DONE) return;
    if (result == SQLITE_FULL) raise(ErrorNumber::DiskFull);
    raiseStorageError(to);
}

} // namespace

void RepairDatabase(const Workspace& workspace, const std::string& path, std::string_view connect) {
    const std::shared_ptr<Connection> connection = openAlone(workspace, path, connect);
    const std::vector<std::string> lines = findings(connection->storage());
    if (lines.empty()) return;
    if (!std::ranges::all_of(lines, isIndexFinding)) raise(ErrorNumber::Corrupt, path);
    rebuildIndexes(connection->storage(), path);
}

void CompactDatabase(const Workspace& workspace, const std::string& from, const std::string& to,
                     std::string_view connect) {
    UnfinishedFile target(absolutePath(to));
    const std::shared_ptr<Connection> connection = openAlone(workspace, from, connect);
    run(connection->storage(), "VACUUM main INTO ?1", std::array{fileUri(target.path(), FileMode::Create)});
    connection->close();
    target.publish();
}

void BackupDatabase(const Workspace& workspace, const std::string& from, const std::string& to,
                    std::string_view connect) {
    UnfinishedFile target(absolutePath(to));
    const std::shared_ptr<Connection> connection = openAlone(workspace, from, connect);
    {
        const StorageHandle copy = openStorage(target.path(), FileMode::Create, *workspace.settings()->clock);
        copyAll(connection->storage(), copy.get(), workspace.settings()->lockTimeout);
    }
    connection->close();
    target.publish();
}

} // namespace jet
