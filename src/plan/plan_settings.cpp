#include "plan/plan_settings.h"

#include <algorithm>

namespace plan {

PlanEinstellungen bereinigt(PlanEinstellungen e) {
    const PlanEinstellungen vorgabe;
    e.AnzahlZimmer = std::clamp(e.AnzahlZimmer, 0, 98);
    if (e.SichtbareZeilen < 1 || e.SichtbareZeilen > e.AnzahlZimmer) e.SichtbareZeilen = vorgabe.SichtbareZeilen;
    if (e.ZeilenHoehe < 20) e.ZeilenHoehe = vorgabe.ZeilenHoehe;
    e.AnzahlTage = e.AnzahlTage < 1 ? vorgabe.AnzahlTage : std::min(e.AnzahlTage, 100);
    e.ErsterTagDifferenz = std::clamp(e.ErsterTagDifferenz, 0, 255);
    return e;
}

} // namespace plan
