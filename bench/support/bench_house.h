#pragma once

#include "platform/jet/workspace.h"
#include "support/flush_counter.h"
#include "support/house.h"
#include "support/plain.h"

namespace bench {

/// A house opened both ways.
struct BenchHouse {
    BenchHouse(const std::string& folder, FlushCounter& counter);

    services::FixedClock clock;
    jet::Workspace workspace;
    jet::Database ours;
    plain::Connection plain;
    FlushCounter& flushes;
    int stays; ///< keys of tblBelegung are 1 to this
};

} // namespace bench
