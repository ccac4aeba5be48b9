#include "start/plan_load.h"

#include "platform/basic/quietly.h"
#include "start/paths.h"
#include "start/system_folders.h"
#include "start/upgrades.h"

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
    // Only who leaves the sample has seen it; on the way in, a sample file without settings must not be filled unasked.
    g.OhneBeispielFrage = g.BeispielAktiv;
    g.BeispielAnzeigen = false;
    if (!g.BeispielAktiv) BeispielWählen(g);
    g.Neuaufbau = true;
}

} // namespace start
