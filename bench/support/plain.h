#pragma once

#include "platform/jet/error.h"
#include "platform/jet/field_type.h"
#include "platform/services/clock.h"

#include <initializer_list>
#include <memory>
#include <span>
#include <sqlite3.h>
#include <string>
#include <vector>

/// What a program without the engine would write: SQLite's C calls, hand-written statements, prepared once.
namespace bench::plain {

struct CloseConnection {
    void operator()(sqlite3* connection) const noexcept { sqlite3_close_v2(connection); }
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// The house's shared file, with the source file attached as "quelle"; settings as the engine's own. The clock must
/// outlive the connection.
[[nodiscard]] Connection openHouse(const std::string& folder, const services::Clock& clock);
[[nodiscard]] Statement prepare(const Connection& connection, std::string_view sql);
void run(const Connection& connection, std::string_view sql);

/// The row objects that a recordset fills: the values of all rows, one behind the other.
struct Rows {
    std::size_t width = 0;
    std::vector<jet::Value> values;

    [[nodiscard]] std::size_t count() const { return width == 0 ? 0 : values.size() / width; }
};

/// Steps to the end, keeps each row and resets the statement.
[[nodiscard]] Rows fetch(sqlite3_stmt* statement, std::span<const jet::ExprType> types);
/// Steps a change and resets it.
void change(sqlite3_stmt* statement);

/// Binds ?1, ?2, ... in order.
void bind(sqlite3_stmt* statement, std::span<const jet::Value> values);
inline void bind(sqlite3_stmt* statement, std::initializer_list<jet::Value> values) {
    bind(statement, std::span(values.begin(), values.size()));
}

} // namespace bench::plain
