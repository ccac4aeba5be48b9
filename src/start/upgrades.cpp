#include "start/upgrades.h"

#include "start/paths.h"
#include "start/start_main.h"
#include "start/workstation_files.h"
#include "store/upgrades.h"

namespace start {

namespace {

store::UpgradeFiles echteDateien(const GlobalState& g) {
    const Datenbankpfade pfade = gespeichertePfade(clsPfade(g.settings), g.instanz);
    return {g.strBeispielDB, istZentral(g, pfade.Zentral) ? pfade.Zentral : "",
            istQuelle(g, pfade.Pfad) ? pfade.Pfad : "", linkPlätze(g)};
}

store::RetryQuestion wiederholfrage(const GlobalState& g) {
    return [&g] {
        return g.dialogs.MsgBox(std::string(store::kUpgradeFailed), {.buttons = services::MsgButtons::RetryCancel},
                                std::string(store::kUpgradeFailedTitle)) == services::MsgResult::Retry;
    };
}

void beispielWäsche(const GlobalState& g) {
    store::CreateFieldWäscheHaupt(g.wsHaupt, g.strBeispielDB, g.strBeispielDB);
}

} // namespace

void beispielAktualisieren(const GlobalState& g) {
    store::BeispielBlockSicherung(g.wsHaupt, g.strBeispielDB);
    store::addBemerkAdr(g.wsHaupt, g.strBeispielDB);
    if (g.ErsterStart) beispielWäsche(g);
    store::upgradeTables(g.wsHaupt, {g.strBeispielDB, "", "", {}}, store::UpgradeTarget::Beispiel, wiederholfrage(g));
}

void parameterAktualisieren(const GlobalState& g) {
    store::upgradeParameters(g.wsHaupt, echteDateien(g), store::UpgradeTarget::Echt, wiederholfrage(g));
}

void datenAktualisieren(const GlobalState& g) {
    const store::UpgradeFiles dateien = echteDateien(g);
    store::addBemerkAdr(g.wsHaupt, g.AdrAusBel ? dateien.Links.Zentral : dateien.Zentral);
    store::CreateFieldWäscheHaupt(g.wsHaupt, dateien.Zentral, dateien.Pfad);
    if (g.ErsterStart) beispielWäsche(g);
    store::upgradeTables(g.wsHaupt, dateien, store::UpgradeTarget::Echt, wiederholfrage(g));
}

} // namespace start
