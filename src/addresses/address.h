#pragma once

#include "platform/jet/database.h"

#include <cstdint>
#include <optional>
#include <string>

namespace addresses {

/// What the reservation form keeps of a row of Address. Texts are empty for Null; numbers 0.
struct Adresse {
    std::int64_t ID = 0; ///< 0: not stored yet
    std::string LastName;
    std::string FirstName;
    std::string CompanyName; ///< second name line and firm
    std::string Anrede;
    std::string Address; ///< street
    std::string PostalCode;
    std::string City;
    std::string Country;
    std::int64_t IDLand = 0; ///< tbLänder.ID; 0: the country is free text only
    std::string Phone;
    std::string TeleFax; ///< the column Tele-Fax
    std::string EMAIL;
    std::string Raucher; ///< "Raucher", "Nichtraucher" or empty
    std::string BemerkAdr;
    bool Stammkunde = false; ///< stored as OwnerID: 0 means yes, 1 no
    std::string WerErstellt;
    std::optional<basic::Date> WannErstellt;
    std::string WerGeändert;
    std::optional<basic::Date> WannGeändert;

    bool operator==(const Adresse&) const = default;
};

/// The country is the one that IDLand names, else the free text; the salutation the one that IDAnrede names, else the
/// free text. None when there is no such row.
[[nodiscard]] std::optional<Adresse> AdresseLesen(jet::Database& db, std::int64_t id);

struct Speichernder {
    std::string Name; ///< logon name, stands where the row names nobody
    basic::Date Jetzt;
};

/// Adds the row (ID 0) or changes it. Gives the row's ID; 0 when the row to be changed is gone. Raises the engine's
/// error for a text that is too long for its field; nothing is written then.
[[nodiscard]] std::int64_t AdresseSpeichern(jet::Database& db, const Adresse& adresse, const Speichernder& wer);

} // namespace addresses
