#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "reservations/reservation_form.h"
#include "reservations/season_price.h"
#include "reservations/tariffs.h"

#include <algorithm>
#include <cmath>

namespace reservations {

namespace {

using services::Key;
using services::Leave;

constexpr auto Preisformat = "#,##0.00";

bool leer(std::string_view text) { return basic::Trim(text).empty(); }

} // namespace

std::optional<double> frmReservierung::preisAus(std::string_view text) {
    constexpr double unsinnig = 1e12; // times the nights it must still be a number
    const auto preis = basic::parseNumber(text);
    return preis && std::abs(*preis) < unsinnig ? preis : std::nullopt;
}

double frmReservierung::tarif() const { return preisAus(cboTarif.Text).value_or(0); }

void frmReservierung::setzeTarif(const std::string& text) {
    cboTarif.Text = text;
    cboTarif.ListIndex = cboTarif.Items.indexOf(text);
}

void frmReservierung::subSetPreis() {
    if (leer(cboTarif.Text)) {
        fldPreis.Text = "0,00";
        return;
    }
    const auto preis = preisAus(cboTarif.Text);
    if (!datum(fldVon) || !datum(fldBis) || !preis) return;
    subSetNächte();
    setzeTarif(basic::Format(*preis, Preisformat));
    // Times the amount that is shown and stored, so that the total is what a guest reckons.
    if (*preis != 0) fldPreis.Text = basic::Format(basic::Val(fldResTage.Text) * tarif(), Preisformat);
}

void frmReservierung::chFix_Click() {
    fldPreis.Bold = chFix.Value;
    Feld_Change();
}

// Night price and total

void frmReservierung::cboTarif_Change() { Feld_Change(); }

Leave frmReservierung::cboTarif_LostFocus() {
    if (!leer(cboTarif.Text) && !preisAus(cboTarif.Text)) {
        ablehnen("Bitte überprüfen Sie die Eingabe");
        return Leave::Stay;
    }
    if (!leer(cboTarif.Text)) subSetPreis();
    saisonpreisErkennen();
    return Leave::Go;
}

void frmReservierung::fldPreis_Change() { Feld_Change(); }

Leave frmReservierung::fldPreis_LostFocus() {
    const auto preis = preisAus(fldPreis.Text);
    if (!leer(fldPreis.Text) && !preis) {
        ablehnen("Bitte überprüfen Sie die Eingabe");
        return Leave::Stay;
    }
    fldPreis.Text = basic::Format(preis.value_or(0), "###,##0.00");
    saisonpreisErkennen();
    return Leave::Go;
}

// Season

void frmReservierung::setzeSaisonpreis(bool saisonpreis) {
    saisonpreis_ = saisonpreis;
    cmdSaisonpreis.BackColor = saisonpreis ? std::optional(look::Aktiv) : std::nullopt;
}

/// 0 where there is none, also for a stay that no season can be computed for.
double frmReservierung::Saisonpreis(bool melden) {
    const auto von = datum(fldVon);
    const auto bis = datum(fldBis);
    if (Zimmernummer() == 0 || !von || !bis || *von >= *bis) return 0;
    clsSaisonpreis saisonpreis(g_.dbHaupt, g_.dialogs, g_.strTitel());
    return basic::quietly(0.0, [&] {
        return saisonpreis.Saisonpreis_Ausrechnen(Zimmernummer(), basic::Format(*von, "dd.mm.yyyy"),
                                                  basic::Format(*bis, "dd.mm.yyyy"), melden);
    });
}

/// The total is compared as it is shown: that is what is stored.
void frmReservierung::saisonpreisErkennen() {
    const double gesamt = preisAus(fldPreis.Text).value_or(0);
    const double saison = gesamt == 0 ? 0 : Saisonpreis(false);
    setzeSaisonpreis(saison != 0 && basic::Format(saison, Preisformat) == basic::Format(gesamt, Preisformat));
}

void frmReservierung::saisonpreisAus() {
    const auto zimmer = vorgabe(Zimmernummer());
    setzeTarif(zimmer ? basic::Format(zimmer->Preisdefault, "##,##0.00") : "0,00");
    zimmer ? subSetPreis() : void(fldPreis.Text = "0,00");
    setzeSaisonpreis(false);
}

void frmReservierung::cmdSaisonpreis_Click() {
    if (saisonpreis_) {
        basic::quietly([&] { saisonpreisAus(); });
        Feld_Change();
        return;
    }
    if (leer(fldZimmer.Text) || leer(fldVon.Text) || leer(fldBis.Text)) return;
    const double preis = Saisonpreis(true);
    setzeSaisonpreis(preis != 0);
    if (preis == 0) return;
    fldPreis.Text = basic::Format(preis, Preisformat);
    setzeTarif("");
    Feld_Change();
}

// The list of night prices

void frmReservierung::tarifeFüllen() {
    const std::string text = cboTarif.Text;
    cboTarif.Items.Clear();
    for (const std::string& preis : TarifeLesen(g_.dbHaupt))
        cboTarif.Items.AddItem(preis);
    setzeTarif(text);
}

void frmReservierung::tarifMerken() {
    const auto preis = preisAus(cboTarif.Text);
    if (!preis) return;
    const std::string text = basic::Format(*preis, "###,##0.00");
    if (cboTarif.Items.indexOf(text) >= 0) return;
    basic::quietly([&] {
        if (TarifAnlegen(g_.dbHaupt, text)) tarifeFüllen();
    });
}

void frmReservierung::tarifVergessen() {
    const auto preis = preisAus(cboTarif.Text);
    if (!preis) return;
    if (fragen("Soll dieser Eintrag aus der Liste entfernt werden?",
               {services::MsgButtons::YesNo, services::MsgIcon::Question, services::MsgDefault::Button2},
               "Listeneinträge löschen") != services::MsgResult::Yes)
        return;
    basic::quietly([&] {
        if (TarifLöschen(g_.dbHaupt, basic::Format(*preis, "###,##0.00"))) tarifeFüllen();
    });
}

bool frmReservierung::cboTarif_KeyDown(Key key) {
    if (key == Key::Return) tarifMerken();
    if (key == Key::F2) tarifVergessen();
    return key == Key::Return || key == Key::F2;
}

} // namespace reservations
