#include "plan/settings_reader.h"

#include "masterdata/rooms.h"
#include "platform/basic/text.h"
#include "start/parameters.h"
#include "start/settings_reader.h"

namespace plan {

namespace {

// A record may hold any number; a colour has three channels.
Farbe farbe(int wert) { return wert & 0xFFFFFF; }

int GezählteZimmer(jet::Database& db) {
    auto rs = db.OpenRecordset("SELECT Count(Zimmernummer) AS Anzahl FROM tbZimmernummern;");
    const auto zeilen = static_cast<int>(rs.Fields("Anzahl").Value().longOr(0));
    return zeilen > 0 ? zeilen - 1 : PlanEinstellungen().AnzahlZimmer;
}

void FarbenÜbernehmen(PlanEinstellungen& plan, const start::Einstellungen& e) {
    for (std::size_t art = 0; art < plan.Farben.size(); ++art)
        plan.Farben[art] = farbe(e.Farben[art]);
    const Farbe wochenende = aufgehellt(plan.Farben[0], e.ErsterTagDifferenz);
    plan.FarbeSamstag = farbe(e.FarbeSamstag.value_or(wochenende));
    plan.FarbeSonntag = farbe(e.FarbeSonntag.value_or(wochenende));
}

void ArtenÜbernehmen(PlanEinstellungen& plan, const start::Einstellungen& e) {
    for (std::size_t art = 0; art < plan.Belegungsarten.size(); ++art) {
        plan.Belegungsarten[art] = e.Belegungsarten.at(art);
        if (!basic::equalText(plan.Belegungsarten[art], "teilbelegt")) continue;
        plan.FarbeTeilbelegt = plan.Farben[art];
        plan.Belegungsarten[art].clear();
    }
}

} // namespace

PlanEinstellungen PlanEinstellungenAus(const start::Einstellungen& e) {
    PlanEinstellungen plan;
    plan.strTitel = e.strTitel;
    plan.AnzahlZimmer = e.AnzahlZimmer;
    plan.SichtbareZeilen = e.SichtbareZeilen;
    plan.ZeilenHoehe = e.ZeilenHoehe;
    plan.AnzahlTage = e.AnzahlTage;
    plan.WochentagLinie = e.WochentagLinie;
    plan.ErsterTagDifferenz = e.ErsterTagDifferenz;
    FarbenÜbernehmen(plan, e);
    ArtenÜbernehmen(plan, e);
    plan.Belegungsrahmen = e.Beschriftungen.at(0);
    plan.Zimmerspalte = e.Beschriftungen.at(1);
    return plan;
}

PlanEinstellungen EinstellungenEinlesen(jet::Database& dbHaupt, jet::Database* dbArbeitsplatz) {
    auto e = start::EinstellungenAnsehen(dbHaupt, dbArbeitsplatz != nullptr ? *dbArbeitsplatz : dbHaupt);
    if (!start::FeldLesen(dbHaupt, "Räumlichkeiten")) e.AnzahlZimmer = GezählteZimmer(dbHaupt);
    PlanEinstellungen plan = PlanEinstellungenAus(e);
    plan.Zusatzspalten = masterdata::Zusatzspaltenbelegt(dbHaupt);
    return bereinigt(std::move(plan));
}

} // namespace plan
