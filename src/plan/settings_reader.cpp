#include "plan/settings_reader.h"

#include "masterdata/rooms.h"
#include "platform/basic/convert.h"
#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace plan {

namespace {

using basic::Value;

/// Fields F1, F2, ... of a record of tblParameter; empty when there is no such record.
using Satz = std::vector<Value>;

Satz SatzEinlesen(jet::Database& db, std::string_view name) {
    auto rs = db.OpenRecordset("SELECT * FROM tblParameter WHERE Satz = " + jet::sqlText(name) + ";",
                               jet::RecordsetType::Snapshot);
    Satz satz;
    if (!rs.Eof())
        for (int field = 1; field <= 11; ++field)
            satz.push_back(rs.Fields("F" + std::to_string(field)).Value());
    return satz;
}

std::string text(const Satz& satz, std::size_t field, std::string_view ifMissing) {
    return field < satz.size() ? satz[field].textOr(ifMissing) : std::string(ifMissing);
}

int number(const Satz& satz, std::size_t field, int ifMissing) {
    if (field >= satz.size() || satz[field].isNull()) return ifMissing;
    return static_cast<int>(std::clamp(basic::Val(satz[field]), -2147483647.0, 2147483647.0));
}

Farbe colour(const Satz& satz, std::size_t field, Farbe ifMissing) { return number(satz, field, ifMissing) & 0xFFFFFF; }

int GezählteZimmer(jet::Database& db) {
    auto rs = db.OpenRecordset("SELECT Count(Zimmernummer) AS Anzahl FROM tbZimmernummern;");
    const auto zeilen = static_cast<int>(rs.Fields("Anzahl").Value().longOr(0));
    return zeilen > 0 ? zeilen - 1 : PlanEinstellungen().AnzahlZimmer;
}

void RäumeEinlesen(PlanEinstellungen& e, jet::Database& db) {
    const auto räume = SatzEinlesen(db, "Räumlichkeiten");
    e.AnzahlZimmer = räume.empty() ? GezählteZimmer(db) : number(räume, 0, e.AnzahlZimmer);
    e.SichtbareZeilen = number(räume, 1, e.SichtbareZeilen);
    e.ZeilenHoehe = number(räume, 2, e.ZeilenHoehe);
}

void ZeitEinlesen(PlanEinstellungen& e, jet::Database& db) {
    const auto zeit = SatzEinlesen(db, "ZeitDarstellung");
    e.AnzahlTage = number(zeit, 0, e.AnzahlTage);
    e.WochentagLinie = number(zeit, 1, e.WochentagLinie);
}

void FarbenEinlesen(PlanEinstellungen& e, jet::Database& db) {
    e.ErsterTagDifferenz = std::clamp(number(SatzEinlesen(db, "ErsterTag"), 0, e.ErsterTagDifferenz), 0, 255);
    const auto farben = SatzEinlesen(db, "Farben");
    for (std::size_t art = 0; art < e.Farben.size(); ++art)
        e.Farben[art] = colour(farben, art, e.Farben[art]);
    const Farbe wochenende = aufgehellt(e.Farben[0], e.ErsterTagDifferenz);
    e.FarbeSamstag = colour(farben, 9, wochenende);
    e.FarbeSonntag = colour(farben, 10, wochenende);
}

void BelegungsartenEinlesen(PlanEinstellungen& e, jet::Database& db) {
    const auto arten = SatzEinlesen(db, "Belegungsarten");
    for (std::size_t art = 0; art < e.Belegungsarten.size(); ++art) {
        e.Belegungsarten[art] = text(arten, art, arten.empty() ? e.Belegungsarten[art] : "");
        if (!basic::equalText(e.Belegungsarten[art], "teilbelegt")) continue;
        e.FarbeTeilbelegt = e.Farben[art];
        e.Belegungsarten[art].clear();
    }
}

} // namespace

PlanEinstellungen EinstellungenEinlesen(jet::Database& dbHaupt, jet::Database* dbArbeitsplatz) {
    PlanEinstellungen e;
    e.strTitel = text(SatzEinlesen(dbHaupt, "titel"), 0, e.strTitel);
    RäumeEinlesen(e, dbHaupt);
    ZeitEinlesen(e, dbArbeitsplatz != nullptr ? *dbArbeitsplatz : dbHaupt);
    FarbenEinlesen(e, dbHaupt);
    BelegungsartenEinlesen(e, dbHaupt);
    const auto beschriftungen = SatzEinlesen(dbHaupt, "Beschriftungen");
    e.Zusatzspalten = masterdata::Zusatzspaltenbelegt(dbHaupt);
    e.Belegungsrahmen = text(beschriftungen, 0, e.Belegungsrahmen);
    e.Zimmerspalte = text(beschriftungen, 1, e.Zimmerspalte);
    return bereinigt(std::move(e));
}

} // namespace plan
