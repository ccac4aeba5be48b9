#include "platform/jet/stored_schema.h"

#include "platform/jet/home_files.h"
#include "platform/jet/properties.h"
#include "platform/jet/sql_functions.h"
#include "platform/jet/storage.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace jet {

namespace {

struct DeclaredType {
    FieldType type;
    std::string_view text;
};

// The storage takes the kind of a column from parts of these words (INT, DOUB, REAL, TEXT).
constexpr std::array declaredTypes{
    DeclaredType{FieldType::Boolean, "YESNOINT"}, DeclaredType{FieldType::Integer, "SHORTINT"},
    DeclaredType{FieldType::Long, "LONGINT"},     DeclaredType{FieldType::Double, "DOUBLE"},
    DeclaredType{FieldType::Date, "DATEREAL"},    DeclaredType{FieldType::Memo, "MEMOTEXT"},
};
constexpr std::string_view counterType = "INTEGER";
constexpr std::string_view textType = "TEXT(";

std::string typeText(const Column& column) {
    if (column.type == FieldType::Text) return std::string(textType) + std::to_string(column.size) + ")";
    const auto found = std::ranges::find(declaredTypes, column.type, &DeclaredType::type);
    return std::string(found->text);
}

int sizeOf(std::string_view declaredType) {
    int size = 0;
    const std::string_view digits = declaredType.substr(textType.size());
    std::from_chars(digits.data(), digits.data() + digits.size(), size);
    return size;
}

using Properties = std::map<std::pair<std::string, std::string>, std::map<std::string, std::string>>;

Properties readProperties(sqlite3* storage, const std::string& schema) {
    const StatementHandle statement = prepareStatement(storage, "SELECT TableName, FieldName, Name, Value FROM " +
                                                                    quoted(schema) + "." + quoted(propertiesTable));
    Properties properties;
    while (stepRow(statement.get())) {
        const std::pair owner{columnText(statement.get(), 0), columnText(statement.get(), 1)};
        properties[owner][columnText(statement.get(), 2)] = columnText(statement.get(), 3);
    }
    return properties;
}

bool hasProperty(const Properties& properties, const Table& table, const Column& column, const char* name,
                 std::string_view value) {
    const auto owner = properties.find({table.storedName, column.name.text()});
    if (owner == properties.end()) return false;
    const auto found = owner->second.find(name);
    return found != owner->second.end() && found->second == value;
}

void applyProperties(const Properties& properties, Table& table) {
    for (Column& column : table.columns) {
        if (hasProperty(properties, table, column, allowZeroLengthProperty, "0")) column.allowZeroLength = false;
        if (hasProperty(properties, table, column, requiredProperty, "1")) column.required = true;
    }
}

/// Fields of an index in its order.
std::vector<std::string> indexFields(sqlite3* storage, const std::string& schema, const std::string& index) {
    const StatementHandle statement =
        prepareStatement(storage, "PRAGMA " + quoted(schema) + ".index_info(" + quoted(index) + ")");
    std::vector<std::string> fields;
    while (stepRow(statement.get()))
        fields.push_back(columnText(statement.get(), 2));
    return fields;
}

void setKey(Table& table, const std::vector<std::string>& fields) {
    table.keyColumns.clear();
    for (const std::string& field : fields)
        if (const auto column = table.columnIndex(SqlName(field))) table.keyColumns.push_back(*column);
}

/// A table whose counter is not its key has the key as an index that is noted as such.
void applyPrimaryIndex(sqlite3* storage, const Properties& properties, Table& table) {
    const auto owner = properties.find({table.storedName, ""});
    if (owner != properties.end()) {
        const auto index = owner->second.find(primaryIndexProperty);
        if (index != owner->second.end())
            setKey(table, indexFields(storage, table.schema, storedIndexName(table.storedName, index->second)));
    }
    for (const int column : table.keyColumns)
        table.columns[static_cast<std::size_t>(column)].required = true;
}

struct ReadColumn {
    Column column;
    int keyPosition; ///< from 1; 0: not in the key
};

ReadColumn readColumn(sqlite3_stmt* statement) {
    ReadColumn result{columnOfDeclaration(columnText(statement, 1), columnText(statement, 2)),
                      sqlite3_column_int(statement, 4)};
    // A YESNO is never Null anyway: leaving it out means False, not an error.
    result.column.required = sqlite3_column_int(statement, 3) != 0 && result.column.type != FieldType::Boolean;
    return result;
}

void addColumn(Table& table, ReadColumn&& read) {
    const int index = static_cast<int>(table.columns.size());
    table.columnByName[read.column.name.folded()] = index;
    table.columns.push_back(std::move(read.column));
    if (read.keyPosition == 0) return;
    const auto position = static_cast<std::size_t>(read.keyPosition);
    table.keyColumns.resize(std::max(table.keyColumns.size(), position), index);
    table.keyColumns[position - 1] = index;
}

std::shared_ptr<Table> emptyTable(const std::string& schema, const std::string& name) {
    auto table = std::make_shared<Table>();
    table->name = SqlName(name);
    table->schema = schema;
    table->storedName = name;
    return table;
}

std::map<std::string, std::shared_ptr<Table>> readColumns(sqlite3* storage, const std::string& schema) {
    // Asking the schema's table first makes the storage notice that another process has changed it.
    const std::string sql = "SELECT m.name, c.name, c.type, c.\"notnull\", c.pk FROM " + quoted(schema) +
                            ".sqlite_schema m JOIN pragma_table_info(m.name, '" + schema +
                            "') c WHERE m.type = 'table' AND substr(m.name, 1, 1) <> '~' AND m.name NOT LIKE "
                            "'sqlite~_%' ESCAPE '~' ORDER BY m.rowid, c.cid";
    const StatementHandle statement = prepareStatement(storage, sql);
    std::map<std::string, std::shared_ptr<Table>> tables;
    while (stepRow(statement.get())) {
        const std::string name = columnText(statement.get(), 0);
        auto& table = tables[SqlName(name).folded()];
        if (!table) table = emptyTable(schema, name);
        addColumn(*table, readColumn(statement.get()));
    }
    return tables;
}

/// The condition behind WHERE in an index's own text, as the engine writes it.
std::string conditionOf(std::string_view indexSql) {
    constexpr std::string_view mark = ") WHERE \"";
    const auto start = indexSql.rfind(mark);
    if (start == std::string_view::npos) return {};
    const auto nameStart = start + mark.size();
    const auto nameEnd = indexSql.find("\" = ", nameStart);
    if (nameEnd == std::string_view::npos) return {};
    const std::string field(indexSql.substr(nameStart, nameEnd - nameStart));
    return "[" + field + "] = " + (indexSql.ends_with("-1") ? "True" : "False");
}

struct IndexRow {
    std::string name;
    bool unique;
    std::string origin; ///< "c" created by itself, "pk" part of the table
};

std::vector<IndexRow> indexRows(sqlite3* storage, const Table& table) {
    const StatementHandle statement =
        prepareStatement(storage, "PRAGMA " + quoted(table.schema) + ".index_list(" + quoted(table.storedName) + ")");
    std::vector<IndexRow> rows;
    while (stepRow(statement.get()))
        rows.push_back({columnText(statement.get(), 1), sqlite3_column_int(statement.get(), 2) != 0,
                        columnText(statement.get(), 3)});
    return rows;
}

IndexDef indexDef(sqlite3* storage, const Table& table, const IndexRow& row, const std::string& primaryName) {
    const std::string prefix = storedIndexName(table.storedName, "");
    IndexDef index;
    index.Name = row.origin == "pk" ? "PrimaryKey" : row.name.substr(row.name.starts_with(prefix) ? prefix.size() : 0);
    index.Fields = indexFields(storage, table.schema, row.name);
    index.Unique = row.unique;
    index.Primary = row.origin == "pk" || (!primaryName.empty() && index.Name == primaryName);
    const auto sql = queryText(storage, "SELECT sql FROM " + quoted(table.schema) + ".sqlite_schema WHERE name = ?1",
                               std::array{row.name});
    index.Where = conditionOf(sql.value_or(""));
    return index;
}

/// The counter as key has no index of its own in the file.
IndexDef counterIndex(const Table& table) {
    IndexDef index;
    index.Name = "PrimaryKey";
    for (const int column : table.keyColumns)
        index.Fields.push_back(table.columns[static_cast<std::size_t>(column)].name.text());
    index.Unique = index.Primary = true;
    return index;
}

} // namespace

std::string columnDeclaration(const Column& column) {
    if (column.counter) return quoted(column.name.text()) + " INTEGER PRIMARY KEY AUTOINCREMENT";
    std::string text = quoted(column.name.text()) + " " + typeText(column);
    if (exprType(column.type) == ExprType::Text) text += std::string(" COLLATE ") + germanCollation;
    if (column.type == FieldType::Boolean) return text + " NOT NULL DEFAULT 0";
    return column.required ? text + " NOT NULL" : text;
}

Column columnOfDeclaration(std::string_view name, std::string_view declaredType) {
    Column column;
    column.name = SqlName(name);
    if (declaredType == counterType) {
        column.type = FieldType::Long;
        column.counter = true;
        return column;
    }
    if (declaredType.starts_with(textType)) {
        column.size = sizeOf(declaredType);
        return column;
    }
    const auto found = std::ranges::find(declaredTypes, declaredType, &DeclaredType::text);
    if (found == declaredTypes.end()) raise(ErrorNumber::Corrupt, "Feld " + std::string(name) + ".");
    column.type = found->type;
    return column;
}

std::string storedIndexName(const std::string& table, std::string_view index) {
    return table + "." + std::string(index);
}

std::vector<IndexDef> readIndexes(sqlite3* storage, const Table& table) {
    const std::string primaryName =
        readProperty(storage, table.schema, {table.storedName, "", primaryIndexProperty}).value_or("");
    std::vector<IndexDef> indexes;
    for (const IndexRow& row : indexRows(storage, table))
        indexes.push_back(indexDef(storage, table, row, primaryName));
    const bool hasPrimary = std::ranges::any_of(indexes, &IndexDef::Primary);
    if (!hasPrimary && !table.keyColumns.empty()) indexes.push_back(counterIndex(table));
    std::stable_partition(indexes.begin(), indexes.end(), [](const IndexDef& index) { return index.Primary; });
    return indexes;
}

StoredTables readTables(sqlite3* storage, const std::string& schema) {
    auto tables = readColumns(storage, schema);
    const Properties properties = readProperties(storage, schema);
    StoredTables result;
    for (auto& [name, table] : tables) {
        applyProperties(properties, *table);
        applyPrimaryIndex(storage, properties, *table);
        result.emplace(name, std::move(table));
    }
    return result;
}

} // namespace jet
