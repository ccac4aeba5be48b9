#include "start/paths.h"

namespace start {

namespace {

// Existing installations have their settings here.
constexpr auto kApplication = "Logiswerk";
constexpr auto kSection = "Startup";

} // namespace

std::string clsPfade::DBPfad(const std::string& key) const {
    return settings_->GetSetting(kApplication, kSection, key);
}

void clsPfade::Speichern(const std::string& key, const std::string& value) {
    settings_->SaveSetting(kApplication, kSection, key, value);
}

void clsPfade::Löschen() { settings_->DeleteSetting(kApplication, kSection); }

Datenbankpfade gespeichertePfade(const clsPfade& pfade, const Instanz& instanz) {
    const Schlüssel keys = schlüssel(instanz.Nummer);
    return {pfade.DBPfad(keys.Zentral), pfade.DBPfad(keys.Pfad), pfade.DBPfad(keys.Excel)};
}

std::string vorgabeSicherung(const Instanz& instanz) {
    return store::joinPath(instanz.Datei("Sicherungen"), instanz.Namen().Herbergo);
}

} // namespace start
