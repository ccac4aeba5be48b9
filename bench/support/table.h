#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace bench {

/// Takes the repetitions of benchmarks named "what/ours" and "what/plain" and prints a table of the medians.
/// The ratio of processor times stands beside that of the wall clock: on a busy machine it is the steadier one.
class RatioTable final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// What `what` should stay below, as it is to be printed: a ratio, or a time where there is no other side.
    void setTarget(const std::string& what, const std::string& target) { targets_[what] = target; }

private:
    struct Samples {
        std::vector<double> wall; ///< µs a pass, one for each repetition
        std::vector<double>
            processor; ///< the same without what others took of the machine and without waiting for disks
        std::optional<double> flushes; ///< of one pass
    };

    void printRow(const std::string& what);

    std::vector<std::string> order_;
    std::map<std::string, Samples> samples_; ///< by full name
    std::map<std::string, std::string> targets_;
};

} // namespace bench
