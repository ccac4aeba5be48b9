#pragma once

#include "platform/jet/ast.h"

/// How tightly the operators of the dialect bind; a larger number binds tighter. Operators of one number are read from
/// left to right.
namespace jet::binding {

inline constexpr int loosest = 1;
inline constexpr int negation = 6;   ///< Not
inline constexpr int comparison = 7; ///< also Like, Between, In and Is
inline constexpr int sign = 13;

[[nodiscard]] constexpr int of(ast::Binary::Op op) {
    using Op = ast::Binary::Op;
    switch (op) {
    case Op::Imp:
        return 1;
    case Op::Eqv:
        return 2;
    case Op::Xor:
        return 3;
    case Op::Or:
        return 4;
    case Op::And:
        return 5;
    case Op::Equal:
    case Op::NotEqual:
    case Op::Less:
    case Op::LessEqual:
    case Op::Greater:
    case Op::GreaterEqual:
        return comparison;
    case Op::Concat:
        return 8;
    case Op::Add:
    case Op::Subtract:
        return 9;
    case Op::Modulo:
        return 10;
    case Op::IntegerDivide:
        return 11;
    case Op::Multiply:
    case Op::Divide:
        return 12;
    case Op::Power:
        return 14;
    }
    return 0;
}

} // namespace jet::binding
