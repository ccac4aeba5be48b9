#include "benchmarks.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace bench {

namespace {

constexpr int massInserts = 10'000;
constexpr int singleInserts = 5;

constexpr std::array fields = {"Zimmernummer", "Von",         "Bis",     "GastID",        "Kürzel",
                               "Belegungsart", "AnzahlGäste", "Preis",   "PreisProNacht", "AnzahlÜbernachtungen",
                               "Gelöscht",     "BelegNummer", "Zahlart", "WerErstellt",   "WannErstellt"};
using Stay = std::array<jet::Value, fields.size()>;

Stay stayAt(int i) {
    const basic::Date von = today() + i % 365;
    return {1 + i % houseRooms,
            von,
            von + 3,
            1 + i % 50'000,
            "Müller" + std::to_string(i),
            1,
            2,
            240.0,
            80.0,
            3,
            false,
            i + 1,
            "Bar",
            "Empfang",
            today()};
}

void oursInsert(jet::Recordset& rows, int i) {
    const Stay stay = stayAt(i);
    rows.AddNew();
    for (std::size_t field = 0; field < fields.size(); ++field)
        rows.Fields(fields[field]) = stay[field];
    rows.Update();
}

jet::Recordset oursTarget(BenchHouse& house) {
    return house.ours.OpenRecordset("SELECT * FROM tblBelegung WHERE ID = 0");
}

std::string plainStatement() {
    std::string names;
    std::string places;
    for (const char* field : fields) {
        names += (names.empty() ? "\"" : ",\"") + std::string(field) + '"';
        places += places.empty() ? "?" : ",?";
    }
    return "INSERT INTO \"tblBelegung\" (" + names + ") VALUES (" + places + ")";
}

/// Keeps the row as the recordset does.
void plainInsert(sqlite3_stmt* statement, plain::Rows& rows, int i) {
    const Stay stay = stayAt(i);
    plain::bind(statement, stay);
    plain::change(statement);
    rows.values.insert(rows.values.end(), stay.begin(), stay.end());
}

void forgetInserted(BenchHouse& house) {
    plain::run(house.plain, "DELETE FROM \"tblBelegung\" WHERE \"ID\" > " + std::to_string(house.stays));
}

void registerMass(BenchHouse& house, const std::string& what, const std::shared_ptr<plain::Statement>& statement) {
    benchmark::RegisterBenchmark((what + "/ours").c_str(), [&house](benchmark::State& state) {
        for (auto _ : state) {
            jet::Transaction transaction(house.ours, "tblBelegung");
            jet::Recordset rows = oursTarget(house);
            for (int i = 0; i < massInserts; ++i)
                oursInsert(rows, i);
            transaction.Commit();
        }
        forgetInserted(house);
    })->Iterations(1);
    benchmark::RegisterBenchmark((what + "/plain").c_str(), [&house, statement](benchmark::State& state) {
        for (auto _ : state) {
            plain::Rows rows;
            plain::run(house.plain, "BEGIN IMMEDIATE");
            for (int i = 0; i < massInserts; ++i)
                plainInsert(statement->get(), rows, i);
            plain::run(house.plain, "COMMIT");
        }
        forgetInserted(house);
    })->Iterations(1);
}

/// Counts the flushes of one pass.
void measureSingle(BenchHouse& house, benchmark::State& state, const std::function<void(int)>& insert) {
    const std::int64_t before = house.flushes.count();
    for (int i = 0; auto _ : state)
        insert(i++);
    const auto flushes = static_cast<double>(house.flushes.count() - before);
    state.counters["flushes"] = flushes / static_cast<double>(state.iterations());
    forgetInserted(house);
}

void registerSingle(BenchHouse& house, const std::string& what, const std::shared_ptr<plain::Statement>& statement) {
    benchmark::RegisterBenchmark((what + "/ours").c_str(), [&house](benchmark::State& state) {
        jet::Recordset rows = oursTarget(house);
        measureSingle(house, state, [&](int i) { oursInsert(rows, i); });
    })->Iterations(singleInserts);
    benchmark::RegisterBenchmark((what + "/plain").c_str(), [&house, statement](benchmark::State& state) {
        plain::Rows rows;
        measureSingle(house, state, [&](int i) { plainInsert(statement->get(), rows, i); });
    })->Iterations(singleInserts);
}

} // namespace

void registerInserts(BenchHouse& house, RatioTable& table) {
    forgetInserted(house); // what a killed run left behind
    const auto statement = std::make_shared<plain::Statement>(plain::prepare(house.plain, plainStatement()));
    registerMass(house, "10,000 AddNew in one transaction", statement);
    table.setTarget("10,000 AddNew in one transaction", "1.5");
    registerSingle(house, "AddNew on its own", statement);
    table.setTarget("AddNew on its own", "1.5");
}

} // namespace bench
