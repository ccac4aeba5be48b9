#pragma once

#include "platform/basic/date.h"

namespace services {

/// The one clock of a run; Date() and Now() inside statements ask it too. Tests set it.
class Clock {
public:
    virtual ~Clock() = default;
    /// Local time, whole seconds.
    [[nodiscard]] virtual basic::Date now() const = 0;
    [[nodiscard]] basic::Date today() const { return now().day(); }
};

/// The machine's local time.
class SystemClock final : public Clock {
public:
    [[nodiscard]] basic::Date now() const override;
};

/// A clock that stands still until it is set.
class FixedClock final : public Clock {
public:
    explicit FixedClock(basic::Date now) : now_(now) {}
    [[nodiscard]] basic::Date now() const override { return now_; }
    void set(basic::Date now) { now_ = now; }

private:
    basic::Date now_;
};

} // namespace services
