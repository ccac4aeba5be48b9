#pragma once

#include "platform/services/controls.h"
#include "start/global_state.h"

#include <string>

namespace reservations {

/// The season prices of one room. An empty field is no price: its nights then have the standard price.
class frmSaisonpreise {
public:
    /// The state must outlive the form. A room that there is not gives a form in which nothing can be entered.
    frmSaisonpreise(start::GlobalState& g, int zimmernummer);

    // event procedures, of any of the four fields
    void Preis_Change() { geändert_ = true; }
    services::Leave Preis_LostFocus(services::TextBox& feld);
    void cmdSpeichern_Click() { (void)speichern(); }
    /// May the window close? Asks about changes first.
    [[nodiscard]] bool canClose();

    /// Title of the window.
    [[nodiscard]] const std::string& Caption() const { return caption_; }

    // controls
    services::Label lblStandard; ///< the standard price, to look at
    services::Label lblHaupt{"&Hauptsaison"};
    services::Label lblZwischen{"&Zwischensaison"};
    services::Label lblNeben{"&Nebensaison"};
    services::Label lblSonder{"Sonde&rsaison"};
    services::TextBox txtHaupt{services::KeyFilter{.Only = "1234567890,"}};
    services::TextBox txtZwischen{services::KeyFilter{.Only = "1234567890,"}};
    services::TextBox txtNeben{services::KeyFilter{.Only = "1234567890,"}};
    services::TextBox txtSonder{services::KeyFilter{.Only = "1234567890,"}};
    services::Button cmdSpeichern{"&Speichern"};
    services::Button cmdZu{"S&chließen"};

private:
    [[nodiscard]] std::string abfrage() const;
    [[nodiscard]] bool lesen();
    [[nodiscard]] bool speichern();
    [[nodiscard]] bool geprüft(services::TextBox& feld);

    start::GlobalState& g_;
    int zimmer_;
    std::string caption_;
    bool geändert_ = false;
};

} // namespace reservations
