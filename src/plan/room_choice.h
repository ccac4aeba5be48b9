#pragma once

#include "plan/reservation_finder.h"
#include "platform/services/controls.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace plan {

/// The small form that asks which of several stays in a cell is meant.
class frmZimmerauswahl {
public:
    /// `zimmer` gives a room's name by its number.
    frmZimmerauswahl(const std::vector<Aufenthalt>& stays, const std::function<std::string(int zimmer)>& zimmer);

    void cmdAuswählen_Click();
    void cmdAbbrechen_Click() { zu_ = true; }

    /// The form is to be closed.
    [[nodiscard]] bool geschlossen() const { return zu_; }
    /// ID of the chosen stay; none when the user cancelled.
    [[nodiscard]] std::optional<int> Ergebnis() const { return ergebnis_; }

    services::Label lblFrage;
    services::ListBox lstReservierungen;
    services::Button cmdAuswählen;
    services::Button cmdAbbrechen;

private:
    std::optional<int> ergebnis_;
    bool zu_ = false;
};

} // namespace plan
