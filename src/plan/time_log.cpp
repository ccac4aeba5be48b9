#include "plan/time_log.h"

#include "platform/basic/format.h"

#include <fstream>

namespace plan {

namespace {

constexpr std::size_t kPuffergröße = std::size_t{64} * 1024;

} // namespace

void Zeitlog::Kopf() {
    if (datei_.empty()) return;
    if (puffer_.size() >= kPuffergröße) flush();
    puffer_ += "  \nMouse  \n";
}

void Zeitlog::Stufe(std::string_view text) {
    if (datei_.empty()) return;
    if (const auto now = clock_->now(); zeit_.empty() || now != sekunde_) {
        sekunde_ = now;
        zeit_ = basic::Format(now, "hh:nn:ss");
    }
    puffer_.append(zeit_).append("  ").append(text).append("\n");
}

void Zeitlog::flush() {
    if (puffer_.empty()) return;
    std::ofstream(datei_, std::ios::app | std::ios::binary) << puffer_;
    puffer_.clear();
}

} // namespace plan
