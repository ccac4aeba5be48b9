#include "platform/jet/database.h"

#include "platform/jet/connection.h"
#include "platform/jet/data_file.h"
#include "platform/jet/definitions.h"
#include "platform/jet/stored_schema.h"

#include <algorithm>

namespace jet {

namespace {

Connection& openOne(const std::shared_ptr<Connection>& connection) {
    if (!connection || !connection->isOpen()) raise(ErrorNumber::DatabaseClosed);
    return *connection;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n;";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Told by its first word, so that a statement is not looked up among the tables.
bool isSelect(std::string_view text) {
    constexpr std::string_view word = "select";
    constexpr std::string_view afterWord = " \t\r\n([*'\"";
    const auto sameLetter = [](char given, char lower) { return given == lower || given == lower - 'a' + 'A'; };
    return text.size() > word.size() && afterWord.find(text[word.size()]) != std::string_view::npos &&
           std::equal(word.begin(), word.end(), text.begin(),
                      [&](char lower, char given) { return sameLetter(given, lower); });
}

/// The table that a source names, when it is a table's name and no statement.
std::optional<std::string> tableNameIn(Connection& connection, std::string_view source) {
    constexpr std::size_t longestName = 200;
    std::string_view name = trimmed(source);
    if (name.size() > longestName || name.empty()) return std::nullopt;
    if (isSelect(name)) return std::nullopt;
    const bool bracketed = name.front() == '[' && name.find(']') == name.size() - 1;
    if (bracketed) return std::string(name.substr(1, name.size() - 2));
    const bool oneWord = name.find_first_of(" \t\r\n()[]") == std::string_view::npos;
    if (oneWord || connection.catalogue().has(SqlName(name))) return std::string(name);
    return std::nullopt;
}

FieldDef fieldDef(const Column& column) {
    FieldDef field = CreateField(column.name.text(), column.type, column.size);
    field.AllowZeroLength = column.allowZeroLength;
    field.Counter = column.counter;
    field.Required = column.required;
    return field;
}

void describe(TableDef& definition, const Connection& connection, const Table& table) {
    for (const Column& column : table.columns)
        definition.Fields.push_back(fieldDef(column));
    definition.Indexes = readIndexes(connection.storage(), table);
}

TableDef linkDef(Connection& connection, const Link& link) {
    TableDef definition;
    definition.Name = link.name.text();
    definition.Connect = link.connect;
    definition.SourceTableName = link.sourceTable;
    try {
        describe(definition, connection, *connection.catalogue().resolve(link));
    } catch (const Error&) {
        // A stale link still tells where it leads; that is how it is mended.
        definition.Fields.clear();
    }
    return definition;
}

/// Refuses a link that would lead nowhere.
void requireTarget(Connection& connection, const Link& link) {
    const std::string path = readConnect(link.connect).path;
    if (path.empty()) raise(ErrorNumber::FileNotFound, "Die Verknüpfung nennt keine Datei.");
    requireReadableFile(path);
    std::ignore = connection.catalogue().resolve(link);
}

void requireNewLink(Connection& connection, const Link& link) {
    requireTableName(link.name.text());
    if (connection.catalogue().has(link.name)) raise(ErrorNumber::TableExists, link.name.text());
    requireTarget(connection, link);
}

void createLinks(Connection& connection, const std::vector<Link>& links) {
    for (const Link& link : links)
        requireNewLink(connection, link);
    connection.requireWritable("main");
    storeLinks(connection.storage(), links);
    connection.linksChanged();
}

} // namespace

Database::Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

Database::~Database() = default;

std::string Database::Name() const { return IsOpen() ? connection_->path() : std::string(); }

bool Database::IsOpen() const { return connection_ && connection_->isOpen(); }

void Database::Close() {
    if (connection_) connection_->close();
    connection_.reset();
}

Recordset Database::OpenRecordset(std::string_view source, RecordsetType type) {
    Connection& connection = openOne(connection_);
    if (const auto table = tableNameIn(connection, source))
        return {connection_, "SELECT * FROM [" + *table + "]", type};
    return {connection_, std::string(source), type};
}

void Database::Execute(std::string_view sql) { openOne(connection_).execute(sql); }

int Database::RecordsAffected() const { return openOne(connection_).recordsAffected(); }

std::vector<std::string> Database::TableNames() const {
    Connection& connection = openOne(connection_);
    connection.refreshCatalogue();
    return connection.catalogue().names();
}

bool Database::HasTable(std::string_view name) const {
    Connection& connection = openOne(connection_);
    connection.refreshCatalogue();
    return connection.catalogue().has(SqlName(name));
}

TableDef Database::GetTableDef(std::string_view name) const {
    Connection& connection = openOne(connection_);
    connection.refreshCatalogue();
    const SqlName wanted(name);
    if (const Link* link = connection.catalogue().findLink(wanted)) return linkDef(connection, *link);
    const TablePtr table = connection.catalogue().findOwn(wanted);
    if (!table) raise(ErrorNumber::ItemNotFound, name);
    TableDef definition;
    definition.Name = table->name.text();
    describe(definition, connection, *table);
    return definition;
}

void Database::AppendTableDef(const TableDef& table) { AppendTableDefs({&table, 1}); }

void Database::AppendTableDefs(std::span<const TableDef> tables) {
    Connection& connection = openOne(connection_);
    connection.refreshCatalogue();
    std::vector<TableDef> own;
    std::vector<Link> links;
    for (const TableDef& table : tables) {
        if (table.Connect.empty())
            own.push_back(table);
        else
            links.push_back({SqlName(table.Name), table.Connect, table.SourceTableName});
    }
    if (!own.empty()) createTables(connection, own);
    if (!links.empty()) createLinks(connection, links);
}

void Database::DeleteTableDef(std::string_view name) {
    Connection& connection = openOne(connection_);
    const SqlName wanted(name);
    if (!connection.catalogue().has(wanted)) raise(ErrorNumber::ItemNotFound, name);
    const Link* link = connection.catalogue().findLink(wanted);
    if (link == nullptr) return dropTable(connection, wanted);
    connection.requireWritable("main");
    dropLink(connection.storage(), link->name);
    connection.linksChanged();
}

void Database::AppendField(std::string_view table, const FieldDef& field) {
    addColumn(openOne(connection_), SqlName(table), field);
}

void Database::SetAllowZeroLength(std::string_view table, std::string_view field, bool allow) {
    setAllowZeroLength(openOne(connection_), SqlName(table), SqlName(field), allow);
}

void Database::RefreshLink(std::string_view name, std::string_view connect) {
    Connection& connection = openOne(connection_);
    connection.refreshCatalogue();
    const Link* found = connection.catalogue().findLink(SqlName(name));
    if (found == nullptr) raise(ErrorNumber::ItemNotFound, name);
    Link link = *found;
    link.connect = connect;
    requireTarget(connection, link);
    connection.requireWritable("main");
    storeLink(connection.storage(), link);
    connection.linksChanged();
}

} // namespace jet
