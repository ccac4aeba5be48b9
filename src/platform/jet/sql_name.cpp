#include "platform/jet/sql_name.h"

#include "platform/basic/text.h"

namespace jet {

SqlName::SqlName(std::string_view text) : text_(text), folded_(basic::foldCase(text)) {}

std::string quoted(std::string_view name) {
    std::string result = "\"";
    for (const char c : name) {
        result += c;
        if (c == '"') result += c;
    }
    return result += '"';
}

} // namespace jet
