#pragma once

#include "start/global_state.h"

#include <functional>

namespace start {

enum class Ladeergebnis {
    Fertig,
    Neuladen, ///< the load starts over, on the sample data
    Ende,     ///< the load stops and with it the program
};

/// Opens dbHaupt and dbArbeitsplatz and reads every setting in its order. A record that cannot be read gives its
/// default. A house without "Räumlichkeiten" is a first run: the user is asked whether to see the sample data, else the
/// defaults are written. Without "ZeitDarstellung" or "Farben" the user is told and the settings form opens, where
/// there is one. Ende when no database opens (the user is told the engine's text), when "Räumlichkeiten" cannot be read
/// (an unread house must not be taken for a new one), and when the user cancels.
/// `Zahlungsmigration` runs at its place among the records; it may be empty.
[[nodiscard]] Ladeergebnis EinstellungenLesen(GlobalState& g,
                                              const std::function<void(GlobalState&)>& Zahlungsmigration = {});

/// The settings as they stand, for programs that only look at a house: nothing is asked and nothing is written. Without
/// the record of the rooms there are none.
[[nodiscard]] Einstellungen EinstellungenAnsehen(jet::Database& haupt, jet::Database& arbeitsplatz);

/// The next load shows the sample data, moved to today.
void BeispielWählen(GlobalState& g);

} // namespace start
