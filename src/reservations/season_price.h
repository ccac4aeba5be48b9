#pragma once

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
    /// that is not behind the arrival. With `showMessages` tells what was found or what is missing.
    double Saisonpreis_Ausrechnen(int zimmer, const std::string& von, const std::string& bis, bool showMessages);

    /// Of the last calculation: four seasons and "Ohne Saison".
    [[nodiscard]] const std::array<Saisonzeile, 5>& Zeilen() const { return zeilen_; }
    /// Seasons with at least one night in the last calculation.
    [[nodiscard]] int AnzahlSaisons() const { return saisons_; }

private:
    jet::Database* db_;
    services::Dialogs* dialogs_;
    std::string titel_;
    std::array<Saisonzeile, 5> zeilen_;
    int saisons_ = 0;
};

} // namespace reservations
