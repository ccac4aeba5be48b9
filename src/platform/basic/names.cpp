#include "platform/basic/names.h"

#include "platform/basic/text.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace basic {

namespace {

constexpr std::array<std::string_view, 12> months = {"Januar",    "Februar", "März",     "April",
                                                     "Mai",       "Juni",    "Juli",     "August",
                                                     "September", "Oktober", "November", "Dezember"};
constexpr std::array<std::string_view, 12> shortMonths = {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun",
                                                          "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
constexpr std::array<std::string_view, 7> weekdays = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                                      "Donnerstag", "Freitag", "Samstag"};
constexpr std::array<std::string_view, 7> shortWeekdays = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"};

int positionIn(const std::array<std::string_view, 12>& names, std::string_view folded) {
    const auto found = std::find_if(names.begin(), names.end(), [&](auto name) { return foldCase(name) == folded; });
    return found == names.end() ? 0 : static_cast<int>(found - names.begin()) + 1;
}

} // namespace

std::string_view nameOfMonth(int month, bool abbreviated) {
    return (abbreviated ? shortMonths : months)[static_cast<std::size_t>(month - 1)];
}

std::string_view nameOfWeekday(int weekday, bool abbreviated) {
    return (abbreviated ? shortWeekdays : weekdays)[static_cast<std::size_t>(weekday - 1)];
}

int monthOfName(std::string_view folded) {
    if (folded == "mär") return 3;
    if (folded == "sept") return 9;
    const int month = positionIn(months, folded);
    return month != 0 ? month : positionIn(shortMonths, folded);
}

int daysInMonth(int year, int month) {
    const std::chrono::year_month_day_last last =
        std::chrono::year(year) / std::chrono::month(static_cast<unsigned>(month)) / std::chrono::last;
    return static_cast<int>(static_cast<unsigned>(last.day()));
}

} // namespace basic
