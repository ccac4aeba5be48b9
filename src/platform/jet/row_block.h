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
    std::vector<Value> values;            ///< width for each row, in the order of reading
    std::vector<std::int64_t> identities; ///< identityWidth for each row, in the order of reading
    std::vector<std::size_t> order;       ///< where each row stands in them; empty: in the order of reading

    [[nodiscard]] std::size_t place(std::size_t row) const { return order.empty() ? row : order[row]; }
    [[nodiscard]] Value* row(std::size_t row) { return values.data() + place(row) * width; }
    [[nodiscard]] const Value* row(std::size_t row) const { return values.data() + place(row) * width; }
    [[nodiscard]] std::int64_t identity(std::size_t row, std::size_t source) const {
        return identities[place(row) * identityWidth + source];
    }
    /// At the end, whatever its key.
    void append(std::vector<Value>&& record, const std::vector<std::int64_t>& recordIdentities);
};

/// Steps a bound statement to its end. The caller resets it. `expected` is a guess at the number of rows.
[[nodiscard]] RowBlock readRows(sqlite3_stmt* statement, const Compiled& compiled, std::size_t expected);

} // namespace jet
