#include "platform/jet/definitions.h"

#include "platform/basic/text.h"
#include "platform/jet/connection.h"
#include "platform/jet/properties.h"
#include "platform/jet/stored_schema.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace jet {

namespace {

constexpr int maxTextSize = 255;
constexpr std::size_t maxNameLength = 64;

/// All or nothing of a definition that takes several statements.
class DefinitionGuard {
public:
    explicit DefinitionGuard(Connection& connection) : storage_(connection.storage()) {
        connection.requireWritable("main");
        run(storage_, "SAVEPOINT definition");
    }
    DefinitionGuard(const DefinitionGuard&) = delete;
    DefinitionGuard& operator=(const DefinitionGuard&) = delete;
    ~DefinitionGuard() {
        if (!done_) sqlite3_exec(storage_, "ROLLBACK TO definition; RELEASE definition", nullptr, nullptr, nullptr);
    }
    void keep() {
        run(storage_, "RELEASE definition");
        done_ = true;
    }

private:
    sqlite3* storage_;
    bool done_ = false;
};

bool isForbiddenInName(char c) {
    return static_cast<unsigned char>(c) < ' ' || std::string_view(".![]`\"").find(c) != std::string_view::npos;
}

void requireColumnName(std::string_view name) {
    requireTableName(name);
    // The storage's own name for the identity of a row, by which recordsets write.
    if (SqlName(name).folded() == "_rowid_") raise(ErrorNumber::InvalidName, name);
}

int textSize(const FieldDef& field) {
    const int size = field.Size == 0 ? maxTextSize : field.Size;
    if (size < 1 || size > maxTextSize) raise(ErrorNumber::InvalidDefinition, "Feldgröße von " + field.Name + ".");
    return size;
}

Column columnOf(const FieldDef& field) {
    requireColumnName(field.Name);
    if (field.Counter && field.Type != FieldType::Long)
        raise(ErrorNumber::InvalidDefinition, field.Name + ": Nur ein Long kann Zähler sein.");
    Column column;
    column.name = SqlName(field.Name);
    column.type = field.Type;
    column.size = field.Type == FieldType::Text ? textSize(field) : 0;
    column.counter = field.Counter;
    column.required = field.Required;
    column.allowZeroLength = field.AllowZeroLength;
    return column;
}

FieldDef fieldOf(const ast::ColumnDef& definition) {
    FieldDef field = CreateField(definition.name.text(), definition.type, definition.size);
    field.AllowZeroLength = true;
    field.Counter = definition.counter;
    field.Required = definition.notNull;
    return field;
}

std::vector<std::string> texts(const std::vector<SqlName>& names) {
    std::vector<std::string> result(names.size());
    std::ranges::transform(names, result.begin(), &SqlName::text);
    return result;
}

TableDef tableOf(const ast::CreateTable& definition) {
    TableDef table;
    table.Name = definition.table.text();
    IndexDef primary{"PrimaryKey", texts(definition.primaryKey), true, true, ""};
    for (const ast::ColumnDef& column : definition.columns) {
        table.Fields.push_back(fieldOf(column));
        if (column.primaryKey) primary.Fields.push_back(column.name.text());
        if (column.unique) table.Indexes.push_back({column.name.text(), {column.name.text()}, true, false, ""});
    }
    if (!primary.Fields.empty()) table.Indexes.insert(table.Indexes.begin(), primary);
    return table;
}

/// The table of this file; a link's definition belongs to its home file.
TablePtr ownTable(Connection& connection, const SqlName& name) {
    if (TablePtr table = connection.catalogue().findOwn(name)) return table;
    if (connection.catalogue().findLink(name) != nullptr)
        raise(ErrorNumber::NotSupported, name.text() + " ist eine Verknüpfung.");
    raise(ErrorNumber::TableMissing, name.text());
}

const Column& columnOf(const Table& table, const SqlName& field) {
    const auto column = table.columnIndex(field);
    if (!column) raise(ErrorNumber::ItemNotFound, field.text());
    return table.columns[static_cast<std::size_t>(*column)];
}

/// Names of fields for the storage, in their stored spelling.
std::string fieldList(const Table& table, const std::vector<std::string>& fields) {
    if (fields.empty()) raise(ErrorNumber::InvalidDefinition, "Ein Index braucht ein Feld.");
    std::string list;
    for (const std::string& field : fields)
        list += (list.empty() ? "" : ", ") + quoted(columnOf(table, SqlName(field)).name.text());
    return list;
}

void storeFieldProperties(sqlite3* storage, const std::string& table, const Column& column) {
    const bool isText = exprType(column.type) == ExprType::Text;
    if (isText && !column.allowZeroLength)
        writeProperty(storage, "main", {table, column.name.text(), allowZeroLengthProperty}, "0");
}

/// "field = True" or "field = False" in the storage's SQL.
std::string indexCondition(const Table& table, const std::string& where) {
    const Parsed parsed = parse("SELECT * FROM [" + table.storedName + "] WHERE " + where);
    const auto& select = std::get<ast::Select>(parsed.statement);
    const auto* equal = std::get_if<ast::Binary>(&select.cores.front().where->node);
    const bool isEqual = equal != nullptr && equal->op == ast::Binary::Op::Equal;
    const auto* field = isEqual ? std::get_if<ast::FieldRef>(&equal->left->node) : nullptr;
    const auto* constant = isEqual ? std::get_if<ast::Constant>(&equal->right->node) : nullptr;
    if (field == nullptr || constant == nullptr || constant->kind == ast::Constant::Kind::Null)
        raise(ErrorNumber::InvalidDefinition, "Bedingung eines Index: " + where);
    const bool isTrue = constant->kind == ast::Constant::Kind::True;
    return quoted(columnOf(table, field->field).name.text()) + (isTrue ? " = -1" : " = 0");
}

bool hasDeclaredKey(sqlite3* storage, const Table& table) {
    if (readProperty(storage, "main", {table.storedName, "", primaryIndexProperty})) return true;
    const bool onlyCounter =
        table.keyColumns.size() == 1 && table.columns[static_cast<std::size_t>(table.keyColumns.front())].counter;
    return !table.keyColumns.empty() && !onlyCounter;
}

void writeIndex(sqlite3* storage, const Table& table, const IndexDef& index) {
    requireTableName(index.Name);
    const bool unique = index.Unique || index.Primary;
    std::string sql = std::string(unique ? "CREATE UNIQUE INDEX main." : "CREATE INDEX main.") +
                      quoted(storedIndexName(table.storedName, index.Name)) + " ON " + quoted(table.storedName) + " (" +
                      fieldList(table, index.Fields) + ")";
    if (!index.Where.empty()) sql += " WHERE " + indexCondition(table, index.Where);
    run(storage, sql);
    if (index.Primary) writeProperty(storage, "main", {table.storedName, "", primaryIndexProperty}, index.Name);
}

/// The table as it will be, for the names in its indexes.
Table plannedTable(const TableDef& definition) {
    Table table;
    table.schema = "main";
    table.storedName = definition.Name;
    for (const FieldDef& field : definition.Fields) {
        Column column = columnOf(field);
        const bool isNew =
            table.columnByName.emplace(column.name.folded(), static_cast<int>(table.columns.size())).second;
        if (!isNew) raise(ErrorNumber::FieldExists, field.Name);
        table.columns.push_back(std::move(column));
    }
    if (table.columns.empty()) raise(ErrorNumber::InvalidDefinition, "Eine Tabelle braucht ein Feld.");
    if (std::ranges::count(table.columns, true, &Column::counter) > 1)
        raise(ErrorNumber::InvalidDefinition, "Eine Tabelle hat höchstens einen Zähler.");
    return table;
}

bool isCounterKey(const Table& table, const IndexDef& index) {
    return index.Fields.size() == 1 && columnOf(table, SqlName(index.Fields.front())).counter;
}

/// A key in the table's own definition, where no counter is: its fields cannot be Null.
std::string keyClause(Table& table, const IndexDef& key) {
    for (const std::string& field : key.Fields)
        if (const auto column = table.columnIndex(SqlName(field)))
            table.columns[static_cast<std::size_t>(*column)].required = true;
    return ", PRIMARY KEY (" + fieldList(table, key.Fields) + ")";
}

std::string createTableText(Table& table, const IndexDef* key) {
    const bool hasCounter = std::ranges::any_of(table.columns, &Column::counter);
    const std::string clause = key != nullptr && !hasCounter ? keyClause(table, *key) : std::string();
    std::string columns;
    for (const Column& column : table.columns)
        columns += (columns.empty() ? "" : ", ") + columnDeclaration(column);
    return "CREATE TABLE main." + quoted(table.storedName) + " (" + columns + clause + ")";
}

void writeIndexes(sqlite3* storage, const Table& table, const std::vector<IndexDef>& indexes) {
    const bool hasCounter = std::ranges::any_of(table.columns, &Column::counter);
    std::set<std::string> names;
    for (const IndexDef& index : indexes) {
        if (!names.insert(SqlName(index.Name).folded()).second) raise(ErrorNumber::IndexExists, index.Name);
        const bool inTable = index.Primary && (!hasCounter || isCounterKey(table, index));
        if (!inTable) writeIndex(storage, table, index);
    }
}

void requireNewTable(Connection& connection, const TableDef& definition) {
    requireTableName(definition.Name);
    if (connection.catalogue().has(SqlName(definition.Name))) raise(ErrorNumber::TableExists, definition.Name);
    if (std::ranges::count(definition.Indexes, true, &IndexDef::Primary) > 1)
        raise(ErrorNumber::InvalidDefinition, "Eine Tabelle hat höchstens einen Primärschlüssel.");
}

void writeTable(sqlite3* storage, const TableDef& definition) {
    Table table = plannedTable(definition);
    const auto key = std::ranges::find(definition.Indexes, true, &IndexDef::Primary);
    run(storage, createTableText(table, key == definition.Indexes.end() ? nullptr : &*key));
    writeIndexes(storage, table, definition.Indexes);
    for (const Column& column : table.columns)
        storeFieldProperties(storage, table.storedName, column);
}

void addUnchecked(Connection& connection, const SqlName& table, const ast::ColumnDef& definition) {
    if (definition.primaryKey) raise(ErrorNumber::InvalidDefinition, "Der Schlüssel entsteht mit der Tabelle.");
    addColumn(connection, table, fieldOf(definition));
    const std::string& name = definition.name.text();
    if (definition.unique) createIndex(connection, table, {name, {name}, true, false, ""});
}

struct Definer {
    Connection& connection;

    void operator()(const ast::CreateTable& node) const { createTable(connection, tableOf(node)); }
    void operator()(const ast::DropTable& node) const { dropTable(connection, node.table); }
    void operator()(const ast::DropIndex& node) const { dropIndex(connection, node.table, node.index); }
    void operator()(const ast::AddColumn& node) const { addUnchecked(connection, node.table, node.column); }
    void operator()(const ast::CreateIndex& node) const {
        createIndex(connection, node.table, {node.index.text(), texts(node.columns), node.unique, node.primary, ""});
    }
    void operator()(const auto&) const { raise(ErrorNumber::StatementKind); }
};

} // namespace

void requireTableName(std::string_view name) {
    const SqlName folded(name);
    const bool reserved = name.starts_with('~') || folded.folded().starts_with("sqlite_");
    const bool bad = name.empty() || name.starts_with(' ') || basic::Len(name) > static_cast<int>(maxNameLength) ||
                     reserved || std::ranges::any_of(name, isForbiddenInName);
    if (bad) raise(ErrorNumber::InvalidName, name);
}

bool isDefinition(const ast::Statement& statement) {
    return std::holds_alternative<ast::CreateTable>(statement) || std::holds_alternative<ast::CreateIndex>(statement) ||
           std::holds_alternative<ast::DropTable>(statement) || std::holds_alternative<ast::DropIndex>(statement) ||
           std::holds_alternative<ast::AddColumn>(statement);
}

void define(Connection& connection, const ast::Statement& statement) { std::visit(Definer{connection}, statement); }

void createTable(Connection& connection, const TableDef& table) { createTables(connection, {&table, 1}); }

void createTables(Connection& connection, std::span<const TableDef> tables) {
    connection.catalogue().reloadIfChanged();
    for (const TableDef& definition : tables)
        requireNewTable(connection, definition);
    DefinitionGuard guard(connection);
    for (const TableDef& definition : tables)
        writeTable(connection.storage(), definition);
    guard.keep();
    connection.schemaChanged();
}

void dropTable(Connection& connection, const SqlName& name) {
    const TablePtr table = ownTable(connection, name);
    DefinitionGuard guard(connection);
    run(connection.storage(), "DROP TABLE " + table->qualifiedName());
    dropTableProperties(connection.storage(), "main", table->storedName);
    guard.keep();
    connection.schemaChanged();
}

void addColumn(Connection& connection, const SqlName& name, const FieldDef& field) {
    connection.catalogue().reloadIfChanged();
    const TablePtr table = ownTable(connection, name);
    Column column = columnOf(field);
    if (table->columnIndex(column.name)) raise(ErrorNumber::FieldExists, field.Name);
    if (column.counter) raise(ErrorNumber::InvalidDefinition, field.Name + ": Ein Zähler entsteht mit der Tabelle.");
    // Rows that are there already have Null in it, so the storage itself cannot require a value.
    const bool required = std::exchange(column.required, false);
    DefinitionGuard guard(connection);
    run(connection.storage(), "ALTER TABLE " + table->qualifiedName() + " ADD COLUMN " + columnDeclaration(column));
    if (required) writeProperty(connection.storage(), "main", {table->storedName, field.Name, requiredProperty}, "1");
    storeFieldProperties(connection.storage(), table->storedName, column);
    guard.keep();
    connection.schemaChanged();
}

void createIndex(Connection& connection, const SqlName& name, const IndexDef& index) {
    const TablePtr table = ownTable(connection, name);
    const auto sameName = [&](const IndexDef& other) { return SqlName(other.Name) == SqlName(index.Name); };
    if (index.Primary && hasDeclaredKey(connection.storage(), *table))
        raise(ErrorNumber::InvalidDefinition, "Der Primärschlüssel ist bereits vorhanden.");
    const std::vector<IndexDef> indexes = readIndexes(connection.storage(), *table);
    if (!index.Primary && std::ranges::any_of(indexes, sameName)) raise(ErrorNumber::IndexExists, index.Name);
    DefinitionGuard guard(connection);
    writeIndex(connection.storage(), *table, index);
    guard.keep();
    connection.schemaChanged();
}

void dropIndex(Connection& connection, const SqlName& name, const SqlName& index) {
    const TablePtr table = ownTable(connection, name);
    const std::vector<IndexDef> indexes = readIndexes(connection.storage(), *table);
    const auto found =
        std::ranges::find_if(indexes, [&](const IndexDef& other) { return SqlName(other.Name) == index; });
    if (found == indexes.end()) raise(ErrorNumber::ItemNotFound, index.text());
    const PropertyName primary{table->storedName, "", primaryIndexProperty};
    const bool declared = readProperty(connection.storage(), "main", primary).has_value();
    if (found->Primary && !declared) raise(ErrorNumber::NotSupported, "Der Primärschlüssel gehört zur Tabelle.");
    DefinitionGuard guard(connection);
    run(connection.storage(), "DROP INDEX main." + quoted(storedIndexName(table->storedName, found->Name)));
    if (found->Primary) dropProperty(connection.storage(), "main", primary);
    guard.keep();
    connection.schemaChanged();
}

void setAllowZeroLength(Connection& connection, const SqlName& name, const SqlName& field, bool allow) {
    const TablePtr table = ownTable(connection, name);
    const PropertyName property{table->storedName, columnOf(*table, field).name.text(), allowZeroLengthProperty};
    connection.requireWritable("main");
    if (allow)
        dropProperty(connection.storage(), "main", property);
    else
        writeProperty(connection.storage(), "main", property, "0");
    connection.schemaChanged();
}

} // namespace jet
