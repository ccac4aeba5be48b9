#include "plan/time_log.h"

#include "platform/basic/format.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace plan {

namespace {

constexpr std::size_t kPuffergröße = std::size_t{64} * 1024;
constexpr std::uintmax_t kDateigröße = std::uintmax_t{8} * 1024 * 1024;

/// What is full is kept once more under the other name, so that the log never fills the disk.
void setAsideWhenFull(const std::string& file) {
    std::error_code unreadable;
    const auto size = std::filesystem::file_size(file, unreadable);
    if (!unreadable && size >= kDateigröße) std::filesystem::rename(file, file + ".alt", unreadable);
}

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
    setAsideWhenFull(datei_);
    std::ofstream(datei_, std::ios::app | std::ios::binary) << puffer_;
    puffer_.clear();
}

} // namespace plan
