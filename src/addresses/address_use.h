#pragma once

#include "platform/jet/database.h"

#include <cstdint>
#include <string>
#include <vector>

namespace addresses {

// Who uses an address: the applications that share the table, and the rows that refer to it. Errors of the engine go
// to the caller.

/// The installation that marks an address: its number (0 to 2) picks the slot, its title is what is written there.
struct Nutzer {
    int Instanz = 0;
    std::string strTitel;
};

/// Has any stay this guest? One that is only billed does not count.
[[nodiscard]] bool AdresseHatReservierung(jet::Database& db, std::int64_t id);
/// With `ja` marks the address as used by this installation and, where nobody did, as brought in by it; without, takes
/// the mark of use away, unless a stay still has the guest. The slots of the sibling programs are never touched.
void AdresseBenutzen(jet::Database& db, std::int64_t id, bool ja, const Nutzer& nutzer);
/// Takes this installation's mark from all addresses without a stay.
void AdressBenutzungBereinigen(jet::Database& db, const Nutzer& nutzer);
/// Does no row refer to the address?
[[nodiscard]] bool AdresseFrei(jet::Database& db, std::int64_t id);
/// The applications that use the address, from the first slot to the fifth, without the empty ones.
[[nodiscard]] std::vector<std::string> BenutzerDerAdresse(jet::Database& db, std::int64_t id);
void AdresseLöschen(jet::Database& db, std::int64_t id);

} // namespace addresses
