#include "support/scripted_windows.h"

#include <gtest/gtest.h>

namespace support {

using start::Fenster;

bool ScriptedWindows::opens(Fenster fenster, bool answered) {
    geöffnet.push_back(fenster);
    EXPECT_TRUE(has(fenster)) << "opens a window that is not there: " << static_cast<int>(fenster);
    EXPECT_TRUE(answered) << "nobody scripted the window " << static_cast<int>(fenster);
    return answered;
}

start::PfadeErgebnis ScriptedWindows::Datenbankpfade(const start::PfadeAnfrage& anfrage) {
    if (!opens(Fenster::Datenbankpfade, beiDatenbankpfade != nullptr)) return start::PfadeErgebnis::ProgrammEnde;
    return beiDatenbankpfade(anfrage);
}

start::Adresswahl ScriptedWindows::Adresshilfe(const start::AdresshilfeAnfrage& anfrage) {
    if (!opens(Fenster::Adresshilfe, beiAdresshilfe != nullptr)) return start::Adresswahl::Keine;
    return beiAdresshilfe(anfrage);
}

void ScriptedWindows::Einstellungen(const start::EinstellungenAnfrage& anfrage) {
    if (opens(Fenster::Einstellungen, beiEinstellungen != nullptr)) beiEinstellungen(anfrage);
}

int ScriptedWindows::Reservierung(const start::ReservierungAnfrage& anfrage) {
    return opens(Fenster::Reservierung, beiReservierung != nullptr) ? beiReservierung(anfrage) : 0;
}

start::KollisionErgebnis ScriptedWindows::Kollision(const start::KollisionAnfrage& anfrage) {
    if (!opens(Fenster::Kollision, beiKollision != nullptr)) return {};
    return beiKollision(anfrage);
}

void ScriptedWindows::Saisonzeiten() {
    if (opens(Fenster::Saisonzeiten, beiSaisonzeiten != nullptr)) beiSaisonzeiten();
}

void ScriptedWindows::Saisonpreise(int zimmernummer) {
    if (opens(Fenster::Saisonpreise, beiSaisonpreise != nullptr)) beiSaisonpreise(zimmernummer);
}

void ScriptedWindows::Reservierungsnummern() {
    if (opens(Fenster::Reservierungsnummern, beiReservierungsnummern != nullptr)) beiReservierungsnummern();
}

} // namespace support
