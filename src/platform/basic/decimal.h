#pragma once

#include <string>

namespace basic {

/// A finite double as its 15 significant decimal digits: 0.d1d2d3... times 10 to `point`. What the house rounds and
/// prints is this, not the binary value, so that 3.175 is a half.
struct Decimal {
    bool negative = false;
    std::string digits; ///< neither leading nor trailing zeros; empty for zero
    int point = 0;      ///< digits before the decimal point; negative for zeros behind it

    [[nodiscard]] bool isZero() const { return digits.empty(); }
    /// Digit with the given weight (0 ones, 1 tens, -1 tenths) as character, '0' where none is kept.
    [[nodiscard]] char digitAt(int weight) const;
};

enum class Rounding { HalfAwayFromZero, HalfToEven };

/// Raises 6 for what is not finite.
[[nodiscard]] Decimal decimalOf(double value);
/// Rounds to `decimals` places behind the point (negative: before it).
[[nodiscard]] Decimal rounded(Decimal value, int decimals, Rounding rounding);
[[nodiscard]] double toDouble(const Decimal& value);

/// Overflows to infinity, underflows to zero. `text` is digits with an optional point and exponent, nothing else.
[[nodiscard]] double readDouble(const std::string& text);

} // namespace basic
