#pragma once

#include "platform/jet/compiled.h"
#include "platform/jet/error.h"

#include <cstdint>
#include <limits>
#include <vector>

struct sqlite3_stmt;

namespace jet {

/// The rows of a statement, one behind the other.
struct RowBlock {
    /// Identity of a row that an outer join has not found.
    static constexpr std::int64_t noIdentity = std::numeric_limits<std::int64_t>::min();

    std::size_t width = 0;
    std::size_t identityWidth = 0;
    std::size_t count = 0;
    std::vector<Value> values;            ///< width for each row
    std::vector<std::int64_t> identities; ///< identityWidth for each row
};

/// Steps a bound statement to its end. The caller resets it.
[[nodiscard]] RowBlock readRows(sqlite3_stmt* statement, const Compiled& compiled);

} // namespace jet
