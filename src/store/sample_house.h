#pragma once

#include "platform/jet/database.h"

namespace store {

/// Fills an empty house with the first run's rooms and settings, prices, seasons, some dozens of invented guests, and
/// their stays around the day of `now`: past ones (some with invoice and payment), guests in the house, firm ones to
/// come, offers, the waiting row, a block, and some that reach over either end of a window of 35 days. The first stay
/// arrives today. What it writes depends on `now` alone. One transaction for each home file; no rows may be there.
void fillSampleHouse(jet::Database& database, basic::Date now);

} // namespace store
