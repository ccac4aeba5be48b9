#include "benchmarks.h"

#include "plan/plan_source.h"
#include "support/compare.h"

#include <cstdio>

namespace bench {

namespace {

constexpr int windowDays = 105;
constexpr int marginDays = 5;

// Rows come by key, as the engine promises for a query without an order; the plus keeps the planner from walking the
// whole table in that order.
constexpr const char* plainQuery =
    R"(SELECT a."BelegungsID", a."BelegungsArt", b."ID", b."Zimmernummer", b."Von", b."Bis", b."GastID", b."Info",
 b."Kürzel", b."Preis", b."PreisProNacht", b."AnzahlÜbernachtungen", b."AnzahlGäste", b."Anz_Kinder", b."Gelöscht",
 b."Checked", b."WerErstellt", b."WannErstellt", b."WerGeändert", b."WannGeändert", b."Abgerechnet",
 b."IDAdressRechnung", b."Wäsche1", b."Wäsche2", b."Frühstück", b."Zahlart", b."Mittag", b."Abendessen",
 b."Alter_Kinder", b."BelegNummer", b."BelegNummer_eigen", z."NeueNummer", g."FirstName", g."LastName",
 b."AnzahlGäste", b."Anz_Kinder", z."AnzahlGästeDefault" - b."AnzahlGäste"
 FROM "tblBelegung" b JOIN quelle."tbZimmernummern" z ON b."Zimmernummer" = z."Zimmernummer"
 JOIN "Address" g ON b."GastID" = g."ID" JOIN "tbBelegArten" a ON b."Belegungsart" = a."BelegungsID"
 WHERE b."Von" <= ?1 AND b."Bis" >= ?2 ORDER BY +b."ID")";

plain::Rows fetchWindow(sqlite3_stmt* statement, basic::Date start, const std::vector<jet::ExprType>& types) {
    plain::bind(statement, {start + windowDays, start - marginDays});
    return plain::fetch(statement, types);
}

} // namespace

std::string planStatement(basic::Date start) { return plan::Planabfrage(start - marginDays, start + windowDays); }

void registerPlanQuery(BenchHouse& house, RatioTable& table, const std::string& what) {
    const basic::Date start = today() - 2;
    jet::Recordset sample = house.ours.OpenRecordset(planStatement(start));
    const auto types = typesOf(sample);
    const auto statement = std::make_shared<plain::Statement>(plain::prepare(house.plain, plainQuery));
    const plain::Rows plainRows = fetchWindow(statement->get(), start, types);
    requireSameRows(sample, plainRows);
    std::printf("%s: %zu rows\n", what.c_str(), plainRows.count());

    // Another day each time, as the window moves while people work with it.
    benchmark::RegisterBenchmark((what + "/ours").c_str(), [&house, start](benchmark::State& state) {
        for (int day = 0; auto _ : state)
            benchmark::DoNotOptimize(house.ours.OpenRecordset(planStatement(start + day++ % 7)));
    });
    benchmark::RegisterBenchmark((what + "/plain").c_str(), [statement, types, start](benchmark::State& state) {
        for (int day = 0; auto _ : state)
            benchmark::DoNotOptimize(fetchWindow(statement->get(), start + day++ % 7, types));
    });
    table.setTarget(what, "1.15");
}

} // namespace bench
