#pragma once

#include "plan/surroundings.h"
#include "platform/services/controls.h"

#include <optional>
#include <string_view>

namespace plan {

/// The places of the window that have a context menu.
enum class Kontext {
    KontReservierung, ///< a bar
    Kontext2,         ///< a free cell
    KontextZimmer,    ///< the rooms
    kontextZusätze,   ///< the extras columns
    KONTEXTBelArt,    ///< the frame of occupancy types
    KontextDatum      ///< the date header
};

/// What the menu of a bar has to know of its stay.
struct Kontextlage {
    bool Angebot = false; ///< an offer, or anything in the waiting row
    bool Checked = false;
};

/// What an entry does.
enum class Kontextziel {
    ReservierungÖffnen,
    NeueReservierung,
    CheckIn,
    CheckOut,
    Status,
    DatenAb,
    Fenster, ///< another window
    Nichts
};

/// The menu as it opens now; what leads to a window that is not there is disabled.
[[nodiscard]] services::Menu Kontextmenü(Kontext wo, const Umgebung& umgebung, Kontextlage lage = {});

struct Kontextweg {
    Kontextziel ziel = Kontextziel::Nichts;
    start::Fenster fenster = {}; ///< where it leads to a window
};
/// Where the entry of this name leads.
[[nodiscard]] Kontextweg KontextwegVon(std::string_view name);

} // namespace plan
