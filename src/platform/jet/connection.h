#pragma once

#include "platform/jet/file_catalogue.h"
#include "platform/jet/row_block.h"
#include "platform/jet/statement_cache.h"
#include "platform/services/clock.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace jet {

/// What all databases of a workspace share.
struct WorkspaceSettings {
    const services::Clock* clock = nullptr;
    std::function<bool(int)> waitCallback;
    int lockTimeout = 15000; ///< milliseconds
};

struct OpenOptions {
    std::string path;
    std::string password;
    bool exclusive = false;
    bool readOnly = false;
    FileCatalogue::Links links = FileCatalogue::Links::Follow;
};

/// The rows of a SELECT with what they are.
struct RowsOfPlan {
    std::shared_ptr<const Compiled> plan;
    std::shared_ptr<PlanUse> use;
    RowBlock rows;
};

/// An open file: the storage's connection, the tables it knows, the statements it has translated.
class Connection {
public:
    /// Opens as Workspace::OpenDatabase tells.
    Connection(std::shared_ptr<const WorkspaceSettings> settings, const OpenOptions& options);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() = default;

    [[nodiscard]] bool isOpen() const { return storage_ != nullptr; }
    void close();
    [[nodiscard]] const std::string& path() const { return path_; }
    /// 3420 when closed.
    [[nodiscard]] sqlite3* storage() const;
    [[nodiscard]] FileCatalogue& catalogue();

    /// Runs a SELECT to its end.
    [[nodiscard]] RowsOfPlan query(std::string_view sql, Identities identities);
    /// Runs any other statement.
    void execute(std::string_view sql);
    [[nodiscard]] int recordsAffected() const { return recordsAffected_; }

    /// A statement in the storage's SQL, kept for the next time. Good as long as statementGeneration() stays the same.
    [[nodiscard]] sqlite3_stmt* keptStatement(const std::string& sql);
    [[nodiscard]] std::uint64_t statementGeneration() const { return statementGeneration_; }
    /// Runs a bound write on a file and gives the rows it hit.
    int write(sqlite3_stmt* statement, const std::string& schema);

    /// To be called before anything is written to a file. Inside a transaction another file than its own is a mistake
    /// of the program (std::logic_error); 3034 when the storage has given the transaction up.
    void requireWritable(const std::string& schema) const;
    /// Drops what was translated and reads the tables again, after a definition has changed.
    void schemaChanged();
    /// Sees what other connections have changed since.
    void refreshCatalogue();
    /// After a link of this file has been set: follows the links anew.
    void linksChanged();

    [[nodiscard]] bool inTransaction() const { return !transactionSchema_.empty(); }
    void begin(const std::string& schema);
    void commit();
    void rollback() noexcept;

private:
    static int onBusy(void* connection, int attempts) noexcept;
    [[nodiscard]] bool waitOn(int attempts);
    void openChecked(const OpenOptions& options);
    void openExclusively(bool readOnly);

    [[nodiscard]] Plan& planForRows(std::string_view sql, Identities identities);
    [[nodiscard]] Plan* planForChange(std::string_view sql);
    [[nodiscard]] Plan& translateNew(std::string_view sql, Parsed parsed, Identities identities);
    [[nodiscard]] Plan translate(Parsed& parsed, Identities identities);
    [[nodiscard]] bool reloadAfterUnknownName(const Error& error);
    void bindSlots(const Plan& plan) const;
    [[nodiscard]] bool wasOutdated(sqlite3_stmt* statement);
    [[nodiscard]] std::optional<RowBlock> tryRows(const Plan& plan, bool lastTry);
    [[nodiscard]] int runChange(const Plan& plan);
    void dropStatements();

    std::shared_ptr<const WorkspaceSettings> settings_;
    std::string path_;
    StorageHandle storage_;
    std::unique_ptr<FileCatalogue> catalogue_;
    StatementCache plans_;
    std::unordered_map<std::string, StatementHandle> keptStatements_;
    std::uint64_t statementGeneration_ = 0;
    Shape shape_; ///< of the statement at hand, reused
    std::string transactionSchema_;
    int recordsAffected_ = 0;
    std::chrono::steady_clock::time_point waitStart_;
};

} // namespace jet
