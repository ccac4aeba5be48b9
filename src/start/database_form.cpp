#include "start/database_form.h"

#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "start/parameters.h"
#include "start/settings_reader.h"
#include "start/start_main.h"
#include "start/workstation_files.h"
#include "store/path_test.h"

#include <filesystem>

namespace start {

namespace {

services::TextBox mitPfad(const std::string& pfad) {
    services::TextBox box;
    box.Text = pfad;
    box.Locked = true;
    return box;
}

std::string ordnerVon(const std::string& pfad) { return std::filesystem::path(pfad).parent_path().string(); }

void umbenennen(const GlobalState& g, const std::string& name) {
    jet::Database lokal =
        g.wsHaupt.OpenDatabase(g.instanz.Datei(g.instanz.Namen().Lokal), false, false, store::openConnect());
    SatzSchreiben(lokal, "titel", {{"F1", name}});
}

} // namespace

frmDatenbank::frmDatenbank(GlobalState& g, const PfadeAnfrage& anfrage) : g_(g), anfrage_(anfrage) {
    const store::FileNames namen = g.instanz.Namen();
    const Datenbankpfade pfade = gespeichertePfade(clsPfade(g.settings), g.instanz);
    lblPfad.Caption = "Quelldaten (" + namen.Herbergo + ")";
    lblZentral.Caption = "Gemeinsame Daten (" + namen.Zentral + ")";
    txtPfad = mitPfad(pfade.Pfad);
    txtZentral = mitPfad(pfade.Zentral);
    txtSicherung = mitPfad(pfade.Sicherung);
    chBeispiel.Value = g.BeispielAnzeigen;
}

void frmDatenbank::dateiWählen(services::TextBox& box, const std::string& name, Prüfung istRichtig) {
    const auto datei = g_.dialogs.chooseFile({.title = "Datenbankpfad wählen",
                                              .start = box.Text.empty() ? g_.instanz.Ordner : ordnerVon(box.Text),
                                              .filter = name + "|" + name + "|Access Datenbanken (*.mdb)|*.mdb|"});
    if (!datei) return;
    // The link file passes the test of either kind, through its links.
    const bool istLokal = basic::InStr(1, *datei, g_.instanz.Namen().Lokal) > 0;
    box.Text = !istLokal && istRichtig(g_, *datei) ? *datei : std::string();
    if (box.Text.empty())
        g_.dialogs.MsgBox("Der Datenbankpfad ist nicht korrekt. Bitte überprüfen Sie die Einstellungen.", {},
                          g_.strTitel());
}

void frmDatenbank::cmdPfad_Click() { dateiWählen(txtPfad, g_.instanz.Namen().Herbergo, istQuelle); }

void frmDatenbank::cmdZentral_Click() { dateiWählen(txtZentral, g_.instanz.Namen().Zentral, istZentral); }

void frmDatenbank::cmdSicherung_Click() {
    const std::string start = txtSicherung.Text.empty() ? g_.instanz.Ordner : ordnerVon(txtSicherung.Text);
    if (const auto ordner = g_.dialogs.chooseFolder("Datenbankpfad wählen", start)) txtSicherung.Text = *ordner;
}

void frmDatenbank::speichern() {
    clsPfade pfade(g_.settings);
    const Schlüssel keys = schlüssel(g_.instanz.Nummer);
    pfade.Speichern(keys.Pfad, txtPfad.Text);
    pfade.Speichern(keys.Zentral, txtZentral.Text);
    pfade.Speichern(keys.Excel, txtSicherung.Text.empty() ? vorgabeSicherung(g_.instanz) : txtSicherung.Text);
}

void frmDatenbank::cmdSpeichern_Click() {
    const bool gut = istQuelle(g_, txtPfad.Text) && istZentral(g_, txtZentral.Text);
    if (!gut || !verknüpfen(g_, txtZentral.Text, txtPfad.Text)) {
        g_.dialogs.MsgBox("Bitte überprüfen Sie die Datenbankpfade.", {}, g_.strTitel());
        return;
    }
    speichern();
    if (chBeispiel.Value && !g_.BeispielAnzeigen) BeispielWählen(g_);
    g_.BeispielAnzeigen = chBeispiel.Value;
    ergebnis_ = anfrage_.beimStart ? PfadeErgebnis::Weiter : PfadeErgebnis::Neuaufbau;
}

void frmDatenbank::cmdName_Click() {
    const std::string nummer = std::to_string(g_.instanz.Nummer);
    const auto antwort = g_.dialogs.InputBox("Bitte wählen Sie einem Namen für diese Anwendung:", "Namen vergeben",
                                             nummer + ". Instanz");
    if (!antwort) return;
    const std::string name = antwort->empty() ? "Herbergo " + nummer : *antwort;
    if (basic::quietly([&] { umbenennen(g_, name); })) g_.einstellungen.strTitel = name;
}

void frmDatenbank::cmdEnde_Click() { ergebnis_ = PfadeErgebnis::ProgrammEnde; }

void frmDatenbank::cmdAbbrechen_Click() {
    const bool planSteht = g_.FormularGeladen;
    const bool läuft = planSteht || store::linksWork(g_.wsHaupt, g_.instanz.Datei(g_.instanz.Namen().Lokal));
    ergebnis_ = läuft ? PfadeErgebnis::Weiter : PfadeErgebnis::ProgrammEnde;
}

} // namespace start
