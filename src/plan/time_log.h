#pragma once

#include "platform/services/clock.h"

#include <string>
#include <string_view>

namespace plan {

/// The log of the mouse handling, `Zeitlog.txt`: a block of stages with their times for each press and each cell that
/// the pointer comes to. Kept in memory and appended to the file when much has come together and at the end, so that
/// it costs the mouse no time. The file has no limit of size; whoever wants it smaller deletes it. An error is not
/// reported.
class Zeitlog {
public:
    /// Without a file nothing is kept. The clock must outlive the log.
    Zeitlog(std::string datei, const services::Clock& clock) : datei_(std::move(datei)), clock_(&clock) {}
    Zeitlog(const Zeitlog&) = delete;
    Zeitlog& operator=(const Zeitlog&) = delete;
    ~Zeitlog() { flush(); }

    /// Begins a block.
    void Kopf();
    /// A stage is done.
    void Stufe(std::string_view text);
    void flush();

private:
    std::string datei_;
    const services::Clock* clock_;
    std::string puffer_;
    basic::Date sekunde_; ///< of `zeit_`
    std::string zeit_;
};

} // namespace plan
