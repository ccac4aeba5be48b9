#pragma once

#include "platform/jet/database.h"

#include <cstdint>
#include <string>
#include <vector>

namespace addresses {

inline constexpr auto Vorgabeland = "Deutschland";

/// A row of tbLänder or tbAnreden.
struct Listeneintrag {
    std::int64_t ID = 0;
    std::string Name;
};

[[nodiscard]] std::vector<Listeneintrag> LänderLesen(jet::Database& db);
[[nodiscard]] std::vector<Listeneintrag> AnredenLesen(jet::Database& db);
/// 0 when there is no such country.
[[nodiscard]] std::int64_t LandSuchen(jet::Database& db, std::string_view name);
/// Gives the ID of the new row, or of the one that is there already.
std::int64_t LandAnlegen(jet::Database& db, std::string_view name);
void LandLöschen(jet::Database& db, std::int64_t id);

} // namespace addresses
