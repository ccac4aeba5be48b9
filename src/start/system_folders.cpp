#include "start/system_folders.h"

#include "store/database_files.h"

#include <array>
#include <filesystem>

namespace start {

namespace {

constexpr std::array<const char*, 5> kOrdner = {"Rechnungen", "Anmeldungen", "Bestätigungen", "Angebote",
                                                "Sicherungen"};

bool vorhandenOderAngelegt(const std::string& ordner) {
    std::error_code error;
    if (std::filesystem::is_directory(ordner, error)) return true;
    std::filesystem::create_directory(ordner, error);
    return std::filesystem::is_directory(ordner, error);
}

} // namespace

void Systemordner(const std::string& programmordner, services::Dialogs& dialogs, const std::string& titel) {
    for (const std::string name : kOrdner)
        if (!vorhandenOderAngelegt(store::joinPath(programmordner, name)))
            dialogs.MsgBox("Fehler beim Anlegen des Systemordners " + programmordner + "\\" + name +
                               ". Bitte wenden Sie sich an den Hersteller der Software.",
                           {}, titel);
}

} // namespace start
