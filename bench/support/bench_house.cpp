#include "support/bench_house.h"

#include "store/database_files.h"

namespace bench {

BenchHouse::BenchHouse(const std::string& folder, FlushCounter& counter)
    : clock(today()), workspace(clock),
      ours(workspace.OpenDatabase(folder + "/Lokal.mdb", false, false, store::openConnect())),
      plain(plain::openHouse(folder, clock)), flushes(counter),
      stays(static_cast<int>(ours.OpenRecordset("SELECT Max(ID) FROM tblBelegung").At(0).longOr())) {}

} // namespace bench
