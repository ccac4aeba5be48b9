#pragma once

#include "support/bench_house.h"
#include "support/desk.h"
#include "support/table.h"

namespace bench {

// Statements of the house, as its forms write them.

/// The rows of the plan's window that starts on that day.
[[nodiscard]] std::string planStatement(basic::Date start);
/// The stays in the way of a new one.
[[nodiscard]] std::string overlapStatement(int room, basic::Date vonDate, basic::Date bisDate);

// Each registers its benchmarks, "what/ours" beside "what/plain", after it has compared the rows of both. The house
// must outlive the run.

void registerPlanQuery(BenchHouse& house, RatioTable& table, const std::string& what);
void registerOverlapQuery(BenchHouse& house, RatioTable& table);
void registerSingleRows(BenchHouse& house, RatioTable& table);
void registerInserts(BenchHouse& house, RatioTable& table);
void registerTranslation(BenchHouse& house, RatioTable& table);
/// What the reservation form does most; prints how many statements a save and an opening run.
void registerReservationForm(BenchHouse& house, Desk& desk, RatioTable& table);

} // namespace bench
