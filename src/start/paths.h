#pragma once

#include "platform/services/settings_store.h"
#include "start/instance.h"
#include "store/links.h"

#include <string>

namespace start {

/// The settings of the start: paths of the data files and what else stands in the section "Startup".
class clsPfade {
public:
    explicit clsPfade(services::SettingsStore& settings) : settings_(&settings) {}

    /// Empty when there is no such key.
    [[nodiscard]] std::string DBPfad(const std::string& key) const;
    void Speichern(const std::string& key, const std::string& value);
    /// Deletes the whole section, that of the other installations too.
    void Löschen();

private:
    services::SettingsStore* settings_;
};

/// Paths of the home files and the backup's target by the settings of an installation.
struct Datenbankpfade {
    std::string Zentral;
    std::string Pfad;
    std::string Sicherung;
};
[[nodiscard]] Datenbankpfade gespeichertePfade(const clsPfade& pfade, const Instanz& instanz);
/// The backup's target where none was chosen.
[[nodiscard]] std::string vorgabeSicherung(const Instanz& instanz);

} // namespace start
