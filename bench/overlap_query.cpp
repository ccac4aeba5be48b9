#include "benchmarks.h"

#include "platform/basic/format.h"
#include "support/compare.h"

namespace bench {

namespace {

/// The test in front of saving a stay of three nights.
struct Probe {
    int room;
    basic::Date von;
    basic::Date bis;
};

Probe probe(int i) {
    const basic::Date von = today() + i * 7 % 300 - 150;
    return {.room = 1 + i % houseRooms, .von = von, .bis = von + 3};
}

std::string dialectQuery(const Probe& probe) { return overlapStatement(probe.room, probe.von, probe.bis); }

constexpr const char* plainQuery =
    R"(SELECT "ID" FROM "tblBelegung" WHERE "Zimmernummer" = ?1 AND "Gelöscht" = 0 AND ("Von" >= ?2 AND "Von" <= ?3
 OR "Bis" >= ?2 AND "Bis" <= ?3 OR ?4 > "Von" AND ?4 < "Bis" OR ?5 > "Von" AND ?5 < "Bis") ORDER BY +"ID")";

plain::Rows fetchOverlaps(sqlite3_stmt* statement, const Probe& probe) {
    constexpr jet::ExprType types[] = {jet::ExprType::Long};
    plain::bind(statement, {probe.room, probe.von + 1, probe.bis - 1, probe.von, probe.bis});
    return plain::fetch(statement, types);
}

} // namespace

std::string overlapStatement(int room, basic::Date vonDate, basic::Date bisDate) {
    const auto text = [](basic::Date date) { return basic::Format(date, "dd.mm.yyyy"); };
    const std::string von = text(vonDate);
    const std::string bis = text(bisDate);
    const std::string from = text(vonDate + 1);
    const std::string to = text(bisDate - 1);
    return "SELECT ID FROM tblBelegung WHERE Zimmernummer = " + std::to_string(room) +
           " AND Gelöscht = FALSE  AND (Von >= CVDATE('" + from + "') AND von <= CVDATE( ' " + to +
           " ' ) OR  Bis >= CVDATE('" + from + "') AND BIS <= CVDATE('" + to + "') OR  (CVDATE('" + von +
           "') > Von AND (CVDATE('" + von + "')) < Bis) OR (CVDATE('" + bis + "') > Von AND (CVDATE('" + bis +
           "') < Bis)))";
}

void registerOverlapQuery(BenchHouse& house, RatioTable& table) {
    const std::string what = "overlap query by room";
    const auto statement = std::make_shared<plain::Statement>(plain::prepare(house.plain, plainQuery));
    for (int i = 0; i < 200; ++i) {
        jet::Recordset rows = house.ours.OpenRecordset(dialectQuery(probe(i)));
        requireSameRows(rows, fetchOverlaps(statement->get(), probe(i)));
    }
    benchmark::RegisterBenchmark((what + "/ours").c_str(), [&house](benchmark::State& state) {
        for (int i = 0; auto _ : state)
            benchmark::DoNotOptimize(house.ours.OpenRecordset(dialectQuery(probe(i++))));
    });
    benchmark::RegisterBenchmark((what + "/plain").c_str(), [statement](benchmark::State& state) {
        for (int i = 0; auto _ : state)
            benchmark::DoNotOptimize(fetchOverlaps(statement->get(), probe(i++)));
    });
    table.setTarget(what, "1.15");
}

} // namespace bench
