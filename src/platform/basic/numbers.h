#pragma once

#include "platform/basic/value.h"

namespace basic {

/// Half to even on the value's 15 decimal digits, at the given number of decimals (0 to 15, others raise 5).
[[nodiscard]] double Round(double value, int decimals = 0);
/// Toward minus infinity.
[[nodiscard]] double Int(double value);
/// Toward zero.
[[nodiscard]] double Fix(double value);
[[nodiscard]] int Sgn(double value);

/// The operators of expressions. Null with anything is Null; text is read as a German number (13 if it is none); the
/// result of integers beyond 32 bits is a Double. Division by zero raises 11, a result out of range 6.
[[nodiscard]] Value add(const Value& a, const Value& b);      ///< two texts are joined; date + number is a date
[[nodiscard]] Value subtract(const Value& a, const Value& b); ///< date - date is a number of days
[[nodiscard]] Value multiply(const Value& a, const Value& b);
[[nodiscard]] Value divide(const Value& a, const Value& b);        ///< '/', always a Double
[[nodiscard]] Value integerDivide(const Value& a, const Value& b); ///< '\', both sides rounded half to even first
[[nodiscard]] Value modulo(const Value& a, const Value& b);        ///< keeps the sign of the left side
[[nodiscard]] Value power(const Value& a, const Value& b);
[[nodiscard]] Value negate(const Value& a);
/// '&': Null counts as empty text unless both are Null; Booleans as -1 and 0, numbers and dates as CStr.
[[nodiscard]] Value concat(const Value& a, const Value& b);

/// Order by the dialect: numbers (dates, Booleans) by value, texts by compareText. Null against anything has no order.
/// A text against a number raises 13.
[[nodiscard]] std::optional<int> compareValues(const Value& a, const Value& b);

} // namespace basic
