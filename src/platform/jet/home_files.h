#pragma once

#include "platform/jet/catalogue.h"
#include "platform/jet/storage.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace jet {

/// The tables of one file, as stored, by folded name.
using StoredTables = std::map<std::string, TablePtr>;

/// A file whose tables a connection reaches: the opened one ("main") or the home file of links.
struct HomeFile {
    std::string path;
    std::string schema; ///< stays the same for a path as long as the connection lives
    bool attached = false;
    std::int64_t schemaVersion = -1;
    StoredTables tables;
    std::set<std::string> passwords; ///< those that have been found to fit
};

/// The files that a connection has open. They are attached in one fixed order, by file name and then path, so that all
/// stations lock in the same order.
class HomeFiles {
public:
    HomeFiles(sqlite3* storage, const std::string& mainPath, bool readOnly);

    [[nodiscard]] HomeFile& main() { return main_; }

    /// Attaches these files and lets go of all others. A file that cannot be reached is left for a later try.
    void attachAll(const std::set<std::string>& paths);
    /// The file, attached now if it was not. Raises that file's error: 3024 when it is missing, 3031 for a password
    /// that does not fit.
    [[nodiscard]] HomeFile& require(const std::string& path, const std::string& password);
    /// Tries a password on an attached file ahead of its use: tried inside a transaction, it would keep the file locked
    /// against other stations' writing until the end.
    void tryPassword(const std::string& path, const std::string& password);
    /// Reads the tables of all attached files again.
    void reload();
    /// Has another connection changed the tables of a file since they were read?
    [[nodiscard]] bool changed() const;

private:
    [[nodiscard]] HomeFile& entry(const std::string& path);
    [[nodiscard]] std::vector<HomeFile*> inOrder();
    [[nodiscard]] bool fits(HomeFile& file, const std::string& password);
    void detach(HomeFile& file);
    void attach(HomeFile& file);
    void attachInOrder();
    void load(HomeFile& file);

    sqlite3* storage_;
    bool readOnly_;
    HomeFile main_;
    std::map<std::string, HomeFile> homes_; ///< by path
    std::set<std::string> wanted_;
};

/// Reads the tables of an attached file from its schema.
[[nodiscard]] StoredTables readTables(sqlite3* storage, const std::string& schema);
/// Rebuilds the text indexes of a file that another version of the collation has built, where the file can be written.
void rebuildOutdatedIndexes(sqlite3* storage, const std::string& schema);
/// Notes the collation's version in a new file.
void storeCollationVersion(sqlite3* storage, const std::string& schema);

} // namespace jet
