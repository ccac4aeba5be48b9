#include "app/windows.h"

#include "reservations/forms/collision_dialog.h"
#include "reservations/forms/number_dialog.h"
#include "reservations/forms/reservation_dialog.h"
#include "reservations/forms/season_dialog.h"
#include "reservations/forms/season_prices_dialog.h"
#include "reservations/reservation_form.h"
#include "start/address_form.h"
#include "start/database_form.h"
#include "start/forms/address_dialog.h"
#include "start/forms/database_dialog.h"
#include "start/global_state.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <cassert>

namespace app {

using start::Fenster;

bool QtWindows::has(Fenster fenster) const {
    constexpr std::array vorhanden = {Fenster::Datenbankpfade,      Fenster::Adresshilfe,  Fenster::Reservierung,
                                      Fenster::Kollision,           Fenster::Saisonzeiten, Fenster::Saisonpreise,
                                      Fenster::Reservierungsnummern};
    return std::ranges::find(vorhanden, fenster) != vorhanden.end();
}

start::PfadeErgebnis QtWindows::Datenbankpfade(const start::PfadeAnfrage& anfrage) {
    start::frmDatenbank form(*state_, anfrage);
    start::DatabaseDialog(form, QApplication::activeWindow()).exec();
    addresses_.reset();
    return form.Ergebnis().value_or(start::PfadeErgebnis::ProgrammEnde);
}

start::Adresswahl QtWindows::Adresshilfe(const start::AdresshilfeAnfrage& anfrage) {
    start::frmAdressHilfe form(state_->dialogs, state_->strTitel(), anfrage);
    start::AddressDialog(form, QApplication::activeWindow()).exec();
    return form.Ergebnis();
}

void QtWindows::Einstellungen(const start::EinstellungenAnfrage& /*anfrage*/) { assert(false && "not there"); }

/// The sample data have addresses of their own, and the path form may have turned the links to another house.
addresses::Adressliste& QtWindows::addressList() {
    if (!addresses_ || addressesOf_ != state_->strDBAktuell) addresses_.emplace(state_->dbHaupt);
    addressesOf_ = state_->strDBAktuell;
    return *addresses_;
}

int QtWindows::Reservierung(const start::ReservierungAnfrage& anfrage) {
    reservations::frmReservierung form(*state_, {.adressen = addressList(), .planNeuLaden = staysChanged_}, anfrage);
    // A stay that is gone by now has told so and has nothing to show.
    if (!form.Geschlossen()) reservations::ReservationDialog(form, QApplication::activeWindow()).exec();
    return form.ID();
}

start::KollisionErgebnis QtWindows::Kollision(const start::KollisionAnfrage& anfrage) {
    reservations::frmCollision form(*state_, anfrage);
    reservations::CollisionDialog(form, QApplication::activeWindow()).exec();
    return form.Ergebnis().value_or(start::KollisionErgebnis());
}

void QtWindows::Saisonzeiten() {
    reservations::frmSaison form(*state_);
    reservations::SeasonDialog(form, QApplication::activeWindow()).exec();
}

void QtWindows::Saisonpreise(int zimmernummer) {
    reservations::frmSaisonpreise form(*state_, zimmernummer);
    reservations::SeasonPricesDialog(form, QApplication::activeWindow()).exec();
}

void QtWindows::Reservierungsnummern() {
    reservations::frmBeNummer form(*state_);
    reservations::NumberDialog(form, QApplication::activeWindow()).exec();
}

} // namespace app
