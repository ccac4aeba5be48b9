#include "support/plain.h"

#include "platform/jet/sql_functions.h"

#include <stdexcept>

namespace bench::plain {

namespace {

void require(bool good, sqlite3* connection) {
    if (!good) throw std::runtime_error(sqlite3_errmsg(connection));
}

void appendText(sqlite3_stmt* statement, int column, std::vector<jet::Value>& values) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    values.emplace_back(std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))));
}

void appendValue(sqlite3_stmt* statement, int column, jet::ExprType type, std::vector<jet::Value>& values) {
    if (sqlite3_column_type(statement, column) == SQLITE_NULL) {
        values.emplace_back();
        return;
    }
    switch (type) {
    case jet::ExprType::Boolean:
        values.emplace_back(sqlite3_column_int(statement, column) != 0);
        break;
    case jet::ExprType::Integer:
    case jet::ExprType::Long:
        values.emplace_back(sqlite3_column_int64(statement, column));
        break;
    case jet::ExprType::Double:
        values.emplace_back(sqlite3_column_double(statement, column));
        break;
    case jet::ExprType::Date:
        values.emplace_back(jet::Date(sqlite3_column_double(statement, column)));
        break;
    case jet::ExprType::Text:
    case jet::ExprType::Any:
        appendText(statement, column, values);
    }
}

void bindOne(sqlite3_stmt* statement, int index, const jet::Value& value) {
    switch (value.kind()) {
    case jet::Value::Kind::Null:
        sqlite3_bind_null(statement, index);
        break;
    case jet::Value::Kind::Boolean:
        sqlite3_bind_int(statement, index, value.boolOr() ? -1 : 0);
        break;
    case jet::Value::Kind::Integer:
        sqlite3_bind_int64(statement, index, value.longOr());
        break;
    case jet::Value::Kind::Double:
        sqlite3_bind_double(statement, index, value.doubleOr());
        break;
    case jet::Value::Kind::Date:
        sqlite3_bind_double(statement, index, value.dateOr().serial());
        break;
    case jet::Value::Kind::Text:
        sqlite3_bind_text64(statement, index, value.text().data(), value.text().size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
}

} // namespace

Statement prepare(const Connection& connection, std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v3(connection.get(), sql.data(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    require(result == SQLITE_OK, connection.get());
    return Statement(statement);
}

void run(const Connection& connection, std::string_view sql) { change(prepare(connection, sql).get()); }

Connection openHouse(const std::string& folder, const services::Clock& clock) {
    sqlite3* raw = nullptr;
    const int result = sqlite3_open((folder + "/Zentral.mdb").c_str(), &raw);
    Connection connection(raw);
    require(result == SQLITE_OK, raw);
    jet::registerFunctions(raw, clock); // the text indexes are in the house's collation
    run(connection, "PRAGMA cache_size=-16000");
    run(connection, "PRAGMA synchronous=FULL");
    run(connection, "ATTACH '" + folder + "/Herbergo.mdb' AS quelle");
    run(connection, "PRAGMA quelle.cache_size=-16000");
    return connection;
}

Rows fetch(sqlite3_stmt* statement, std::span<const jet::ExprType> types) {
    Rows rows{.width = types.size(), .values = {}};
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
        for (std::size_t i = 0; i < types.size(); ++i)
            appendValue(statement, static_cast<int>(i), types[i], rows.values);
    }
    require(result == SQLITE_DONE, sqlite3_db_handle(statement));
    sqlite3_reset(statement);
    return rows;
}

void change(sqlite3_stmt* statement) {
    int result = SQLITE_ROW;
    while (result == SQLITE_ROW)
        result = sqlite3_step(statement);
    require(result == SQLITE_DONE, sqlite3_db_handle(statement));
    sqlite3_reset(statement);
}

void bind(sqlite3_stmt* statement, std::span<const jet::Value> values) {
    int index = 0;
    for (const jet::Value& value : values)
        bindOne(statement, ++index, value);
}

} // namespace bench::plain
