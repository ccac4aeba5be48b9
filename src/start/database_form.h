#pragma once

#include "platform/services/controls.h"
#include "start/global_state.h"
#include "start/paths.h"

#include <string>

namespace start {

/// The path form: where the databases lie.
class frmDatenbank {
public:
    frmDatenbank(GlobalState& g, const PfadeAnfrage& anfrage);

    // event procedures
    void cmdPfad_Click();
    void cmdZentral_Click();
    void cmdSicherung_Click();
    void cmdSpeichern_Click();
    void cmdName_Click();
    void cmdEnde_Click();
    void cmdAbbrechen_Click();

    /// The answer that the form was closed with; none while it is open.
    [[nodiscard]] std::optional<PfadeErgebnis> Ergebnis() const { return ergebnis_; }

    static constexpr auto Caption = "Pfade einstellen";

    // controls
    services::Label lblPfad;
    services::Label lblZentral;
    services::Label lblSicherung{"Datensicherung"};
    services::TextBox txtPfad;
    services::TextBox txtZentral;
    services::TextBox txtSicherung;
    services::Button cmdPfad{"Datenbankpfad wählen"};
    services::Button cmdZentral{"Datenbankpfad wählen"};
    services::Button cmdSicherung{"Datenbankpfad wählen"};
    services::CheckBox chBeispiel{"Beispieldaten anzeigen"};
    services::Button cmdSpeichern{"&Speichern und Programm öffnen"};
    services::Button cmdName{"&Namen für diese Anwendung vergeben"};
    services::Button cmdEnde{"Programm be&enden"};
    services::Button cmdAbbrechen{"Abbrechen"};

private:
    using Prüfung = bool (*)(const GlobalState&, const std::string&);

    void dateiWählen(services::TextBox& box, const std::string& name, Prüfung istRichtig);
    void speichern();

    GlobalState& g_;
    PfadeAnfrage anfrage_;
    std::optional<PfadeErgebnis> ergebnis_;
};

} // namespace start
