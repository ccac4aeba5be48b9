#include "start/plan_load.h"

#include "platform/basic/quietly.h"
#include "start/paths.h"
#include "start/system_folders.h"

#include <filesystem>

namespace start {

namespace {

void ausführen(const std::function<void()>& schritt) {
    if (schritt) basic::quietly([&] { schritt(); });
}

void werkzeugeSuchen(GlobalState& g) {
    const auto vorhanden = [&](std::string_view name) {
        std::error_code unreadable;
        return std::filesystem::exists(g.instanz.Datei(name), unreadable);
    };
    g.werkzeuge = {vorhanden("holdaten.exe"), vorhanden("gebdaten.exe"), vorhanden("auswerter.exe")};
}

void anzeigen(GlobalState& g, const Ladeschritte& schritte) {
    ausführen(schritte.PlanAufbauen);
    ausführen(g.BeispielAktiv ? schritte.BeispielUpgrades : schritte.ParameterUpgrade);
    ausführen(schritte.FeiertagZeigen);
    ausführen(schritte.VorgabelandLesen);
}

void abschließen(GlobalState& g, const Ladeschritte& schritte) {
    ausführen(schritte.ZimmervorgabenLesen);
    ausführen(schritte.Upgrades);
    ausführen(schritte.AngebotePrüfen);
    clsPfade(g.settings).Speichern(schlüssel(g.instanz.Nummer).LokalDB, g.instanz.Datei(g.instanz.Namen().Lokal));
    g.OhneBeispielFrage = false;
}

} // namespace

Ladeergebnis PlanLaden(GlobalState& g, const Ladeschritte& schritte) {
    g.Neuaufbau = false;
    ausführen(schritte.HeuteZeigen);
    g.FormularGeladen = true;
    const Ladeergebnis gelesen = EinstellungenLesen(g, schritte.Lesen);
    if (gelesen != Ladeergebnis::Fertig) {
        g.FormularGeladen = false;
        return gelesen;
    }
    anzeigen(g, schritte);
    Systemordner(g.instanz.Ordner, g.dialogs, g.strTitel());
    werkzeugeSuchen(g);
    abschließen(g, schritte);
    return Ladeergebnis::Fertig;
}

std::string Planüberschrift(const GlobalState& g) { return g.strTitel() + " Version 4.10"; }

bool StatistikMöglich(const GlobalState& g) { return g.werkzeuge.auswerter && !g.BeispielAktiv; }

} // namespace start
