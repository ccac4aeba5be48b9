#pragma once

#include "platform/jet/recordset.h"

#include <initializer_list>
#include <string_view>
#include <utility>

namespace store {

using FieldValues = std::initializer_list<std::pair<std::string_view, basic::Value>>;

/// AddNew, the fields given, Update. Fields left out stay Null, a counter takes its next number.
void addRow(jet::Recordset& rows, FieldValues values);
/// The same; gives the number that the counter `counter` took.
[[nodiscard]] std::int64_t addCountedRow(jet::Recordset& rows, std::string_view counter, FieldValues values);
/// Deletes row by row.
void deleteAll(jet::Recordset& rows);

} // namespace store
