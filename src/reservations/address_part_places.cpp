#include "addresses/countries.h"
#include "platform/basic/text.h"
#include "reservations/address_part.h"
#include "reservations/telling.h"
#include "store/database_files.h"

#include <algorithm>

namespace reservations {

using services::Leave;
using services::MsgButtons;
using services::MsgDefault;
using services::MsgIcon;
using services::MsgResult;

/// The file knows German codes; shorter ones of other countries begin like some of them.
bool Adressteil::istInland() const {
    return cboLand.Text.empty() || basic::equalText(cboLand.Text, addresses::Vorgabeland);
}

Leave Adressteil::txtPLZ_LostFocus() {
    anführungszeichenSchließen();
    const std::string plz = basic::Trim(txtPLZ.Text);
    if (!g_.einstellungen.PLZSuche || plz == geprüftePLZ_ || !istInland()) return Leave::Go;
    geprüftePLZ_ = plz;
    std::vector<addresses::Ort> orte = addresses::OrteZurPLZ(g_.wsHaupt, g_.instanz.Datei(store::kHolidayFile), plz);
    if (orte.empty()) return Leave::Go;
    orte_ = std::move(orte);
    cboOrt.Items.Clear();
    const bool ein_Ort = std::ranges::all_of(orte_, [&](const auto& ort) { return ort.Name == orte_.front().Name; });
    if (ein_Ort) {
        cboOrt.Text = orte_.front().Name;
        Adress_nderung = true;
        return Leave::Go;
    }
    const bool eine_PLZ = std::ranges::all_of(orte_, [&](const auto& ort) { return ort.PLZ == plz; });
    for (std::size_t i = 0; i < orte_.size(); ++i)
        cboOrt.Items.AddItem(eine_PLZ ? orte_[i].Name : orte_[i].PLZ + " " + orte_[i].Name,
                             static_cast<std::int64_t>(i));
    cboOrt.ListIndex = -1;
    cboOrt.DropDownRequested = true;
    return Leave::Go;
}

void Adressteil::cboOrt_Click() {
    if (cboOrt.ListIndex < 0 || cboOrt.ListIndex >= cboOrt.Items.ListCount()) return;
    const addresses::Ort& ort = orte_.at(static_cast<std::size_t>(cboOrt.Items.ItemData(cboOrt.ListIndex)));
    cboOrt.Text = ort.Name;
    txtPLZ.Text = geprüftePLZ_ = ort.PLZ;
    Adress_nderung = true;
}

bool Adressteil::landLöschen(std::int64_t id) {
    const auto antwort = g_.dialogs.MsgBox("Soll das Land '" + cboLand.Text + "' aus der Liste gelöscht werden?",
                                           {MsgButtons::YesNo, MsgIcon::Question, MsgDefault::Button2}, g_.strTitel());
    if (antwort != MsgResult::Yes) return false;
    addresses::LandLöschen(g_.dbHaupt, id);
    return true;
}

bool Adressteil::cboLand_KeyDown(services::Key key) {
    if (key != services::Key::F2) return false;
    const int platz = cboLand.Items.indexOf(basic::Trim(cboLand.Text));
    if (platz < 0) return true;
    const bool gelöscht =
        toldIfFailed(g_.dialogs, g_.strTitel(), [&] { return landLöschen(cboLand.Items.ItemData(platz)); });
    if (!gelöscht) return true;
    const std::string land = cboLand.Items.List(platz);
    listenLesen();
    setLand(land); // the guest still comes from there
    return true;
}

Leave Adressteil::cboLand_LostFocus() {
    anführungszeichenSchließen();
    const std::string land = basic::Trim(cboLand.Text);
    if (land.empty() || land == freiesLand_) return Leave::Go;
    if (cboLand.Items.indexOf(land) >= 0) {
        setLand(land);
        return Leave::Go;
    }
    const auto antwort =
        g_.dialogs.MsgBox("Das Land '" + land + "' steht nicht in der Liste. Soll es aufgenommen werden?",
                          {MsgButtons::YesNo, MsgIcon::Question, MsgDefault::Button2}, g_.strTitel());
    if (antwort == MsgResult::Yes)
        toldIfFailed(g_.dialogs, g_.strTitel(), [&] { return addresses::LandAnlegen(g_.dbHaupt, land) != 0; });
    if (antwort == MsgResult::Yes) listenLesen();
    setLand(land);
    return Leave::Go;
}

} // namespace reservations
