#include "plan/room_choice.h"

#include "platform/basic/format.h"

namespace plan {

frmZimmerauswahl::frmZimmerauswahl(const std::vector<Aufenthalt>& stays,
                                   const std::function<std::string(int zimmer)>& zimmer)
    : lblFrage("Hier liegen mehrere Reservierungen. Welche meinen Sie?"), cmdAuswählen("Aus&wählen"),
      cmdAbbrechen("A&bbrechen") {
    for (const auto& stay : stays)
        lstReservierungen.Items.AddItem(zimmer(stay.Zimmernummer) + ": " + stay.Kürzel + ", " +
                                            basic::Format(stay.Von, "dd.mm.yyyy") + " bis " +
                                            basic::Format(stay.Bis, "dd.mm.yyyy"),
                                        stay.ID);
    lstReservierungen.ListIndex = stays.empty() ? -1 : 0;
}

void frmZimmerauswahl::cmdAuswählen_Click() {
    if (lstReservierungen.ListIndex < 0) return;
    ergebnis_ = static_cast<int>(lstReservierungen.Items.ItemData(lstReservierungen.ListIndex));
    zu_ = true;
}

} // namespace plan
