#pragma once

#include <string>
#include <vector>

namespace services {

/// What the desktop does for the program.
class Shell {
public:
    virtual ~Shell() = default;

    /// Opens a file or folder, or an address of the web, with the program that the desktop has for it. False when there
    /// is none or the file is missing.
    [[nodiscard]] virtual bool open(const std::string& target) = 0;
    /// Starts a program and does not wait for it. False when it cannot be started.
    [[nodiscard]] virtual bool start(const std::string& program, const std::vector<std::string>& arguments) = 0;
};

} // namespace services
