#include "store/repair.h"

#include "platform/basic/text.h"
#include "store/database_files.h"

#include <algorithm>

namespace store {

namespace {

// The sample file's name has as many characters under every instance ("Beispiel.mdb", "Beispie1.mdb").
constexpr std::int64_t kSampleNameLength = 12;

void tryRepair(const jet::Workspace& workspace, const std::string& path) {
    try {
        jet::RepairDatabase(workspace, path, openConnect());
    } catch (const jet::Error&) {
        return; // the next start-up step tests the files and asks the user
    }
}

} // namespace

std::string localFileBeside(const std::string& beispielPfad, std::string_view localName) {
    const std::int64_t folder = std::max<std::int64_t>(0, basic::Len(beispielPfad) - kSampleNameLength);
    return basic::Left(beispielPfad, folder) + std::string(localName);
}

void repairFiles(const jet::Workspace& workspace, const std::string& localFile, const std::string& sourceFile,
                 const std::string& sharedFile) {
    for (const std::string& path : {localFile, sourceFile, sharedFile})
        tryRepair(workspace, path);
}

} // namespace store
