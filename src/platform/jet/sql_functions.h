#pragma once

struct sqlite3;

namespace jet {

/// Makes the run-time library's functions, the German collation and the operators of the dialect known to a connection.
void registerFunctions(sqlite3* connection);

/// Name of the German collation in the storage's SQL.
inline constexpr const char* germanCollation = "DE";

} // namespace jet
