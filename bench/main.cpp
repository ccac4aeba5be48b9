#include "benchmarks.h"

#include <iostream>
#include <memory>

namespace {

/// Repetitions of all benchmarks in random order, so that a slow minute of the machine hits both sides; the caller's
/// own options come later and win.
std::vector<std::string> benchmarkArguments(int argc, char** argv) {
    std::vector<std::string> arguments = {argv[0], "--benchmark_enable_random_interleaving=true",
                                          "--benchmark_repetitions=25", "--benchmark_min_time=0.02"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

void runBenchmarks(std::vector<std::string> arguments, bench::RatioTable& table) {
    std::vector<char*> words;
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    int count = static_cast<int>(words.size());
    words.push_back(nullptr);
    benchmark::Initialize(&count, words.data());
    if (benchmark::ReportUnrecognizedArguments(count, words.data())) return;
    benchmark::RunSpecifiedBenchmarks(&table);
}

/// A house of 200,000 stays: what the house does most.
void measureHouse(bench::FlushCounter& flushes, const std::vector<std::string>& arguments) {
    bench::BenchHouse house(bench::preparedHouse(HERBERGO_BENCH_HOUSES, {}), flushes);
    bench::RatioTable table;
    bench::registerPlanQuery(house, table, "plan query");
    bench::registerOverlapQuery(house, table);
    bench::registerSingleRows(house, table);
    bench::registerTranslation(house, table);
    bench::registerInserts(house, table);
    runBenchmarks(arguments, table);
}

/// The reservation form in the same house.
void measureForm(bench::FlushCounter& flushes, const std::vector<std::string>& arguments) {
    const std::string folder = bench::preparedHouse(HERBERGO_BENCH_HOUSES, {});
    bench::BenchHouse house(folder, flushes);
    bench::Desk desk(folder);
    bench::RatioTable table;
    bench::registerReservationForm(house, desk, table);
    runBenchmarks(arguments, table);
}

/// The plan query beside few and many old stays.
void measureOldStays(bench::FlushCounter& flushes, const std::vector<std::string>& arguments) {
    bench::BenchHouse few(bench::preparedHouse(HERBERGO_BENCH_HOUSES, {.stays = 20'000}), flushes);
    bench::BenchHouse many(bench::preparedHouse(HERBERGO_BENCH_HOUSES, {.stays = 2'000'000}), flushes);
    bench::RatioTable table;
    bench::registerPlanQuery(few, table, "plan query, 20,000 stays");
    bench::registerPlanQuery(many, table, "plan query, 2,000,000 stays");
    runBenchmarks(arguments, table);
}

} // namespace

/// herbergo-bench [--old-stays | --form] [--benchmark_...]: --old-stays measures the plan query in a small and in a
/// huge house, --form the reservation form.
int main(int argc, char** argv) {
    std::vector<std::string> arguments = benchmarkArguments(argc, argv);
    const bool oldStays = std::erase(arguments, "--old-stays") != 0;
    const bool form = std::erase(arguments, "--form") != 0;
    const auto measure = oldStays ? measureOldStays : form ? measureForm : measureHouse;
    bench::FlushCounter flushes;
    try {
        measure(flushes, arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
