#include "platform/basic/numbers.h"

#include "platform/basic/convert.h"
#include "platform/basic/decimal.h"
#include "platform/basic/error_numbers.h"
#include "platform/basic/reading.h"
#include "platform/basic/text.h"

#include <cmath>
#include <limits>

namespace basic {

namespace {

Value finite(double number) {
    if (!std::isfinite(number)) raise(ErrorNumber::Overflow);
    return number;
}

Value fitted(std::int64_t number) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (number >= Limits::min() && number <= Limits::max()) return number;
    return static_cast<double>(number);
}

Value dateOf(double serial) {
    const Date date(serial);
    static_cast<void>(date.dayNumber());
    return date;
}

/// The value as a whole number without conversion, where it is one by its kind.
std::optional<std::int64_t> whole(const Value& value) {
    if (value.kind() == Value::Kind::Integer) return std::get<std::int64_t>(value.storage());
    if (value.kind() == Value::Kind::Boolean) return std::get<bool>(value.storage()) ? -1 : 0;
    return std::nullopt;
}

bool anyNull(const Value& a, const Value& b) { return a.isNull() || b.isNull(); }

/// `exact` is one of the checked integer operations (true where the result does not fit), `rough` the same over
/// Doubles.
template <typename Exact, typename Rough>
Value calculate(const Value& a, const Value& b, Exact exact, Rough rough) {
    const auto left = whole(a);
    const auto right = whole(b);
    std::int64_t result = 0;
    if (left && right && !exact(*left, *right, &result)) return fitted(result);
    return finite(rough(CDbl(a), CDbl(b)));
}

Value sum(const Value& a, const Value& b) {
    return calculate(
        a, b, [](std::int64_t x, std::int64_t y, std::int64_t* result) { return __builtin_add_overflow(x, y, result); },
        [](double x, double y) { return x + y; });
}

Value difference(const Value& a, const Value& b) {
    return calculate(
        a, b, [](std::int64_t x, std::int64_t y, std::int64_t* result) { return __builtin_sub_overflow(x, y, result); },
        [](double x, double y) { return x - y; });
}

std::int64_t roundedOperand(const Value& value) {
    constexpr double limit = 9.2e18;
    if (const auto exact = whole(value)) return *exact;
    const double number = std::nearbyint(CDbl(value));
    if (!(std::abs(number) < limit)) raise(ErrorNumber::Overflow);
    return static_cast<std::int64_t>(number);
}

std::int64_t divisorOf(const Value& value) {
    const std::int64_t divisor = roundedOperand(value);
    if (divisor == 0) raise(ErrorNumber::DivisionByZero);
    return divisor;
}

template <typename Number>
int order(const Number& a, const Number& b) {
    return a < b ? -1 : b < a ? 1 : 0;
}

} // namespace

double Round(double value, int decimals) {
    if (decimals < 0 || decimals > 15) raise(ErrorNumber::InvalidCall);
    const Decimal exact = decimalOf(value);
    // Places beyond the 15 digits would only lose the binary value's own rest.
    if (exact.point + decimals >= 15) return value;
    return toDouble(rounded(exact, decimals, Rounding::HalfToEven));
}

double Int(double value) { return std::floor(value); }

double Fix(double value) { return std::trunc(value); }

int Sgn(double value) { return order(value, 0.0); }

Value add(const Value& a, const Value& b) {
    if (anyNull(a, b)) return {};
    if (a.isText() && b.isText()) return a.text() + b.text();
    if (a.isDate() || b.isDate()) return dateOf(CDbl(a) + CDbl(b));
    return sum(a, b);
}

Value subtract(const Value& a, const Value& b) {
    if (anyNull(a, b)) return {};
    if (a.isDate() != b.isDate()) return dateOf(CDbl(a) - CDbl(b));
    return difference(a, b);
}

Value multiply(const Value& a, const Value& b) {
    if (anyNull(a, b)) return {};
    return calculate(
        a, b, [](std::int64_t x, std::int64_t y, std::int64_t* result) { return __builtin_mul_overflow(x, y, result); },
        [](double x, double y) { return x * y; });
}

Value divide(const Value& a, const Value& b) {
    if (anyNull(a, b)) return {};
    const double divisor = CDbl(b);
    if (divisor == 0) raise(ErrorNumber::DivisionByZero);
    return finite(CDbl(a) / divisor);
}

Value integerDivide(const Value& a, const Value& b) {
    if (anyNull(a, b)) return {};
    const std::int64_t dividend = roundedOperand(a);
    const std::int64_t divisor = divisorOf(b);
    if (divisor == -1) return negate(dividend);
    return fitted(dividend / divisor);
}

Value modulo(const Value& a, const Value& b) {
    if (anyNull(a, b)) return {};
    const std::int64_t dividend = roundedOperand(a);
    const std::int64_t divisor = divisorOf(b);
    return fitted(divisor == -1 ? 0 : dividend % divisor);
}

Value power(const Value& a, const Value& b) {
    if (anyNull(a, b)) return {};
    const double base = CDbl(a);
    const double exponent = CDbl(b);
    const bool isRoot = base < 0 && exponent != std::trunc(exponent);
    if (isRoot || (base == 0 && exponent < 0)) raise(ErrorNumber::InvalidCall);
    return finite(std::pow(base, exponent));
}

Value negate(const Value& a) {
    if (a.isNull()) return {};
    return difference(0, a);
}

Value concat(const Value& a, const Value& b) {
    if (a.isNull() && b.isNull()) return {};
    return (a.isNull() ? std::string() : operandText(a)) + (b.isNull() ? std::string() : operandText(b));
}

std::optional<int> compareValues(const Value& a, const Value& b) {
    if (anyNull(a, b)) return std::nullopt;
    if (a.isText() != b.isText()) raise(ErrorNumber::TypeMismatch);
    if (a.isText()) return compareText(a.text(), b.text());
    const auto left = whole(a);
    const auto right = whole(b);
    if (left && right) return order(*left, *right);
    return order(CDbl(a), CDbl(b));
}

} // namespace basic
