#pragma once

#include "masterdata/rooms.h"
#include "plan/colours.h"
#include "platform/basic/date.h"

#include <string>
#include <string_view>

namespace plan {

/// The record behind a cell. Texts are empty and numbers 0 while it is free.
struct tplZelle {
    int ID = 0; ///< reservation shown here, 0 when free
    std::string Vorname;
    std::string Nachname;
    int GastID = 0;
    int Tag = 0;
    std::string ZimmerName; ///< the room's NeueNummer
    std::string Datum;      ///< the cell's date, "dd.mm.yy"
    int IDAdrRechnung = 0;
    std::string Von; ///< "dd.mm.yyyy"
    std::string Bis;
    std::string Kuerzel;
    int Gaeste = 0;
    bool Checked = false;
    bool Angebot = false; ///< an offer, or anything in the waiting row
    bool Warteposition = false;
    int Zeile = 0;          ///< line on screen
    std::string WeitereIDs; ///< all reservations that share the cell, with commas; empty if only one

    /// A free cell without a date; keeps its allocations.
    void leeren();
};

/// What is drawn for a cell.
struct Zellbild {
    Farbe Fuellung = 0;
    int Rahmen = 1;         ///< 3 for a guest in the house
    bool ErsterTag = false; ///< the reservation begins here
    bool LetzteNacht = false;
    bool Überlauf = false; ///< the cell before the first column that a bar from before the window touches
};

/// A bar: neighbouring cells of a line that show one reservation.
struct Balken {
    int Zeile;
    int VonSpalte;
    int BisSpalte; ///< included
    int ID;        ///< 0: the selection of a reservation that is being drawn
    std::string_view Kuerzel;
    int Rahmen;
    bool LinksOffen;  ///< goes on before its first cell
    bool RechtsOffen; ///< goes on behind its last cell
    bool Überlauf;    ///< no stay on these days: has no label
};

/// What stands in front of a line.
struct Zimmerbeschriftung {
    std::string Name; ///< "Zimmernummer01", by line
    std::string Caption;
    std::string ToolTipText;
    const masterdata::tplZimmer* Zimmer; ///< its extras; null where the house has no such row
};

/// The stay that the user is drawing with the mouse.
struct Auswahl {
    int Zeile; ///< grid row
    basic::Date Von;
    basic::Date Bis; ///< the day under the pointer: departure
    int Art;         ///< BelegungsID
};

} // namespace plan
