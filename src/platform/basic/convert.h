#pragma once

#include "platform/basic/value.h"

namespace basic {

// Conversions by German rules: comma decimal, points between digits ignored, days first in dates. Pinned; the environment's
// locale is never asked. Null raises 94 unless said otherwise, text that is nothing of the kind raises 13, a result out of
// range raises 6.

/// 16 bits, half to even.
[[nodiscard]] std::int64_t CInt(const Value& value);
/// 32 bits, half to even.
[[nodiscard]] std::int64_t CLng(const Value& value);
[[nodiscard]] double CDbl(const Value& value);
/// Any number but 0 is True; text must be a number or one of Wahr, Falsch, True, False.
[[nodiscard]] bool CBool(const Value& value);
/// Numbers with comma and at most 15 significant digits; dates "dd.mm.yyyy", with " hh:nn:ss" only when there is a time
/// (a time without a day, day 0, gives the time alone); True and False as "Wahr" and "Falsch".
[[nodiscard]] std::string CStr(const Value& value);
/// Text by the rules of parseDate, numbers as day numbers.
[[nodiscard]] Date CDate(const Value& value);
/// As CDate, but Null stays Null.
[[nodiscard]] Value CVDate(const Value& value);
/// Does CDate accept it? False for Null and numbers.
[[nodiscard]] bool IsDate(const Value& value);
/// Is it a number, or text that CDbl accepts? False for Null and dates.
[[nodiscard]] bool IsNumeric(const Value& value);

/// English reading that never fails: blanks dropped, stops at the first strange character, "&H" and "&O" prefixes,
/// exponent with E or D. Null raises 94.
[[nodiscard]] double Val(const Value& value);
/// Decimal point, a blank for the plus sign, no zero before the point: Str(0.75) is " .75". Null raises 94; text that is
/// no number raises 13.
[[nodiscard]] std::string Str(const Value& value);

/// The text to date reading behind CDate and IsDate, without an exception. `today` gives the year where the text has none.
[[nodiscard]] std::optional<Date> parseDate(std::string_view text, Date today);
/// The text to number reading behind CDbl, without an exception.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);

/// At most 15 significant digits, no trailing zeros, with the given decimal separator ('.' or ','), as CStr and Str print.
[[nodiscard]] std::string numberText(double value, char decimalSeparator);

} // namespace basic
