#pragma once

#include "platform/jet/database.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Files of statements with the rows that they must give. Blocks of lines between blank lines, '#' begins a comment:
///
///   case: what it tells
///   file: Feiertag              which data file (default: the house through its links)
///   order: any                  rows as a set
///   prepare: statement          run before, any number
///   sql: statement
///   rows: names between tabs    columns to compare; without names all, in order
///   cell<TAB>cell               one line a row, as the support tool prints them
///   affected: 3                 for a change, followed by pairs of check: and rows:
///   error: 3464                 instead of rows; affected: 0 beside it executes a SELECT
namespace support {

struct ExpectedRows {
    std::string statement; ///< the sql: or check: line before them
    std::vector<std::string> columns;
    std::vector<std::string> rows;
};

struct StatementCase {
    std::string title;
    std::string file;
    int line = 0;
    bool anyOrder = false;
    std::vector<std::string> prepare;
    std::string sql;
    std::optional<int> affected;
    std::optional<int> error;
    std::vector<ExpectedRows> expected;

    [[nodiscard]] bool changes() const { return affected.has_value() || !prepare.empty(); }
};

/// Raises std::runtime_error with file and line where a file does not keep to the form.
[[nodiscard]] std::vector<StatementCase> readStatementCases(const std::string& path);

/// Runs one case and reports every difference to the running test.
void runStatementCase(const StatementCase& one, jet::Database& database);

/// The .txt files of a folder below the test data, sorted.
[[nodiscard]] std::vector<std::string> caseFiles(const std::string& folder);

/// Runs all statements of a file, one a line; empty lines and those beginning with "--" are passed over.
void runScript(const std::string& path, jet::Database& database);

} // namespace support
