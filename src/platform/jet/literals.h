#pragma once

#include "platform/jet/lexer.h"

#include <string_view>

namespace jet {

/// Does a byte belong to an unquoted name behind its first letter? Every byte beyond ASCII does.
[[nodiscard]] bool isNameByte(char c);

/// Offset of the next literal at or after `from`, or the text's length. Quoted names are passed over. Raises Syntax for
/// a name whose bracket is open and for control characters.
[[nodiscard]] std::size_t findLiteral(std::string_view sql, std::size_t from);

/// Reads the literal that findLiteral found and returns the offset behind it. Raises Syntax where it cannot be read.
[[nodiscard]] std::size_t readLiteral(std::string_view sql, std::size_t from, LiteralValue& literal);

} // namespace jet
