#include "platform/basic/text.h"
#include "reservations/reservation_form.h"
#include "store/schema.h"

#include <algorithm>

namespace reservations {

namespace {

using services::MenuEntry;
using start::Fenster;

constexpr std::string_view Ziffern = "0123456789";
constexpr std::string_view Preiszeichen = "0123456789,.";
constexpr std::string_view Datumszeichen = "0123456789.";
constexpr std::string_view NieImKürzel = "':$;)@><(]}{[*^=~/!\\%.?,\"";

/// Characters that a text field of the stays holds.
int breite(std::string_view feld) {
    const auto& felder = store::findTable("tblBelegung")->definition.Fields;
    const auto da = std::ranges::find_if(felder, [&](const auto& f) { return basic::equalText(f.Name, feld); });
    return da == felder.end() ? 0 : da->Size;
}

MenuEntry eintrag(std::string name, std::string caption, bool enabled) {
    MenuEntry result;
    result.Name = std::move(name);
    result.Caption = std::move(caption);
    result.Enabled = enabled;
    return result;
}

MenuEntry untermenü(std::string name, std::string caption, std::vector<MenuEntry> entries) {
    MenuEntry result = eintrag(std::move(name), std::move(caption), true);
    result.Entries = std::move(entries);
    return result;
}

std::vector<MenuEntry> weitereDokumente(const std::vector<std::string>& namen, bool da) {
    std::vector<MenuEntry> result = {eintrag("mnuPfade", "Pfade festlegen", da)};
    for (std::size_t platz = 0; platz < 5; ++platz) {
        const std::string nummer = std::to_string(platz + 1);
        result.push_back(eintrag("mnuDok" + nummer,
                                 platz < namen.size() && !namen[platz].empty() ? namen[platz] : "Dokument " + nummer,
                                 da));
    }
    return result;
}

std::string wäschetipp(const std::string& name) {
    return "Anzahl der Tage bis zum nächsten Wäschewechsel für " + name +
           ". Unter 'Datei - Einstellungen' können Sie die Vorgabewerte ändern.";
}

} // namespace

void frmReservierung::beschriften() {
    const auto& e = g_.einstellungen;
    lbZimmer.Caption = e.Beschriftungen.size() > 1 && !e.Beschriftungen[1].empty() ? e.Beschriftungen[1] : "Zimmer";
    OptZiAuswahl1.Caption = "Zimmerauswahl";
    OptZiAuswahl1.Buttons = {services::OptionButton{{}, "alle", {}}, services::OptionButton{{}, "freie Zimmer", {}}};
    lbW_sche1.Caption = e.Wäsche1Name;
    lbW_sche2.Caption = e.Wäsche2Name;
    for (services::Label* label : {&lbW_sche1, &lbW_sche2})
        label->ToolTipText = wäschetipp(label->Caption);
    tippsSetzen();
}

void frmReservierung::tippsSetzen() {
    fldK_rzel.ToolTipText = "maximal 17 Zeichen";
    fldPreis.ToolTipText = "Wenn Sie hier einen Preis eingeben, wird er als Pauschalpreis gespeichert."
                           " Wenn im Feld Einzelpreis ein Eintrag gemacht wird, wird der Gesamtpreis berechnet.";
    chFix.ToolTipText = "Setzen Sie hier ein Häkchen, damit bei einer Änderung des Zimmers oder einer Änderung des "
                        "Zimmerpreises in den Stammdaten die Daten in dieser Rubrik erhalten bleiben. Die Fixierung "
                        "des Preises bezieht sich auch immer auf eventuell vorhandene Blockbuchungen";
    chNichtAnlegen.ToolTipText = "Wenn ein Haken gesetzt ist, wird die Verpflegung beim Speichern gelöscht bzw. keine "
                                 "Verpflegung gespeichert.";
    txtBeNummer_eigen.ToolTipText =
        "Vergibt per Doppelklick die nächste freie Nummer nach dem Muster, das unter Einstellungen festgelegt wurde. "
        "Wenn das Feld leer ist, wird die Nummer automatisch vergeben. Die Nummer erscheint auf den Ausdrucken als "
        "Reservierungsnummer.";
    lbChecked.ToolTipText = "Verändert den Status, ohne das Anfangsdatum oder Enddatum zu ändern.";
    cmdHeute.ToolTipText = "Verändert den Status und ändert das Anfangs- bzw. Enddatum der Reservierung auf heute.";
    cmdBezahlt.ToolTipText = "Dieses Feld wird nur grün gekennzeichnet, wenn die Reservierung und die Zusatzposten "
                             "dieser Reervierung abgerechnet und bezahlt wurden.";
    cmdL_schen.ToolTipText = "Löscht die Reservierung endgültig.";
    cmdBemBlock.ToolTipText = "Speichert für alle Blockreservierungen die Reservierungsbemerkung";
    cmdGroesser.ToolTipText = "Erweitert das Formular, um weitere Daten anzuzeigen(ALT+g).";
    cmdKleiner.ToolTipText = "Verkleinert das Formular (ALT+k).";
}

void frmReservierung::breitenSetzen() {
    fldZimmer.Editable = true;
    cboTarif.Editable = true;
    cboTarif.Keys.Only = fldPreis.Keys.Only = Preiszeichen;
    cboTarif.MaxLength = fldPreis.MaxLength = 16;
    fldResTage.Locked = true;
    for (services::TextBox* box : {&fldVon, &fldBis, &txtResDatum}) {
        box->Keys.Only = Datumszeichen;
        box->MaxLength = 10;
    }
    for (services::TextBox* box : {&fldAnzahlG_ste, &fldW_sche1, &fldW_sche2}) {
        box->Keys.Only = Ziffern;
        box->MaxLength = 5;
    }
    txtAnz_Kinder.MaxLength = 5;
    fldK_rzel.Keys.Never = NieImKürzel;
    fldK_rzel.Keys.NoLeadingBlank = true;
    txtAlter_Kinder.MaxLength = breite("Alter_Kinder");
    txtBeNummer_eigen.MaxLength = breite("BelegNummer_eigen");
    txtWE.MaxLength = breite("WerErstellt");
    txtWG.MaxLength = breite("WerGeändert");
    fldID.Visible = fldCheckDatum.Visible = txtBeNummer.Visible = false;
    cboAdrRechnung.Source = &dienste_.adressen;
}

void frmReservierung::menüBauen() {
    const auto da = [&](Fenster fenster) { return g_.windows.has(fenster); };
    const bool dokumente = da(Fenster::Dokumente);
    Menü.Entries = {
        untermenü("mnuExtras", "Extras",
                  {eintrag("mnuGroesse", "Aktuelle &Größe als Vorgabe speichern", g_.dbArbeitsplatz.IsOpen()),
                   eintrag("mnuNummerEinstellen", "&Reservierungsnummer einstellen", da(Fenster::Reservierungsnummern)),
                   eintrag("mnuStatus", "&Status Abgerechnet für alte Reservierungen ändern", true),
                   eintrag("mnuWeiterePersonen", "Weitere &Personen", da(Fenster::WeitereGäste))}),
        untermenü("mnuDokumente", "Weitere Dokumente öffnen", weitereDokumente(g_.einstellungen.Menünamen, dokumente)),
        untermenü("mnuVorhDatei", "Vorhandene Datei öffnen",
                  {eintrag("mnuvorhAngebot", "&Angebot", dokumente), eintrag("mnuVorhBest", "&Bestätigung", dokumente),
                   eintrag("mnuVorhRechnung", "&Rechnung", dokumente)})};
    cmdBestVorschau.Enabled = dokumente;
    cmdAnmeldung.Enabled = dokumente;
    cmdRechnung.Enabled = da(Fenster::Rechnungen);
    cmdZahlDetails.Enabled = da(Fenster::Zahlungen);
    cboArtikel.Enabled = false;
}

void frmReservierung::knöpfeBeschriften() {
    const bool istAngebot = angebot() != Angebotszustand::Nein;
    cmdBestVorschau.Caption = istAngebot ? "Angebot (ein&f.)" : "Bestätigung (ein&f.)";
    cmdRechnung.Caption = istAngebot ? "&Angebot" : "Bestätigung/ &Rechnung";
    cmdBestVorschau.ToolTipText =
        angebot() == Angebotszustand::OhneZimmer
            ? "Speichert die Reservierung in der Warteposition und öffnet die Vorschau des Angebots."
            : "";
}

void frmReservierung::zeigeGröße() {
    frZusatz.Visible = gross_;
    cmdGroesser.Visible = !gross_ && !istWarteliste();
    cmdKleiner.Visible = gross_ && !istWarteliste();
    lbWarnungSchrift.Caption =
        gross_ ? " Ü b e r s c h n e i d u n g s w a r n u n g " : " Ü b e r s c h n e i d u n g ";
}

void frmReservierung::cmdGroesser_Click() {
    gross_ = true;
    zeigeGröße();
}

void frmReservierung::cmdKleiner_Click() {
    gross_ = false;
    zeigeGröße();
}

} // namespace reservations
