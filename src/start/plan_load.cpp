#include "start/plan_load.h"

#include "platform/basic/quietly.h"
#include "start/paths.h"
#include "start/system_folders.h"
#include "start/upgrades.h"
#include "store/sample_dates.h"

namespace start {

namespace {

void ausführen(const std::function<void()>& schritt) {
    if (schritt) basic::quietly([&] { schritt(); });
}

bool aufbauen(const Ladeschritte& schritte) {
    return !schritte.PlanAufbauen || basic::quietly(false, schritte.PlanAufbauen);
}

void anzeigen(GlobalState& g, const Ladeschritte& schritte) {
    if (g.BeispielAktiv)
        beispielAktualisieren(g);
    else
        parameterAktualisieren(g);
    ausführen(schritte.FeiertagZeigen);
    ausführen(schritte.VorgabelandLesen);
}

void abschließen(GlobalState& g, const Ladeschritte& schritte) {
    ausführen(schritte.ZimmervorgabenLesen);
    datenAktualisieren(g);
    ausführen(schritte.AngebotePrüfen);
    clsPfade(g.settings).Speichern(schlüssel(g.instanz.Nummer).LokalDB, g.instanz.Datei(g.instanz.Namen().Lokal));
    g.OhneBeispielFrage = false;
}

} // namespace

Ladeergebnis PlanLaden(GlobalState& g, const Ladeschritte& schritte) {
    g.Neuaufbau = false;
    ausführen(schritte.HeuteZeigen);
    g.FormularGeladen = true;
    const Ladeergebnis gelesen = EinstellungenLesen(g, schritte.Zahlungsmigration);
    if (gelesen != Ladeergebnis::Fertig) {
        g.FormularGeladen = false;
        return gelesen;
    }
    const bool aufgebaut = aufbauen(schritte);
    anzeigen(g, schritte);
    Systemordner(g.instanz.Ordner, g.dialogs, g.strTitel());
    abschließen(g, schritte);
    if (!aufgebaut) (void)aufbauen(schritte);
    return Ladeergebnis::Fertig;
}

void BeispieldatenUmschalten(GlobalState& g) {
    g.OhneBeispielFrage = true;
    g.BeispielAnzeigen = !g.BeispielAktiv;
    if (g.BeispielAnzeigen)
        basic::quietly([&] { store::shiftSampleDates(g.wsHaupt, g.strBeispielDB, g.clock.today()); });
    g.Neuaufbau = true;
}

} // namespace start
