#pragma once

#include "start/global_state.h"

#include <functional>
#include <string>
#include <string_view>

namespace plan {

/// What the main window reaches besides the plan; what is not handed in is not there, and what needs it is disabled.
struct Umgebung {
    services::Dialogs* dialogs = nullptr;
    const start::Windows* windows = nullptr;
    /// Opens a window that needs nothing of the plan; called only for windows that are there.
    std::function<void(start::Fenster)> öffnen = {};
    /// Is the file in the program folder?
    std::function<bool(std::string_view datei)> vorhanden = {};
    /// Starts a sibling program of the program folder; the argument may be empty.
    std::function<void(std::string_view programm, const std::string& argument)> starten = {};
    /// Shows a document of the program folder.
    std::function<void(std::string_view datei)> zeigen = {};
    /// Warns, starts the program that renews the data files, and ends this one.
    std::function<void()> Strukturupdate = {};
    /// Switches between the sample data and the house's own, and builds the plan anew.
    std::function<void()> Beispieldaten = {};

    bool BeispielAktiv = false; ///< the sample data are shown
    int Instanz = 0;

    [[nodiscard]] bool has(start::Fenster fenster) const { return windows != nullptr && windows->has(fenster); }
    [[nodiscard]] bool hat(std::string_view datei) const { return vorhanden && vorhanden(datei); }
};

/// The surroundings in a run of the program. `schließen` closes the plan window, which is built anew when the state
/// says so. The state must outlive them.
[[nodiscard]] Umgebung UmgebungAus(start::GlobalState& g, const std::function<void()>& close);

} // namespace plan
