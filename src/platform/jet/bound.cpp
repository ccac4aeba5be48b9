#include "platform/jet/bound.h"

#include <algorithm>
#include <array>

namespace jet {

std::optional<int> BoundSource::columnIndex(const SqlName& name) const {
    if (table) return table->columnIndex(name);
    const auto found =
        std::find_if(derived.begin(), derived.end(), [&](const OutputColumn& c) { return c.name == name; });
    if (found == derived.end()) return std::nullopt;
    return static_cast<int>(found - derived.begin());
}

ExprType BoundSource::columnType(int column) const {
    const auto index = static_cast<std::size_t>(column);
    return table ? exprType(table->columns[index].type) : derived[index].type;
}

const SqlName& BoundSource::columnName(int column) const {
    const auto index = static_cast<std::size_t>(column);
    return table ? table->columns[index].name : derived[index].name;
}

bool isNumeric(ExprType type) {
    return type == ExprType::Boolean || type == ExprType::Integer || type == ExprType::Long || type == ExprType::Double;
}

ExprType commonType(ExprType a, ExprType b) {
    if (a == b || b == ExprType::Any) return a;
    if (a == ExprType::Any) return b;
    if (isNumeric(a) && isNumeric(b))
        return a == ExprType::Double || b == ExprType::Double ? ExprType::Double : ExprType::Long;
    if (a == ExprType::Text || b == ExprType::Text) return ExprType::Text;
    return ExprType::Date; // a date and a number: both are day numbers
}

bool isAggregate(const SqlName& name) {
    static constexpr std::array<std::string_view, 11> names{"count", "sum",   "avg",    "min", "max", "first",
                                                            "last",  "stdev", "stdevp", "var", "varp"};
    return std::find(names.begin(), names.end(), name.folded()) != names.end();
}

} // namespace jet
