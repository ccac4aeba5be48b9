#pragma once

#include "platform/basic/date.h"

#include <string>

namespace bench {

/// The day on which all houses are measured, whatever the day.
[[nodiscard]] basic::Date today();

struct HouseSize {
    int stays = 200'000;
    int addresses = 50'000;
};

inline constexpr int houseRooms = 98;

/// Folder of a house of that size with 98 rooms, made on the first call and kept below `cache`. Its stays reach back
/// from 120 days after today(), room by room without gaps of more than a day, so that houses of any size hold the same
/// stays around today.
[[nodiscard]] std::string preparedHouse(const std::string& cache, HouseSize size);

} // namespace bench
