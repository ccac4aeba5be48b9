#include "addresses/address_use.h"

#include "platform/basic/text.h"

#include <array>

namespace addresses {

namespace {

/// The slots of the three installations; the second and the fifth belong to sibling programs.
constexpr std::array<std::string_view, 3> Steckplätze = {"1", "3", "4"};

constexpr std::int64_t kTitelBreite = 80;

std::string Steckplatz(const Nutzer& nutzer) {
    return std::string(Steckplätze.at(static_cast<std::size_t>(nutzer.Instanz)));
}

bool gibtZeilen(jet::Database& db, const std::string& sql) {
    return !db.OpenRecordset(sql, jet::RecordsetType::Snapshot).Eof();
}

struct Verweis {
    std::string Tabelle;
    std::string Spalte;
};

/// Where a row can refer to an address.
const std::array<Verweis, 7>& Verweise() {
    static const std::array<Verweis, 7> verweise = {{{"tblBelegung", "GastID"},
                                                     {"tblBelegung", "IDAdressRechnung"},
                                                     {"tbRechnungen", "IDAdresseRe"},
                                                     {"tbAdress_zu_Adress", "IDAdresseOber"},
                                                     {"tbAdress_zu_Adress", "idAdresseUnter"},
                                                     {"tbRePosten", "IDAdressePo"},
                                                     {"WeitereGäste", "ID_Adresse"}}};
    return verweise;
}

} // namespace

bool AdresseHatReservierung(jet::Database& db, std::int64_t id) {
    return gibtZeilen(
        db, " SELECT tblBelegung.GastID From tblBelegung WHERE (((tblBelegung.GastID)=" + std::to_string(id) + "));");
}

void AdresseBenutzen(jet::Database& db, std::int64_t id, bool ja, const Nutzer& nutzer) {
    if (!ja && AdresseHatReservierung(db, id)) return;
    jet::Recordset rows =
        db.OpenRecordset("SELECT Address.BenutztVon1 ,Address.BenutztVon3 ,Address.BenutztVon4 ,  Address.Herkunft1, "
                         "Address.Herkunft3, Address.Herkunft4 From Address WHERE (((Address.ID)=" +
                         std::to_string(id) + "));");
    if (rows.Eof()) return;
    const auto spalte = static_cast<std::size_t>(nutzer.Instanz);
    const std::size_t herkunft = spalte + Steckplätze.size();
    const basic::Value titel = basic::Left(nutzer.strTitel, kTitelBreite);
    rows.Edit();
    rows.Fields(spalte) = ja ? titel : basic::Value();
    if (ja && rows.At(herkunft).textOr().empty()) rows.Fields(herkunft) = titel;
    rows.Update();
}

// One statement instead of an edit of each row: thousands of addresses may have lost their last stay, and a stay that
// another station saves meanwhile must not lose its mark.
void AdressBenutzungBereinigen(jet::Database& db, const Nutzer& nutzer) {
    const std::string spalte = "Address.BenutztVon" + Steckplatz(nutzer);
    db.Execute("UPDATE tblBelegung RIGHT JOIN Address ON tblBelegung.GastID = Address.ID SET " + spalte +
               " = Null WHERE (((tblBelegung.GastID) Is Null) AND ((" + spalte + ") Is Not Null));");
}

bool AdresseFrei(jet::Database& db, std::int64_t id) {
    for (const auto& [tabelle, spalte] : Verweise()) {
        const std::string feld = tabelle + "." + spalte;
        if (gibtZeilen(db,
                       "SELECT " + feld + " From " + tabelle + " WHERE (((" + feld + ")=" + std::to_string(id) + "));"))
            return false;
    }
    return true;
}

std::vector<std::string> BenutzerDerAdresse(jet::Database& db, std::int64_t id) {
    jet::Recordset rows = db.OpenRecordset(
        "SELECT BenutztVon1, BenutztVon2, BenutztVon3, BenutztVon4, BenutztVon5 From Address WHERE (((Address.ID)=" +
            std::to_string(id) + "));",
        jet::RecordsetType::Snapshot);
    std::vector<std::string> benutzer;
    for (std::size_t i = 0; !rows.Eof() && i < rows.FieldCount(); ++i)
        if (std::string name = rows.At(i).textOr(); !name.empty()) benutzer.push_back(std::move(name));
    return benutzer;
}

void AdresseLöschen(jet::Database& db, std::int64_t id) {
    db.Execute("  DELETE Address.ID, Address.* From Address WHERE (((Address.ID)=" + std::to_string(id) + "));");
}

} // namespace addresses
