#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "reservations/reservation_form.h"
#include "start/parameters.h"

#include <array>

namespace reservations {

namespace {

using services::MsgButtons;
using services::MsgIcon;
using services::MsgResult;

std::string tagText(const std::optional<basic::Date>& tag, std::string_view format = "dd.mm.yyyy") {
    return tag ? basic::Format(*tag, format) : std::string();
}

/// Flags of this record come from German and from English systems.
bool eingeschaltet(const std::vector<std::string>& optionen, std::size_t platz) {
    return platz < optionen.size() &&
           (basic::equalText(optionen[platz], "true") || basic::equalText(optionen[platz], "wahr"));
}

} // namespace

frmReservierung::frmReservierung(start::GlobalState& g, Formulardienste dienste,
                                 const start::ReservierungAnfrage& anfrage)
    : adresse(g, dienste.adressen), g_(g), dienste_(std::move(dienste)), caption_("Reservierung") {
    try {
        gross_ = !basic::equalText(g.einstellungen.ResGroesse, "klein");
        if (!anfrage.IDs.empty()) wartetag_ = anfrage.Wartetag;
        beschriften();
        breitenSetzen();
        menüBauen();
        zeigeGröße();
        listenFüllen();
        anfrage.IDs.empty() ? neuÖffnen(anfrage) : bestehendeÖffnen(anfrage);
    } catch (const basic::Error& fehler) {
        ablehnen(fehler.text());
        geschlossen_ = true;
    }
}

int frmReservierung::ID() const { return static_cast<int>(basic::Val(fldID.Text)); }

void frmReservierung::listenFüllen() {
    dienste_.adressen.nachsehen(); // other stations store guests too
    for (const Belegart& art : BelegartenLesen(g_.dbHaupt))
        cboArt.Items.AddItem(art.Name, art.BelegungsID);
    tarifeFüllen();
    zimmer_ = masterdata::ZimmerEinlesen(g_.dbHaupt);
    OptZiAuswahl1.Value = basic::equalText(g_.einstellungen.AlleFreien, "Ja") ? 1 : 0;
    for (services::Button* knopf : {&cmdErster, &cmdVoriger, &cmdN_chster, &cmdLetzter})
        knopf->Visible = istWarteliste();
}

// A new stay

void frmReservierung::neuÖffnen(const start::ReservierungAnfrage& anfrage) {
    caption_ = "Neue Reservierung";
    stand_.NeueReservierung = true;
    adresse.leeren();
    dienste_.adressen.prepare(); // a guest will be typed
    datenAusAnfrage(anfrage);
    vorgabenSetzen(anfrage.Art);
    ständeZeigen();
    subSetNächte();
    knöpfeBeschriften();
    überschneidungPrüfen();
    änderung_ = false;
}

void frmReservierung::datenAusAnfrage(const start::ReservierungAnfrage& anfrage) {
    fldVon.Text = tagText(anfrage.Von);
    // A single marked day is a stay of one night.
    const bool einTag = anfrage.Von && anfrage.Bis && anfrage.Von->dayNumber() == anfrage.Bis->dayNumber();
    fldBis.Text = tagText(einTag ? std::optional(*anfrage.Bis + 1) : anfrage.Bis);
    zimmerlisteFüllen();
    zimmerAuswählen(anfrage.Zimmernummer);
}

void frmReservierung::vorgabenSetzen(int art) {
    const auto& e = g_.einstellungen;
    chFr_hst_ck.Value = eingeschaltet(e.WäscheOptionen, 0);
    chMittag.Value = eingeschaltet(e.WäscheOptionen, 1);
    chAbendessen.Value = eingeschaltet(e.WäscheOptionen, 2);
    fldW_sche1.Text = std::to_string(e.Wäsche1Tage);
    fldW_sche2.Text = std::to_string(e.Wäsche2Tage);
    fldPreis.Text = "0,00";
    if (letztesZimmer_ != 0) preisAusZimmer(letztesZimmer_);
    const int gewählt = cboArt.Items.indexOfData(art);
    cboArt.choose(gewählt >= 0 ? gewählt : 0);
    gästezahlAnpassen();
    setzeKürzel("");
    txtResDatum.Text = tagText(g_.clock.today(), "dd.mm.yy");
    gespeichert_.WannErstellt = g_.clock.today();
    fldCheckDatum.Text = fldVon.Text;
}

/// A type may say the number of guests by its name. A new stay follows it at once; a stored one may have been given
/// another number on purpose.
void frmReservierung::gästezahlAnpassen() {
    const int gäste = GästeDerBelegart(cboArt.Text);
    const std::string zahl = std::to_string(gäste);
    if (gäste == 0 || chFix.Value || fldAnzahlG_ste.Text == zahl || abrechnung_ == Abrechnungsstand::Abgerechnet)
        return;
    if (!stand_.NeueReservierung &&
        fragen("Anzahl der Gäste auf " + zahl + " setzen?", {.buttons = MsgButtons::YesNo, .icon = MsgIcon::Question},
               "Anzahl der Gäste ändern") != MsgResult::Yes)
        return;
    fldAnzahlG_ste.Text = zahl;
    Feld_Change();
}

// Stored stays

void frmReservierung::bestehendeÖffnen(const start::ReservierungAnfrage& anfrage) {
    warteliste_ = anfrage.IDs;
    platzZeigen(0);
}

void frmReservierung::zuPlatz(std::size_t platz) {
    if (platz >= warteliste_.size() || !änderungenKlären()) return;
    try {
        platzZeigen(platz);
    } catch (const basic::Error& fehler) {
        // Half of the fields show one stay and half the other: nothing of that may be stored.
        ablehnen(fehler.text());
        geschlossen_ = true;
    }
}

/// Those that another station deleted meanwhile are passed over.
void frmReservierung::platzZeigen(std::size_t platz) {
    platz_ = platz;
    while (platz_ < warteliste_.size() && !laden(warteliste_[platz_])) {
        warteliste_.erase(warteliste_.begin() + static_cast<std::ptrdiff_t>(platz_));
        if (platz_ >= warteliste_.size() && platz_ > 0) --platz_;
    }
    if (warteliste_.empty()) {
        ablehnen("Die Reservierung ist nicht mehr vorhanden.");
        geschlossen_ = true;
        return;
    }
    if (wartetag_)
        caption_ = "Warteposition für den " + tagText(wartetag_) + " (" + std::to_string(warteliste_.size()) +
                   " vorläufige Reservierungen)";
}

bool frmReservierung::laden(int id) {
    const auto gelesen = ReservierungenLesen(g_.dbHaupt, std::array{id});
    if (gelesen.empty()) return false;
    gespeichert_ = gelesen.front();
    stand_ = {.MeldungGezeigt = stand_.MeldungGezeigt};
    fldID.Text = std::to_string(id);
    abrechnung_ = gespeichert_.Abgerechnet ? Abrechnungsstand::Abgerechnet : Abrechnungsstand::Offen;
    adresse.zeigen(gespeichert_.GastID);
    gespeichert_.GastID = adresse.GastID(); // a guest who is gone is nobody's change
    aufenthaltZeigen(gespeichert_);
    restZeigen(gespeichert_);
    ständeZeigen();
    knöpfeBeschriften();
    überschneidungPrüfen();
    saisonpreisErkennen();
    änderung_ = false;
    gästezahlAnpassen();
    return true;
}

void frmReservierung::aufenthaltZeigen(const Reservierung& r) {
    fldVon.Text = tagText(r.Von);
    fldBis.Text = tagText(r.Bis);
    zimmerlisteFüllen();
    zimmerAuswählen(r.Gelöscht ? 0 : r.Zimmernummer);
    cboArt.choose(cboArt.Items.indexOfData(r.Belegungsart));
    fldResTage.Text = std::to_string(r.AnzahlÜbernachtungen);
    setzeTarif(basic::Format(r.PreisProNacht, "#,##0.00"));
    fldPreis.Text = basic::Format(r.Preis, "#,##0.00");
    chFix.Value = fldPreis.Bold = r.Fix;
    checked_ = r.Checked;
    fldCheckDatum.Text = r.Checked ? fldBis.Text : fldVon.Text;
}

void frmReservierung::restZeigen(const Reservierung& r) {
    setzeKürzel(r.Kürzel);
    kürzelVergeben_ = false;
    fldK_rzel.BackColor.reset();
    fldInfo.Text = r.Info;
    fldAnzahlG_ste.Text = std::to_string(r.AnzahlGäste);
    txtAnz_Kinder.Text = std::to_string(r.Anz_Kinder);
    txtAlter_Kinder.Text = r.Alter_Kinder;
    chFr_hst_ck.Value = r.Frühstück;
    chMittag.Value = r.Mittag;
    chAbendessen.Value = r.Abendessen;
    chNichtAnlegen.Value = r.VerpflegungAusweisen;
    fldW_sche1.Text = std::to_string(r.Wäsche1);
    fldW_sche2.Text = std::to_string(r.Wäsche2);
    txtBeNummer.Text = std::to_string(r.BelegNummer);
    txtBeNummer_eigen.Text = r.BelegNummer_eigen;
    txtBeNummer_eigen.BackColor.reset();
    nummerVergeben_ = false;
    cboAdrRechnung.Chosen = r.IDAdressRechnung;
    cboAdrRechnung.Text = r.IDAdressRechnung == 0 ? "" : dienste_.adressen.Zeile(r.IDAdressRechnung);
    txtResDatum.Text = tagText(r.WannErstellt, "dd.mm.yy");
    txtWE.Text = r.WerErstellt;
    txtWG.Text = r.WerGeändert;
}

void frmReservierung::ständeZeigen() {
    const bool gesperrt = abrechnung_ == Abrechnungsstand::Abgerechnet;
    Speicheraktiv(gesperrt);
    zeigeBlock();
    zeigeAbrechnung();
    zeigeBezahlt();
    zeigeChecked();
    cmdWarten.Enabled = !gesperrt && !block_;
    cmdL_schen.Enabled = !gesperrt && !block_ && ID() != 0;
}

// Walking through the waiting row

void frmReservierung::cmdErster_Click() { zuPlatz(0); }

void frmReservierung::cmdVoriger_Click() { zuPlatz(platz_ - 1); }

void frmReservierung::cmdN_chster_Click() { zuPlatz(platz_ + 1); }

void frmReservierung::cmdLetzter_Click() { zuPlatz(warteliste_.size() - 1); }

// Closing

bool frmReservierung::änderungenKlären() {
    constexpr services::MsgStyle style{.buttons = MsgButtons::YesNoCancel, .icon = MsgIcon::Question};
    if (Änderung()) {
        const MsgResult antwort = fragen("Änderungen der Reservierung speichern?", style);
        if (antwort == MsgResult::Cancel) return false;
        if (antwort == MsgResult::Yes && !speichern(Meldung::OhnePunkt)) return geschlossen_;
    }
    if (!adresse.Adress_nderung || basic::Trim(adresse.cboAdresse.Text).empty()) return true;
    const MsgResult antwort = fragen("Änderungen der Adresse speichern?", style);
    if (antwort != MsgResult::Yes) return antwort == MsgResult::No;
    try {
        return AdressSpeichern();
    } catch (const basic::Error& fehler) {
        return ablehnen(fehler.text());
    }
}

bool frmReservierung::canClose() { return geschlossen_ || änderungenKlären(); }

void frmReservierung::cmdAbbrechen_Click() { geschlossen_ = true; }

// Menu

void frmReservierung::mnuGroesse_Click() {
    const std::string größe = gross_ ? "gross" : "klein";
    if (basic::quietly([&] { start::SatzSchreiben(g_.dbArbeitsplatz, "Res_Groesse", {{"F1", größe}}); }))
        g_.einstellungen.ResGroesse = größe;
}

void frmReservierung::mnuNummerEinstellen_Click() { g_.windows.Reservierungsnummern(); }

void frmReservierung::Menü_Click(std::string_view name) {
    if (name == "mnuGroesse") mnuGroesse_Click();
    if (name == "mnuNummerEinstellen") mnuNummerEinstellen_Click();
    if (name == "mnuStatus") mnuStatus_Click();
}

} // namespace reservations
