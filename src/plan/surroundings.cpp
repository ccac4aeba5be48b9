#include "plan/surroundings.h"

#include "platform/basic/quietly.h"
#include "reservations/states.h"
#include "start/parameters.h"
#include "start/paths.h"
#include "start/plan_load.h"

#include <filesystem>

namespace plan {

namespace {

using start::GlobalState;
using start::PfadeErgebnis;
using Close = std::function<void()>;

constexpr std::string_view kUpdateProgram = "strukturneu.exe";
constexpr std::string_view kWebProgram = "netzlader.exe";
constexpr auto kWebKey = "Internet";

void open(GlobalState& g, start::Fenster fenster, const Close& close) {
    if (fenster == start::Fenster::Saisonzeiten) g.windows.Saisonzeiten();
    if (fenster != start::Fenster::Datenbankpfade) return;
    const PfadeErgebnis result = g.windows.Datenbankpfade({});
    g.Neuaufbau = result == PfadeErgebnis::Neuaufbau;
    if (result != PfadeErgebnis::Weiter) close();
}

bool exists(const std::string& path) {
    std::error_code unreadable;
    return std::filesystem::exists(path, unreadable);
}

bool launch(GlobalState& g, std::string_view program, const std::string& argument) {
    return g.shell.start(g.instanz.Datei(program),
                         argument.empty() ? std::vector<std::string>() : std::vector{argument});
}

void update(GlobalState& g, const Close& close) {
    const std::string text =
        "Damit das Datenbankupdate ausgeführt werden kann, muss der Herbergo geschlossen werden.\n" + g.strTitel() +
        ": Bitte schließen Sie das Programm vorher auf allen Arbeitsplätzen, die mit diesen Daten "
        "arbeiten.\nMöchten Sie den Vorgang fortsetzen?";
    const services::MsgStyle style{services::MsgButtons::YesNo, services::MsgIcon::Exclamation};
    if (g.dialogs.MsgBox(text, style, g.strTitel()) != services::MsgResult::Yes) return;
    if (launch(g, kUpdateProgram, "Instanz:" + std::to_string(g.instanz.Nummer))) close();
}

/// Path of the program of the web presence as the user has once shown it; empty when there is none.
std::string searchWebProgram(GlobalState& g) {
    const services::MsgStyle style{services::MsgButtons::YesNo, services::MsgIcon::Question};
    if (g.dialogs.MsgBox("Die Datei 'netzlader.exe' konnte nicht gefunden werden. Möchten Sie selber nach ihr suchen?",
                         style, g.strTitel()) != services::MsgResult::Yes)
        return {};
    const auto path = g.dialogs.chooseFile(
        {.title = g.strTitel(), .start = g.instanz.Ordner, .filter = "netzlader.exe|netzlader.exe|*.exe|*.exe|"});
    return path.value_or("");
}

void startWebProgram(GlobalState& g) {
    start::clsPfade paths(g.settings);
    auto path = paths.DBPfad(kWebKey);
    if (path.empty()) path = g.instanz.Datei(kWebProgram);
    if (!exists(path)) {
        path = searchWebProgram(g);
        if (path.empty()) return;
        paths.Speichern(kWebKey, path);
    }
    (void)g.shell.start(path, {});
}

/// The same word heads the list's column, which has a record of its own.
void storeCaption(GlobalState& g, Planbeschriftung was, const std::string& text) {
    const bool frame = was == Planbeschriftung::Belegungsrahmen;
    start::SatzSchreiben(g.dbHaupt, "Beschriftungen", {{frame ? "F1" : "F2", text}});
    start::SatzSchreiben(g.dbHaupt, "Spaltenbeschriftung", {{frame ? "F8" : "F11", text}});
    auto& e = g.einstellungen;
    const auto keep = [&](std::vector<std::string>& list, std::size_t place) {
        if (place < list.size()) list[place] = text;
    };
    keep(e.Beschriftungen, frame ? 0 : 1);
    keep(e.Spaltenbeschriftung, frame ? 7 : 10);
}

bool checkOffers(GlobalState& g, const std::function<void()>& geändert) {
    return basic::quietly(true, [&] {
        return reservations::AngebotePrüfen(g.dbHaupt, g.dialogs, g.clock.today(), g.strTitel(), geändert) ==
               reservations::Angebotsprüfung::Weiter;
    });
}

} // namespace

Umgebung UmgebungAus(GlobalState& g, const Close& close) {
    Umgebung u;
    u.dialogs = &g.dialogs;
    u.windows = &g.windows;
    u.db = &g.dbHaupt;
    u.öffnen = [&g, close](start::Fenster fenster) { open(g, fenster, close); };
    u.vorhanden = [&g](std::string_view file) { return exists(g.instanz.Datei(file)); };
    u.starten = [&g](std::string_view program, const std::string& argument) { (void)launch(g, program, argument); };
    u.zeigen = [&g](std::string_view file) { (void)g.shell.open(g.instanz.Datei(file)); };
    u.Strukturupdate = [&g, close] { update(g, close); };
    u.Beispieldaten = [&g, close] {
        start::BeispieldatenUmschalten(g);
        close();
    };
    u.Internet = [&g] { startWebProgram(g); };
    u.AngebotePrüfen = [&g](const std::function<void()>& geändert) { return checkOffers(g, geändert); };
    u.Beschriften = [&g](Planbeschriftung was, const std::string& text) { storeCaption(g, was, text); };
    u.Aktualisieren = &g.einstellungen.Aktualisieren;
    u.Zeitlogdatei = g.instanz.Datei("Zeitlog.txt");
    u.Waehrung = g.einstellungen.Waehrung;
    u.BeispielAktiv = g.BeispielAktiv;
    u.Instanz = g.instanz.Nummer;
    return u;
}

} // namespace plan
