#pragma once

#include "start/windows.h"

namespace bench {

/// The reservation form is there, so that stays can be drawn, but nothing opens.
struct NoWindows final : start::Windows {
    [[nodiscard]] bool has(start::Fenster fenster) const override { return fenster == start::Fenster::Reservierung; }
    [[nodiscard]] start::PfadeErgebnis Datenbankpfade(const start::PfadeAnfrage& /*anfrage*/) override { return {}; }
    [[nodiscard]] start::Adresswahl Adresshilfe(const start::AdresshilfeAnfrage& /*anfrage*/) override { return {}; }
    void Einstellungen(const start::EinstellungenAnfrage& /*anfrage*/) override {}
    int Reservierung(const start::ReservierungAnfrage& /*anfrage*/) override { return 0; }
    [[nodiscard]] start::KollisionErgebnis Kollision(const start::KollisionAnfrage& /*anfrage*/) override { return {}; }
    void Saisonzeiten() override {}
    void Saisonpreise(int /*zimmernummer*/) override {}
    void Reservierungsnummern() override {}
};

} // namespace bench
