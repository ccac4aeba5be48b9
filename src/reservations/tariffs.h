#pragma once

#include "platform/jet/database.h"

#include <string>
#include <string_view>
#include <vector>

namespace reservations {

// The remembered night prices (tblTarife), shown as "1.234,50".

/// In the order of their amounts. Empty when the table cannot be read; a row that is no number is enough for that.
[[nodiscard]] std::vector<std::string> TarifeLesen(jet::Database& db);
/// False when the price is in the table already or is no number.
bool TarifAnlegen(jet::Database& db, std::string_view preis);
/// False when there is no such price. A row that is no number goes by its text.
bool TarifLöschen(jet::Database& db, std::string_view preis);

} // namespace reservations
