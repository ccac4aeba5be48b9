#pragma once

struct sqlite3;

namespace services {
class Clock;
}

namespace jet {

/// Makes the run-time library's functions, the German collation and the operators of the dialect known to a connection.
/// The clock must outlive it. Errors inside a function travel as the result text "jet:NUMBER:TEXT".
void registerFunctions(sqlite3* connection, const services::Clock& clock);

/// Name of the German collation in the storage's SQL.
inline constexpr const char* germanCollation = "DE";

} // namespace jet
