#pragma once

#include "platform/jet/error.h"
#include "platform/jet/field_type.h"
#include "platform/jet/sql_name.h"

#include <span>

namespace jet {

/// A function of the run-time library as statements know it.
struct Function {
    enum class Result { Fixed, SameAsFirst, CommonOfAll };

    std::string_view name;
    int minArguments;
    int maxArguments;
    Result result;
    ExprType type; ///< with Fixed
    Value (*evaluate)(std::span<const Value> arguments);
};

/// Null when there is none. IIf, Date, Now, Time and the aggregates are no table entries: the compiler knows them.
[[nodiscard]] const Function* findFunction(const SqlName& name);
[[nodiscard]] std::span<const Function> allFunctions();

} // namespace jet
