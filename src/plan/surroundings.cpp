#include "plan/surroundings.h"

#include "start/plan_load.h"

#include <filesystem>

namespace plan {

namespace {

using start::GlobalState;
using start::PfadeErgebnis;
using Close = std::function<void()>;

constexpr std::string_view kUpdateProgram = "strukturneu.exe";

void open(GlobalState& g, start::Fenster fenster, const Close& close) {
    if (fenster == start::Fenster::Saisonzeiten) g.windows.Saisonzeiten();
    if (fenster != start::Fenster::Datenbankpfade) return;
    const PfadeErgebnis result = g.windows.Datenbankpfade({});
    g.Neuaufbau = result == PfadeErgebnis::Neuaufbau;
    if (result != PfadeErgebnis::Weiter) close();
}

bool exists(const GlobalState& g, std::string_view file) {
    std::error_code unreadable;
    return std::filesystem::exists(g.instanz.Datei(file), unreadable);
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

} // namespace

Umgebung UmgebungAus(GlobalState& g, const Close& close) {
    Umgebung u;
    u.dialogs = &g.dialogs;
    u.windows = &g.windows;
    u.öffnen = [&g, close](start::Fenster fenster) { open(g, fenster, close); };
    u.vorhanden = [&g](std::string_view file) { return exists(g, file); };
    u.starten = [&g](std::string_view program, const std::string& argument) { (void)launch(g, program, argument); };
    u.zeigen = [&g](std::string_view file) { (void)g.shell.open(g.instanz.Datei(file)); };
    u.Strukturupdate = [&g, close] { update(g, close); };
    u.Beispieldaten = [&g, close] {
        start::BeispieldatenUmschalten(g);
        close();
    };
    u.BeispielAktiv = g.BeispielAktiv;
    u.Instanz = g.instanz.Nummer;
    return u;
}

} // namespace plan
