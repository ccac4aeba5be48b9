#include "addresses/invoice_address.h"

#include "addresses/address_export.h"
#include "addresses/like_text.h"
#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"

namespace addresses {

namespace {

std::optional<Adresstreffer> ersterTreffer(jet::Database& db, const std::string& sql) {
    jet::Recordset rows = db.OpenRecordset(sql, jet::RecordsetType::Snapshot);
    if (rows.Eof()) return std::nullopt;
    return Adresstreffer{rows.At(0).longOr(), rows.At(1).textOr()};
}

std::string Rechnungsabfrage(std::int64_t nummer) {
    return "SELECT tbRechnungen.Renummer_eigen, tbRechnungen.DatumRe, tbRechnungen.Zahlart, tbRechnungen.Re_TEXT1, "
           "tbRechnungen.RE_TEXT2, tbRechnungen.BezahltDatumRe, tbRechnungen.ReNummer, Address.Anrede, "
           "tbAnreden.Anrede AS AnredeListe, Address.FirstName, Address.LastName, Address.CompanyName, "
           "Address.Address, Address.PostalCode, Address.City, Address.Country, tbLänder.Länder, Address.EMAIL, "
           "tbKreditkarte.Kreditkarte, Address.KKNummer, Address.KKGültigBis, Address.BemerkAdr, Address.PLZPostfach, "
           "Address.Postfach, Address.AdressNummer, Address.[Tele-Fax] as FAX "
           "FROM (((tbRechnungen INNER JOIN Address ON tbRechnungen.IDAdresseRe = Address.ID) "
           "LEFT JOIN tbLänder ON Address.IDLand = tbLänder.ID) "
           "LEFT JOIN tbKreditkarte ON Address.IDKreditkarte = tbKreditkarte.IDKreditkarte) "
           "LEFT JOIN tbAnreden ON Address.IDAnrede = tbAnreden.IDAnrede "
           " WHERE (((tbRechnungen.ReNummer)=" +
           std::to_string(nummer) + "));";
}

struct Eigenschaft {
    std::string_view Spalte;
    std::string clsADresse::*Text;
};

constexpr Eigenschaft Eigenschaften[] = {{"FirstName", &clsADresse::Vorname},
                                         {"LastName", &clsADresse::Nachname},
                                         {"CompanyName", &clsADresse::Name2},
                                         {"Address", &clsADresse::Strasse},
                                         {"PostalCode", &clsADresse::PLZ},
                                         {"City", &clsADresse::Ort},
                                         {"EMAIL", &clsADresse::EMail},
                                         {"Kreditkarte", &clsADresse::Kreditkarte},
                                         {"KKNummer", &clsADresse::KKNummer},
                                         {"KKGültigBis", &clsADresse::KKGültigBis},
                                         {"BemerkAdr", &clsADresse::BemerkAdr},
                                         {"PLZPostfach", &clsADresse::PLZPostfach},
                                         {"Postfach", &clsADresse::Postfach},
                                         {"AdressNummer", &clsADresse::Adressnummer},
                                         {"FAX", &clsADresse::FAX},
                                         {"DatumRe", &clsADresse::DatumRe},
                                         {"Re_TEXT1", &clsADresse::Re_TEXT1},
                                         {"BezahltDatumRe", &clsADresse::BezahltDatumRe},
                                         {"Renummer_eigen", &clsADresse::Renummer_eigen},
                                         {"ReNummer", &clsADresse::Renummer},
                                         {"Zahlart", &clsADresse::Zahlart},
                                         {"RE_TEXT2", &clsADresse::Re_TEXT2}};

} // namespace

std::optional<Adresstreffer> clsADresse::AdrSuchen(jet::Database& db, std::string& text) {
    // A text from a buffer of fixed length may carry NUL characters.
    text = basic::LCase(basic::Replace(text, std::string_view("\0", 1), ""));
    if (text.empty()) return std::nullopt;
    return ersterTreffer(db, "Select ID, Lastname from Address Where format(lastname,'<') like " +
                                 jet::sqlText(LikeText(text) + "*") + " order by lastname ");
}

std::optional<Adresstreffer> clsADresse::AdrSuchenID(jet::Database& db, std::int64_t id) {
    return ersterTreffer(db, "Select ID, Lastname from Address Where ID = " + std::to_string(id));
}

bool clsADresse::Adressdaten(jet::Database& db, std::int64_t nummer) {
    *this = {};
    jet::Recordset rows = db.OpenRecordset(Rechnungsabfrage(nummer), jet::RecordsetType::Snapshot);
    if (rows.Eof()) return false;
    const auto text = [&](std::string_view spalte) { return rows.Fields(spalte).Value().textOr(); };
    for (const Eigenschaft& eigenschaft : Eigenschaften)
        this->*eigenschaft.Text = text(eigenschaft.Spalte);
    Anrede = rows.Fields("AnredeListe").Value().textOr(rows.Fields("Address.Anrede").Value().textOr());
    Land = rows.Fields("Länder").Value().textOr(text("Country"));
    return true;
}

std::optional<std::string> clsADresse::Adress_Export(jet::Database& db, std::int64_t id, const std::string& pfad) {
    if (id == 0) return std::nullopt;
    const std::optional<Adresse> adresse = AdresseLesen(db, id);
    if (!adresse) return std::nullopt;
    // Both separators: paths in the stores of older installations carry the other one.
    const std::size_t ordnerende = pfad.find_last_of("\\/");
    const std::string datei = pfad.substr(0, ordnerende == std::string::npos ? 0 : ordnerende + 1) + "adresse.doc";
    if (!AdressdateiSchreiben(datei, *adresse, Satzende::Ohne)) return std::nullopt;
    return datei;
}

} // namespace addresses
