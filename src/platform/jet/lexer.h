#pragma once

#include "platform/jet/ast.h"
#include "platform/jet/error.h"

#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// A literal of a statement: how it reads and what it is worth. Integers that fit 32 bits are Integer, others Double;
/// WildcardText is a text that holds a wildcard of Like.
struct LiteralValue {
    ast::Literal::Kind kind;
    Value value;
};

/// A statement with its literals taken out: two statements of one shape differ only in their literals.
struct Shape {
    std::string key; ///< the text with a mark of its kind for each literal
    std::vector<LiteralValue> literals;
};

/// One pass over the text. Literals that cannot be read (an open quote, #13-45-2020#) raise Syntax with their place.
/// Into a Shape that is reused from call to call, so that a known statement costs no allocation for its key.
void scanShape(std::string_view sql, Shape& shape);

enum class TokenKind { End, Name, QuotedName, Literal, Symbol, Semicolon };

struct Token {
    TokenKind kind;
    std::string_view text; ///< as it stands; of a quoted name what is between the brackets
    std::size_t offset;    ///< bytes from the start of the statement
    std::size_t literal;   ///< index into the literals, with kind Literal
    ast::Literal::Kind literalKind;
};

/// The tokens of a statement; ends with End. Literals are numbered exactly as scanShape numbers them.
[[nodiscard]] std::vector<Token> tokenize(std::string_view sql);

} // namespace jet
