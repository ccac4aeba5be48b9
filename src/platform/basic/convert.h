#pragma once

#include "platform/basic/value.h"

namespace basic {

// Conversions by German rules: comma decimal, points between digits ignored, days first in dates. Pinned; the
// environment's locale is never asked. Null raises 94 unless said otherwise, text that is nothing of the kind raises
// 13, a result out of range raises 6.

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
/// Text by the rules of parseDate, numbers as day numbers. `today` gives the year where a text has none; left out, it
/// is the machine's.
[[nodiscard]] Date CDate(const Value& value, std::optional<Date> today = {});
/// As CDate, but Null stays Null.
[[nodiscard]] Value CVDate(const Value& value, std::optional<Date> today = {});
/// Does CDate accept it? False for Null and numbers.
[[nodiscard]] bool IsDate(const Value& value, std::optional<Date> today = {});
/// Is it a number, or text that CDbl accepts? False for Null and dates.
[[nodiscard]] bool IsNumeric(const Value& value);

/// English reading that never fails: blanks dropped, stops at the first strange character, "&H" and "&O" prefixes,
/// exponent with E or D. "&H" numbers of up to 16 (32) bits count as signed. A number is read in its German spelling:
/// Val(4.9) is 4. Beyond the range it is the largest number. Null raises 94.
[[nodiscard]] double Val(const Value& value);
/// Decimal point, a blank for the plus sign, no zero before the point: Str(0.75) is " .75". Booleans are "True" and
/// "False", dates their day number. Null raises 94; text that is no number raises 13.
[[nodiscard]] std::string Str(const Value& value);

/// The text to date reading behind CDate and IsDate, without an exception. Day first, '.', '/' or '-' between the
/// parts, month names and their abbreviations, an optional time behind or in front, a time alone. Where the day cannot
/// be, other orders are tried: month first, year first. A year of one or two digits means 1930 to 2029; `today` gives
/// it where the text has none. A month and a year of four digits mean the month's first day.
[[nodiscard]] std::optional<Date> parseDate(std::string_view text, Date today);
/// The text to number reading behind CDbl, without an exception: blanks around, a sign in front or behind, points
/// anywhere among the digits, an exponent, a euro sign in front or behind, "&H" and "&O" numbers. None beyond the range
/// of a Double.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);

/// At most 15 significant digits, no trailing zeros, with the given decimal separator ('.' or ','), as CStr and Str
/// print; "1E-05" below 0.0001, "1E+15" from there on. Raises 6 for what is not finite.
[[nodiscard]] std::string numberText(double value, char decimalSeparator);

} // namespace basic
