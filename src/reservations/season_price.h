#pragma once

#include "platform/basic/date.h"
#include "platform/jet/database.h"
#include "platform/services/dialogs.h"

#include <array>
#include <string>

namespace reservations {

/// One of the five lines of a season price; without nights only the name is set.
struct Saisonzeile {
    int Nächte = 0;
    std::string Saison;
    double Preis = 0; ///< per night, gross
    double Summe = 0;
};

/// Walks a stay night by night; each night has the price of the season on which it begins.
class clsSaisonpreis {
public:
    /// Database and dialogs must outlive it.
    clsSaisonpreis(jet::Database& db, services::Dialogs& dialogs, std::string strTitel)
        : db_(&db), dialogs_(&dialogs), titel_(std::move(strTitel)) {}

    /// Total of a stay in a room (its number); 0: not computable, also for texts that are no dates and for a departure
    /// that is not behind the arrival. With `showMessages` tells what was found or what is missing; a failure (an error
    /// of the engine, no date, more nights than a stay can have) is never told.
    double Saisonpreis_Ausrechnen(int zimmer, const std::string& von, const std::string& bis, bool showMessages);

    /// Of the last calculation: four seasons and "Ohne Saison".
    [[nodiscard]] const std::array<Saisonzeile, 5>& Zeilen() const { return zeilen_; }
    /// Seasons with at least one night in the last calculation.
    [[nodiscard]] int AnzahlSaisons() const { return saisons_; }

private:
    using Zeilen5 = std::array<Saisonzeile, 5>;

    [[nodiscard]] static Zeilen5 leereZeilen();
    void leeren();
    [[nodiscard]] double ausrechnen(int zimmer, basic::Date von, basic::Date bis, bool showMessages);
    void nächteZählen(basic::Date von, basic::Date bis);
    [[nodiscard]] std::string Saison(basic::Date tag);
    [[nodiscard]] bool hatSaisonpreis(int zimmer);
    [[nodiscard]] double Preis(int zimmer, const std::string& saison);
    [[nodiscard]] double preiseEintragen(int zimmer, std::string& text);

    jet::Database* db_;
    services::Dialogs* dialogs_;
    std::string titel_;
    Zeilen5 zeilen_ = leereZeilen();
    int saisons_ = 0;
};

} // namespace reservations
