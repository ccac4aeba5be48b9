#include "app/house.h"

#include "plan/settings_reader.h"
#include "store/database_files.h"

#include <filesystem>
#include <optional>

namespace app {

namespace {

/// The file with the records of this workstation; a house can do without.
std::optional<jet::Database> openWorkstation(const jet::Workspace& workspace, const std::string& folder) {
    const auto path = store::joinPath(folder, store::fileNames().Beispiel);
    if (!std::filesystem::exists(path)) return std::nullopt;
    return workspace.OpenDatabase(path, false, false, store::openConnect());
}

} // namespace

House::House(const std::string& folder, const services::Clock& clock)
    : workspace_(clock), main_(workspace_.OpenDatabase(store::joinPath(folder, store::fileNames().Lokal), false, false,
                                                       store::openConnect())),
      source_(main_) {
    auto workstation = openWorkstation(workspace_, folder);
    const auto settings = plan::EinstellungenEinlesen(main_, workstation ? &*workstation : nullptr);
    raster_ = std::make_unique<plan::Planraster>(settings, masterdata::ZimmerEinlesen(main_), source_, clock);
}

} // namespace app
