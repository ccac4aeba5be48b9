#pragma once

#include "platform/basic/date.h"
#include "platform/services/controls.h"
#include "start/global_state.h"

#include <optional>
#include <string>
#include <vector>

namespace reservations {

/// A row of tbSaisonzeiten as the grid shows it; Null is empty.
struct Saisonzeit {
    int ID = 0;
    std::string Start; ///< "dd.mm.yyyy"
    std::string Ende;
    std::string Saisonbezeichnung;
};

/// The rows of the calendar's grid: ID (hidden), first day, last day, name.
class Saisonliste final : public services::GridRows {
public:
    std::vector<Saisonzeit> Zeilen;

    [[nodiscard]] int RowCount() const override { return static_cast<int>(Zeilen.size()); }
    [[nodiscard]] std::string TextMatrix(int row, int column) const override;
    /// -1 when no row has this ID.
    [[nodiscard]] int RowOf(int id) const;
};

/// The season calendar. A season covers its first day and not its last one, so that the next may begin on that day.
class frmSaison {
public:
    /// The state must outlive the form.
    explicit frmSaison(start::GlobalState& g);
    frmSaison(const frmSaison&) = delete;
    frmSaison& operator=(const frmSaison&) = delete;

    // event procedures
    /// Sorts by the column, from the last to the first when it is the sorted one already.
    void grSaison_HeaderClick(int column);
    void grSaison_RowColChange(); ///< the user has gone to row grSaison.Row
    void Feld_Change();           ///< of any of the three fields
    services::Leave txtName_LostFocus();
    services::Leave txtVon_LostFocus() { return Datum_LostFocus(txtVon); }
    services::Leave txtBis_LostFocus() { return Datum_LostFocus(txtBis); }
    void cmdNeu_Click();
    void cmdSpeichern_Click() { (void)speichern(); }
    void cmdL_schen_Click();
    /// May the window close? Asks about changes first.
    [[nodiscard]] bool canClose() { return darfVerlassen(); }

    static constexpr auto Caption = "Festlegung der Saisonzeiten";

    // controls; cmdL_schen with an underscore for the umlaut
    services::Grid grSaison;
    services::Label lblName{"Saison&bezeichnung"};
    services::Label lblVon{"Saisonbe&ginn"};
    services::Label lblBis{"Saison&ende"};
    services::ComboBox txtName;
    services::TextBox txtVon{services::KeyFilter{.Only = "1234567890."}};
    services::TextBox txtBis{services::KeyFilter{.Only = "1234567890."}};
    services::Button cmdNeu{"&Neue Saisonzeit"};
    services::Button cmdSpeichern{"&Speichern"};
    services::Button cmdL_schen{"&Löschen"};
    services::Button cmdZu{"S&chließen"};

private:
    /// What stands against a save, and where.
    struct Einwand {
        std::string Text;
        services::Control* Feld;
    };

    void einlesen();
    void neu();
    void zeigen(int row);
    [[nodiscard]] bool darfVerlassen();
    [[nodiscard]] bool speichern();
    [[nodiscard]] std::optional<Einwand> leeresFeld();
    [[nodiscard]] std::optional<Einwand> einwand();
    [[nodiscard]] std::optional<basic::Date> datum(const services::TextBox& feld) const;
    services::Leave Datum_LostFocus(services::TextBox& feld);
    void melden(const std::string& text);

    start::GlobalState& g_;
    Saisonliste liste_;
    int id_ = 0; ///< the season in the fields; 0: a new one
    bool geändert_ = false;
    int sortierung_ = 0; ///< the sorted column; 0: none
    bool absteigend_ = false;
};

} // namespace reservations
