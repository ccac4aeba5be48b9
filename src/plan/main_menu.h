#pragma once

#include "plan/surroundings.h"
#include "platform/services/controls.h"

#include <span>
#include <string>
#include <string_view>

namespace plan {

/// An entry of the main menu: what it is called and what it leads to.
struct Menüpunkt {
    enum class Ziel {
        Fenster,        ///< another window
        Programm,       ///< a sibling program
        Dokument,       ///< a document of the program folder
        Beispieldaten,  ///< the sample data
        DatenAb,        ///< the date jump
        Strukturupdate, ///< the renewal of the data files
        Internet,       ///< the program of the web presence, wherever it lies
        NeueReservierung,
        LetzteReservierung,
        Beenden
    };

    std::string_view Name;
    std::string_view Caption;
    Ziel ziel;
    start::Fenster fenster = {};    ///< where it leads to a window
    std::string_view datei = {};    ///< the file that must be in the program folder
    std::string_view programm = {}; ///< what is started; empty: the file itself
    bool mitInstanz = false;        ///< the program is told the number of the instance
    bool nurEigeneDaten = false;    ///< makes no sense on the sample data
    bool ohneAngebote = false;      ///< offers past due are seen to before
};

struct Menüspalte {
    std::string_view Name;
    std::string_view Caption;
    std::span<const Menüpunkt> Punkte;
};

/// From left to right.
[[nodiscard]] std::span<const Menüspalte> Menüspalten();

/// Can the entry be chosen?
[[nodiscard]] bool freigegeben(const Menüpunkt& punkt, const Umgebung& umgebung);

/// The main menu as it stands now.
[[nodiscard]] services::Menu Hauptmenü(const Umgebung& umgebung, std::string_view strTitel);

/// Null when there is no such entry.
[[nodiscard]] const Menüpunkt* MenüpunktNamens(std::string_view name);

} // namespace plan
