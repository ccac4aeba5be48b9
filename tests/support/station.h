#pragma once

#include <functional>
#include <optional>
#include <string>
#include <sys/types.h>

namespace support {

/// One end of a talk in lines between two processes.
class Channel {
public:
    Channel(int readEnd, int writeEnd) : read_(readEnd), write_(writeEnd) {}
    Channel(const Channel&) = delete;
    Channel& operator=(const Channel&) = delete;
    ~Channel();

    void say(const std::string& line) const;
    /// The next line; none once the other side has ended.
    [[nodiscard]] std::optional<std::string> hear();

private:
    int read_;
    int write_;
    std::string heard_;
};

/// Another workstation: a process of its own that runs `work` and ends. Opened data files of this process must not be
/// used in it.
class Station {
public:
    explicit Station(const std::function<void(Channel&)>& work);
    Station(const Station&) = delete;
    Station& operator=(const Station&) = delete;
    ~Station();

    [[nodiscard]] Channel& channel() { return *channel_; }
    /// Ends it in the midst of what it does.
    void kill() const;
    /// Waits for its end: 0 when `work` returned, 1 when it threw (the text goes to standard error), -1 after a signal.
    int wait();

private:
    pid_t process_ = -1;
    std::optional<Channel> channel_;
};

} // namespace support
