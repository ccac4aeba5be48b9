#pragma once

#include "platform/jet/database.h"

#include <string>
#include <vector>

namespace masterdata {

/// A row of tbFeiertage.
struct Feiertag {
    basic::Date Datum;
    std::string Bezeichnung;
};

/// The holidays from `von` to `bis`, both included.
[[nodiscard]] std::vector<Feiertag> FeiertageEinlesen(jet::Database& db, basic::Date von, basic::Date bis);

} // namespace masterdata
