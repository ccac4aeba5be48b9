#include "plan/main_form.h"

#include "plan/main_menu.h"
#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/text.h"
#include "platform/jet/error.h"
#include "start/plan_load.h"

#include <utility>

namespace plan {

using basic::Format;

namespace {

constexpr Farbe Rotschrift = 0x0000FF;

/// The tick of the refresh timer that finds this count refreshes.
constexpr int kTakte = 5;

} // namespace

frmMain::frmMain(Planraster& raster, const services::Clock& clock, Umgebung umgebung)
    : lblBeispieldaten(start::kBeispielhinweis), cmdBezahlt(Unbekannt), cmdNeu("&Neu"), raster_(&raster),
      clock_(&clock), umgebung_(std::move(umgebung)), log_(std::make_unique<Zeitlog>(umgebung_.Zeitlogdatei, clock)),
      zeichnung_(raster) {
    txtFeiertag.Visible = false;
    lblKürzel.Visible = false;
    lblBeispieldaten.ForeColor = Rotschrift;
    lblBeispieldaten.Visible = umgebung_.BeispielAktiv;
    cmdBezahlt.ToolTipText =
        "Dieses Feld wird nur grün gekennzeichnet, wenn alle Posten abgerechnet wurden und wenn keine unbezahlten "
        "Rechnungen vorhanden sind  - weder für die betroffene Reservierungsadresse, noch für die betroffene "
        "Rechnungsadresse.";
    cmdNeu.Enabled = umgebung_.has(start::Fenster::Reservierung);
    cmdNeu.ToolTipText = "Neue Reservierung eingeben";
    Menü = Hauptmenü(umgebung_, raster_->Einstellungen().strTitel);
    füllBelegungsrahmen();
}

void frmMain::füllBelegungsrahmen() {
    const auto& e = raster_->Einstellungen();
    optBelArt.Caption = e.Belegungsrahmen;
    for (std::size_t art = 1; art < e.Belegungsarten.size(); ++art) {
        const auto name = basic::Trim(e.Belegungsarten[art]);
        if (name.empty()) continue;
        services::OptionButton button;
        button.Caption = name;
        button.BackColor = e.Farben[art];
        optBelArt.Buttons.push_back(std::move(button));
        arten_.push_back(static_cast<int>(art));
    }
}

void frmMain::Form_Load() {
    subZeigeDatum(StandardStart(clock_->today()));
    zeigeTag(clock_->today());
}

void frmMain::zeigeAb(const std::function<basic::Date()>& start) {
    // Behind its form, what was drawn would hide what the form has stored.
    if (!AuswahlAktiv()) zeichnung_.clear();
    try {
        raster_->subZeigeDatum(start(), raster_->AnzahlTage());
        fehler_.clear();
    } catch (const jet::Error& error) {
        fehler_ = error.text();
    }
    zeichnung_.repaint();
    zeigeKürzel();
    betreten_.reset();
}

void frmMain::subZeigeDatum(basic::Date start) {
    zeigeAb([&] { return start; });
}

void frmMain::Navigation_Click(const Navigation& button) {
    zeigeAb([&] { return NeuerPlanStart(button, raster_->PlanStart(), clock_->today()); });
}

void frmMain::ScrollBar_Change(int position) {
    const int vorher = raster_->ErsteZeile();
    raster_->setErsteZeile(position + 1);
    subZeigeDatum(raster_->PlanStart()); // rows off the screen were never drawn into cells
    if (!fehler_.empty()) raster_->setErsteZeile(vorher);
}

void frmMain::cmdErster_Click() { ScrollBar_Change(0); }

void frmMain::cmdLetzter_Click() { ScrollBar_Change(ScrollBarMax()); }

void frmMain::cmdAktualisieren_Click() { Navigation_Click(Navigationsknopf("cmdAktualisieren")); }

void frmMain::TimerAktualisieren_Timer() {
    if (Zaehler_ != kTakte) {
        ++Zaehler_;
        return;
    }
    Zaehler_ = 1;
    if (offen_ > 0)
        aktualisieren_ = true;
    else
        cmdAktualisieren_Click();
}

void frmMain::ungestört(const std::function<void()>& event) {
    ++offen_;
    try {
        event();
    } catch (const basic::Error& error) {
        if (umgebung_.dialogs != nullptr)
            umgebung_.dialogs->MsgBox(error.text(), {.icon = services::MsgIcon::Exclamation},
                                      raster_->Einstellungen().strTitel);
    }
    --offen_;
    if (offen_ == 0 && std::exchange(aktualisieren_, false)) cmdAktualisieren_Click();
}

void frmMain::melde(const std::string& text, const std::string& titel) {
    ungestört([&] { umgebung_.dialogs->MsgBox(text, {.icon = services::MsgIcon::Information}, titel); });
}

void frmMain::öffneReservierung(const start::ReservierungAnfrage& anfrage) {
    if (!umgebung_.has(start::Fenster::Reservierung)) return;
    if (!anfrage.IDs.empty()) LetzteReservierung = anfrage.IDs.front();
    ungestört([&] {
        if (const int id = umgebung_.windows->Reservierung(anfrage); id > 0) LetzteReservierung = id;
    });
    zeichnung_.clear();
    cmdAktualisieren_Click();
}

void frmMain::öffneLetzte() {
    if (LetzteReservierung == 0)
        melde("Es wurde noch keine Reservierung geöffnet.", raster_->Einstellungen().strTitel);
    else
        öffneReservierung({.IDs = {LetzteReservierung}});
}

void frmMain::optBelArt_Click(int index) {
    optBelArt.Value = index;
    AuswahlArt = arten_[static_cast<std::size_t>(index)];
    AuswahlFarbe = raster_->Einstellungen().Farben[static_cast<std::size_t>(AuswahlArt)];
}

void frmMain::cmdNeu_Click() { Menu_Click("mnuNeueReservierung"); }

void frmMain::Menu_Click(std::string_view name) {
    const auto* punkt = MenüpunktNamens(name);
    if (punkt == nullptr || offen_ > 0 || !freigegeben(*punkt, umgebung_)) return;
    ungestört([&] { folge(*punkt); });
}

void frmMain::folge(const Menüpunkt& punkt) {
    using Ziel = Menüpunkt::Ziel;
    switch (punkt.ziel) {
    case Ziel::Fenster:
        return umgebung_.öffnen(punkt.fenster);
    case Ziel::Programm:
        return starte(punkt);
    case Ziel::Dokument:
        return umgebung_.zeigen(punkt.datei);
    case Ziel::Strukturupdate:
        return umgebung_.Strukturupdate();
    case Ziel::Internet:
        return umgebung_.Internet();
    case Ziel::NeueReservierung:
        return öffneReservierung({.Art = AuswahlArt});
    case Ziel::LetzteReservierung:
        return öffneLetzte();
    case Ziel::Beispieldaten:
        return umgebung_.Beispieldaten();
    case Ziel::DatenAb:
        return springe();
    case Ziel::Beenden:
        ende_ = true;
    }
}

void frmMain::starte(const Menüpunkt& punkt) {
    if (punkt.ohneAngebote && umgebung_.AngebotePrüfen &&
        !umgebung_.AngebotePrüfen([this] { cmdAktualisieren_Click(); }))
        return;
    umgebung_.starten(punkt.programm.empty() ? punkt.datei : punkt.programm,
                      punkt.mitInstanz ? "Instanz:" + std::to_string(umgebung_.Instanz) : "");
}

void frmMain::springe() {
    const auto answer =
        umgebung_.dialogs->InputBox("Geben Sie das Anfangsdatum der Darstellung ein:", "Zeitleiste verschieben",
                                    Format(raster_->PlanStart(), "dd.mm.yyyy"));
    if (!answer) return;
    if (const auto date = basic::parseDate(*answer, clock_->today())) subZeigeDatum(*date);
}

std::string frmMain::Caption() const { return raster_->Einstellungen().strTitel + " Version 4.10"; }

std::string frmMain::Zeitraum() const {
    const auto erster = raster_->PlanStart();
    const auto letzter = raster_->Datum(raster_->AnzahlTage());
    const bool einJahr = Format(erster, "yyyy") == Format(letzter, "yyyy");
    return Format(erster, einJahr ? "d. mmmm" : "d. mmmm yyyy") + " – " + Format(letzter, "d. mmmm yyyy");
}

} // namespace plan
