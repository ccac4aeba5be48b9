#include "benchmarks.h"

#include "support/compare.h"

#include <functional>
#include <memory>
#include <random>

namespace bench {

namespace {

/// Keys all over the house.
int keyAt(const BenchHouse& house, int i) { return 1 + static_cast<int>(i * 7919LL % house.stays); }

/// What is written where. The storage skips writing what is there already, so the values differ from those of all runs
/// before.
struct Change {
    int key;
    int guests;
};

class Changes {
public:
    explicit Changes(const BenchHouse& house) : house_(&house) {}
    [[nodiscard]] Change next() {
        ++count_;
        return {.key = keyAt(*house_, count_), .guests = (first_ + count_) % 30'011};
    }

private:
    const BenchHouse* house_;
    int first_ = static_cast<int>(std::random_device()() % 30'011);
    int count_ = 0;
};

std::string dialectRead(int key) { return "SELECT * FROM tblBelegung WHERE ID = " + std::to_string(key); }

void oursEdit(BenchHouse& house, Change change) {
    jet::Recordset rows = house.ours.OpenRecordset(dialectRead(change.key));
    rows.Edit();
    rows.Fields("AnzahlGäste") = change.guests;
    rows.Update();
}

void oursExecute(BenchHouse& house, Change change) {
    house.ours.Execute("UPDATE tblBelegung SET AnzahlGäste = " + std::to_string(change.guests) +
                       " WHERE ID = " + std::to_string(change.key));
}

/// Hand-written statements of this file.
struct Plain {
    explicit Plain(BenchHouse& house)
        : read(plain::prepare(house.plain, R"(SELECT * FROM "tblBelegung" WHERE "ID" = ?1)")),
          update(plain::prepare(house.plain, R"(UPDATE "tblBelegung" SET "AnzahlGäste" = ?1 WHERE "ID" = ?2)")),
          types(typesOf(house.ours.OpenRecordset(dialectRead(1)))) {}

    [[nodiscard]] plain::Rows fetch(int key) const {
        plain::bind(read.get(), {key});
        return plain::fetch(read.get(), types);
    }
    void write(Change change) const {
        plain::bind(update.get(), {change.guests, change.key});
        plain::change(update.get());
    }

    plain::Statement read;
    plain::Statement update;
    std::vector<jet::ExprType> types;
};

enum class Within { Autocommit, Transaction };

/// Each write on its own waits for the disk: a few a repetition are enough.
constexpr int singleWrites = 5;

using Work = std::function<void()>;

/// A transaction around a whole repetition shows what the commits hide.
benchmark::internal::Benchmark* registerOurs(BenchHouse& house, const std::string& name, Within within, Work work) {
    return benchmark::RegisterBenchmark((name + "/ours").c_str(), [&house, within, work](benchmark::State& state) {
        std::unique_ptr<jet::Transaction> transaction;
        if (within == Within::Transaction) transaction = std::make_unique<jet::Transaction>(house.ours, "tblBelegung");
        for (auto _ : state)
            work();
    });
}

benchmark::internal::Benchmark* registerPlain(BenchHouse& house, const std::string& name, Within within, Work work) {
    return benchmark::RegisterBenchmark((name + "/plain").c_str(), [&house, within, work](benchmark::State& state) {
        if (within == Within::Transaction) plain::run(house.plain, "BEGIN IMMEDIATE");
        for (auto _ : state)
            work();
        if (within == Within::Transaction) plain::run(house.plain, "ROLLBACK");
    });
}

void registerReads(BenchHouse& house, RatioTable& table, const std::shared_ptr<Plain>& plain) {
    const std::string name = "single row read by key";
    for (int i = 0; i < 200; ++i) {
        jet::Recordset rows = house.ours.OpenRecordset(dialectRead(keyAt(house, i)));
        requireSameRows(rows, plain->fetch(keyAt(house, i)));
    }
    registerOurs(house, name, Within::Autocommit, [&house, i = 0]() mutable {
        benchmark::DoNotOptimize(house.ours.OpenRecordset(dialectRead(keyAt(house, i++))));
    });
    registerPlain(house, name, Within::Autocommit,
                  [&house, plain, i = 0]() mutable { benchmark::DoNotOptimize(plain->fetch(keyAt(house, i++))); });
    table.setTarget(name, "1.15");
}

void registerWrites(BenchHouse& house, RatioTable& table, const std::shared_ptr<Plain>& plain, Within within) {
    const std::string where = within == Within::Transaction ? ", in a transaction" : "";
    const auto changes = std::make_shared<Changes>(house);
    const std::string edit = "Edit and Update by key" + where;
    const std::string update = "UPDATE by key" + where;
    const std::vector<benchmark::internal::Benchmark*> registered = {
        registerOurs(house, edit, within, [&house, changes] { oursEdit(house, changes->next()); }),
        registerPlain(house, edit, within,
                      [plain, changes] {
                          const Change change = changes->next();
                          benchmark::DoNotOptimize(plain->fetch(change.key));
                          plain->write(change);
                      }),
        registerOurs(house, update, within, [&house, changes] { oursExecute(house, changes->next()); }),
        registerPlain(house, update, within, [plain, changes] { plain->write(changes->next()); }),
    };
    if (within == Within::Autocommit)
        for (auto* each : registered)
            each->Iterations(singleWrites);
    table.setTarget(edit, "1.5");
    table.setTarget(update, "1.5");
}

} // namespace

void registerSingleRows(BenchHouse& house, RatioTable& table) {
    const auto plain = std::make_shared<Plain>(house);
    registerReads(house, table, plain);
    registerWrites(house, table, plain, Within::Autocommit);
    registerWrites(house, table, plain, Within::Transaction);
}

} // namespace bench
