#pragma once

#include "start/settings_reader.h"

#include <functional>

namespace start {

/// What other floors do while the plan window loads, in the order in which it happens. An empty step is passed over; an
/// error of the engine ends only its step.
struct Ladeschritte {
    std::function<void()> HeuteZeigen;      ///< date and weekday of today
    Leseschritte Lesen;                     ///< among the settings
    std::function<void()> PlanAufbauen;     ///< caption, rooms, grid, the plan from its standard date, captions
    std::function<void()> BeispielUpgrades; ///< in sample mode: the sample file's tables
    std::function<void()> ParameterUpgrade; ///< else: the fields of tblParameter
    std::function<void()> FeiertagZeigen;   ///< name of today's holiday
    std::function<void()> VorgabelandLesen;
    std::function<void()> ZimmervorgabenLesen;
    std::function<void()> Upgrades; ///< the real data
    std::function<void()> AngebotePrüfen;
};

/// Loads the plan window. Neuladen: the caller loads again. Ende: the program ends.
[[nodiscard]] Ladeergebnis PlanLaden(GlobalState& g, const Ladeschritte& schritte);

/// Title of the plan window.
[[nodiscard]] std::string Planüberschrift(const GlobalState& g);
/// Is the menu entry "&Statistik" enabled?
[[nodiscard]] bool StatistikMöglich(const GlobalState& g);

inline constexpr auto kBeispielhinweis = "Sie sehen zur Zeit die Beispieldaten";

} // namespace start
