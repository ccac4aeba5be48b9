#include "addresses/countries.h"
#include "platform/basic/text.h"
#include "platform/basic/utf8.h"
#include "reservations/address_part.h"
#include "reservations/telling.h"
#include "store/schema.h"

#include <algorithm>

namespace reservations {

using services::MsgButtons;
using services::MsgIcon;
using services::MsgResult;

namespace {

constexpr auto Speichertitel = "Adresse speichern";
constexpr std::int64_t kKürzesterName = 3;

} // namespace

/// The last name alone: the box may hold a whole line of the list. A known guest's own name may have a comma in it.
std::string Adressteil::Nachname() const {
    std::string text = basic::Trim(cboAdresse.Text);
    if (id_ != 0 && text == basic::Trim(gezeigt_.LastName)) return text;
    return basic::Trim(text.substr(0, text.find(',')));
}

/// The one that was typed behind the last name, where the field for it is empty.
std::string Adressteil::Vorname() const {
    if (!txtVorname.Text.empty() || id_ != 0) return txtVorname.Text;
    const std::vector<std::string> teile = basic::Split(cboAdresse.Text, ",");
    if (teile.size() < 2) return {};
    const bool istOrt = std::ranges::any_of(teile[1], basic::isDigit);
    return istOrt ? std::string() : basic::Trim(teile[1]);
}

addresses::Adresse Adressteil::gelesen() const {
    addresses::Adresse adresse;
    adresse.ID = id_;
    adresse.LastName = Nachname();
    adresse.FirstName = Vorname();
    adresse.CompanyName = txtName2.Text;
    adresse.Anrede = cboAnrede.Text;
    adresse.Address = txtStrasse.Text;
    adresse.PostalCode = txtPLZ.Text;
    adresse.City = cboOrt.Text;
    adresse.Country = basic::Trim(cboLand.Text);
    adresse.IDLand = cboLand.Items.ItemData(cboLand.Items.indexOf(adresse.Country));
    adresse.Phone = txtTelefon.Text;
    adresse.TeleFax = txtFax.Text;
    adresse.EMAIL = txtEMail.Text;
    adresse.Raucher = cboRaucher.Text;
    adresse.BemerkAdr = txtBemerkAdr.Text;
    adresse.Stammkunde = chStammkunde.Value;
    // Whoever made the address that was shown before has not made the new one.
    if (txtAdrWE.Text != gezeigt_.WerErstellt) adresse.WerErstellt = txtAdrWE.Text;
    return adresse;
}

bool Adressteil::vollständig() {
    if (basic::Len(Nachname()) < kKürzesterName) {
        g_.dialogs.MsgBox("Bitte den Namen des Gastes eingeben. Der Name muss mindestens drei Zeichen lang sein.",
                          {.icon = MsgIcon::Exclamation}, Speichertitel);
        cboAdresse.SetFocus();
        return false;
    }
    if (basic::Trim(cboLand.Text).empty()) {
        g_.dialogs.MsgBox("Bitte das Herkunftsland  des Gastes eingeben", {.icon = MsgIcon::Exclamation},
                          Speichertitel);
        cboLand.SetFocus();
        return false;
    }
    return true;
}

bool Adressteil::passtInFelder() {
    const std::string nachname = Nachname();
    for (const Textfeld& feld : Textfelder()) {
        const std::string& text = feld.Text == &cboAdresse.Text ? nachname : *feld.Text;
        if (*feld.MaxLength == 0 || basic::Len(text) <= *feld.MaxLength) continue;
        g_.dialogs.MsgBox("Der Text im Feld '" + std::string(feld.Bezeichnung) + "' ist zu lang. Es sind höchstens " +
                              std::to_string(*feld.MaxLength) + " Zeichen möglich.",
                          {.icon = MsgIcon::Exclamation}, Speichertitel);
        feld.Steuerelement->SetFocus();
        return false;
    }
    return true;
}

/// A name typed over that of a stored guest corrects it or means somebody else: only the user knows.
bool Adressteil::darfAnlegenOderBerichtigen() {
    if (gezeigt_.ID == 0) return darfAnlegen();
    const MsgResult antwort = g_.dialogs.MsgBox(
        "Der Name des Gastes wurde von '" + gezeigt_.LastName + "' in '" + Nachname() +
            "' geändert. Wählen Sie 'Ja', wenn die gespeicherte Adresse den neuen Namen erhalten soll, wählen Sie "
            "'Nein', wenn eine neue Adresse angelegt werden soll.",
        {.buttons = MsgButtons::YesNoCancel, .icon = MsgIcon::Question}, Speichertitel);
    if (antwort == MsgResult::Yes) id_ = gezeigt_.ID;
    return antwort != MsgResult::Cancel;
}

bool Adressteil::darfAnlegen() {
    return g_.dialogs.MsgBox("Möchten Sie eine neue Adresse mit diesen Daten anlegen?",
                             {.buttons = MsgButtons::OKCancel, .icon = MsgIcon::Question},
                             g_.strTitel()) == MsgResult::OK;
}

bool Adressteil::speichern() {
    addresses::Adresse adresse = gelesen();
    const std::int64_t id = addresses::AdresseSpeichern(g_.dbHaupt, adresse, {g_.user.NameDesUsers(), g_.clock.now()});
    liste_.veraltet();
    if (id == 0) {
        g_.dialogs.MsgBox("Die Adresse wurde inzwischen an einem anderen Arbeitsplatz gelöscht. Beim nächsten "
                          "Speichern können Sie die Daten als neue Adresse anlegen.",
                          {.icon = MsgIcon::Exclamation}, Speichertitel);
        gezeigt_.ID = id_ = cboAdresse.Chosen = 0;
        return false;
    }
    adresse.ID = id;
    zeige(addresses::AdresseLesen(g_.dbHaupt, id).value_or(adresse));
    return true;
}

bool Adressteil::AdressSpeichern() {
    anführungszeichenSchließen();
    if (!vollständig()) return false;
    if (!Adress_nderung && id_ != 0) return true;
    if (!passtInFelder()) return false;
    if (id_ == 0 && !darfAnlegenOderBerichtigen()) return false;
    if (!toldIfFailed(g_.dialogs, Speichertitel, [&] { return speichern(); })) return false;
    exportieren(false);
    return true;
}

void Adressteil::cmdAdresseSpeichern_Click() {
    const bool unverändert = !Adress_nderung && id_ != 0;
    if (AdressSpeichern() && unverändert) exportieren(false);
}

} // namespace reservations
