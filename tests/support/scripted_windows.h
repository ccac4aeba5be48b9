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

    [[nodiscard]] bool has(start::Fenster fenster) const override { return vorhanden.contains(fenster); }
    [[nodiscard]] start::PfadeErgebnis Datenbankpfade(const start::PfadeAnfrage& anfrage) override;
    [[nodiscard]] start::Adresswahl Adresshilfe(const start::AdresshilfeAnfrage& anfrage) override;
    void Einstellungen(const start::EinstellungenAnfrage& anfrage) override;

private:
    /// True when the window may open.
    bool opens(start::Fenster fenster, bool answered);
};

} // namespace support
