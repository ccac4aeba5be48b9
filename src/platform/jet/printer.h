#pragma once

#include "platform/jet/ast.h"
#include "platform/jet/lexer.h"

#include <string>
#include <vector>

namespace jet {

/// The statement in the dialect, in one canonical spelling: every name in brackets, every operator in round brackets.
/// Parsing it again gives the same tree. `literals` are those of the statement's shape.
[[nodiscard]] std::string print(const ast::Statement& statement, const std::vector<LiteralValue>& literals);
[[nodiscard]] std::string print(const ast::Expr& expr, const std::vector<LiteralValue>& literals);

} // namespace jet
