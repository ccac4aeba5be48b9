#include "platform/basic/date.h"

#include "platform/basic/error_numbers.h"

#include <chrono>
#include <cmath>
#include <ctime>

namespace basic {

namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr std::int64_t secondsPerDay = 86400;
constexpr sys_days dayZero = std::chrono::year(1899) / 12 / 30;
constexpr std::int64_t firstDay = (sys_days(std::chrono::year(100) / 1 / 1) - dayZero).count();
constexpr std::int64_t lastDay = (sys_days(std::chrono::year(9999) / 12 / 31) - dayZero).count();

struct Moment {
    std::int64_t day;
    std::int64_t second;
};

std::int64_t floorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

Moment momentOf(double serial) {
    if (!(serial > static_cast<double>(firstDay - 1) && serial < static_cast<double>(lastDay + 1)))
        raise(ErrorNumber::Overflow);
    const double whole = std::trunc(serial);
    const Moment moment{static_cast<std::int64_t>(whole), std::llround(std::abs(serial - whole) * secondsPerDay)};
    if (moment.second < secondsPerDay) return moment;
    if (moment.day == lastDay) raise(ErrorNumber::Overflow);
    return {moment.day + 1, 0};
}

Date dateOf(const Moment& moment) {
    if (moment.day < firstDay || moment.day > lastDay) raise(ErrorNumber::InvalidCall);
    const double time = static_cast<double>(moment.second) / static_cast<double>(secondsPerDay);
    const auto day = static_cast<double>(moment.day);
    return Date(moment.day < 0 ? day - time : day + time);
}

std::int64_t dayOf(int year, int month, int day) {
    const std::int64_t months = std::int64_t{year} * 12 + month - 1;
    const std::int64_t rolled = floorDivide(months, 12);
    if (rolled < -30000 || rolled > 30000) raise(ErrorNumber::InvalidCall);
    const std::chrono::year_month_day first(std::chrono::year(static_cast<int>(rolled)),
                                            std::chrono::month(static_cast<unsigned>(months - rolled * 12 + 1)),
                                            std::chrono::day(1));
    return (sys_days(first) - dayZero).count() + day - 1;
}

} // namespace

Date Date::fromYmd(int year, int month, int day) { return dateOf({dayOf(year, month, day), 0}); }

Date Date::fromYmdHms(int year, int month, int day, int hour, int minute, int second) {
    return fromSeconds(dayOf(year, month, day) * secondsPerDay + std::int64_t{hour} * 3600 + std::int64_t{minute} * 60 +
                       second);
}

Date Date::day() const { return Date(static_cast<double>(dayNumber())); }

int Date::dayNumber() const { return static_cast<int>(momentOf(serial_).day); }

int Date::secondOfDay() const { return static_cast<int>(momentOf(serial_).second); }

DateParts partsOf(Date date) {
    const Moment moment = momentOf(date.serial());
    const sys_days day = dayZero + days(moment.day);
    const std::chrono::year_month_day calendar(day);
    const auto second = static_cast<int>(moment.second);
    return {.year = static_cast<int>(calendar.year()),
            .month = static_cast<int>(static_cast<unsigned>(calendar.month())),
            .day = static_cast<int>(static_cast<unsigned>(calendar.day())),
            .hour = second / 3600,
            .minute = second / 60 % 60,
            .second = second % 60,
            .weekday = static_cast<int>(std::chrono::weekday(day).c_encoding()) + 1};
}

std::int64_t secondsOf(Date date) {
    const Moment moment = momentOf(date.serial());
    return moment.day * secondsPerDay + moment.second;
}

Date fromSeconds(std::int64_t seconds) {
    const std::int64_t day = floorDivide(seconds, secondsPerDay);
    return dateOf({day, seconds - day * secondsPerDay});
}

Date systemToday() {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return Date::fromYmd(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

} // namespace basic
