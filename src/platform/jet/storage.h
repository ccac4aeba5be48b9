#pragma once

#include "platform/jet/error.h"

#include <memory>
#include <optional>
#include <span>
#include <sqlite3.h>
#include <string>
#include <string_view>

/// Thin helpers over the storage library, for this folder only.
namespace jet {

struct CloseStorage {
    void operator()(sqlite3* storage) const noexcept { sqlite3_close_v2(storage); }
};
using StorageHandle = std::unique_ptr<sqlite3, CloseStorage>;

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// Resets a statement at the end of a scope, so that it holds no lock.
class ResetGuard {
public:
    explicit ResetGuard(sqlite3_stmt* statement) : statement_(statement) {}
    ResetGuard(const ResetGuard&) = delete;
    ResetGuard& operator=(const ResetGuard&) = delete;
    ~ResetGuard() { sqlite3_reset(statement_); }

private:
    sqlite3_stmt* statement_;
};

/// The last failure of the storage as an Error with the engine's number.
[[noreturn]] void raiseStorageError(sqlite3* storage);

/// An Error as the text by which an SQL function hands it through the storage, and back from there.
[[nodiscard]] std::string encodeError(const Error& error);
[[nodiscard]] std::optional<Error> decodeError(std::string_view text);

[[nodiscard]] StatementHandle prepareStatement(sqlite3* storage, std::string_view sql);
/// True while there is a row; raises on a failure.
[[nodiscard]] bool stepRow(sqlite3_stmt* statement);
/// Index from 1. The value must live until the statement has run.
void bindValue(sqlite3_stmt* statement, int index, const Value& value);
[[nodiscard]] std::string columnText(sqlite3_stmt* statement, int column);

/// Runs one statement that returns nothing of interest, texts bound in order.
void run(sqlite3* storage, std::string_view sql, std::span<const std::string> texts = {});
/// First column of the first row; none when there is no row or it is Null.
[[nodiscard]] std::optional<std::string> queryText(sqlite3* storage, std::string_view sql,
                                                   std::span<const std::string> texts = {});
[[nodiscard]] std::int64_t queryNumber(sqlite3* storage, std::string_view sql);

} // namespace jet
