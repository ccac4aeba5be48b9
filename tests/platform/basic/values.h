#pragma once

#include "platform/basic/convert.h"
#include "platform/basic/error_numbers.h"

#include <ostream>
#include <string>

namespace basic {

inline void PrintTo(Date date, std::ostream* out) { *out << date.serial(); }

/// Kind and content as one word, so that a failed comparison tells both.
inline std::string shown(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        return "Null";
    case Value::Kind::Boolean:
        return CStr(value);
    case Value::Kind::Integer:
        return "Integer " + CStr(value);
    case Value::Kind::Double:
        return "Double " + CStr(value);
    case Value::Kind::Date:
        return "Date " + CStr(value);
    case Value::Kind::Text:
        return "'" + value.text() + "'";
    }
    return {};
}

/// The number that the call raises, 0 if none.
template <typename Call>
int errorOf(Call call) {
    try {
        static_cast<void>(call());
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

/// What the call gives, in the way of shown(), or "Error n".
template <typename Call>
std::string outcome(Call call) {
    try {
        return shown(Value(call()));
    } catch (const Error& error) {
        return "Error " + std::to_string(error.number());
    }
}

} // namespace basic
