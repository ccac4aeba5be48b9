#pragma once

#include "plan/plan_settings.h"
#include "platform/jet/database.h"
#include "start/settings.h"

namespace plan {

/// What the settings of the house mean for the plan: colours that are not set follow from others, and a type named
/// "teilbelegt" is a colour, not a type to choose.
[[nodiscard]] PlanEinstellungen PlanEinstellungenAus(const start::Einstellungen& einstellungen);

/// From tblParameter. `dbArbeitsplatz` keeps the records of this workstation (ZeitDarstellung); without it they are
/// looked for in the main database. A missing record gives its default, text where a number belongs reads as 0; a house
/// without Räumlichkeiten has as many rooms as tbZimmernummern has rows besides the waiting row.
[[nodiscard]] PlanEinstellungen EinstellungenEinlesen(jet::Database& dbHaupt, jet::Database* dbArbeitsplatz);

} // namespace plan
