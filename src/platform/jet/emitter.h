#pragma once

#include "platform/jet/bound.h"

namespace jet {

/// Writes a bound statement in the storage's SQL: the one place that knows the storage's dialect.
[[nodiscard]] Compiled emit(const ast::Statement& statement, const Binding& binding, bool includeIdentities);

/// The name by which a table's row identity can be asked for; empty when its own columns have taken all of them.
[[nodiscard]] std::string rowIdName(const Table& table);

} // namespace jet
