#pragma once

#include <string>
#include <vector>

namespace bench {

/// What a run of a program took.
struct ProcessCost {
    double milliseconds = 0; ///< from its start to its end
    double megabytes = 0;    ///< its highest use of memory
};

/// Median of several runs of this program with the arguments. Throws std::runtime_error when one fails.
[[nodiscard]] ProcessCost costOfRunning(const std::vector<std::string>& arguments, int runs);

} // namespace bench
