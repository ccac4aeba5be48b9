#include "platform/basic/decimal.h"

#include "platform/basic/error_numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace basic {

namespace {

constexpr int significantDigits = 15;

Decimal withoutTrailingZeros(Decimal value) {
    while (!value.digits.empty() && value.digits.back() == '0')
        value.digits.pop_back();
    if (value.isZero()) return {};
    return value;
}

/// Adds one to the last kept digit.
void carry(Decimal& value) {
    while (!value.digits.empty() && value.digits.back() == '9')
        value.digits.pop_back();
    if (value.digits.empty()) {
        value.digits = "1";
        ++value.point;
    } else {
        ++value.digits.back();
    }
}

bool roundsUp(const Decimal& value, std::size_t kept, Rounding rounding) {
    if (value.digits[kept] != '5' || kept + 1 < value.digits.size()) return value.digits[kept] >= '5';
    if (rounding == Rounding::HalfAwayFromZero) return true;
    return kept > 0 && (value.digits[kept - 1] - '0') % 2 == 1;
}

/// The power of ten of the first digit that is not zero, plus one; 0 where all are.
long magnitudeOf(const std::string& text) {
    const std::size_t end = std::min(text.find('e'), text.size());
    const std::size_t point = std::min(text.find('.'), end);
    const std::size_t first = text.find_first_not_of(".0");
    if (first >= end) return 0;
    const long places = static_cast<long>(point) - static_cast<long>(first);
    int exponent = 0;
    if (end < text.size()) std::from_chars(text.data() + end + 1, text.data() + text.size(), exponent);
    return (places > 0 ? places : places + 1) + exponent;
}

} // namespace

char Decimal::digitAt(int weight) const {
    const int index = point - 1 - weight;
    return index >= 0 && index < static_cast<int>(digits.size()) ? digits[static_cast<std::size_t>(index)] : '0';
}

Decimal decimalOf(double value) {
    if (!std::isfinite(value)) raise(ErrorNumber::Overflow);
    if (value == 0) return {};
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                   std::chars_format::scientific, significantDigits - 1)
                         .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t exponentMark = text.find('e');
    Decimal result{.negative = value < 0, .digits = std::string(text.substr(0, exponentMark))};
    result.digits.erase(1, 1);
    const char* exponent = text.data() + exponentMark + (text[exponentMark + 1] == '+' ? 2 : 1);
    std::from_chars(exponent, end, result.point);
    ++result.point;
    return withoutTrailingZeros(std::move(result));
}

Decimal rounded(Decimal value, int decimals, Rounding rounding) {
    const long kept = long{value.point} + decimals;
    if (kept < 0) return {};
    if (kept >= static_cast<long>(value.digits.size())) return value;
    const auto keep = static_cast<std::size_t>(kept);
    const bool up = roundsUp(value, keep, rounding);
    value.digits.resize(keep);
    if (up) carry(value);
    return withoutTrailingZeros(std::move(value));
}

double toDouble(const Decimal& value) {
    if (value.isZero()) return 0;
    const double result = readDouble("0." + value.digits + "e" + std::to_string(value.point));
    return value.negative ? -result : result;
}

double readDouble(const std::string& text) {
    double result = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), result);
    if (error != std::errc::result_out_of_range) return result;
    return magnitudeOf(text) > 0 ? std::numeric_limits<double>::infinity() : 0;
}

} // namespace basic
