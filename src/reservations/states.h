#pragma once

#include "platform/basic/date.h"
#include "platform/jet/database.h"
#include "platform/services/dialogs.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace reservations {

/// An occupancy type, a row of tbBelegArten.
struct Belegart {
    int BelegungsID = 0;
    std::string Name;
};

/// In the order of their numbers, without the free one (0) and those without a name.
[[nodiscard]] std::vector<Belegart> BelegartenLesen(jet::Database& db);
/// Does the name, in any case, mark offers?
[[nodiscard]] bool istAngebot(std::string_view name);
/// Number of guests that the name of a type says ("zwei" to "zwölf", "13" to "20"); 0 for other names.
[[nodiscard]] int GästeDerBelegart(std::string_view name);

/// Is the stay an offer or in the waiting row, so that nobody can be checked in?
[[nodiscard]] bool istAngebotOderWartet(jet::Database& db, int id);
void CheckedSetzen(jet::Database& db, int id, bool checked);

/// Billing state of a stay as its form shows it: open, or billed (1), or divided (IST_Geteilt "Y"); Null and 2 are
/// open.
[[nodiscard]] bool istAbgerechnet(jet::Database& db, int id);
/// The same of a row whose recordset has both fields.
[[nodiscard]] bool istAbgerechnet(jet::Recordset& rs);
/// Toggles the flag: 1 becomes 0, anything else 1. True when the stay is billed now. Nothing happens to a missing row.
bool AbrechnenUmschalten(jet::Database& db, int id);

enum class Angebotsprüfung { Weiter, Halt };

/// Offers past due: asks and moves those outside blocks to the waiting row, deletes those of blocks. `geändert` is
/// called after each of the two. Halt: the user wants to see to them by hand.
[[nodiscard]] Angebotsprüfung AngebotePrüfen(jet::Database& db, services::Dialogs& dialogs, basic::Date heute,
                                             const std::string& strTitel, const std::function<void()>& geändert = {});

} // namespace reservations
