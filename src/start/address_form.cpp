#include "start/address_form.h"

namespace start {

namespace {

constexpr int kEigene = 0;
constexpr int kVorhandene = 1;

constexpr auto kErklärung =
    "Eigene Adressen benutzen: Diese Anwendung führt ihre Gäste in einer eigenen Adressliste. Was Sie hier eintragen, "
    "erscheint nicht im Herbergo, und umgekehrt.\n\n"
    "Vorhandene Adressen benutzen: Diese Anwendung und der Herbergo arbeiten mit derselben Adressliste. Ein Gast, der "
    "hier oder dort eingetragen oder geändert wird, steht in beiden.";
constexpr auto kNichtErreichbar =
    "\n\nDie Adressen des Herbergos sind zur Zeit nicht erreichbar, deshalb sind nur eigene Adressen möglich.";

} // namespace

frmAdressHilfe::frmAdressHilfe(services::Dialogs& dialogs, std::string titel, const AdresshilfeAnfrage& anfrage)
    : dialogs_(dialogs), titel_(std::move(titel)) {
    opAdressen.Buttons.resize(2);
    opAdressen.Buttons[kEigene].Caption = "Eigene Adressen benutzen";
    opAdressen.Buttons[kVorhandene].Caption = "vorhandene Adressen des Herbergos benutzen";
    opAdressen.Buttons[kVorhandene].Enabled = anfrage.HauptprogrammErreichbar;
    opAdressen.Value = kEigene;
    txtHilfe.Locked = true;
    txtHilfe.Text = std::string(kErklärung) + (anfrage.HauptprogrammErreichbar ? "" : kNichtErreichbar);
}

void frmAdressHilfe::opAdressen_Click(int index) {
    opAdressen.Value = index;
    if (index == kVorhandene)
        dialogs_.MsgBox("Achtung! Diese Option kann später nicht mehr rückgängig gemacht werden!",
                        {.icon = services::MsgIcon::Exclamation}, titel_);
}

void frmAdressHilfe::cmdOK_Click() {
    beendet_ = true;
    ergebnis_ = opAdressen.Value == kVorhandene ? Adresswahl::AdrAusBel : Adresswahl::AdrEinzeln;
}

void frmAdressHilfe::cmdAbbrechen_Click() { beendet_ = true; }

} // namespace start
