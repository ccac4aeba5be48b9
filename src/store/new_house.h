#pragma once

#include "platform/jet/workspace.h"

#include <string>
#include <vector>

namespace store {

struct NewHouse {
    std::string Ordner;
    basic::Date Jetzt;          ///< the sample stays lie around this day
    bool mitBeispiel = false;   ///< sample rooms, guests and stays in the house itself
    bool beispieldatei = true;  ///< sample data in Beispiel.mdb, which the first run offers to show
    bool postleitzahlen = true; ///< the towns that builtInPostalCodes() tells
};

/// The names of the files that make a house.
[[nodiscard]] std::vector<std::string> houseFiles();

/// Makes a new house: Zentral.mdb, Herbergo.mdb, Lokal.mdb with one link to every table of these two, Beispiel.mdb and
/// Feiertag.mdb. Countries, salutations, payment kinds, card kinds, holidays and postal codes are filled in; there are
/// no rooms and no settings unless samples are wanted, so that the first run asks its question. The folder is created
/// when it is missing. Raises 3204 when the folder already holds one of the files, without touching anything, 3044 for
/// a folder that cannot be made or has a semicolon in its path. On any other error what was made is removed again.
void createHouse(const jet::Workspace& workspace, const NewHouse& house);

} // namespace store
