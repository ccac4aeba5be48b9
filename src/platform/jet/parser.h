#pragma once

#include "platform/jet/ast.h"
#include "platform/jet/lexer.h"

#include <string_view>
#include <vector>

namespace jet {

/// A statement and the literals that its structure depends on: TOP n, ORDER BY position, sizes in DDL. A plan made from
/// it serves another statement of the same shape only if these literals are the same.
struct Parsed {
    ast::Statement statement;
    std::vector<std::size_t> structuralLiterals;
};

/// Parses one statement (an optional ';' and blanks may follow). Raises Syntax naming what was expected, what was found
/// and where. Nesting deeper than 200 levels raises TooComplex.
[[nodiscard]] Parsed parse(std::string_view sql);

} // namespace jet
