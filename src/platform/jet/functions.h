#pragma once

#include "platform/jet/error.h"
#include "platform/jet/field_type.h"
#include "platform/jet/sql_name.h"

#include <span>
#include <string>

namespace jet {

/// A function of the run-time library as statements know it. `today` gives texts without a year theirs.
struct Function {
    enum class Result { Fixed, SameAsFirst, CommonOfAll };

    std::string_view name;
    int minArguments;
    int maxArguments;
    Result result;
    ExprType type; ///< with Fixed
    Value (*evaluate)(std::span<const Value> arguments, Date today);
};

/// Null when there is none. IIf, Date, Now, Time and the aggregates are no table entries: the compiler knows them.
[[nodiscard]] const Function* findFunction(const SqlName& name);
[[nodiscard]] std::span<const Function> allFunctions();
/// What the function is called in the storage's SQL: apart from the storage's own names, which mean other things.
[[nodiscard]] std::string sqlFunctionName(const Function& function);

} // namespace jet
