#include "addresses/address_use.h"
#include "platform/basic/error.h"
#include "reservations/blocks.h"
#include "reservations/reservation_form.h"

namespace reservations {

namespace {

using services::MsgButtons;
using services::MsgDefault;
using services::MsgIcon;
using services::MsgResult;

} // namespace

bool frmReservierung::ablehnen(const std::string& text, const std::string& titel) {
    g_.dialogs.MsgBox(text, {.icon = MsgIcon::Exclamation}, titel.empty() ? g_.strTitel() : titel);
    return false;
}

MsgResult frmReservierung::fragen(const std::string& text, services::MsgStyle style, const std::string& titel) {
    return g_.dialogs.MsgBox(text, style, titel.empty() ? g_.strTitel() : titel);
}

// Storing

bool frmReservierung::speichern(Meldung meldung) {
    stand_.OffenHalten = false;
    const bool abgerechnet = abrechnung_ == Abrechnungsstand::Abgerechnet;
    const bool gespeichert = !abgerechnet && Reserv();
    if (gespeichert && dienste_.planNeuLaden) dienste_.planNeuLaden();
    if (gespeichert || geschlossen_) return gespeichert;
    if (abgerechnet)
        return ablehnen("Diese Reservierung wurde bereits abgerechnet. Wenn Sie trotzdem noch etwas ändern möchten, "
                        "stornieren Sie zunächst die Rechnung.");
    return ablehnen(meldung == Meldung::MitPunkt ? "Die Reservierung konnte nicht gespeichert werden."
                                                 : "Die Reservierung konnte nicht gespeichert werden",
                    "Speicherkontrolle");
}

void frmReservierung::cmdReservieren_Click() { speichern(Meldung::OhnePunkt); }

void frmReservierung::cmdZu_Click() {
    const bool gespeichert = speichern(Meldung::MitPunkt);
    if (gespeichert && !stand_.OffenHalten) geschlossen_ = true;
    stand_.OffenHalten = false;
}

void frmReservierung::cmdWarten_Click() {
    if (abrechnung_ == Abrechnungsstand::Abgerechnet) {
        ablehnen("Diese Reservierung wurde bereits abgerechnet.");
        return;
    }
    if (checked_) {
        ablehnen(
            "Der Gast ist bereits eingecheckt. Die Reservierung kann dewegen nicht in die Warteposition verschoben "
            "werden.");
        return;
    }
    stand_.InWarteposition = true;
    speichern(Meldung::MitPunkt);
    stand_.InWarteposition = false;
}

void frmReservierung::cmdAdresseSpeichern_Click() { adresse.cmdAdresseSpeichern_Click(); }

// Deleting

void frmReservierung::cmdL_schen_Click() {
    if (abrechnung_ == Abrechnungsstand::Abgerechnet) {
        ablehnen("Diese Reservierung wurde bereits abgerechnet.");
        return;
    }
    if (ID() == 0) return;
    try {
        if (!löschen()) return;
    } catch (const basic::Error& fehler) {
        ablehnen(fehler.text());
        return;
    }
    änderung_ = adresse.Adress_nderung = false;
    geschlossen_ = true;
    if (dienste_.planNeuLaden) dienste_.planNeuLaden();
}

/// Each step stands for itself: a member that was taken out of its block stays out when the second question is denied.
bool frmReservierung::löschen() {
    if (istBlockmitglied(g_.dbHaupt, ID())) {
        if (fragen("Diese Reservierung gehört zu einer Blockbuchung. Soll sie aus der Blockbuchung herausgenommen "
                   "werden?",
                   {MsgButtons::OKCancel, MsgIcon::Question, MsgDefault::Button2}) != MsgResult::OK)
            return false;
        AusBlockNehmen(g_.dbHaupt, ID());
        zeigeBlock();
    }
    if (fragen("Soll die aktuelle Reservierung gelöscht werden?",
               {MsgButtons::YesNo, MsgIcon::Question, MsgDefault::Button2}, "Reservierung") != MsgResult::Yes)
        return false;
    ReservierungLöschen(g_.dbHaupt, ID(), [&] {
        if (gespeichert_.GastID != 0)
            addresses::AdresseBenutzen(g_.dbHaupt, gespeichert_.GastID, false, {g_.instanz.Nummer, g_.strTitel()});
    });
    return true;
}

} // namespace reservations
