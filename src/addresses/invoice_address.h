#pragma once

#include "platform/jet/database.h"
#include "platform/services/dialogs.h"

#include <cstdint>
#include <optional>
#include <string>

namespace addresses {

/// An address that a search has found.
struct Adresstreffer {
    std::int64_t ID = 0;
    std::string LastName;

    bool operator==(const Adresstreffer&) const = default;
};

/// One invoice address as the texts that documents print, and what is done with a single address. Errors of the engine
/// go to the caller.
class clsADresse {
public:
    /// The first address whose last name begins with the text, case ignored; the text is left without NUL characters,
    /// in small letters. None for an empty text.
    [[nodiscard]] static std::optional<Adresstreffer> AdrSuchen(jet::Database& db, std::string& text);
    [[nodiscard]] static std::optional<Adresstreffer> AdrSuchenID(jet::Database& db, std::int64_t id);
    /// Fills the properties from a document (its ReNummer) and its address; a Null is the empty text, dates are
    /// dd.mm.yyyy. False, and all of them empty, when there is no such document or its address is gone.
    bool Adressdaten(jet::Database& db, std::int64_t nummer);
    /// Writes the file adresse.doc with one address into the folder of `pfad`. Gives the file's path; none when it
    /// could not be written, for the ID 0 and for an address that is gone.
    [[nodiscard]] static std::optional<std::string> Adress_Export(jet::Database& db, std::int64_t id,
                                                                  const std::string& pfad);
    /// After a question sets the stays of an address that began more than some days ago, and their posts, to billed.
    /// `titel` stands over the reports.
    static void AlteReservierungenAendern(jet::Database& db, std::int64_t id, basic::Date heute,
                                          services::Dialogs& dialogs, const std::string& titel);

    std::string Anrede;
    std::string Vorname;
    std::string Nachname;
    std::string Name2;
    std::string Strasse;
    std::string PLZ;
    std::string Ort;
    std::string Land; ///< by the list of countries, else the free text
    std::string EMail;
    std::string Kreditkarte;
    std::string KKNummer;
    std::string KKGültigBis;
    std::string BemerkAdr;
    std::string PLZPostfach;
    std::string Postfach;
    std::string Adressnummer;
    std::string FAX;

    // of the document
    std::string DatumRe;
    std::string Re_TEXT1;
    std::string BezahltDatumRe;
    std::string Renummer_eigen;
    std::string Renummer;
    std::string Zahlart;
    std::string Re_TEXT2;

    bool operator==(const clsADresse&) const = default;
};

} // namespace addresses
