#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace support {

/// What a program left behind when it ended.
struct Finished {
    int exitCode = -1; ///< -1 when a signal ended it
    std::string output;
    std::string errors;
};

/// Runs a program of the house (its name in the build's bin folder) to its end with `input` as its standard input.
[[nodiscard]] Finished runProgram(std::string_view name, const std::vector<std::string>& arguments,
                                  std::string_view input = {});

} // namespace support
