#pragma once

#include "platform/jet/database.h"

#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// How the storage would find the rows of a statement, a line for each table: "SEARCH t1 USING INDEX ..." or "SCAN t1".
/// Tables are called t1, t2, ... in the order of the statement's text. For tests and for who looks into a slow
/// statement.
[[nodiscard]] std::vector<std::string> explainedPlan(const Database& database, std::string_view sql);

} // namespace jet
