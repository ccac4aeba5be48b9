#include "reservations/overlap.h"

#include "masterdata/rooms.h"
#include "platform/basic/format.h"
#include "platform/jet/sql_values.h"

namespace reservations {

namespace {

using basic::Date;
using start::Kollision;

constexpr std::size_t HöchstzahlFreie = 100;

std::string tagestext(Date tag) { return basic::Format(tag, "dd.mm.yyyy"); }
std::string cvDate(Date tag) { return "CVDATE(" + jet::sqlText(tagestext(tag)) + ")"; }

/// The days of a stay as the conditions compare them.
struct Tage {
    explicit Tage(const Wunsch& wunsch)
        : Von(cvDate(wunsch.Von)), Bis(cvDate(wunsch.Bis)), NachVon(cvDate(wunsch.Von + 1)),
          VorBis(cvDate(wunsch.Bis - 1)), VorBisMitLeerzeichen("CVDATE( ' " + tagestext(wunsch.Bis - 1) + " ' )") {}

    std::string Von;
    std::string Bis;
    std::string NachVon;
    std::string VorBis;
    std::string VorBisMitLeerzeichen;
};

/// Room and days of the tests that see a stay with the very same days.
std::string mitGleichenTagen(const Wunsch& wunsch) {
    const Tage tage(wunsch);
    return "Zimmernummer = " + std::to_string(wunsch.Zimmer) + " AND Gelöscht = FALSE  AND (Von >= " + tage.NachVon +
           " AND von <= " + tage.VorBisMitLeerzeichen + " OR   Bis >= " + tage.NachVon + "  AND BIS <= " + tage.VorBis +
           " OR   (" + tage.Von + " >= Von AND (" + tage.Von + ") < Bis) OR  (" + tage.Bis + " > Von AND (" + tage.Bis +
           " < Bis)))";
}

std::string kommaliste(jet::Recordset& rs) {
    std::string liste;
    for (; !rs.Eof(); rs.MoveNext())
        liste += (liste.empty() ? "" : ",") + std::to_string(rs.Fields("ID").Value().longOr());
    return liste;
}

Kollision kollision(jet::Recordset& rs) {
    return {.ID = static_cast<int>(rs.Fields("ID").Value().longOr()),
            .Kürzel = rs.Fields("Kürzel").Value().textOr(),
            .Zimmer = static_cast<int>(rs.Fields("Zimmernummer").Value().longOr()),
            .Von = rs.Fields("Von").Value().dateOr(),
            .Bis = rs.Fields("Bis").Value().dateOr()};
}

int wartezeile(jet::Database& db) {
    const auto zimmer = masterdata::ZimmerEinlesen(db);
    return zimmer.empty() ? 0 : zimmer.back().Zimmernummer;
}

} // namespace

std::string AbfrageVorDemSpeichern(const Wunsch& wunsch) {
    const Tage tage(wunsch);
    const std::string andere = wunsch.ID == 0 ? "" : "ID <> " + std::to_string(wunsch.ID) + " AND ";
    return "SELECT ID FROM tblBelegung WHERE " + andere + "Zimmernummer = " + std::to_string(wunsch.Zimmer) +
           " AND Gelöscht = FALSE  AND (Von >= " + tage.NachVon + " AND von <= " + tage.VorBisMitLeerzeichen +
           " OR  Bis >= " + tage.NachVon + " AND BIS <= " + tage.VorBis + " OR  (" + tage.Von + " > Von AND (" +
           tage.Von + ") < Bis) OR (" + tage.Bis + " > Von AND (" + tage.Bis + " < Bis)))";
}

std::string AbfrageNachDemSpeichern(const Wunsch& wunsch) {
    return " SELECT distinct ID FROM tblBelegung WHERE (Not (tblBelegung.ID)=" + std::to_string(wunsch.ID) + ") AND  " +
           mitGleichenTagen(wunsch);
}

std::string AbfrageBeimTippen(const Wunsch& wunsch) {
    return " SELECT distinct ID FROM tblBelegung WHERE " + mitGleichenTagen(wunsch);
}

std::string AbfrageFreieZimmer(Date von, Date bis) {
    const std::string v = jet::sqlDate(von);
    const std::string b = jet::sqlDate(bis);
    return "SELECT tbZimmernummern.Zimmernummer, tbZimmernummern.NeueNummer From tbZimmernummern WHERE "
           "(((tbZimmernummern.Zimmernummer)  Not In (SELECT DISTINCT tblBelegung.Zimmernummer  FROM tblBelegung  "
           "WHERE (((tblBelegung.Von)=" +
           v + ") AND ((tblBelegung.Gelöscht)=False)) OR (((tblBelegung.Von)>" + v + " And (tblBelegung.Von)<" + b +
           ") AND ((tblBelegung.Gelöscht)=False)) OR (((tblBelegung.Von)<=" + v +
           ") AND ((tblBelegung.Gelöscht)=False) AND ((tblBelegung.Bis)>=" + b +
           ")) OR (((tblBelegung.Gelöscht)=False) AND ((tblBelegung.Bis)=" + b +
           ")) OR (((tblBelegung.Gelöscht)=False) AND ((tblBelegung.Bis)>" + v + " And (tblBelegung.Bis)<" + b +
           "));))) order by tbZimmernummern.Zimmernummer; ";
}

std::vector<Kollision> Kollisionen(jet::Database& db, const Wunsch& wunsch) {
    auto gefunden = db.OpenRecordset(AbfrageVorDemSpeichern(wunsch), jet::RecordsetType::Snapshot);
    const std::string ids = kommaliste(gefunden);
    std::vector<Kollision> kollisionen;
    if (ids.empty()) return kollisionen;
    auto rs = db.OpenRecordset("SELECT ID, Kürzel, Zimmernummer, Von, Bis FROM tblBelegung WHERE ID IN (" + ids + ")",
                               jet::RecordsetType::Snapshot);
    for (; !rs.Eof(); rs.MoveNext())
        kollisionen.push_back(kollision(rs));
    return kollisionen;
}

bool ZimmerFrei(jet::Database& db, const Wunsch& wunsch) {
    return db.OpenRecordset(AbfrageNachDemSpeichern(wunsch), jet::RecordsetType::Snapshot).Eof();
}

bool Überschneidungswarnung(jet::Database& db, const Wunsch& wunsch) {
    if (wunsch.Zimmer == 0) return false;
    auto rs = db.OpenRecordset(AbfrageBeimTippen(wunsch), jet::RecordsetType::Snapshot);
    if (rs.Eof()) return false;
    const bool nurSelbst = rs.RecordCount() == 1 && rs.Fields("ID").Value().longOr() == wunsch.ID;
    return wunsch.ID == 0 || !nurSelbst;
}

std::vector<FreiesZimmer> FreieZimmer(jet::Database& db, Date von, Date bis) {
    const int warten = wartezeile(db);
    std::vector<FreiesZimmer> freie;
    auto rs = db.OpenRecordset(AbfrageFreieZimmer(von, bis), jet::RecordsetType::Snapshot);
    for (; !rs.Eof() && freie.size() < HöchstzahlFreie; rs.MoveNext()) {
        FreiesZimmer zimmer{static_cast<int>(rs.Fields("Zimmernummer").Value().longOr()),
                            rs.Fields("NeueNummer").Value().textOr()};
        if (!zimmer.NeueNummer.empty() && zimmer.Zimmernummer != warten) freie.push_back(std::move(zimmer));
    }
    return freie;
}

} // namespace reservations
