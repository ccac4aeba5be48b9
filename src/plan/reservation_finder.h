#pragma once

#include "platform/basic/date.h"
#include "platform/jet/database.h"

#include <optional>
#include <string>
#include <vector>

namespace plan {

// What the pointer asks the data files. Errors of the engine go to the caller.

/// A stay under the pointer. What a query does not tell stays empty.
struct Mausfund {
    int ID = 0;
    std::string BelegNummer_eigen = {};
    std::string Von = {}; ///< "dd.mm.yyyy"
    std::string Bis = {}; ///< not told of the waiting row
    int GastID = 0;       ///< not told of the waiting row
};

/// The stays of a room on a day, the departure day not counted.
[[nodiscard]] std::vector<Mausfund> UnterMausImZimmer(jet::Database& db, int zimmernummer, basic::Date tag);
/// Those of the waiting row on a day, the departure day counted.
[[nodiscard]] std::vector<Mausfund> UnterMausWartend(jet::Database& db, basic::Date tag);

struct Gastname {
    std::string FirstName;
    std::string LastName;
    std::string City;
};
[[nodiscard]] std::optional<Gastname> GastLesen(jet::Database& db, int gastID);

/// A stay with all that its tool tip and its context menu want to know.
struct Aufenthalt {
    int ID = 0;
    std::string Kürzel = {};
    std::string FirstName = {};
    std::string LastName = {};
    int Zimmernummer = 0;
    basic::Date Von = {};
    basic::Date Bis = {};
    int AnzahlGäste = 0;
    double Preis = 0;
    bool Checked = false;
    int GastID = 0;
    int IDAdressRechnung = 0; ///< 0: the guest pays
};

/// The stay in its room; none when there is no such stay or it stands in the waiting row.
[[nodiscard]] std::optional<Aufenthalt> AufenthaltLesen(jet::Database& db, int id);
/// Those of the waiting row on a day, the departure day counted.
[[nodiscard]] std::vector<Aufenthalt> WartendeLesen(jet::Database& db, basic::Date tag);

/// IDs of a room's stays within two days of today or running now, by arrival.
[[nodiscard]] std::vector<int> AktuelleReservierungen(jet::Database& db, int zimmernummer);

} // namespace plan
