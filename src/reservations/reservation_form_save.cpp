#include "addresses/address_use.h"
#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "reservations/blocks.h"
#include "reservations/overlap.h"
#include "reservations/reservation_form.h"

#include <cmath>
#include <limits>

namespace reservations {

namespace {

using services::MsgResult;

constexpr int Höchstzahl = std::numeric_limits<std::int16_t>::max();

bool leer(std::string_view text) { return basic::Trim(text).empty(); }

/// What a price field stores: the amount that its text shows.
double betrag(std::string_view text) {
    const double zahl = basic::parseNumber(text).value_or(0);
    return basic::CDbl(basic::Format(zahl, "###,##0.00"));
}

int ganzzahl(std::string_view text) { return static_cast<int>(basic::CInt(basic::Val(text))); }

} // namespace

// The steps of a save

bool frmReservierung::Reserv() {
    try {
        return speicherlauf();
    } catch (const basic::Error& fehler) {
        änderung_ = true; // the row may be written and what belongs to it not
        return ablehnen(fehler.text());
    }
}

bool frmReservierung::speicherlauf() {
    tageTauschen();
    subSetNächte();
    if (!pflichtfelderDa() || !zahlenPassen() || !AdressSpeichern()) return false;
    return schluss(lösenUndAblegen());
}

void frmReservierung::tageTauschen() {
    const auto von = datum(fldVon);
    const auto bis = datum(fldBis);
    if (!von || !bis || *von <= *bis) return;
    std::swap(fldVon.Text, fldBis.Text);
    prüfdatumNachziehen();
    preisFolgtDenTagen();
}

bool frmReservierung::pflichtfelderDa() {
    if (basic::Len(basic::Trim(adresse.cboAdresse.Text)) < 3)
        return ablehnen("Bitte den Namen des Gastes eingeben oder aus der Liste auswählen. Der Name muss mindestens "
                        "drei Zeichen lang sein.");
    kürzelVorgeben();
    if (leer(txtBeNummer_eigen.Text)) nummerVergeben();
    if (kürzelVergeben_) {
        fldK_rzel.SetFocus();
        return ablehnen("Bitte geben Sie eine eindeutige Kurzinfo ein.");
    }
    stand_.Verwerfen = false;
    return raumUndTageDa();
}

bool frmReservierung::raumUndTageDa() {
    zimmer_ = masterdata::ZimmerEinlesen(g_.dbHaupt); // a room may have been renamed or removed meanwhile
    if (!stand_.InWarteposition && Zimmernummer() == 0) return ablehnen("Bitte Zimmernummer eingeben.");
    const auto von = datum(fldVon);
    if (!von || !datum(fldBis)) return ablehnen("Bitte Anfang und Ende der Zimmerbelegung angeben.");
    if (leer(adresse.cboLand.Text)) return ablehnen("Bitte wählen Sie ein Land aus.");
    if (leer(fldK_rzel.Text)) return ablehnen("Bitte eindeutige Kunrzinfo eingeben.");
    if (istAngebot(cboArt.Text) && *von < g_.clock.today())
        return ablehnen("Ein Angebot kann nicht mit einem Anfangsdatum gespeichert werden, das in der Vergangenheit "
                        "liegt.",
                        "Angebote speichern");
    return true;
}

/// The fields hold 16 bits: what does not fit is told by the field's name, before anything is written.
bool frmReservierung::ganzzahlPasst(services::TextBox& box, std::string_view name) {
    const double zahl = basic::Val(box.Text);
    if (zahl >= 0 && zahl <= Höchstzahl && std::floor(zahl) == zahl) return true;
    box.SetFocus();
    return ablehnen("Bitte geben Sie im Feld '" + std::string(name) + "' eine ganze Zahl von 0 bis " +
                    std::to_string(Höchstzahl) + " ein.");
}

bool frmReservierung::zahlenPassen() {
    if (!ganzzahlPasst(fldAnzahlG_ste, "Erwachsene") || !ganzzahlPasst(txtAnz_Kinder, "Kinder") ||
        !ganzzahlPasst(fldW_sche1, lbW_sche1.Caption) || !ganzzahlPasst(fldW_sche2, lbW_sche2.Caption))
        return false;
    if (basic::Val(fldResTage.Text) > Höchstzahl)
        return ablehnen("Die Reservierung ist zu lang. Bitte überprüfen Sie das Anfangs- und Enddatum.");
    if (!leer(cboTarif.Text) && !preisAus(cboTarif.Text))
        return ablehnen("Bitte überprüfen Sie die Eingabe im Feld 'Einzelpreis'.");
    if (!leer(fldPreis.Text) && !preisAus(fldPreis.Text))
        return ablehnen("Bitte überprüfen Sie die Eingabe im Feld 'Gesamtpreis'.");
    if (!leer(txtResDatum.Text) && !datum(txtResDatum))
        return ablehnen("Bitte überprüfen Sie das Datum im Feld 'Reserviert am'.");
    return rechnungsadresseFinden();
}

/// False when nothing was stored.
bool frmReservierung::lösenUndAblegen() {
    if (ID() != 0) stand_.NeueReservierung = false;
    if (!stand_.InWarteposition) {
        const bool frei = fktTesteÜberschneidungen();
        if (stand_.Verwerfen) {
            cmdAbbrechen_Click();
            return false;
        }
        if (!frei) {
            überschneidungMelden();
            return false;
        }
        subSetNächte();
    }
    if (fldK_rzel.Text == "Text1") return false; // a form that was never filled
    return ablegen();
}

bool frmReservierung::fktTesteÜberschneidungen() {
    if (stand_.InWarteposition) return stand_.KollisionGelöst;
    const auto von = datum(fldVon);
    const auto bis = datum(fldBis);
    if (!von || !bis) return false;
    const int id = stand_.NeueReservierung ? 0 : ID();
    const auto kollisionen = Kollisionen(g_.dbHaupt, {Zimmernummer(), *von, *bis, id});
    if (kollisionen.empty()) return true;
    kollisionsergebnisÜbernehmen(g_.windows.has(start::Fenster::Kollision)
                                     ? g_.windows.Kollision({.Kürzel = fldK_rzel.Text,
                                                             .Von = fldVon.Text,
                                                             .Bis = fldBis.Text,
                                                             .Zimmer = zimmername(),
                                                             .Kollisionen = kollisionen})
                                     : start::KollisionErgebnis{});
    überschneidungPrüfen();
    return stand_.KollisionGelöst && !stand_.MeldungGezeigt;
}

void frmReservierung::kollisionsergebnisÜbernehmen(const start::KollisionErgebnis& ergebnis) {
    using start::Kollisionsweg;
    switch (ergebnis.Weg) {
    case Kollisionsweg::Verbuchen:
        stand_.InWarteposition = false;
        if (ergebnis.gelöst) stand_.KollisionGelöst = true;
        break;
    case Kollisionsweg::Ändern:
        stand_.KollisionGelöst = false;
        stand_.OffenHalten = true;
        break;
    case Kollisionsweg::Verwerfen:
        stand_.KollisionGelöst = stand_.Verwerfen = true;
        änderung_ = adresse.Adress_nderung = false;
        break;
    case Kollisionsweg::Warten:
        fldZimmer.choose(-1);
        fldZimmer.Text = ergebnis.Zimmer;
        stand_.InWarteposition = stand_.KollisionGelöst = stand_.KürzelMeldungAus = true;
        break;
    }
}

void frmReservierung::überschneidungMelden() {
    if (!stand_.MeldungGezeigt)
        ablehnen("Es liegt eine Überschneidung mit anderer Reservierung vor. Bitte korrigieren Sie Zimmernummer oder "
                 "Zeiten.");
    if (!block_ && abrechnung_ == Abrechnungsstand::Offen) cmdWarten.Enabled = true;
    if (stand_.NeueReservierung) cmdL_schen.Enabled = false;
    fldZimmer.SetFocus();
    stand_.MeldungGezeigt = true;
}

// Writing

Reservierung frmReservierung::ausFeldern() const {
    Reservierung r = gespeichert_;
    r.ID = stand_.NeueReservierung ? 0 : ID();
    r.Zimmernummer = Zimmernummer();
    r.Von = datum(fldVon);
    r.Bis = datum(fldBis);
    r.GastID = adresse.GastID();
    r.IDAdressRechnung = cboAdrRechnung.Chosen; // also of an address without any name to show
    if (cboArt.ListIndex >= 0) r.Belegungsart = static_cast<int>(cboArt.Items.ItemData(cboArt.ListIndex));
    r.VerpflegungAusweisen = chNichtAnlegen.Value;
    r.Wäsche1 = ganzzahl(fldW_sche1.Text);
    r.Wäsche2 = ganzzahl(fldW_sche2.Text);
    r.Frühstück = chFr_hst_ck.Value;
    r.Mittag = chMittag.Value;
    r.Abendessen = chAbendessen.Value;
    r.Alter_Kinder = txtAlter_Kinder.Text;
    r.BelegNummer = static_cast<std::int64_t>(basic::Val(txtBeNummer.Text));
    r.BelegNummer_eigen = txtBeNummer_eigen.Text;
    r.AnzahlGäste = ganzzahl(fldAnzahlG_ste.Text);
    // Two digits of a year do not tell the century: what was read stays where the text was not touched.
    const bool unberührt =
        gespeichert_.WannErstellt && txtResDatum.Text == basic::Format(*gespeichert_.WannErstellt, "dd.mm.yy");
    if (!unberührt) r.WannErstellt = datum(txtResDatum);
    if (!r.WannErstellt && r.ID == 0) r.WannErstellt = g_.clock.today();
    r.Anz_Kinder = ganzzahl(txtAnz_Kinder.Text);
    r.Fix = chFix.Value;
    r.WerErstellt = txtWE.Text;
    r.WerGeändert = txtWG.Text;
    r.Info = r.ID == 0 ? fldInfo.Text : basic::Trim(fldInfo.Text);
    r.Kürzel = r.ID == 0 ? fldK_rzel.Text : basic::Trim(fldK_rzel.Text);
    r.PreisProNacht = betrag(cboTarif.Text);
    r.Preis = betrag(fldPreis.Text);
    r.AnzahlÜbernachtungen = ganzzahl(fldResTage.Text);
    r.Gelöscht = stand_.InWarteposition;
    r.Checked = checked_ && !r.Gelöscht;
    return r;
}

bool frmReservierung::ablegen() {
    const bool neu = stand_.NeueReservierung;
    if (!neu && leer(fldPreis.Text)) fldPreis.Text = "0,00";
    if (!neu && leer(cboTarif.Text)) setzeTarif("0,00");
    Reservierung reservierung = ausFeldern();
    const auto ergebnis =
        ReservierungSpeichern(g_.dbHaupt, reservierung, [&](Reservierung& r) { rechnungsadresseVorschlagen(r); });
    if (ergebnis == Speicherergebnis::KürzelVergeben) {
        if (!stand_.KürzelMeldungAus)
            ablehnen("Die Kurzinfo existiert bereits! Bitte ändern Sie sie.", "Neue Reservierung");
        stand_.KürzelMeldungAus = false;
    }
    if (ergebnis != Speicherergebnis::Gespeichert) return false;
    abgelegt(reservierung);
    if (!neu) FixÜbernehmen(g_.dbHaupt, reservierung.ID, reservierung.Fix);
    return true;
}

void frmReservierung::rechnungsadresseVorschlagen(Reservierung& reservierung) {
    if (reservierung.IDAdressRechnung != 0) return;
    const std::int64_t letzte = LetzteRechnungsadresse(g_.dbHaupt, reservierung.GastID);
    if (letzte == 0 || fragen("Möchten Sie die Rechnungsadresse der letzten Reservierung benutzen?",
                              {services::MsgButtons::YesNo, services::MsgIcon::Question}) != MsgResult::Yes)
        return;
    reservierung.IDAdressRechnung = letzte;
    cboAdrRechnung.Chosen = letzte;
    cboAdrRechnung.Text = dienste_.adressen.Zeile(letzte);
}

void frmReservierung::abgelegt(const Reservierung& reservierung) {
    const int zimmer = gespeichert_.Zimmernummer;
    gespeichert_ = reservierung;
    if (reservierung.Zimmernummer == 0) gespeichert_.Zimmernummer = zimmer;
    fldID.Text = std::to_string(reservierung.ID);
    if (stand_.NeueReservierung && !block_) cmdL_schen.Enabled = true;
    if (stand_.NeueReservierung) caption_ = "Reservierung";
    änderung_ = false;
    stand_.NeueReservierung = false;
}

/// What follows on every way that came past the address.
bool frmReservierung::schluss(bool abgelegt) {
    if (stand_.InWarteposition) {
        zimmerAuswählen(0);
        knöpfeBeschriften();
        überschneidungPrüfen();
    }
    if (!abgelegt) return false;
    const int zimmer = Zimmernummer();
    if (zimmer != 0 && !ZimmerFrei(g_.dbHaupt, {zimmer, *gespeichert_.Von, *gespeichert_.Bis, ID()})) {
        zurücknehmen();
        return false;
    }
    nachDemSpeichern();
    return true;
}

/// The row goes; the form keeps what it shows, so that the stay can be stored again with another room.
void frmReservierung::zurücknehmen() {
    ReservierungZurücknehmen(g_.dbHaupt, ID());
    fldID.Text.clear();
    gespeichert_.ID = 0;
    stand_.NeueReservierung = true;
    cmdL_schen.Enabled = false;
    zeigeBlock();
    zeigeAbrechnung();
    Feld_Change();
    ablehnen("Es sind Konflikte im Netzwerkbetrieb aufgetreten: Folgende Reservierung konnte nicht angelegt werden.\n"
             "Reservierung vom " +
             fldVon.Text + "bis " + fldBis.Text + ",Zimmer Nr.:" + zimmername());
}

/// The row stays whatever happens here.
void frmReservierung::nachDemSpeichern() {
    if (stand_.InWarteposition) {
        checked_ = false;
        zeigeChecked();
    }
    prüfdatumNachziehen();
    stand_.InWarteposition = stand_.KürzelMeldungAus = false;
    if (überschneidung_) überschneidungPrüfen(); // what was in the way may have gone since the last change
    zeigeAbrechnung();
    zeigeBezahlt();
    basic::quietly([&] {
        if (adresse.GastID() != 0)
            addresses::AdresseBenutzen(g_.dbHaupt, adresse.GastID(), true, {g_.instanz.Nummer, g_.strTitel()});
    });
    const auto& optionen = g_.einstellungen.WäscheOptionen;
    const bool verpflegung =
        optionen.size() > 5 && (basic::equalText(optionen[5], "true") || basic::equalText(optionen[5], "wahr"));
    if (verpflegung && dienste_.verpflegungBuchen && *gespeichert_.Bis > basic::Date::fromYmd(2009, 12, 31))
        basic::quietly([&] { dienste_.verpflegungBuchen(ID()); });
}

} // namespace reservations
