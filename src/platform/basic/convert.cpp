#include "platform/basic/convert.h"

#include "platform/basic/error_numbers.h"
#include "platform/basic/reading.h"
#include "platform/basic/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace basic {

namespace {

template <typename Integer>
std::int64_t toInteger(const Value& value) {
    using Limits = std::numeric_limits<Integer>;
    const double number = std::nearbyint(CDbl(value));
    if (!(number >= Limits::min() && number <= Limits::max())) raise(ErrorNumber::Overflow);
    return static_cast<std::int64_t>(number);
}

std::string twoDigits(int number) {
    return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

std::string dayText(const DateParts& parts) {
    return twoDigits(parts.day) + "." + twoDigits(parts.month) + "." + twoDigits(parts.year / 100) +
           twoDigits(parts.year % 100);
}

std::string timeText(const DateParts& parts) {
    return twoDigits(parts.hour) + ":" + twoDigits(parts.minute) + ":" + twoDigits(parts.second);
}

std::string dateText(Date date) {
    const std::int64_t seconds = secondsOf(date);
    const DateParts parts = partsOf(date);
    if (seconds >= 0 && seconds < 86400) return timeText(parts);
    return date.secondOfDay() == 0 ? dayText(parts) : dayText(parts) + " " + timeText(parts);
}

std::optional<bool> truthOfWord(std::string_view text) {
    const std::string word = foldCase(Trim(text));
    if (word == "wahr" || word == "true") return true;
    if (word == "falsch" || word == "false") return false;
    return std::nullopt;
}

} // namespace

std::int64_t CInt(const Value& value) { return toInteger<std::int16_t>(value); }

std::int64_t CLng(const Value& value) { return toInteger<std::int32_t>(value); }

double CDbl(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        break;
    case Value::Kind::Boolean:
        return std::get<bool>(value.storage()) ? -1 : 0;
    case Value::Kind::Integer:
        return static_cast<double>(std::get<std::int64_t>(value.storage()));
    case Value::Kind::Double:
        return std::get<double>(value.storage());
    case Value::Kind::Date:
        return std::get<Date>(value.storage()).serial();
    case Value::Kind::Text:
        return numberOfText(value.text());
    }
    raise(ErrorNumber::InvalidNull);
}

bool CBool(const Value& value) {
    if (value.isText())
        if (const std::optional<bool> truth = truthOfWord(value.text())) return *truth;
    return CDbl(value) != 0;
}

std::string CStr(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        break;
    case Value::Kind::Boolean:
        return std::get<bool>(value.storage()) ? "Wahr" : "Falsch";
    case Value::Kind::Integer:
        return std::to_string(std::get<std::int64_t>(value.storage()));
    case Value::Kind::Double:
        return numberText(std::get<double>(value.storage()), ',');
    case Value::Kind::Date:
        return dateText(std::get<Date>(value.storage()));
    case Value::Kind::Text:
        return value.text();
    }
    raise(ErrorNumber::InvalidNull);
}

std::string operandText(const Value& value) {
    if (value.kind() == Value::Kind::Boolean) return std::get<bool>(value.storage()) ? "-1" : "0";
    return CStr(value);
}

Date CDate(const Value& value, std::optional<Date> today) {
    if (value.isDate()) return std::get<Date>(value.storage());
    if (value.isText()) {
        const std::optional<Date> date = readDate(value.text(), today);
        if (!date) raise(ErrorNumber::TypeMismatch);
        return *date;
    }
    const Date date(CDbl(value));
    static_cast<void>(date.dayNumber());
    return date;
}

Value CVDate(const Value& value, std::optional<Date> today) {
    if (value.isNull()) return {};
    return CDate(value, today);
}

bool IsDate(const Value& value, std::optional<Date> today) {
    return value.isDate() || (value.isText() && readDate(value.text(), today));
}

bool IsNumeric(const Value& value) { return value.isNumber() || (value.isText() && parseNumber(value.text())); }

std::string Str(const Value& value) {
    if (value.kind() == Value::Kind::Boolean) return std::get<bool>(value.storage()) ? "True" : "False";
    std::string text = numberText(CDbl(value), '.');
    const bool minus = text.starts_with('-');
    if (text.compare(minus ? 1 : 0, 2, "0.") == 0) text.erase(minus ? 1 : 0, 1);
    return minus ? text : " " + text;
}

std::string numberText(double value, char decimalSeparator) {
    if (!std::isfinite(value)) raise(ErrorNumber::Overflow);
    if (value == 0) return "0";
    std::array<char, 32> buffer{};
    char* const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 15).ptr;
    std::replace(buffer.data(), end, '.', decimalSeparator);
    std::replace(buffer.data(), end, 'e', 'E');
    return {buffer.data(), end};
}

} // namespace basic
