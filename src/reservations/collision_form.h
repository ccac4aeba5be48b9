#pragma once

#include "platform/services/controls.h"
#include "reservations/overlap.h"
#include "start/global_state.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace reservations {

/// The dialog that solves collisions: where do the old stays go? Closing it by its frame is "Neue Reservierung ändern".
class frmCollision {
public:
    /// The state must outlive the dialog. Reads the free rooms of each old stay; raises the engine's errors.
    frmCollision(start::GlobalState& g, const start::KollisionAnfrage& anfrage);

    /// After the window is up: a member of a block without a free room cannot be solved; tells so and closes.
    void Form_Activate();
    void cmdOK_Click();
    void cmdÄndern_Click();
    void cmdAbbrechen_Click();
    void cmdWarten_Click();
    void scrColli_Change(int position); ///< from 1
    void cboBez_Click(int zeile);       ///< chosen from the list; visible line from 0
    void cboBez_Change(int zeile);      ///< typed or emptied by hand
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
    int scrColliMax = 0; ///< highest position of the scroll bar, which begins with 1; 0: hidden
    int scrColli = 1;    ///< the row that the first line shows
    services::Button cmdOK{"Änderungen ver&buchen"};
    services::Button cmdÄndern{"Neue Reservierung &ändern"};
    services::Button cmdAbbrechen{"Neue Reservierung &verwerfen"};
    services::Button cmdWarten{"Neue Reservierung in &Warteposition"};

private:
    /// A row of the list, whether it is on screen or not.
    struct Eintrag {
        start::Kollision Alt;
        std::vector<FreiesZimmer> Freie; ///< in its own days, without the room that the new stay wants
        int Auswahl = -1;                ///< index of the target among them; -1: none
        std::string Text = {};           ///< of the combo
        bool Block = false;              ///< member of a block: may not go to the waiting row
    };

    [[nodiscard]] Eintrag eintragFür(const start::Kollision& kollision) const;
    [[nodiscard]] Eintrag* eintragDer(int zeile);
    void zeigen();
    void zeigeZeile(std::size_t zeile, const Eintrag* eintrag);
    [[nodiscard]] bool verbuchen();
    [[nodiscard]] bool verschieben(jet::Recordset& rs, const Eintrag& eintrag);
    [[nodiscard]] bool darfWarten(const Eintrag& eintrag);
    void nichtGespeichert(const Eintrag& eintrag, const std::string& grund);
    void schließen(start::Kollisionsweg weg, bool gelöst);

    start::GlobalState& g_;
    std::vector<Eintrag> einträge_;
    std::optional<start::KollisionErgebnis> ergebnis_;
};

} // namespace reservations
