#pragma once

#include "start/windows.h"

#include <functional>
#include <set>
#include <vector>

namespace support {

/// Windows that a test answers for. One that is not there, or that a test has given no answer to, fails the test when
/// it is opened.
class ScriptedWindows final : public start::Windows {
public:
    std::set<start::Fenster> vorhanden = {start::Fenster::Datenbankpfade, start::Fenster::Adresshilfe};
    /// Every window that was opened, in order.
    std::vector<start::Fenster> geöffnet;

    std::function<start::PfadeErgebnis(const start::PfadeAnfrage&)> beiDatenbankpfade;
    std::function<start::Adresswahl(const start::AdresshilfeAnfrage&)> beiAdresshilfe;
    std::function<void(const start::EinstellungenAnfrage&)> beiEinstellungen;
    std::function<int(const start::ReservierungAnfrage&)> beiReservierung;
    std::function<start::KollisionErgebnis(const start::KollisionAnfrage&)> beiKollision;
    std::function<void()> beiSaisonzeiten;
    std::function<void(int)> beiSaisonpreise;
    std::function<void()> beiReservierungsnummern;

    [[nodiscard]] bool has(start::Fenster fenster) const override { return vorhanden.contains(fenster); }
    [[nodiscard]] start::PfadeErgebnis Datenbankpfade(const start::PfadeAnfrage& anfrage) override;
    [[nodiscard]] start::Adresswahl Adresshilfe(const start::AdresshilfeAnfrage& anfrage) override;
    void Einstellungen(const start::EinstellungenAnfrage& anfrage) override;
    int Reservierung(const start::ReservierungAnfrage& anfrage) override;
    [[nodiscard]] start::KollisionErgebnis Kollision(const start::KollisionAnfrage& anfrage) override;
    void Saisonzeiten() override;
    void Saisonpreise(int zimmernummer) override;
    void Reservierungsnummern() override;

private:
    /// True when the window may open.
    bool opens(start::Fenster fenster, bool answered);
};

} // namespace support
