#pragma once

#include "addresses/address_list.h"
#include "start/windows.h"

#include <functional>
#include <optional>
#include <string>

namespace start {
struct GlobalState;
}

namespace app {

/// The windows of the program on Qt. Knows which of them are there.
class QtWindows final : public start::Windows {
public:
    /// The state that the windows work on; it must outlive them. To be set before the first window opens.
    void serve(start::GlobalState& state) { state_ = &state; }
    /// Called whenever a stay was stored or deleted, with the form still open.
    void onStaysChanged(std::function<void()> reload) { staysChanged_ = std::move(reload); }

    [[nodiscard]] bool has(start::Fenster fenster) const override;
    [[nodiscard]] start::PfadeErgebnis Datenbankpfade(const start::PfadeAnfrage& anfrage) override;
    [[nodiscard]] start::Adresswahl Adresshilfe(const start::AdresshilfeAnfrage& anfrage) override;
    void Einstellungen(const start::EinstellungenAnfrage& anfrage) override;
    int Reservierung(const start::ReservierungAnfrage& anfrage) override;
    [[nodiscard]] start::KollisionErgebnis Kollision(const start::KollisionAnfrage& anfrage) override;
    void Saisonzeiten() override;
    void Saisonpreise(int zimmernummer) override;
    void Reservierungsnummern() override;

private:
    [[nodiscard]] addresses::Adressliste& addressList();

    start::GlobalState* state_ = nullptr;
    std::function<void()> staysChanged_;
    std::optional<addresses::Adressliste> addresses_; ///< read once per run, not for each form
    std::string addressesOf_;                         ///< path of the file that they were read from
};

} // namespace app
