#pragma once

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

/// Opens the other windows. A window may be asked for only where has() says that it is there: this is the one place
/// that knows what is missing. Every call blocks until its window has closed.
class Windows {
public:
    virtual ~Windows() = default;

    [[nodiscard]] virtual bool has(Fenster fenster) const = 0;

    [[nodiscard]] virtual PfadeErgebnis Datenbankpfade(const PfadeAnfrage& anfrage) = 0;
    [[nodiscard]] virtual Adresswahl Adresshilfe(const AdresshilfeAnfrage& anfrage) = 0;
    virtual void Einstellungen(const EinstellungenAnfrage& anfrage) = 0;
};

} // namespace start
