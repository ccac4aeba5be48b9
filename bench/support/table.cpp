#include "support/table.h"

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

using Figure = std::optional<double>;

Figure median(std::vector<double> values) {
    if (values.empty()) return std::nullopt;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

Figure ratio(Figure ours, Figure plain) { return ours && plain ? Figure(*ours / *plain) : std::nullopt; }

std::string text(Figure value, const char* format) {
    if (!value) return "-";
    char digits[32];
    std::snprintf(digits, sizeof digits, format, *value);
    return digits;
}

} // namespace

bool RatioTable::ReportContext(const Context& /*context*/) { return true; }

void RatioTable::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration) continue;
        const std::string name = run.run_name.function_name;
        if (run.error_occurred) {
            std::printf("%s: %s\n", name.c_str(), run.error_message.c_str());
            continue;
        }
        const std::string what = name.substr(0, name.rfind('/'));
        if (std::ranges::find(order_, what) == order_.end()) order_.push_back(what);
        Samples& samples = samples_[name];
        const double scale = 1e6 / static_cast<double>(run.iterations);
        samples.wall.push_back(run.real_accumulated_time * scale);
        samples.processor.push_back(run.cpu_accumulated_time * scale);
        if (const auto flushes = run.counters.find("flushes"); flushes != run.counters.end())
            samples.flushes = flushes->second.value;
    }
}

void RatioTable::printRow(const std::string& what) {
    const Samples& ours = samples_[what + "/ours"];
    const Samples& plain = samples_[what + "/plain"];
    const std::string flushes = text(ours.flushes, "%.0f") + "/" + text(plain.flushes, "%.0f");
    std::printf("%-42s %11s %11s %11s %7s %7s %14s %8s\n", what.c_str(), text(median(ours.wall), "%.2f").c_str(),
                text(median(ours.processor), "%.2f").c_str(), text(median(plain.wall), "%.2f").c_str(),
                text(ratio(median(ours.wall), median(plain.wall)), "%.2f").c_str(),
                text(ratio(median(ours.processor), median(plain.processor)), "%.2f").c_str(), targets_[what].c_str(),
                flushes.c_str());
}

void RatioTable::Finalize() {
    std::printf("%-42s %11s %11s %11s %7s %7s %14s %8s\n", "medians in microseconds", "ours", "(processor)", "plain",
                "ratio", "cpu", "target", "flushes");
    std::ranges::sort(order_);
    for (const std::string& what : order_)
        printRow(what);
}

} // namespace bench
