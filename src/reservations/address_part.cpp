#include "reservations/address_part.h"

#include "addresses/address_deletion.h"
#include "addresses/address_export.h"
#include "addresses/countries.h"
#include "addresses/invoice_address.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "reservations/telling.h"
#include "start/parameters.h"
#include "store/quotes.h"
#include "store/schema.h"

#include <algorithm>

namespace reservations {

using services::MsgButtons;
using services::MsgDefault;
using services::MsgIcon;
using services::MsgResult;

namespace {

constexpr auto Exportdatei = "adresse.doc";

/// The separators of lists and merge files; no field takes them.
constexpr services::KeyFilter Freitext{.Never = ";~"};

/// Characters that a column of Address takes; 0: any number.
int Spaltenbreite(std::string_view spalte) {
    for (const jet::FieldDef& feld : store::findTable("Address")->definition.Fields)
        if (basic::equalText(feld.Name, spalte)) return feld.Type == jet::FieldType::Text ? feld.Size : 0;
    return 0;
}

std::string Datumstext(const std::optional<basic::Date>& datum) {
    return datum ? basic::Format(*datum, "dd.mm.yyyy") : std::string();
}

template <typename Eintraege>
void füllen(services::ComboBox& box, const Eintraege& einträge) {
    box.Items.Clear();
    for (const auto& eintrag : einträge)
        box.Items.AddItem(eintrag.Name, eintrag.ID);
}

} // namespace

Adressteil::Adressteil(start::GlobalState& g, addresses::Adressliste& liste) : g_(g), liste_(liste) {
    einrichten();
    listenLesen();
    leeren();
}

std::vector<Adressteil::Textfeld> Adressteil::Textfelder() {
    const auto feld = [](const char* spalte, const char* bezeichnung, auto& box) {
        return Textfeld{spalte, bezeichnung, &box.Text, &box, &box.MaxLength, &box.Keys};
    };
    return {feld("LastName", "Nachname", cboAdresse),
            feld("FirstName", "Vorname", txtVorname),
            feld("CompanyName", "Name 2 / Firma", txtName2),
            feld("Anrede", "Anrede", cboAnrede),
            feld("Address", "Straße", txtStrasse),
            feld("PostalCode", "PLZ", txtPLZ),
            feld("City", "Ort", cboOrt),
            feld("Country", "Land", cboLand),
            feld("Phone", "Telefon", txtTelefon),
            feld("Tele-Fax", "Fax", txtFax),
            feld("EMAIL", "E-Mail", txtEMail),
            feld("BemerkAdr", "Bemerkungen", txtBemerkAdr),
            feld("WerErstellt", "Wer erstellt", txtAdrWE)};
}

void Adressteil::einrichten() {
    for (const Textfeld& feld : Textfelder()) {
        *feld.MaxLength = Spaltenbreite(feld.Spalte);
        *feld.Keys = Freitext;
    }
    for (services::ComboBox* box : {&cboAnrede, &cboOrt, &cboLand})
        box->Editable = true;
    for (services::TextBox* box : {&txtAdrWannErstellt, &txtAdrWG, &txtAdrWannGeändert})
        box->Locked = true;
    cboAdresse.Source = &liste_;
    cboAdresse.ToolTipText = "Adresse löschen mit 'F2'";
    cboLand.ToolTipText = "Land aus der Liste löschen mit 'F2'";
    chStammkunde.ToolTipText =
        "Sie können mit der Taste 'F2' den Vorgabewert für das Kästchen 'Stammkunde' einstellen. Mit Hilfe der "
        "Einstellung können in der Übersicht Daten gefiltert werden.";
    cmdAdresseSpeichern.ToolTipText =
        "Speichert nur die Änderungen der Adresse und exportiert die Daten in die Datei " +
        g_.instanz.Datei(Exportdatei);
}

void Adressteil::listenLesen() {
    basic::quietly([&] { füllen(cboLand, addresses::LänderLesen(g_.dbHaupt)); });
    basic::quietly([&] { füllen(cboAnrede, addresses::AnredenLesen(g_.dbHaupt)); });
}

void Adressteil::setLand(const std::string& name) {
    const int platz = cboLand.Items.indexOf(name);
    cboLand.choose(platz);
    if (platz < 0) cboLand.Text = name;
    freiesLand_ = platz < 0 ? name : std::string();
}

void Adressteil::setRaucher(const std::string& wert) {
    cboRaucher.Items.Clear();
    for (const char* eintrag : {"", "Nichtraucher", "Raucher"})
        cboRaucher.Items.AddItem(eintrag);
    // A word that another program wrote must not get lost here.
    if (cboRaucher.Items.indexOf(wert) < 0) cboRaucher.Items.AddItem(wert);
    cboRaucher.choose(cboRaucher.Items.indexOf(wert));
}

void Adressteil::zeige(const addresses::Adresse& adresse) {
    id_ = adresse.ID;
    gezeigt_ = adresse;
    cboAdresse.Text = adresse.LastName;
    cboAdresse.Chosen = adresse.ID;
    txtVorname.Text = adresse.FirstName;
    txtName2.Text = adresse.CompanyName;
    cboAnrede.choose(cboAnrede.Items.indexOf(adresse.Anrede));
    cboAnrede.Text = adresse.Anrede;
    txtStrasse.Text = adresse.Address;
    txtPLZ.Text = geprüftePLZ_ = adresse.PostalCode;
    cboOrt.Items.Clear();
    cboOrt.choose(-1);
    cboOrt.Text = adresse.City;
    setLand(adresse.Country);
    txtTelefon.Text = adresse.Phone;
    txtFax.Text = adresse.TeleFax;
    txtEMail.Text = adresse.EMAIL;
    setRaucher(adresse.Raucher);
    txtBemerkAdr.Text = adresse.BemerkAdr;
    chStammkunde.Value = adresse.Stammkunde;
    txtAdrWE.Text = adresse.WerErstellt;
    txtAdrWE.Locked = adresse.ID != 0; // who made a stored address does not change any more
    txtAdrWannErstellt.Text = Datumstext(adresse.WannErstellt);
    txtAdrWG.Text = adresse.WerGeändert;
    txtAdrWannGeändert.Text = Datumstext(adresse.WannGeändert);
    Adress_nderung = false;
}

void Adressteil::leeren() {
    addresses::Adresse neu;
    neu.Country = addresses::Vorgabeland;
    neu.Stammkunde = !basic::equalText(g_.einstellungen.Stammkunden, "Nein");
    zeige(neu);
}

void Adressteil::zeigen(std::int64_t id) {
    std::optional<addresses::Adresse> adresse;
    toldIfFailed(g_.dialogs, g_.strTitel(), [&] {
        if (id != 0) adresse = addresses::AdresseLesen(g_.dbHaupt, id);
        return true;
    });
    if (adresse)
        zeige(*adresse);
    else
        leeren();
}

void Adressteil::cboAdresse_Change() {
    Adress_nderung = true;
    const bool derselbe = gezeigt_.ID != 0 && basic::Trim(cboAdresse.Text) == basic::Trim(gezeigt_.LastName);
    id_ = derselbe ? gezeigt_.ID : 0;
    cboAdresse.Chosen = id_;
    txtAdrWE.Locked = id_ != 0;
}

void Adressteil::cboAdresse_Click(std::int64_t id) { zeigen(id); }

bool Adressteil::cboAdresse_KeyDown(services::Key key) {
    if (key != services::Key::F2) return false;
    if (id_ == 0) return true;
    const addresses::Nutzer nutzer{g_.instanz.Nummer, g_.strTitel()};
    const bool gelöscht = toldIfFailed(g_.dialogs, g_.strTitel(), [&] {
        return addresses::AdresseLöschenMitFrage(g_.dbHaupt, id_, nutzer, g_.dialogs);
    });
    if (gelöscht) {
        leeren();
        liste_.veraltet();
    }
    return true;
}

void Adressteil::anführungszeichenSchließen() {
    for (const Textfeld& feld : Textfelder())
        if (store::DoppZeichen(*feld.Text)) *feld.Text += '"';
}

bool Adressteil::chStammkunde_KeyDown(services::Key key) {
    if (key != services::Key::F2) return false;
    const bool bisher = !basic::equalText(g_.einstellungen.Stammkunden, "Nein");
    const auto antwort =
        g_.dialogs.MsgBox("Soll das Kästchen 'Stammkunde' bei einer neuen Adresse angekreuzt sein?",
                          {MsgButtons::YesNo, MsgIcon::Question, bisher ? MsgDefault::Button1 : MsgDefault::Button2},
                          "Vorgabe beim Öffnen");
    toldIfFailed(g_.dialogs, g_.strTitel(), [&] {
        start::JaNeinSchreiben(g_.dbHaupt, "Stammkunden", antwort == MsgResult::Yes ? 1 : 0);
        g_.einstellungen.Stammkunden = antwort == MsgResult::Yes ? "Ja" : "Nein";
        return true;
    });
    return true;
}

void Adressteil::cmdNeuAdress_Click() {
    leeren();
    cboAdresse.SetFocus();
}

void Adressteil::exportieren(bool melden) {
    const bool gut =
        addresses::AdressdateiSchreiben(g_.instanz.Datei(Exportdatei), gelesen(), addresses::Satzende::Tilde);
    if (!gut)
        g_.dialogs.MsgBox("Datenexport gescheitert", {.icon = MsgIcon::Exclamation}, g_.strTitel());
    else if (melden)
        g_.dialogs.MsgBox("Adressdaten wurden exportiert nach " + g_.instanz.Ordner + ".",
                          {.icon = MsgIcon::Information}, g_.strTitel());
}

void Adressteil::mnuStatus_Click() {
    toldIfFailed(g_.dialogs, g_.strTitel(), [&] {
        addresses::clsADresse::AlteReservierungenAendern(g_.dbHaupt, id_, g_.clock.today(), g_.dialogs, g_.strTitel());
        return true;
    });
}

} // namespace reservations
