#include "platform/services/clock.h"

#include <ctime>

namespace services {

basic::Date SystemClock::now() const {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return basic::Date::fromYmdHms(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                                   local.tm_sec < 60 ? local.tm_sec : 59);
}

} // namespace services
