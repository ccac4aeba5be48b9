#pragma once

#include "platform/basic/date.h"

#include <array>
#include <string_view>

namespace plan {

/// A button that shows the plan from another date.
struct Navigation {
    enum class Art { Tage, Monate, Heute, Bleiben };

    std::string_view Name;
    std::string_view Caption;
    std::string_view ToolTipText;
    Art art;
    int Schritt = 0;
};

/// In the order in which they stand on the window, back to forward.
inline constexpr std::array<Navigation, 10> Navigationsleiste = {{
    {"cmdPrev3Months", "-3 Monate", "Drei Monate zurück", Navigation::Art::Monate, -3},
    {"cmdPrevMonth", "-1 Monat", "Einen Monat zurück", Navigation::Art::Monate, -1},
    {"cmdPrevWeek", "-1 Woche", "Eine Woche zurück", Navigation::Art::Tage, -7},
    {"cmdPrevDay", "-1 Tag", "Einen Tag zurück", Navigation::Art::Tage, -1},
    {"cmdHeute", "Heute", "Plan ab vorgestern zeigen", Navigation::Art::Heute},
    {"cmdNextDay", "+1 Tag", "Einen Tag weiter", Navigation::Art::Tage, 1},
    {"cmdNextWeek", "+1 Woche", "Eine Woche weiter", Navigation::Art::Tage, 7},
    {"cmdNextMonth", "+1 Monat", "Einen Monat weiter", Navigation::Art::Monate, 1},
    {"cmdNext3Months", "+3 Monate", "Drei Monate weiter", Navigation::Art::Monate, 3},
    {"cmdAktualisieren", "&Aktualisieren", "Geänderte Daten einlesen (Netzwerk, Blockbuchungen)",
     Navigation::Art::Bleiben},
}};

/// There must be a button of this name.
[[nodiscard]] const Navigation& Navigationsknopf(std::string_view name);

/// The first date of the plan when it opens and after "Heute".
[[nodiscard]] basic::Date StandardStart(basic::Date heute);

/// The new first date after a press on the button.
[[nodiscard]] basic::Date NeuerPlanStart(const Navigation& button, basic::Date planStart, basic::Date heute);

} // namespace plan
