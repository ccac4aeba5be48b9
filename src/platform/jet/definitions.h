#pragma once

#include "platform/jet/ast.h"
#include "platform/jet/lexer.h"
#include "platform/jet/table_def.h"

#include <span>

namespace jet {

class Connection;

// Changes of the tables of an open file. A table that is reached by a link raises 3251: its definition belongs to its
// home file.

/// 3125 for a name that no table or index can have.
void requireTableName(std::string_view name);

/// Is it CREATE, DROP or ALTER?
[[nodiscard]] bool isDefinition(const ast::Statement& statement);
/// Carries one out.
void define(Connection& connection, const ast::Statement& statement);

/// 3010 when the name is taken, 3125 for a name that cannot be, 3292 for fields or indexes that cannot be.
void createTable(Connection& connection, const TableDef& table);
/// The same for several, all or none.
void createTables(Connection& connection, std::span<const TableDef> tables);
void dropTable(Connection& connection, const SqlName& name);
/// 3191 when the field is there.
void addColumn(Connection& connection, const SqlName& table, const FieldDef& field);
/// 3284 when the index is there, 3022 when the rows break it.
void createIndex(Connection& connection, const SqlName& table, const IndexDef& index);
void dropIndex(Connection& connection, const SqlName& table, const SqlName& index);
void setAllowZeroLength(Connection& connection, const SqlName& table, const SqlName& field, bool allow);

} // namespace jet
