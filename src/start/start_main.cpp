#include "start/start_main.h"

#include "start/paths.h"
#include "start/workstation_files.h"
#include "store/path_test.h"
#include "store/repair.h"

namespace start {

namespace {

using services::MsgResult;
using services::MsgStyle;

constexpr auto kEigeneAdressen = "AdrEinzeln";
constexpr auto kGemeinsameAdressen = "AdrAusBel";

struct Lauf {
    GlobalState& g;
    clsPfade pfade{g.settings};
    Schlüssel keys = schlüssel(g.instanz.Nummer);
    bool AdresswahlNeu = false; ///< the address table may have to be linked to another place

    [[nodiscard]] std::string lokal() const { return g.instanz.Datei(g.instanz.Namen().Lokal); }
};

// The addresses of an instance

bool adresswahlErfragen(Lauf& lauf) {
    GlobalState& g = lauf.g;
    const bool erreichbar = istZentral(g, lauf.pfade.DBPfad(schlüssel(0).Zentral));
    const Adresswahl wahl = g.windows.Adresshilfe({.HauptprogrammErreichbar = erreichbar});
    if (wahl == Adresswahl::Keine) return false;
    g.AdrAusBel = wahl == Adresswahl::AdrAusBel;
    lauf.AdresswahlNeu = true;
    lauf.pfade.Speichern(instanzSchlüssel(g.instanz.Nummer), g.AdrAusBel ? kGemeinsameAdressen : kEigeneAdressen);
    return true;
}

bool adresswahlLesen(Lauf& lauf) {
    if (lauf.g.instanz.istHauptprogramm()) return true;
    const std::string wahl = lauf.pfade.DBPfad(instanzSchlüssel(lauf.g.instanz.Nummer));
    lauf.g.AdrAusBel = wahl == kGemeinsameAdressen;
    return !wahl.empty() || adresswahlErfragen(lauf);
}

// The paths

/// A path whose file is not the right one counts as none, and none becomes the program folder's.
std::string geprüfterPfad(Lauf& lauf, const std::string& key,
                          bool (*istRichtig)(const GlobalState&, const std::string&), const std::string& name) {
    std::string pfad = lauf.pfade.DBPfad(key);
    if (!pfad.empty() && istRichtig(lauf.g, pfad)) return pfad;
    pfad = lauf.g.instanz.Datei(name);
    lauf.pfade.Speichern(key, pfad);
    return pfad;
}

bool neuVerknüpfen(Lauf& lauf, const std::string& zentral, const std::string& quelle) {
    if (!istZentral(lauf.g, zentral) || !istQuelle(lauf.g, quelle)) return false;
    if (!verknüpfen(lauf.g, zentral, quelle)) return false;
    lauf.pfade.Speichern(lauf.keys.Pfad, quelle);
    lauf.pfade.Speichern(lauf.keys.Excel, vorgabeSicherung(lauf.g.instanz));
    lauf.pfade.Speichern(lauf.keys.Zentral, zentral);
    return true;
}

bool datenbankenVerbinden(Lauf& lauf) {
    const store::FileNames namen = lauf.g.instanz.Namen();
    lauf.pfade.Speichern(lauf.keys.LokalDB, lauf.lokal());
    const std::string zentral = geprüfterPfad(lauf, lauf.keys.Zentral, istZentral, namen.Zentral);
    const std::string quelle = geprüfterPfad(lauf, lauf.keys.Pfad, istQuelle, namen.Herbergo);
    if (lauf.AdresswahlNeu && neuVerknüpfen(lauf, zentral, quelle)) return true;
    return store::linksWork(lauf.g.wsHaupt, lauf.lokal()) || neuVerknüpfen(lauf, zentral, quelle);
}

// Nothing reachable

void reparieren(Lauf& lauf) {
    const GlobalState& g = lauf.g;
    const std::string beispiel = lauf.pfade.DBPfad(lauf.keys.BeispielPfad);
    const std::string lokal =
        beispiel.empty() ? lauf.lokal() : store::localFileBeside(beispiel, g.instanz.Namen().Lokal);
    const Datenbankpfade pfade = gespeichertePfade(lauf.pfade, g.instanz);
    store::repairFiles(g.wsHaupt, lokal, pfade.Pfad, pfade.Zentral);
}

bool pfadeErfragen(Lauf& lauf) {
    GlobalState& g = lauf.g;
    reparieren(lauf);
    const MsgResult antwort = g.dialogs.MsgBox(
        "Die Datenbankpfade sind nicht korrekt oder die Verbindung des Netzwerkes steht nicht mehr zur Verfügung. "
        "Möchten Sie die Datenbankpfade zu den Quelldatenbanken neu einrichten?",
        MsgStyle::fromFlags(321), g.strTitel());
    if (antwort != MsgResult::OK) return false;
    lauf.pfade.Löschen();
    lauf.pfade.Speichern(lauf.keys.BeispielPfad, g.instanz.Datei(g.instanz.Namen().Beispiel));
    return g.windows.Datenbankpfade({.beimStart = true}) != PfadeErgebnis::ProgrammEnde;
}

/// What no step had to write: the next start and the sibling programs read all five keys.
void schlüsselErgänzen(Lauf& lauf) {
    const Instanz& instanz = lauf.g.instanz;
    const store::FileNames namen = instanz.Namen();
    const auto ergänzen = [&](const std::string& key, const std::string& value) {
        if (lauf.pfade.DBPfad(key).empty()) lauf.pfade.Speichern(key, value);
    };
    ergänzen(lauf.keys.Zentral, instanz.Datei(namen.Zentral));
    ergänzen(lauf.keys.Pfad, instanz.Datei(namen.Herbergo));
    ergänzen(lauf.keys.Excel, vorgabeSicherung(instanz));
    lauf.pfade.Speichern(lauf.keys.BeispielPfad, instanz.Datei(namen.Beispiel));
    lauf.pfade.Speichern(lauf.keys.LokalDB, lauf.lokal());
}

} // namespace

bool istZentral(const GlobalState& g, const std::string& pfad) {
    return store::fileHoldsTable(g.wsHaupt, pfad, store::kSharedTestTable);
}

bool istQuelle(const GlobalState& g, const std::string& pfad) {
    return store::fileHoldsTable(g.wsHaupt, pfad, store::kSourceTestTable);
}

Weg Main(GlobalState& g, const Startschritte& schritte) {
    if (g.instanz.Nummer > kHöchsteInstanz) {
        g.dialogs.MsgBox("Unzulässiger Dateiname", {}, g.strTitel());
        return Weg::Ende;
    }
    Lauf lauf{g};
    if (!adresswahlLesen(lauf)) return Weg::Ende;
    const std::string sicherung = lauf.pfade.DBPfad(lauf.keys.Excel);
    if (!sicherung.empty() && schritte.SicherungsordnerAufräumen) schritte.SicherungsordnerAufräumen(sicherung);
    arbeitsplatzdateienAnlegen(g);
    if (!datenbankenVerbinden(lauf) && !pfadeErfragen(lauf)) return Weg::Ende;
    schlüsselErgänzen(lauf);
    return Weg::Plan;
}

} // namespace start
