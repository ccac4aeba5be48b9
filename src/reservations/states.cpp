#include "reservations/states.h"

#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"

#include <algorithm>
#include <array>

namespace reservations {

namespace {

using services::MsgButtons;
using services::MsgDefault;
using services::MsgIcon;
using services::MsgResult;

struct Gästewort {
    std::string_view Name;
    int Gäste;
};

constexpr std::array<Gästewort, 21> Gästewörter{{
    {"eins", 1},   {"eine", 1}, {"zwei", 2}, {"drei", 3},  {"vier", 4}, {"fünf", 5},   {"sechs", 6},
    {"sieben", 7}, {"acht", 8}, {"neun", 9}, {"zehn", 10}, {"elf", 11}, {"zwölf", 12}, {"13", 13},
    {"14", 14},    {"15", 15},  {"16", 16},  {"17", 17},   {"18", 18},  {"19", 19},    {"20", 20},
}};

constexpr int Offen = 0;
constexpr int Abgerechnet = 1;

jet::Recordset überfällig(jet::Database& db, basic::Date heute, const std::string& inBlöcken) {
    return db.OpenRecordset(
        "SELECT tblBelegung.Belegungsart, tblBelegung.Von, tblBelegung.Gelöscht, tbBelegArten.BelegungsArt, "
        "tbBlockbuchung.IDBelegung FROM (tblBelegung INNER JOIN tbBelegArten ON tblBelegung.Belegungsart = "
        "tbBelegArten.BelegungsID) LEFT JOIN  tbBlockbuchung ON tblBelegung.ID = tbBlockbuchung.IDBelegung  WHERE "
        "(((tblBelegung.Von)<=" +
        jet::sqlDate(heute) +
        ") AND ((tblBelegung.Gelöscht)=False) AND  ((tbBelegArten.BelegungsArt)='Angebot') AND "
        "((tbBlockbuchung.IDBelegung) Is " +
        inBlöcken + "));");
}

/// Runs the change on every row: one that another workstation has taken meanwhile does not keep the others back.
template <typename Change>
void jede(jet::Recordset& rs, Change change) {
    for (; !rs.Eof(); rs.MoveNext())
        basic::quietly([&] { change(); });
}

void inWarteposition(jet::Recordset& rs) {
    jede(rs, [&rs] {
        rs.Edit();
        rs.Fields("Gelöscht") = true;
        rs.Update();
    });
}

void melden(const std::function<void()>& geändert) {
    if (geändert) geändert();
}

/// The questions about offers past due.
struct Angebotsfragen {
    jet::Database& db;
    services::Dialogs& dialogs;
    basic::Date heute;
    const std::string& strTitel;
    const std::function<void()>& geändert;

    [[nodiscard]] std::string beginn() const {
        return "Es gibt noch Angebote, deren Anfangsdatum vor dem " + basic::Format(heute + 1, "dd.mm.yyyy");
    }
    [[nodiscard]] Angebotsprüfung einzelne() const;
    [[nodiscard]] Angebotsprüfung inBlöcken() const;
    [[nodiscard]] bool löschenBestätigt(int anzahl) const;
};

Angebotsprüfung Angebotsfragen::einzelne() const {
    auto rs = überfällig(db, heute, "Null");
    if (rs.Eof()) return Angebotsprüfung::Weiter;
    const MsgResult antwort = dialogs.MsgBox(
        beginn() +
            " beginnen. Wählen Sie 'Ja', wenn diese Angebote in die Warteposition geschoben werden sollen, wählen Sie "
            "'Nein', wenn die Angebote per Hand bearbeitet werden sollen.",
        {MsgButtons::YesNo, MsgIcon::Question}, "Angebotskonflikte");
    if (antwort != MsgResult::Yes) return Angebotsprüfung::Halt;
    inWarteposition(rs);
    melden(geändert);
    return Angebotsprüfung::Weiter;
}

bool Angebotsfragen::löschenBestätigt(int anzahl) const {
    return dialogs.MsgBox("Achtung. Dieser Vorgang löscht " + std::to_string(anzahl) +
                              " Angebote, die zu einer Blockbuchung gehören. Möchten Sie fortfahren?",
                          {MsgButtons::OKCancel, MsgIcon::Exclamation, MsgDefault::Button2}, strTitel) == MsgResult::OK;
}

/// A member of a block may not stand in the waiting row, so these are deleted.
Angebotsprüfung Angebotsfragen::inBlöcken() const {
    auto rs = überfällig(db, heute, "not  Null");
    if (rs.Eof()) return Angebotsprüfung::Weiter;
    const MsgResult antwort = dialogs.MsgBox(
        beginn() +
            " beginnen und zu einer Blockbuchung gehören. Wählen Sie 'Ja', wenn diese Angebote "
            "endgültig gelöscht werden sollen, wählen Sie 'Nein', wenn die Angebote per Hand bearbeitet werden sollen.",
        {MsgButtons::YesNo, MsgIcon::Critical, MsgDefault::Button2}, strTitel);
    if (antwort != MsgResult::Yes) return Angebotsprüfung::Halt;
    // Only "Nein" wants to see to them by hand; who draws back here leaves them as they are and goes on.
    if (!löschenBestätigt(rs.RecordCount())) return Angebotsprüfung::Weiter;
    jede(rs, [&rs] { rs.Delete(); });
    melden(geändert);
    return Angebotsprüfung::Weiter;
}

} // namespace

std::vector<Belegart> BelegartenLesen(jet::Database& db) {
    std::vector<Belegart> arten;
    auto rs = db.OpenRecordset(" SELECT tbBelegArten.BelegungsID, tbBelegArten.BelegungsArt  From tbBelegArten where "
                               "BelegungsID <> 0 Order by BelegungsID",
                               jet::RecordsetType::Snapshot);
    for (; !rs.Eof(); rs.MoveNext()) {
        Belegart art{static_cast<int>(rs.Fields("BelegungsID").Value().longOr()),
                     rs.Fields("BelegungsArt").Value().textOr()};
        if (!art.Name.empty()) arten.push_back(std::move(art));
    }
    return arten;
}

bool istAngebot(std::string_view name) { return basic::LCase(name) == "angebot"; }

int GästeDerBelegart(std::string_view name) {
    const std::string gesucht = basic::LCase(name);
    const auto* wort = std::ranges::find(Gästewörter, std::string_view(gesucht), &Gästewort::Name);
    return wort == Gästewörter.end() ? 0 : wort->Gäste;
}

bool istAngebotOderWartet(jet::Database& db, int id) {
    const std::string nummer = std::to_string(id);
    return !db.OpenRecordset(
                  " SELECT tblBelegung.ID, tblBelegung.Gelöscht, Format([tbBelegArten].[BelegungsArt],'<') AS Ausdr1 "
                  "FROM tblBelegung INNER JOIN tbBelegArten ON tblBelegung.Belegungsart = tbBelegArten.BelegungsID "
                  "WHERE (((tblBelegung.ID)=" +
                      nummer + ") AND ((tblBelegung.Gelöscht)=True))  OR (((tblBelegung.ID)=" + nummer +
                      ")  AND ((Format([tbBelegArten].[BelegungsArt],'<')) Like 'angebot'))",
                  jet::RecordsetType::Snapshot)
                .Eof();
}

void CheckedSetzen(jet::Database& db, int id, bool checked) {
    db.Execute(std::string("UPDATE tblBelegung SET tblBelegung.Checked = ") + (checked ? "true" : "false") +
               " WHERE (((tblBelegung.ID)= " + std::to_string(id) + "));");
}

bool istAbgerechnet(jet::Database& db, int id) {
    auto rs = db.OpenRecordset("SELECT tblBelegung.Abgerechnet, tblBelegung.IST_Geteilt From tblBelegung WHERE "
                               "(((tblBelegung.ID)=" +
                                   std::to_string(id) + ")); ",
                               jet::RecordsetType::Snapshot);
    return !rs.Eof() && istAbgerechnet(rs);
}

bool istAbgerechnet(jet::Recordset& rs) {
    return rs.Fields("Abgerechnet").Value().longOr() == Abgerechnet ||
           basic::equalText(rs.Fields("IST_Geteilt").Value().textOr(), "Y");
}

bool AbrechnenUmschalten(jet::Database& db, int id) {
    auto rs = db.OpenRecordset(
        "SELECT tblBelegung.Abgerechnet From tblBelegung WHERE (((tblBelegung.ID)=" + std::to_string(id) + ")); ");
    if (rs.Eof()) return false;
    const bool wirdOffen = rs.Fields("Abgerechnet").Value().longOr() == Abgerechnet;
    rs.Edit();
    rs.Fields("Abgerechnet") = wirdOffen ? Offen : Abgerechnet;
    rs.Update();
    return !wirdOffen;
}

Angebotsprüfung AngebotePrüfen(jet::Database& db, services::Dialogs& dialogs, basic::Date heute,
                               const std::string& strTitel, const std::function<void()>& geändert) {
    const Angebotsfragen fragen{db, dialogs, heute, strTitel, geändert};
    const Angebotsprüfung einzelne = fragen.einzelne();
    const Angebotsprüfung blöcke = fragen.inBlöcken();
    return einzelne == Angebotsprüfung::Weiter ? blöcke : einzelne;
}

} // namespace reservations
