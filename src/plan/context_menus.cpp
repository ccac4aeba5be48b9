#include "plan/context_menus.h"

#include <span>

namespace plan {

namespace {

using start::Fenster;
using Ziel = Kontextziel;

struct Punkt {
    Kontext Wo;
    std::string_view Name;
    std::string_view Caption;
    Ziel ziel;
    Fenster fenster = {};
};

/// The entry whose caption tells the kind of document.
constexpr std::string_view kRechnungen = "mnuRechnungen";

constexpr Punkt kPunkte[] = {
    {Kontext::KontReservierung, "mnuReservierungÖffnen", "&Reservierung öffnen", Ziel::ReservierungÖffnen},
    {Kontext::KontReservierung, "mnuCheckIn", "Check &in", Ziel::CheckIn},
    {Kontext::KontReservierung, "mnuCheckOut", "Check &out", Ziel::CheckOut},
    {Kontext::KontReservierung, kRechnungen, "R&echnungen", Ziel::Fenster, Fenster::Rechnungen},
    {Kontext::KontReservierung, "mnuZahlungen", "&Zahlungen", Ziel::Fenster, Fenster::Zahlungen},
    {Kontext::KontReservierung, "mnuÜbersichtReservierungsadresse", "&Übersicht für Reservierungsadresse",
     Ziel::Fenster, Fenster::Datenübersicht},
    {Kontext::KontReservierung, "mnuÜbersichtRechnungsadresse", "Übersicht für Rechnungs&adresse", Ziel::Fenster,
     Fenster::Datenübersicht},
    {Kontext::KontReservierung, "mnuStatusAnzeigen", "&Status anzeigen", Ziel::Status},
    {Kontext::KontReservierung, "mnuAbbrechen", "A&bbrechen", Ziel::Nichts},
    {Kontext::Kontext2, "mnuSuchen", "Daten &suchen", Ziel::Fenster, Fenster::Datenübersicht},
    {Kontext::Kontext2, "mnuNeu", "neue &Reservierung", Ziel::NeueReservierung},
    {Kontext::Kontext2, "mnuPlanEinstellungen", "&Einstellungen", Ziel::Fenster, Fenster::Einstellungen},
    {Kontext::KontextZimmer, "mnuZimmerÄndern", "&Einstellungen ändern", Ziel::Fenster, Fenster::Einstellungen},
    {Kontext::kontextZusätze, "mnuZusatzspaltenEinrichten", "Zusatzspalten &einrichten", Ziel::Fenster,
     Fenster::Zusatzspalten},
    {Kontext::kontextZusätze, "mnuZusatzspaltenZuordnen", "Zusatzspalten &zuordnen", Ziel::Fenster,
     Fenster::Zusatzspalten},
    {Kontext::KONTEXTBelArt, "mnuBelArtÄndern", "&Einstellungen ändern", Ziel::Fenster, Fenster::Einstellungen},
    {Kontext::KontextDatum, "mnuKontextDatenAb", "Daten &anzeigen ab:", Ziel::DatenAb},
};

bool freigegeben(const Punkt& punkt, const Umgebung& umgebung, Kontextlage lage) {
    switch (punkt.ziel) {
    case Ziel::ReservierungÖffnen:
    case Ziel::NeueReservierung:
        return umgebung.has(Fenster::Reservierung);
    case Ziel::CheckIn:
    case Ziel::CheckOut:
        return !lage.Angebot && umgebung.db != nullptr;
    case Ziel::Status:
        return umgebung.istBezahlt != nullptr;
    case Ziel::DatenAb:
        return umgebung.dialogs != nullptr;
    case Ziel::Fenster:
        return umgebung.has(punkt.fenster) && umgebung.öffnen != nullptr;
    case Ziel::Nichts:
        break;
    }
    return true;
}

services::MenuEntry Eintrag(const Punkt& punkt, const Umgebung& umgebung, Kontextlage lage) {
    services::MenuEntry entry;
    entry.Name = punkt.Name;
    entry.Caption = punkt.Name == kRechnungen && lage.Angebot ? "A&ngebot" : punkt.Caption;
    entry.Enabled = freigegeben(punkt, umgebung, lage);
    entry.Visible = punkt.ziel != (lage.Checked ? Ziel::CheckIn : Ziel::CheckOut);
    return entry;
}

} // namespace

services::Menu Kontextmenü(Kontext wo, const Umgebung& umgebung, Kontextlage lage) {
    services::Menu menu;
    for (const auto& punkt : kPunkte)
        if (punkt.Wo == wo) menu.Entries.push_back(Eintrag(punkt, umgebung, lage));
    return menu;
}

Kontextweg KontextwegVon(std::string_view name) {
    for (const auto& punkt : kPunkte)
        if (punkt.Name == name) return {punkt.ziel, punkt.fenster};
    return {};
}

} // namespace plan
