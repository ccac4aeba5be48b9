#pragma once

#include "platform/jet/catalogue.h"
#include "platform/jet/table_def.h"

#include <string>
#include <string_view>

struct sqlite3;

namespace jet {

/// How a field is declared in the file, such that its type can be read back: "TEXT(50) COLLATE DE". A counter is the
/// key of the storage.
[[nodiscard]] std::string columnDeclaration(const Column& column);
/// The declared type back as a field. Raises 3049 for a type that the house never writes.
[[nodiscard]] Column columnOfDeclaration(std::string_view name, std::string_view declaredType);

/// Name of an index in the file; there it must be unique among all tables.
[[nodiscard]] std::string storedIndexName(const std::string& table, std::string_view index);

/// Indexes of a stored table, the primary one first.
[[nodiscard]] std::vector<IndexDef> readIndexes(sqlite3* storage, const Table& table);

/// Properties of tables and fields.
inline constexpr const char* allowZeroLengthProperty = "AllowZeroLength";
inline constexpr const char* requiredProperty = "Required";
inline constexpr const char* primaryIndexProperty = "PrimaryIndex";

} // namespace jet
