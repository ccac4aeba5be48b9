#include "start/settings_reader.h"

#include "platform/basic/quietly.h"
#include "platform/jet/sql_values.h"
#include "start/paths.h"
#include "start/settings_table.h"
#include "start/workstation_files.h"
#include "store/first_run.h"
#include "store/path_test.h"
#include "store/sample_dates.h"

#include <algorithm>
#include <filesystem>

namespace start {

namespace {

using basic::quietly;
using services::MsgResult;
using services::MsgStyle;

enum class Fund { Da, Fehlt, Unlesbar };

// One record

std::string_view schlüsselfeld(const Satz& satz) { return satz.ablage == Ablage::Texte ? "Textbaustein" : "Satz"; }

std::string abfrage(const Satz& satz) {
    const std::string table = satz.ablage == Ablage::Texte ? "tblTexte" : "tblParameter";
    return "SELECT * FROM " + table + " WHERE " + std::string(schlüsselfeld(satz)) + " = " + jet::sqlText(satz.Name) +
           ";";
}

std::string wertVon(const Satz& satz, const Feld& feld, const basic::Value& gelesen) {
    if (gelesen.isNull()) return satz.nullIst == NullIst::Leer ? std::string() : feld.Vorgabe;
    return gelesen.textOr();
}

void vorgeben(Einstellungen& e, const Satz& satz) {
    for (const Feld& feld : satz.Felder)
        zuweisen(e, feld.ziel, feld.Vorgabe);
}

Fund einlesen(Einstellungen& e, jet::Database& db, const Satz& satz) {
    jet::Recordset rows = db.OpenRecordset(abfrage(satz), jet::RecordsetType::Snapshot);
    if (rows.Eof()) return Fund::Fehlt;
    for (const Feld& feld : satz.Felder)
        zuweisen(e, feld.ziel, wertVon(satz, feld, rows.Fields(feld.Name).Value()));
    return Fund::Da;
}

void anlegen(jet::Database& db, const Satz& satz) {
    jet::Recordset rows = db.OpenRecordset(abfrage(satz));
    rows.AddNew();
    rows.Fields(schlüsselfeld(satz)) = satz.Name;
    for (const Feld& feld : satz.Felder)
        rows.Fields(feld.Name) = feld.Anlegewert.value_or(feld.Vorgabe);
    rows.Update();
}

Fund satzLesen(GlobalState& g, const Satz& satz) {
    vorgeben(g.einstellungen, satz);
    jet::Database& db = satz.ablage == Ablage::Arbeitsplatz ? g.dbArbeitsplatz : g.dbHaupt;
    const Fund fund = quietly(Fund::Unlesbar, [&] { return einlesen(g.einstellungen, db, satz); });
    if (fund == Fund::Fehlt && satz.wennFehlt == WennFehlt::Anlegen) quietly([&] { anlegen(db, satz); });
    return fund;
}

void einstellungenErfragen(GlobalState& g, const Satz& satz) {
    g.dialogs.MsgBox("Zum Betrieb von " + g.strTitel() + " werden noch einige Angaben benötigt.",
                     {.icon = services::MsgIcon::Information}, "Einstellungen vornehmen");
    if (!g.windows.has(Fenster::Einstellungen)) return;
    g.windows.Einstellungen({.Seite = satz.Einstellungsseite});
    (void)satzLesen(g, satz);
}

/// All records of a section; the worst of what was found.
Fund abschnittLesen(GlobalState& g, Abschnitt abschnitt) {
    Fund schlimmster = Fund::Da;
    for (const Satz& satz : Satztabelle()) {
        if (satz.abschnitt != abschnitt) continue;
        const Fund fund = satzLesen(g, satz);
        if (fund != Fund::Da && satz.wennFehlt == WennFehlt::Einstellungen) einstellungenErfragen(g, satz);
        schlimmster = std::max(schlimmster, fund);
    }
    return schlimmster;
}

// The databases

void leerenPfadErsetzen(GlobalState& g) {
    clsPfade pfade(g.settings);
    const std::string key = schlüssel(g.instanz.Nummer).Pfad;
    g.strDBAktuell = g.BeispielAnzeigen ? g.strBeispielDB : pfade.DBPfad(key);
    if (!g.strDBAktuell.empty()) return;
    g.strDBAktuell = g.instanz.Datei(g.instanz.Namen().Herbergo);
    pfade.Speichern(key, g.strDBAktuell);
}

/// The link file where its links work, else the sample file.
void hauptdatenbankÖffnen(GlobalState& g) {
    g.strBeispielDB = g.instanz.Datei(g.instanz.Namen().Beispiel);
    leerenPfadErsetzen(g);
    const std::string lokal = g.instanz.Datei(g.instanz.Namen().Lokal);
    g.BeispielAktiv = g.BeispielAnzeigen || !store::linksWork(g.wsHaupt, lokal);
    g.strDBAktuell = g.BeispielAktiv ? g.strBeispielDB : lokal;
    g.wsHaupt.Reopen(g.dbHaupt, g.strDBAktuell, store::openConnect());
    // The sample's own title would hide which installation runs.
    if (!g.BeispielAktiv) (void)abschnittLesen(g, Abschnitt::Titel);
}

void arbeitsplatzÖffnen(GlobalState& g) {
    quietly([&] { g.wsHaupt.Reopen(g.dbArbeitsplatz, g.strBeispielDB, store::openConnect()); });
}

/// Lists show a YESNO by these words.
void hilfeDarstellungFüllen(jet::Database& db) {
    jet::Recordset rows = db.OpenRecordset("TblHilfeDarstellung");
    if (!rows.Eof()) return;
    for (const bool wahr : {false, true}) {
        rows.AddNew();
        rows.Fields("WahrNichtWahr") = wahr;
        rows.Fields("Beschreibung") = wahr ? "Ja" : "Nein";
        rows.Update();
    }
}

// The first run

Ladeergebnis beispielZeigen(GlobalState& g) {
    BeispielWählen(g);
    g.Neuaufbau = true;
    return Ladeergebnis::Neuladen;
}

Ladeergebnis vorgabenSchreiben(GlobalState& g) {
    g.ErsterStart = true;
    store::writeDefaults(g.dbHaupt, false);
    return abschnittLesen(g, Abschnitt::Räume) == Fund::Da ? Ladeergebnis::Fertig : Ladeergebnis::Ende;
}

MsgResult beispielFrage(GlobalState& g) {
    if (g.OhneBeispielFrage) return MsgResult::No;
    return g.dialogs.MsgBox("Möchten Sie die Anwendung: '" + g.strTitel() + "' zunächst mit Beispieldaten ansehen?",
                            MsgStyle::fromFlags(35), g.strTitel());
}

Ladeergebnis ersterStart(GlobalState& g) {
    switch (beispielFrage(g)) {
    case MsgResult::Yes:
        return beispielZeigen(g);
    case MsgResult::No:
        return vorgabenSchreiben(g);
    default:
        return Ladeergebnis::Ende;
    }
}

Ladeergebnis räumeLesen(GlobalState& g) {
    switch (abschnittLesen(g, Abschnitt::Räume)) {
    case Fund::Da:
        return Ladeergebnis::Fertig;
    case Fund::Fehlt:
        return ersterStart(g);
    case Fund::Unlesbar:
        jet::raise(jet::ErrorNumber::CannotOpen, g.strDBAktuell);
    }
    return Ladeergebnis::Ende;
}

// All of it

/// What a record holds was typed by somebody: the plan must come up all the same.
void bereinigen(Einstellungen& e) {
    constexpr int höchsteZimmer = 98;
    constexpr int höchsteTage = 100;
    const Einstellungen vorgabe;
    e.AnzahlZimmer = std::clamp(e.AnzahlZimmer, 0, höchsteZimmer);
    if (e.SichtbareZeilen < 1 || e.SichtbareZeilen > e.AnzahlZimmer) e.SichtbareZeilen = vorgabe.SichtbareZeilen;
    if (e.ZeilenHoehe < 20) e.ZeilenHoehe = vorgabe.ZeilenHoehe;
    e.AnzahlTage = e.AnzahlTage < 1 ? vorgabe.AnzahlTage : std::min(e.AnzahlTage, höchsteTage);
    e.ErsterTagDifferenz = std::clamp(e.ErsterTagDifferenz, 0, 255);
}

void belegArtenLesen(Einstellungen& e, jet::Database& db) {
    constexpr std::size_t arten = 9;
    e.BelegArtenNamen.assign(arten, "");
    jet::Recordset rows =
        db.OpenRecordset("SELECT BelegungsID, BelegungsArt FROM tbBelegArten;", jet::RecordsetType::Snapshot);
    for (; !rows.Eof(); rows.MoveNext()) {
        const auto id = rows.Fields("BelegungsID").Value().longOr(-1);
        if (id < 0 || id >= static_cast<std::int64_t>(arten)) continue;
        e.BelegArtenNamen.at(static_cast<std::size_t>(id)) = rows.Fields("BelegungsArt").Value().textOr();
    }
}

void verhaltenLesen(GlobalState& g, const std::function<void(GlobalState&)>& Zahlungsmigration) {
    quietly([&] { hilfeDarstellungFüllen(g.dbHaupt); });
    (void)abschnittLesen(g, Abschnitt::Verhalten);
    if (Zahlungsmigration) quietly([&] { Zahlungsmigration(g); });
    (void)abschnittLesen(g, Abschnitt::Währung);
}

void darstellungLesen(GlobalState& g) {
    using enum Abschnitt;
    arbeitsplatzÖffnen(g);
    for (const Abschnitt abschnitt : {Zeit, Darstellung, Farben, Nummern})
        (void)abschnittLesen(g, abschnitt);
    quietly([&] { belegArtenLesen(g.einstellungen, g.dbHaupt); });
    std::error_code unreadable;
    g.einstellungen.PLZSuche = std::filesystem::exists(g.instanz.Datei(store::kHolidayFile), unreadable);
    (void)abschnittLesen(g, Rest);
    bereinigen(g.einstellungen);
}

Ladeergebnis lesen(GlobalState& g, const std::function<void(GlobalState&)>& Zahlungsmigration) {
    hauptdatenbankÖffnen(g);
    verhaltenLesen(g, Zahlungsmigration);
    const Ladeergebnis räume = räumeLesen(g);
    if (räume == Ladeergebnis::Fertig) darstellungLesen(g);
    return räume;
}

} // namespace

Einstellungen EinstellungenAnsehen(jet::Database& haupt, jet::Database& arbeitsplatz) {
    Einstellungen e;
    for (const Satz& satz : Satztabelle()) {
        vorgeben(e, satz);
        quietly([&] { (void)einlesen(e, satz.ablage == Ablage::Arbeitsplatz ? arbeitsplatz : haupt, satz); });
    }
    quietly([&] { belegArtenLesen(e, haupt); });
    bereinigen(e);
    return e;
}

Ladeergebnis EinstellungenLesen(GlobalState& g, const std::function<void(GlobalState&)>& Zahlungsmigration) {
    try {
        return lesen(g, Zahlungsmigration);
    } catch (const jet::Error& error) {
        g.dialogs.MsgBox(error.text(), {.icon = services::MsgIcon::Critical}, g.strTitel());
        return Ladeergebnis::Ende;
    }
}

void BeispielWählen(GlobalState& g) {
    quietly([&] { store::shiftSampleDates(g.wsHaupt, g.strBeispielDB, g.clock.today()); });
    g.BeispielAnzeigen = true;
}

} // namespace start
