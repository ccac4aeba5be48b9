#pragma once

#include "platform/jet/table_def.h"

#include <string_view>
#include <vector>

namespace store {

/// The two files that the link file joins.
enum class HomeFile { Zentral, Herbergo };

struct SchemaTable {
    HomeFile home;
    jet::TableDef definition;
};

/// Every table that the business reaches, each with its fields, its key, its indexes and the file it lies in. The one
/// place where a new house takes its tables from. Names are unique without regard to case; every text field allows zero
/// length.
[[nodiscard]] const std::vector<SchemaTable>& schema();
/// Null when there is none; case is ignored.
[[nodiscard]] const SchemaTable* findTable(std::string_view name);

/// Tables of one home file, in the schema's order.
[[nodiscard]] std::vector<jet::TableDef> tablesOf(HomeFile home);
/// All tables and tbSpaltenbreiten, which only the workstation's own file has.
[[nodiscard]] std::vector<jet::TableDef> sampleFileTables();
/// tbFeiertage and tbPLZ.
[[nodiscard]] std::vector<jet::TableDef> holidayFileTables();

} // namespace store
