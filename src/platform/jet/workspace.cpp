#include "platform/jet/workspace.h"

#include "platform/jet/connection.h"
#include "platform/jet/data_file.h"
#include "platform/jet/home_files.h"
#include "platform/jet/properties.h"

namespace jet {

namespace {

void writeEmptyFile(sqlite3* storage, std::string_view password) {
    run(storage, "BEGIN EXCLUSIVE");
    markDataFile(storage);
    run(storage, "CREATE TABLE " + quoted(propertiesTable) +
                     " (TableName TEXT NOT NULL, FieldName TEXT NOT NULL, Name TEXT NOT NULL, Value TEXT NOT NULL, "
                     "PRIMARY KEY (TableName, FieldName, Name))");
    run(storage, "CREATE TABLE " + quoted(linksTable) +
                     " (Name TEXT NOT NULL PRIMARY KEY, Connect TEXT NOT NULL, SourceTableName TEXT NOT NULL)");
    storePassword(storage, "main", password);
    storeCollationVersion(storage, "main");
    run(storage, "COMMIT");
}

void createFile(const std::string& path, std::string_view password, const services::Clock& clock) {
    UnfinishedFile file(path);
    writeEmptyFile(openStorage(file.path(), FileMode::Create, clock).get(), password);
    file.publish();
}

/// Where the home file of a table lies, as a schema of the connection.
std::string homeSchema(Connection& connection, std::string_view table) {
    const TablePtr found = connection.catalogue().find(SqlName(table));
    if (!found) raise(ErrorNumber::UnknownTable, table);
    return found->schema;
}

} // namespace

Workspace::Workspace(const services::Clock& clock) : settings_(std::make_shared<WorkspaceSettings>()) {
    settings_->clock = &clock;
}

void Workspace::setWaitCallback(std::function<bool(int)> callback) { settings_->waitCallback = std::move(callback); }

void Workspace::setLockTimeout(int milliseconds) { settings_->lockTimeout = milliseconds; }

Database Workspace::OpenDatabase(const std::string& path, bool exclusive, bool readOnly,
                                 std::string_view connect) const {
    const OpenOptions options{path, readConnect(connect).password, exclusive, readOnly, FileCatalogue::Links::Follow};
    return Database(std::make_shared<Connection>(settings_, options));
}

void Workspace::Reopen(Database& database, const std::string& path, std::string_view connect) const {
    database.Close();
    database = OpenDatabase(path, false, false, connect);
}

Database Workspace::CreateDatabase(const std::string& path, std::string_view connect) const {
    createFile(absolutePath(path), readConnect(connect).password, *settings_->clock);
    return OpenDatabase(path, false, false, connect);
}

Transaction::Transaction(Database& database, std::string_view homeTable) : connection_(database.connection()) {
    if (!connection_) raise(ErrorNumber::DatabaseClosed);
    connection_->begin(homeSchema(*connection_, homeTable));
}

Transaction::~Transaction() {
    if (open_) connection_->rollback();
}

void Transaction::Commit() {
    if (!open_) raise(ErrorNumber::NoTransaction);
    connection_->commit();
    open_ = false;
}

void Transaction::Rollback() {
    if (!open_) raise(ErrorNumber::NoTransaction);
    connection_->rollback();
    open_ = false;
}

} // namespace jet
