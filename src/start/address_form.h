#pragma once

#include "platform/services/controls.h"
#include "platform/services/dialogs.h"
#include "start/windows.h"

#include <string>

namespace start {

/// Asks an instance at its first start whose addresses it uses.
class frmAdressHilfe {
public:
    frmAdressHilfe(services::Dialogs& dialogs, std::string titel, const AdresshilfeAnfrage& anfrage);

    void opAdressen_Click(int index);
    void cmdOK_Click();
    void cmdAbbrechen_Click();

    /// Is it closed?
    [[nodiscard]] bool Beendet() const { return beendet_; }
    /// Keine: the user has not chosen.
    [[nodiscard]] Adresswahl Ergebnis() const { return ergebnis_; }

    static constexpr auto Caption = "Adressen";

    services::OptionGroup opAdressen;
    services::TextBox txtHilfe;
    services::Button cmdOK{"&Weiter"};
    services::Button cmdAbbrechen{"Abbrechen"};

private:
    services::Dialogs& dialogs_;
    std::string titel_;
    bool beendet_ = false;
    Adresswahl ergebnis_ = Adresswahl::Keine;
};

} // namespace start
