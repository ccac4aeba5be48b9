#pragma once

#include "plan/colours.h"

#include <array>
#include <optional>
#include <string>

namespace plan {

/// What the settings say about the plan, with their defaults.
struct PlanEinstellungen {
    std::string strTitel = "Herbergo";
    int AnzahlZimmer = 9;     ///< room rows without the waiting row, 0 to 98
    int SichtbareZeilen = 10; ///< room rows on screen at once, from 1
    int ZeilenHoehe = 320;    ///< twips, from 20
    int AnzahlTage = 35;      ///< 1 to 100
    int WochentagLinie = 2;   ///< weekday of the week lines, Sunday 1 to Saturday 7; others: no lines
    int ErsterTagDifferenz = 60;
    std::array<Farbe, 9> Farben = {9399613, 16742405, 16762112, 16773888, 16056285}; ///< by BelegungsID, 0 is free
    Farbe FarbeSamstag = aufgehellt(9399613, 60);
    Farbe FarbeSonntag = aufgehellt(9399613, 60);
    std::optional<Farbe> FarbeTeilbelegt; ///< set when there is a type "teilbelegt"
    std::array<std::string, 9> Belegungsarten = {"frei", "Meier", "Schulze", "Tresen", "Angebot"};
    bool Zusatzspalten = false;                      ///< rooms have extras: their two columns are shown
    std::string Belegungsrahmen = "Reserviert von:"; ///< heading of the frame of occupancy types
    std::string Zimmerspalte = "Zimmer";             ///< heading of the rooms
};

/// The same with every number brought into its range: what a record holds was typed by somebody.
[[nodiscard]] PlanEinstellungen bereinigt(PlanEinstellungen einstellungen);

} // namespace plan
