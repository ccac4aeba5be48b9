#pragma once

#include "platform/jet/database.h"

#include <string>
#include <vector>

namespace masterdata {

/// Background of an extras cell without a colour of its own, BGR.
inline constexpr int Menüfarbe = 0xF0F0F0;

/// A row of tbZimmernummern with the extras assigned to it. Colours are BGR Longs.
struct tplZimmer {
    int Zimmernummer = 0;   ///< row of the plan, from 1
    std::string NeueNummer; ///< display name, empty for Null
    std::string Bemerkungen;
    int Z1Farbe = Menüfarbe;
    int Z2Farbe = Menüfarbe;
    std::string Z1Beschriftung;
    std::string Z2Beschriftung;
    std::string Z1Bedeutung;
    std::string Z2Bedeutung;
    int AnzahlGaeste = 0; ///< normal occupancy, 0 for Null
    std::string Raucher;  ///< "Raucher", "Nichtraucher" or empty
};

/// What a new reservation of a room row starts with; 0 for Null.
struct tplVorgabe {
    int Zimmernummer = 0;
    double Preisdefault = 0;
    int AnzahlGästeDefault = 0;
};

/// In the order of the plan's rows, the waiting row last; never more than 200.
[[nodiscard]] std::vector<tplZimmer> ZimmerEinlesen(jet::Database& db);

[[nodiscard]] std::vector<tplVorgabe> VorgabeZimmerEinlesen(jet::Database& db);

/// Has any room an extra, so that the two extras columns are wanted?
[[nodiscard]] bool Zusatzspaltenbelegt(jet::Database& db);

} // namespace masterdata
