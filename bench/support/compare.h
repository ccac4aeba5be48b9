#pragma once

#include "platform/jet/recordset.h"
#include "support/plain.h"

namespace bench {

/// Types of the fields, for plain::fetch.
[[nodiscard]] std::vector<jet::ExprType> typesOf(const jet::Recordset& rows);

/// Throws std::runtime_error unless both hold the same rows in the same order: a ratio between different work says
/// nothing.
void requireSameRows(jet::Recordset& ours, const plain::Rows& plain);

} // namespace bench
