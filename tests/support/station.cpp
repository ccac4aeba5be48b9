#include "support/station.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

namespace {

std::array<int, 2> newPipe() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    return ends;
}

int runWork(const std::function<void(Channel&)>& work, Channel& channel) noexcept {
    try {
        work(channel);
        return 0;
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "station: %s\n", problem.what());
        return 1;
    }
}

} // namespace

Channel::~Channel() {
    ::close(read_);
    ::close(write_);
}

void Channel::say(const std::string& line) const {
    const std::string text = line + "\n";
    if (::write(write_, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        throw std::runtime_error("the other station has gone");
}

std::optional<std::string> Channel::hear() {
    for (;;) {
        if (const auto end = heard_.find('\n'); end != std::string::npos) {
            std::string line = heard_.substr(0, end);
            heard_.erase(0, end + 1);
            return line;
        }
        std::array<char, 4096> buffer{};
        const ssize_t count = ::read(read_, buffer.data(), buffer.size());
        if (count <= 0) return std::nullopt;
        heard_.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

Station::Station(const std::function<void(Channel&)>& work) {
    const auto down = newPipe();
    const auto up = newPipe();
    process_ = ::fork();
    if (process_ < 0) throw std::runtime_error("no process");
    if (process_ == 0) {
        ::close(down[1]);
        ::close(up[0]);
        Channel channel(down[0], up[1]);
        ::_exit(runWork(work, channel));
    }
    ::close(down[0]);
    ::close(up[1]);
    channel_.emplace(up[0], down[1]);
}

Station::~Station() {
    if (process_ < 0) return;
    kill();
    wait();
}

void Station::kill() const { ::kill(process_, SIGKILL); }

int Station::wait() {
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace support
