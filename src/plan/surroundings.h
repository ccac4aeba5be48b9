#pragma once

#include "plan/room_choice.h"
#include "start/global_state.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace plan {

/// The captions of the plan that the user may change.
enum class Planbeschriftung { Belegungsrahmen, Zimmerspalte };

/// What the main window reaches besides the plan; what is not handed in is not there, and what needs it is disabled.
struct Umgebung {
    services::Dialogs* dialogs = nullptr;
    start::Windows* windows = nullptr;
    jet::Database* db = nullptr; ///< without it the pointer asks nothing and nobody is checked in
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

    /// Starts the program of the web presence, which may lie anywhere: asks for it when it is missing.
    std::function<void()> Internet = {};
    /// Asks about offers past due, before the statistics. False: the user wants to see to them first.
    std::function<bool(const std::function<void()>& geändert)> AngebotePrüfen = {};
    /// Keeps a new caption of the plan. Raises the engine's errors.
    std::function<void(Planbeschriftung was, const std::string& text)> Beschriften = {};
    /// Has all of the stay been billed and paid?
    std::function<bool(int id)> istBezahlt = {};
    /// Shows the form until it is closed.
    std::function<void(frmZimmerauswahl& form)> Zimmerauswahl = {};

    int* Aktualisieren = nullptr;  ///< 1: a refresh is due on the next mouse event
    std::string Zeitlogdatei = {}; ///< the log of the mouse handling; empty: none is kept
    std::string Waehrung = {};
    bool BeispielAktiv = false; ///< the sample data are shown
    int Instanz = 0;

    [[nodiscard]] bool has(start::Fenster fenster) const { return windows != nullptr && windows->has(fenster); }
    [[nodiscard]] bool hat(std::string_view datei) const { return vorhanden && vorhanden(datei); }
};

/// The surroundings in a run of the program. `schließen` closes the plan window, which is built anew when the state
/// says so. The state must outlive them.
[[nodiscard]] Umgebung UmgebungAus(start::GlobalState& g, const std::function<void()>& close);

} // namespace plan
