#pragma once

#include "platform/services/shell.h"
#include "platform/services/user.h"

namespace qt {

class DesktopShell final : public services::Shell {
public:
    [[nodiscard]] bool open(const std::string& target) override;
    [[nodiscard]] bool start(const std::string& program, const std::vector<std::string>& arguments) override;
};

/// Who is logged on to the machine.
class LogonUser final : public services::User {
public:
    [[nodiscard]] std::string NameDesUsers() const override;
};

} // namespace qt
