#pragma once

#include "platform/jet/database.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace reservations {

/// A row of tblBelegung as the form reads and writes it. Texts are empty for Null; numbers 0; prices are gross.
struct Reservierung {
    int ID = 0; ///< 0: not stored yet
    int Zimmernummer = 0;
    std::optional<basic::Date> Von;
    std::optional<basic::Date> Bis; ///< departure day
    std::int64_t GastID = 0;
    std::int64_t IDAdressRechnung = 0; ///< 0: Null, the guest is billed
    int Belegungsart = 0;
    bool VerpflegungAusweisen = false;
    int Wäsche1 = 0; ///< days until the next change
    int Wäsche2 = 0;
    bool Frühstück = false;
    bool Mittag = false;
    bool Abendessen = false;
    std::string Alter_Kinder;
    std::int64_t BelegNummer = 0;
    std::string BelegNummer_eigen;
    int AnzahlGäste = 0;
    std::optional<basic::Date> WannErstellt;
    int Anz_Kinder = 0;
    bool Fix = false;
    std::string WerErstellt;
    std::string WerGeändert;
    std::string Info;
    std::string Kürzel;
    double PreisProNacht = 0;
    double Preis = 0;
    int AnzahlÜbernachtungen = 0;
    bool Checked = false;
    bool Gelöscht = false;    ///< in the waiting row
    bool Abgerechnet = false; ///< billed or divided; read only
};

/// In the order of their IDs; those that are gone are left out.
[[nodiscard]] std::vector<Reservierung> ReservierungenLesen(jet::Database& db, std::span<const int> ids);

/// Another row than `id` has this short name, waiting ones included. An empty name is free.
[[nodiscard]] bool KürzelVergeben(jet::Database& db, std::string_view kürzel, int id);
/// The short name that a stay gets by default: at most 6 characters of the name up to its comma, arrival and departure
/// as day and month ("Müller12_05-15_05"), and "/1", "/2", ... where another row has it. Dates are "dd.mm.yyyy".
[[nodiscard]] std::string VorgabeKürzel(jet::Database& db, std::string_view name, std::string_view von,
                                        std::string_view bis, int id);
/// The address that was billed for the guest's last ended stay, when it was not his own; 0 when there is none.
[[nodiscard]] std::int64_t LetzteRechnungsadresse(jet::Database& db, std::int64_t gast);

enum class Speicherergebnis { Gespeichert, KürzelVergeben, Verschwunden };

/// Adds the row (`ID` 0) and sets its ID, or changes it. Where the room is 0, an existing row keeps its room and a new
/// one gets 1; where WannErstellt is empty an existing row keeps its own; no guests count as one. Nothing is tested but
/// the short name of a new row and that an existing one is still there. `ergänzen` may complete a new row before it is
/// added, once its short name is known to be free. Raises the engine's errors; nothing is written then.
[[nodiscard]] Speicherergebnis ReservierungSpeichern(jet::Database& db, Reservierung& reservierung,
                                                     const std::function<void(Reservierung&)>& ergänzen = {});
/// The row that lost against another workstation.
void ReservierungZurücknehmen(jet::Database& db, int id);
/// The row, its posts and their links to documents: three statements, not one transaction. `nachDerZeile` is called
/// behind the first.
void ReservierungLöschen(jet::Database& db, int id, const std::function<void()>& nachDerZeile = {});

} // namespace reservations
