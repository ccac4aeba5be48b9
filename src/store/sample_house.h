#pragma once

#include "platform/jet/database.h"

namespace store {

/// Fills an empty house with the first run's rooms and settings, extras, prices, the seasons of 2020 to 2035, invented
/// guests, their stays around the day of `now` (sampleStays) and what they have to pay. Stays with fewer guests than
/// their room takes show in the colour of a type "teilbelegt". What it writes depends on `now` alone. One transaction
/// for each home file; no rows may be there.
void fillSampleHouse(jet::Database& database, basic::Date now);

} // namespace store
