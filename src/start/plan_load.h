#pragma once

#include "start/settings_reader.h"

#include <functional>

namespace start {

/// What other floors do while the plan window loads, in the order in which it happens. An empty step is passed over; an
/// error of the engine ends only its step.
struct Ladeschritte {
    std::function<void()> HeuteZeigen; ///< date and weekday of today
    std::function<void(GlobalState&)> Zahlungsmigration;
    /// Caption, rooms, grid, the plan from its standard date, captions. False when the plan could not be read: it is
    /// built once more when the upgrades have added what an older house lacks.
    std::function<bool()> PlanAufbauen;
    std::function<void()> FeiertagZeigen; ///< name of today's holiday
    std::function<void()> VorgabelandLesen;
    std::function<void()> ZimmervorgabenLesen;
    std::function<void()> AngebotePrüfen;
};

/// Loads the plan window. Neuladen: the caller loads again. Ende: the program ends.
[[nodiscard]] Ladeergebnis PlanLaden(GlobalState& g, const Ladeschritte& schritte);

/// The menu entry "&Beispieldaten anzeigen": the next load shows the sample data, moved to today, or the own data
/// again. The caller closes the plan window, which is then loaded anew.
void BeispieldatenUmschalten(GlobalState& g);

inline constexpr auto kBeispielhinweis = "Sie sehen zur Zeit die Beispieldaten";

} // namespace start
