#include "forms/process_cost.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

constexpr auto self = "/proc/self/exe";

ProcessCost runOnce(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), self);
    std::vector<char*> words;
    for (auto& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execv(self, words.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child || status != 0) throw std::runtime_error("a measured run has failed");
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    return {time.count(), static_cast<double>(usage.ru_maxrss) / 1024};
}

} // namespace

ProcessCost costOfRunning(const std::vector<std::string>& arguments, int runs) {
    std::vector<ProcessCost> costs;
    for (int i = 0; i < runs; ++i)
        costs.push_back(runOnce(arguments));
    std::ranges::sort(costs, {}, &ProcessCost::milliseconds);
    return costs[costs.size() / 2];
}

} // namespace bench
