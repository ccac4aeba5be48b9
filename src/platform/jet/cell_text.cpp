#include "platform/jet/cell_text.h"

#include "platform/basic/convert.h"
#include "platform/basic/format.h"

namespace jet {

std::string escaped(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '\\':
            result += "\\\\";
            break;
        case '\t':
            result += "\\t";
            break;
        case '\n':
            result += "\\n";
            break;
        default:
            result += c;
        }
    }
    return result;
}

std::string cellText(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        return "NULL";
    case Value::Kind::Boolean:
        return value.boolOr() ? "-1" : "0";
    case Value::Kind::Integer:
        return std::to_string(value.longOr());
    case Value::Kind::Double:
        return basic::numberText(value.doubleOr(), '.');
    case Value::Kind::Date:
        return basic::Format(value, value.dateOr().secondOfDay() == 0 ? "dd.mm.yyyy" : "dd.mm.yyyy hh:nn:ss");
    case Value::Kind::Text:
        return escaped(value.text());
    }
    return {};
}

} // namespace jet
