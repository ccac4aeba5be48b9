#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "reservations/blocks.h"
#include "reservations/reservation_form.h"
#include "reservations/states.h"

namespace reservations {

namespace {

using start::Fenster;

std::string ohneZugriffstaste(const std::string& caption) { return basic::Replace(caption, "&", ""); }

constexpr auto Gleichgesetzt =
    "Das Anfangs- und Enddatum würde durch diesen Vorgang gleichgesetzt. Bitte korrigieren Sie den Eintrag.";

} // namespace

// Check-in and check-out

void frmReservierung::zeigeChecked() {
    lbChecked.Caption = checked_ ? "&Checked in" : "&Checked out";
    lbChecked.BackColor = checked_ ? look::Aktiv : look::Warnung;
    cmdHeute.BackColor = lbChecked.BackColor;
}

bool frmReservierung::gleicherTag(const services::TextBox& a, const services::TextBox& b) const {
    const auto tagA = datum(a);
    const auto tagB = datum(b);
    if (!tagA || !tagB) return a.Text == b.Text;
    return basic::Format(*tagA, "dd.mm.yy") == basic::Format(*tagB, "dd.mm.yy");
}

/// An offer is nobody who arrives; neither is a stay without a room, which belongs to the waiting row.
bool frmReservierung::angebotAbgelehnt() {
    const auto zustand = angebot();
    if (zustand == Angebotszustand::Nein) return false;
    const services::Label& feld = zustand == Angebotszustand::Angebot ? lbArt : lbZimmer;
    ablehnen("Bitte ändern Sie zunächst das Feld " + ohneZugriffstaste(feld.Caption) + ".", "Angebot/Status");
    zustand == Angebotszustand::Angebot ? cboArt.SetFocus() : fldZimmer.SetFocus();
    return true;
}

/// The flag is written at once, the dates wait for the save.
void frmReservierung::setzeChecked(bool checked) {
    if (ID() != 0) CheckedSetzen(g_.dbHaupt, ID(), checked);
    checked_ = checked;
    gespeichert_.Checked = checked;
    zeigeChecked();
}

bool frmReservierung::checkIn() {
    if (gleicherTag(fldCheckDatum, fldBis)) {
        ablehnen(Gleichgesetzt);
        fldCheckDatum.Text = fldVon.Text;
        return false;
    }
    setzeChecked(true);
    if (ID() == 0 || fldVon.Text != fldCheckDatum.Text) Feld_Change();
    fldVon.Text = fldCheckDatum.Text;
    fldCheckDatum.Text = fldBis.Text;
    return true;
}

bool frmReservierung::checkOut() {
    if (gleicherTag(fldCheckDatum, fldVon)) {
        ablehnen(Gleichgesetzt, "titel"); // this title is kept
        fldCheckDatum.Text = fldBis.Text;
        return false;
    }
    setzeChecked(false);
    if (ID() == 0 || fldBis.Text != fldCheckDatum.Text) Feld_Change();
    fldBis.Text = fldCheckDatum.Text;
    fldCheckDatum.Text = fldVon.Text;
    return true;
}

void frmReservierung::lbChecked_Click() {
    if (angebotAbgelehnt()) {
        prüfdatumNachziehen();
        return;
    }
    try {
        if (!(checked_ ? checkOut() : checkIn())) return;
    } catch (const basic::Error& fehler) {
        ablehnen(fehler.text());
        return;
    }
    subSetNächte();
    preisFolgtDenTagen();
    überschneidungPrüfen();
}

void frmReservierung::cmdHeute_Click() {
    if (abrechnung_ == Abrechnungsstand::Abgerechnet) {
        ablehnen("Diese Reservierung wurde bereits abgerechnet. Sie können das Datum nicht mehr ändern, ohne die "
                 "Rechnung zu stornieren.");
        return;
    }
    fldCheckDatum.Text = basic::Format(g_.clock.today(), "dd.mm.yyyy");
    lbChecked_Click();
}

// Billing

void frmReservierung::zeigeAbrechnung() {
    const bool abgerechnet = abrechnung_ == Abrechnungsstand::Abgerechnet;
    cmdAbgerechnet.Caption = abgerechnet ? "Abgerechnet" : "&Offen";
    cmdAbgerechnet.BackColor = abgerechnet ? look::Aktiv : look::Warnung;
    cmdAbgerechnet.Enabled = ID() != 0;
    if (!abgerechnet) cmdZahlDetails.Enabled = g_.windows.has(Fenster::Zahlungen);
}

void frmReservierung::AbrechnenAuslesen(int id) {
    const bool abgerechnet = basic::quietly(false, [&] { return istAbgerechnet(g_.dbHaupt, id); });
    abrechnung_ = abgerechnet ? Abrechnungsstand::Abgerechnet : Abrechnungsstand::Offen;
    zeigeAbrechnung();
}

void frmReservierung::Abrechnen(int id) {
    try {
        const bool abgerechnet = AbrechnenUmschalten(g_.dbHaupt, id);
        abrechnung_ = abgerechnet ? Abrechnungsstand::Abgerechnet : Abrechnungsstand::Offen;
    } catch (const basic::Error& fehler) {
        ablehnen(fehler.text());
        return;
    }
    zeigeAbrechnung();
    Speicheraktiv(abrechnung_ == Abrechnungsstand::Abgerechnet);
}

void frmReservierung::cmdAbgerechnet_Click() {
    if (ID() != 0) Abrechnen(ID());
}

void frmReservierung::mnuStatus_Click() {
    adresse.mnuStatus_Click();
    if (ID() == 0) return;
    const auto vorher = abrechnung_;
    AbrechnenAuslesen(ID());
    if (abrechnung_ != vorher) Speicheraktiv(abrechnung_ == Abrechnungsstand::Abgerechnet);
}

void frmReservierung::zeigeBezahlt() {
    const auto bezahlt = basic::quietly(
        std::optional<bool>(), [&] { return ID() != 0 && dienste_.bezahlt ? dienste_.bezahlt(ID()) : std::nullopt; });
    cmdBezahlt.Enabled = bezahlt.has_value();
    cmdBezahlt.Caption = !bezahlt ? "Unbekannt" : *bezahlt ? "Bezahlt" : "Nicht Bezahlt";
    cmdBezahlt.BackColor = bezahlt.value_or(false) ? std::optional(look::Aktiv) : std::nullopt;
}

void frmReservierung::cmdBezahlt_Click() { zeigeBezahlt(); }

// Block

void frmReservierung::zeigeBlock() {
    block_ = ID() != 0 && istBlockmitglied(g_.dbHaupt, ID());
    cmdBlockbuchung.BackColor = block_ ? std::optional(look::Aktiv) : std::nullopt;
    cmdBlockbuchung.Enabled = g_.windows.has(Fenster::Blockbuchung);
    cmdBemBlock.Visible = block_;
    if (auto* dateien = Menü.find("mnuVorhDatei")) dateien->Visible = !block_;
}

/// An apostrophe breaks the statement: the remarks of the others then stay as they were.
void frmReservierung::cmdBemBlock_Click() {
    if (ID() != 0) basic::quietly([&] { BemerkungÜbernehmen(g_.dbHaupt, ID(), fldInfo.Text); });
}

// Lock

void frmReservierung::Speicheraktiv(bool gesperrt) {
    services::Control* const felder[] = {&adresse.cboAdresse,
                                         &cboAdrRechnung,
                                         &fldZimmer,
                                         &cboArt,
                                         &fldVon,
                                         &fldBis,
                                         &txtWE,
                                         &txtWG,
                                         &fldAnzahlG_ste,
                                         &txtResDatum,
                                         &txtAnz_Kinder,
                                         &chFix,
                                         &chFr_hst_ck,
                                         &chMittag,
                                         &chAbendessen,
                                         &txtBeNummer_eigen,
                                         &fldW_sche1,
                                         &fldW_sche2,
                                         &fldInfo,
                                         &fldK_rzel,
                                         &cboTarif,
                                         &fldPreis,
                                         &cmdAuswahl,
                                         &cmdReservieren,
                                         &cmdZu,
                                         &cmdL_schen,
                                         &cmdSaisonpreis,
                                         &chNichtAnlegen};
    for (services::Control* feld : felder)
        feld->Enabled = !gesperrt;
    cmdBestVorschau.Enabled = !gesperrt && g_.windows.has(Fenster::Dokumente);
    cboArtikel.Enabled = !gesperrt && cboArtikel.Items.ListCount() > 0;
    if (gesperrt)
        cmdWarten.Enabled = false;
    else
        cmdBlockbuchung.Enabled = !block_ && g_.windows.has(Fenster::Blockbuchung);
}

} // namespace reservations
