#pragma once

#include "start/settings.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace start {

/// One place of a list, by its index.
struct Listenplatz {
    std::vector<std::string> Einstellungen::*Liste;
    std::size_t Platz;
};
struct Farbplatz {
    std::size_t Platz; ///< occupancy type
};

/// Where a field's value goes, and by its type how it is read: a Boolean is the text "Wahr", a number what Val reads
/// (text that is no number is 0), an optional number stays empty without a value.
using Ziel = std::variant<std::string Einstellungen::*, int Einstellungen::*, bool Einstellungen::*,
                          std::optional<int> Einstellungen::*, Listenplatz, Farbplatz>;

struct Feld {
    std::string Name;
    Ziel ziel;
    std::string Vorgabe;
    std::optional<std::string> Anlegewert = {}; ///< what a record that is added gets; none: the default
};

enum class Ablage {
    Parameter,    ///< tblParameter of the main database
    Texte,        ///< tblTexte of the main database; the field is Inhalt
    Arbeitsplatz, ///< tblParameter of the workstation's own file
};

enum class WennFehlt {
    Vorgabe,       ///< the defaults hold
    Anlegen,       ///< the record is added, and the defaults hold
    ErsterStart,   ///< the first run
    Einstellungen, ///< the settings form; the defaults hold until then
};

enum class NullIst { Vorgabe, Leer };

/// When a record is read in the course of the start.
enum class Abschnitt { Titel, Verhalten, Zahlungsmigration, Währung, Räume, Zeit, Darstellung, Farben, Nummern, Rest };

struct Satz {
    Abschnitt abschnitt;
    std::string Name;
    std::vector<Feld> Felder;
    WennFehlt wennFehlt = WennFehlt::Vorgabe;
    Ablage ablage = Ablage::Parameter;
    NullIst nullIst = NullIst::Vorgabe;
    int Einstellungsseite = 0; ///< page of the settings form that a missing record opens
};

/// Every settings record, in the order in which the start reads them.
[[nodiscard]] const std::vector<Satz>& Satztabelle();

/// Puts a value into its place.
void zuweisen(Einstellungen& einstellungen, const Ziel& ziel, const std::string& wert);
/// A number as a record keeps it: what Val reads, half to even, within 32 bits.
[[nodiscard]] int zahl(std::string_view text);

} // namespace start
