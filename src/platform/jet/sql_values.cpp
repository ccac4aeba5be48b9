#include "platform/jet/sql_values.h"

#include "platform/basic/convert.h"
#include "platform/basic/format.h"

namespace jet {

std::string sqlDate(Date date) { return "#" + basic::Format(date, "mm-dd-yyyy") + "#"; }

std::string sqlNumber(double number) { return basic::numberText(number, '.'); }

std::string sqlText(std::string_view text) {
    std::string result = "'";
    for (const char c : text) {
        result += c;
        if (c == '\'') result += c;
    }
    return result += '\'';
}

std::string sqlValue(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        return "NULL";
    case Value::Kind::Boolean:
        return value.boolOr() ? "True" : "False";
    case Value::Kind::Integer:
        return std::to_string(value.longOr());
    case Value::Kind::Double:
        return sqlNumber(value.doubleOr());
    case Value::Kind::Date:
        if (value.dateOr().secondOfDay() == 0) return sqlDate(value.dateOr());
        return "#" + basic::Format(value, "mm-dd-yyyy hh:nn:ss") + "#";
    case Value::Kind::Text:
        break;
    }
    return sqlText(value.text());
}

} // namespace jet
