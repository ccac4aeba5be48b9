#pragma once

#include <string>

namespace services {

class User {
public:
    virtual ~User() = default;
    /// The logon name, UTF-8; empty when the system tells none.
    [[nodiscard]] virtual std::string NameDesUsers() const = 0;
};

} // namespace services
