#include "platform/jet/field_value.h"

#include "platform/basic/convert.h"
#include "platform/basic/text.h"

#include <cmath>

namespace jet {

namespace {

[[noreturn]] void refuse(ErrorNumber number, const Column& column) { raise(number, "'" + column.name.text() + "'"); }

Value storedText(const Column& column, const Value& value) {
    std::string text = value.kind() == Value::Kind::Boolean ? (value.boolOr() ? "-1" : "0") : basic::CStr(value);
    if (text.empty() && !column.allowZeroLength) refuse(ErrorNumber::ZeroLength, column);
    // Bytes are never fewer than characters, so the count is only taken when it could matter.
    if (column.type == FieldType::Text && text.size() > static_cast<std::size_t>(column.size) &&
        basic::Len(text) > column.size)
        refuse(ErrorNumber::FieldTooSmall, column);
    return text;
}

Value storedDouble(const Value& value) {
    const double number = basic::CDbl(value);
    if (!std::isfinite(number)) raise(ErrorNumber::Overflow);
    return number;
}

/// A sum of a date and days may have left the calendar.
Value storedDate(const Value& value) {
    return value.isDate() ? basic::CDate(value.dateOr().serial()) : basic::CDate(value);
}

Value converted(const Column& column, const Value& value) {
    switch (column.type) {
    case FieldType::Boolean:
        return basic::CBool(value);
    case FieldType::Integer:
        return basic::CInt(value);
    case FieldType::Long:
        return basic::CLng(value);
    case FieldType::Double:
        return storedDouble(value);
    case FieldType::Date:
        return storedDate(value);
    case FieldType::Text:
    case FieldType::Memo:
        break;
    }
    return storedText(column, value);
}

} // namespace

Value storedValue(const Column& column, const Value& value) {
    if (value.isNull()) {
        if (column.type == FieldType::Boolean) return false;
        if (column.required && !column.counter) refuse(ErrorNumber::ValueRequired, column);
        return value;
    }
    try {
        return converted(column, value);
    } catch (const Error& error) {
        if (error.number() == static_cast<int>(ErrorNumber::TypeMismatch)) refuse(ErrorNumber::FieldConversion, column);
        if (error.number() == static_cast<int>(ErrorNumber::Overflow)) refuse(ErrorNumber::Overflow, column);
        throw;
    }
}

} // namespace jet
