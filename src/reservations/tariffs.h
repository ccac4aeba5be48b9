#pragma once

#include "platform/jet/database.h"

#include <string>
#include <string_view>
#include <vector>

namespace reservations {

// The remembered night prices (tblTarife), shown as "1.234,50".

/// In the order of their amounts.
[[nodiscard]] std::vector<std::string> TarifeLesen(jet::Database& db);
/// False when the price is in the table already or is no number.
bool TarifAnlegen(jet::Database& db, std::string_view preis);
/// False when there is no such price.
bool TarifLöschen(jet::Database& db, std::string_view preis);

} // namespace reservations
