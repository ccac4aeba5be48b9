#pragma once

#include "platform/services/controls.h"
#include "start/global_state.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace reservations {

/// The dialog that solves collisions: where do the old stays go?
class frmCollision {
public:
    frmCollision(start::GlobalState& g, const start::KollisionAnfrage& anfrage);

    /// After the window is up: a member of a block without a free room cannot be solved; tells so and closes.
    void Form_Activate();
    void cmdOK_Click();
    void cmdÄndern_Click();
    void cmdAbbrechen_Click();
    void cmdWarten_Click();
    void scrColli_Change(int position);
    void cboBez_Click(int zeile);  ///< visible line from 0
    void cboBez_Change(int zeile); ///< emptied by hand
    void chkLöschen_Click(int zeile);

    /// None while the dialog is open.
    [[nodiscard]] const std::optional<start::KollisionErgebnis>& Ergebnis() const { return ergebnis_; }

    static constexpr auto Caption = "Korrektur von Überschneidungen";
    static constexpr int Zeilen = 4; ///< rows on screen at once

    services::Label lblÜberschrift;
    services::TextBox txtKürzel;
    services::TextBox txtVon;
    services::TextBox txtBis;
    services::TextBox txtBezeichnungNeu;
    services::Label lblBezeichnung; ///< heading of the rooms, as the plan calls them
    std::array<services::Label, Zeilen> lblKürzel;
    std::array<services::Label, Zeilen> lblVon;
    std::array<services::Label, Zeilen> lblBis;
    std::array<services::ComboBox, Zeilen> cboBez;
    std::array<services::CheckBox, Zeilen> chkLöschen;
    int scrColliMax = 0; ///< highest position of the scroll bar; 0: hidden
    int scrColli = 0;
    services::Button cmdOK{"Änderungen ver&buchen"};
    services::Button cmdÄndern{"Neue Reservierung &ändern"};
    services::Button cmdAbbrechen{"Neue Reservierung &verwerfen"};
    services::Button cmdWarten{"Neue Reservierung in &Warteposition"};

private:
    // shaped by its implementation
    start::GlobalState& g_;
    start::KollisionAnfrage anfrage_;
    std::optional<start::KollisionErgebnis> ergebnis_;
};

} // namespace reservations
