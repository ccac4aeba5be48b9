#pragma once

#include "platform/jet/bound.h"
#include "platform/jet/parser.h"

namespace jet {

/// Finds the table and field behind every name of a SELECT, UPDATE, DELETE or INSERT and the type of every expression.
[[nodiscard]] Binding bind(Parsed& parsed, const std::vector<LiteralValue>& literals, const Catalogue& catalogue);

} // namespace jet
