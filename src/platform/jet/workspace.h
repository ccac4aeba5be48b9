#pragma once

#include "platform/jet/database.h"
#include "platform/services/clock.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace jet {

struct WorkspaceSettings;

/// Opens data files. All statements of its databases ask its clock.
class Workspace {
public:
    /// The clock must outlive the workspace and its databases.
    explicit Workspace(const services::Clock& clock);

    /// `connect` is ";PWD=password" or empty. Raises 3024 (no file), 3044 (no such folder), 3343 (not a data file of
    /// the house; a real Jet file is named as such), 3049 (damaged), 3031 (password), 3051 (no permission). A missing
    /// file is never created.
    [[nodiscard]] Database OpenDatabase(const std::string& path, bool exclusive = false, bool readOnly = false,
                                        std::string_view connect = {}) const;
    /// Lets `database` close its file and open another in place. On an error it stays closed.
    void Reopen(Database& database, const std::string& path, std::string_view connect) const;
    /// An empty data file. 3204 when something is there already.
    [[nodiscard]] Database CreateDatabase(const std::string& path, std::string_view connect) const;

    /// Called again and again while a file is locked by another process: milliseconds waited so far. Giving false ends
    /// the wait.
    void setWaitCallback(std::function<bool(int)> callback);
    /// How long to wait for a locked file, in milliseconds; 15000 at first.
    void setLockTimeout(int milliseconds);

    [[nodiscard]] const std::shared_ptr<WorkspaceSettings>& settings() const { return settings_; }

private:
    std::shared_ptr<WorkspaceSettings> settings_; ///< shared with its databases, open ones too
};

/// Rolls back unless Commit() was called. Holds the write lock on the home file of `homeTable` from the start; writing
/// a table of another file inside it is an assertion. Only one at a time on a database.
class Transaction {
public:
    Transaction(Database& database, std::string_view homeTable);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    void Commit();
    void Rollback();

private:
    std::shared_ptr<Connection> connection_;
    bool open_ = true;
};

/// Opens the file (which rolls back what a crash left), checks it, and rebuilds its indexes if only they are hurt. Rows
/// are never rewritten: a file hurt beyond its indexes raises 3049.
void RepairDatabase(const Workspace& workspace, const std::string& path, std::string_view connect);

/// Writes a compact copy with the same password. 3204 when the target exists.
void CompactDatabase(const Workspace& workspace, const std::string& from, const std::string& to,
                     std::string_view connect);

/// A consistent copy of a file that others may have open. 3204 when the target exists.
void BackupDatabase(const Workspace& workspace, const std::string& from, const std::string& to,
                    std::string_view connect);

} // namespace jet
