#include "benchmarks.h"

#include "platform/jet/connection.h"

#include <memory>

namespace bench {

namespace {

/// The way of a statement from its text to bound parameters, without running it.
class Translator {
public:
    Translator(jet::Connection& connection, const std::string& sql) {
        jet::Parsed parsed = jet::parse(sql);
        jet::scanShape(sql, shape_);
        jet::Plan plan;
        plan.identities = jet::Identities::Include;
        plan.compiled = std::make_shared<const jet::Compiled>(
            jet::compile(parsed, shape_.literals, connection.catalogue(), plan.identities));
        plan.statement = jet::prepareStatement(connection.storage(), plan.compiled->sql);
        cache_.insert(shape_, std::move(plan));
    }

    void translateKnown(const std::string& sql) {
        jet::scanShape(sql, shape_);
        const jet::Plan* plan = cache_.find(shape_, jet::Identities::Include);
        int index = 0;
        for (const jet::Slot& slot : plan->compiled->slots)
            jet::bindValue(plan->statement.get(), ++index, shape_.literals[slot.literal].value);
    }

private:
    jet::StatementCache cache_;
    jet::Shape shape_;
};

void registerKnown(BenchHouse& house, RatioTable& table, const std::string& what, const std::string& sql) {
    const auto translator = std::make_shared<Translator>(*house.ours.connection(), sql);
    benchmark::RegisterBenchmark((what + "/ours").c_str(), [translator, sql](benchmark::State& state) {
        for (auto _ : state)
            translator->translateKnown(sql);
    });
    table.setTarget(what, "10 us");
}

} // namespace

void registerTranslation(BenchHouse& house, RatioTable& table) {
    registerKnown(house, table, "known shape translated: plan query", planStatement(today()));
    registerKnown(house, table, "known shape translated: overlap query", overlapStatement(1, today(), today() + 3));
    registerKnown(house, table, "known shape translated: row by key", "SELECT * FROM tblBelegung WHERE ID = 4711");
}

} // namespace bench
