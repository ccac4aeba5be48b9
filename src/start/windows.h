#pragma once

#include "platform/basic/date.h"

#include <optional>
#include <string>
#include <vector>

namespace start {

/// The windows of the program, whether they are there yet or not.
enum class Fenster {
    Datenbankpfade,
    Adresshilfe,
    Einstellungen,
    Saisonzeiten,
    Plandruck,
    Datensicherung,
    Feiertage,
    Reservierung,
    Zimmerauswahl,
    Zusatzspalten,
    Reorganisation,
    AdressenLöschen,
    DatenAufbereiten,
    Artikel,
    Datenübersicht,
    Schnellsuche,
    Rechnungen,
    Abreiseliste,
    Zahlungen,
    Kollision,
    Saisonpreise,
    Reservierungsnummern,
    WeitereGäste,
    Blockbuchung,
    Dokumente, ///< offers, confirmations, registration forms, letters
};

/// The path form.
struct PfadeAnfrage {
    bool beimStart = false; ///< no plan yet: leaving without good paths ends the program
};
enum class PfadeErgebnis { Weiter, Neuaufbau, ProgrammEnde };

/// The address choice of an instance.
struct AdresshilfeAnfrage {
    bool HauptprogrammErreichbar = false; ///< else there are only own addresses to choose
};
enum class Adresswahl { Keine, AdrEinzeln, AdrAusBel };

/// The settings form, opened on a page from 1.
struct EinstellungenAnfrage {
    int Seite = 1;
};

/// The reservation form. With IDs it opens these: one alone, or those of the waiting row on a day, through which its
/// buttons then walk. Without, a new stay with what the plan's selection gives.
struct ReservierungAnfrage {
    std::vector<int> IDs = {};
    std::optional<basic::Date> Wartetag = {}; ///< set: the IDs are those of the waiting row on this day
    int Zimmernummer = 0;                     ///< row of the plan; 0 or the waiting row: no room
    std::optional<basic::Date> Von = {};
    std::optional<basic::Date> Bis = {}; ///< equal to Von: the form takes the next day
    int Art = 0;                         ///< BelegungsID chosen in the plan; 0: the first one
};

/// A stay in the way of another one.
struct Kollision {
    int ID = 0;
    std::string Kürzel;
    int Zimmer = 0; ///< room number; the dialog puts the target room in its place, 0: none chosen
    basic::Date Von;
    basic::Date Bis;
    bool Warteposition = false; ///< to be moved to the waiting row

    bool operator==(const Kollision&) const = default;
};

/// The dialog that solves collisions: the new stay as its form shows it, and what is in its way.
struct KollisionAnfrage {
    std::string Kürzel;
    std::string Von;
    std::string Bis;
    std::string Zimmer; ///< display name
    std::vector<Kollision> Kollisionen;
};
enum class Kollisionsweg {
    Verbuchen, ///< the old stays are moved; `gelöst` tells whether all could be
    Ändern,    ///< the user will change the new stay; its form stays open
    Verwerfen, ///< the new stay is not wanted any more
    Warten,    ///< the new stay goes to the waiting row
};
struct KollisionErgebnis {
    Kollisionsweg Weg = Kollisionsweg::Ändern;
    bool gelöst = false;
    std::string Zimmer; ///< the room as the dialog shows it at its end
};

/// Opens the other windows. A window may be asked for only where has() says that it is there: this is the one place
/// that knows what is missing. Every call blocks until its window has closed.
class Windows {
public:
    virtual ~Windows() = default;

    [[nodiscard]] virtual bool has(Fenster fenster) const = 0;

    [[nodiscard]] virtual PfadeErgebnis Datenbankpfade(const PfadeAnfrage& anfrage) = 0;
    [[nodiscard]] virtual Adresswahl Adresshilfe(const AdresshilfeAnfrage& anfrage) = 0;
    virtual void Einstellungen(const EinstellungenAnfrage& anfrage) = 0;

    /// The ID of the stay that the form showed last; 0 when it was never stored.
    virtual int Reservierung(const ReservierungAnfrage& anfrage) = 0;
    [[nodiscard]] virtual KollisionErgebnis Kollision(const KollisionAnfrage& anfrage) = 0;
    virtual void Saisonzeiten() = 0;
    /// Season prices of one room.
    virtual void Saisonpreise(int zimmernummer) = 0;
    /// The pattern of the reservation numbers.
    virtual void Reservierungsnummern() = 0;
};

} // namespace start
