#pragma once

#include <cstdint>
#include <sqlite3.h>

namespace bench {

/// Counts how often SQLite has the disk flush a file, over all files opened while it lives: it stands as the default
/// file system in front of the real one. Make it before the first file is opened, and let it outlive the last one.
/// Knows rollback journals only, no WAL.
class FlushCounter {
public:
    FlushCounter();
    FlushCounter(const FlushCounter&) = delete;
    FlushCounter& operator=(const FlushCounter&) = delete;
    ~FlushCounter();

    [[nodiscard]] std::int64_t count() const { return count_; }
    void add() { ++count_; }

private:
    sqlite3_vfs vfs_;
    std::int64_t count_ = 0;
};

} // namespace bench
