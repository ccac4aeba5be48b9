#pragma once

#include <string_view>

namespace jet {

/// Types of fields, with the numbers that the engine's operations use.
enum class FieldType : int {
    Boolean = 1, ///< -1 or 0, never Null
    Integer = 3, ///< 16 bits
    Long = 4,    ///< 32 bits
    Double = 7,
    Date = 8,
    Text = 10, ///< up to 255 characters
    Memo = 12, ///< text of any length
};

/// Static type of an expression. Any: known only when it runs (Null literals, IIf over different types).
enum class ExprType { Any, Boolean, Integer, Long, Double, Date, Text };

[[nodiscard]] constexpr ExprType exprType(FieldType type) {
    switch (type) {
    case FieldType::Boolean:
        return ExprType::Boolean;
    case FieldType::Integer:
        return ExprType::Integer;
    case FieldType::Long:
        return ExprType::Long;
    case FieldType::Double:
        return ExprType::Double;
    case FieldType::Date:
        return ExprType::Date;
    case FieldType::Text:
    case FieldType::Memo:
        return ExprType::Text;
    }
    return ExprType::Any;
}

} // namespace jet
