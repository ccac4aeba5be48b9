#pragma once

#include "addresses/address_use.h"
#include "platform/services/dialogs.h"

namespace addresses {

/// Asks whether the address is to go, and deletes it where no row refers to it; else tells who uses it. True when it is
/// gone. `nutzer` gives the boxes their title too. Errors of the engine go to the caller.
[[nodiscard]] bool AdresseLöschenMitFrage(jet::Database& db, std::int64_t id, const Nutzer& nutzer,
                                          services::Dialogs& dialogs);

} // namespace addresses
