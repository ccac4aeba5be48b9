#pragma once

#include "platform/jet/workspace.h"
#include "platform/services/clock.h"
#include "platform/services/dialogs.h"
#include "platform/services/settings_store.h"
#include "platform/services/shell.h"
#include "platform/services/user.h"
#include "start/instance.h"
#include "start/settings.h"
#include "start/windows.h"

#include <string>

namespace start {

/// What a run knows and reaches. `main` owns the one of the program and hands it down; a test makes its own.
struct GlobalState {
    // services
    services::Dialogs& dialogs;
    services::SettingsStore& settings;
    services::Shell& shell;
    const services::User& user;
    const services::Clock& clock;
    Windows& windows;
    const jet::Workspace& wsHaupt;

    // where it runs
    Instanz instanz;
    bool AdrAusBel = false; ///< the instance uses the addresses of the main program

    // data
    jet::Database dbHaupt{nullptr};        ///< the link file, or the sample file while sample data are shown
    jet::Database dbArbeitsplatz{nullptr}; ///< the sample file, for the records of this workstation; may be closed
    std::string strDBAktuell{};            ///< path of the file behind dbHaupt
    std::string strBeispielDB{};           ///< path of the sample file

    Einstellungen einstellungen{};

    // how the run stands
    bool BeispielAnzeigen = false;  ///< the path form's box: the next load shows the sample data
    bool BeispielAktiv = false;     ///< sample data are shown
    bool ErsterStart = false;       ///< the first run just wrote the defaults
    bool OhneBeispielFrage = false; ///< no sample-data question on this load
    bool Neuaufbau = false;         ///< the plan window is being rebuilt, its closing is not an end of the program
    bool FormularGeladen = false;   ///< the plan window is up

    [[nodiscard]] const std::string& strTitel() const { return einstellungen.strTitel; }
};

} // namespace start
