#include "plan/navigation.h"

#include "platform/basic/dates.h"

#include <algorithm>
#include <cassert>

namespace plan {

const Navigation& Navigationsknopf(std::string_view name) {
    const auto* knopf = std::ranges::find(Navigationsleiste, name, &Navigation::Name);
    assert(knopf != Navigationsleiste.end());
    return *knopf;
}

basic::Date StandardStart(basic::Date heute) { return heute - 2; }

basic::Date NeuerPlanStart(const Navigation& button, basic::Date planStart, basic::Date heute) {
    switch (button.art) {
    case Navigation::Art::Tage:
        return planStart + button.Schritt;
    case Navigation::Art::Monate:
        return basic::DateAdd("m", button.Schritt, planStart);
    case Navigation::Art::Heute:
        return StandardStart(heute);
    case Navigation::Art::Bleiben:
        break;
    }
    return planStart;
}

} // namespace plan
