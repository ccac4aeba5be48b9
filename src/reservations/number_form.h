#pragma once

#include "platform/services/controls.h"
#include "reservations/numbers.h"
#include "start/global_state.h"

namespace reservations {

/// The pattern of the reservation numbers, with an example that follows each change.
class frmBeNummer {
public:
    /// The state must outlive the form.
    explicit frmBeNummer(start::GlobalState& g);

    // event procedures
    void txtVor_Change();
    services::Leave txtVor_LostFocus(); ///< closes a pair of quotes
    void txtBeNummer_Change();
    void cboDatum_Click();
    void opFreie_Click(int index);
    void cmdSpeichern_Click() { (void)speichern(); }
    /// May the window close? Asks about changes first.
    [[nodiscard]] bool canClose();

    static constexpr auto Caption = "Reservierungsnummern";

    // controls
    services::Label lblVor{"Text &vor der Nummer"};
    services::Label lblBeNummer{"&Laufende Nummer"};
    services::Label lblDatum{"&Datum dahinter"};
    services::Label lblBeispiel{"Beispiel"};
    services::TextBox txtVor{services::KeyFilter{.Never = ";~"}}; ///< the separators of lists and documents
    services::TextBox txtBeNummer{services::KeyFilter{.Only = "1234567890"}};
    services::ComboBox cboDatum;
    services::OptionGroup opFreie;
    services::TextBox txtBeNummerBeispiel;
    services::Button cmdSpeichern{"&Speichern"};
    services::Button cmdZu{"S&chließen"};

private:
    void zeigen();
    void beispiel();
    [[nodiscard]] bool speichern();

    start::GlobalState& g_;
    /// What the form stands for. Choices that its lists do not know stay until the user chooses another one.
    Nummernmuster muster_;
    Nummernmuster gespeichert_;
};

} // namespace reservations
