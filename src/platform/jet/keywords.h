#pragma once

#include "platform/jet/lexer.h"

#include <string_view>

namespace jet {

/// What a token means to the grammar: a keyword, an operator or a bracket. None for names of the house's own, quoted
/// names and literals.
enum class Word : unsigned char {
    None,
    Add,
    All,
    Alter,
    And,
    As,
    Asc,
    Between,
    By,
    Column,
    Constraint,
    Create,
    Date,
    Delete,
    Desc,
    Distinct,
    DistinctRow,
    Drop,
    Eqv,
    Exists,
    False,
    From,
    Group,
    Having,
    Imp,
    In,
    Index,
    Inner,
    Insert,
    Into,
    Is,
    Join,
    Key,
    Left,
    Like,
    Mod,
    Not,
    Now,
    Null,
    On,
    Or,
    Order,
    Outer,
    Percent,
    Primary,
    Right,
    Select,
    Set,
    Table,
    Time,
    Top,
    True,
    Union,
    Unique,
    Update,
    Values,
    Where,
    With,
    Xor,
    Open,
    Close,
    Comma,
    Dot,
    Bang,
    Semicolon,
    Plus,
    Minus,
    Star,
    Slash,
    Backslash,
    Power,
    Ampersand,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual
};

[[nodiscard]] Word wordOf(const Token& token);

/// As error texts show it.
[[nodiscard]] std::string_view spelling(Word word);

/// Words that are never a name unless quoted or behind a dot.
[[nodiscard]] bool isReserved(Word word);

/// Words that cannot be an alias without AS: the reserved ones and those that may follow a table or an expression.
[[nodiscard]] bool endsAlias(Word word);

} // namespace jet
