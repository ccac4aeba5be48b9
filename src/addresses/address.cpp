#include "addresses/address.h"

#include "platform/basic/text.h"

namespace addresses {

namespace {

constexpr auto Fehlt = jet::ErrorNumber::RowDeleted;

struct Textspalte {
    const char* Name;
    std::string Adresse::*Feld;
};

constexpr Textspalte Textspalten[] = {
    {"Lastname", &Adresse::LastName}, {"Firstname", &Adresse::FirstName}, {"phone", &Adresse::Phone},
    {"Tele-Fax", &Adresse::TeleFax},  {"Address", &Adresse::Address},     {"postalcode", &Adresse::PostalCode},
    {"city", &Adresse::City},         {"Country", &Adresse::Country},     {"BemerkAdr", &Adresse::BemerkAdr},
    {"EMAIL", &Adresse::EMAIL},       {"Anrede", &Adresse::Anrede},       {"CompanyName", &Adresse::CompanyName},
    {"Raucher", &Adresse::Raucher}};

std::string Adressabfrage(std::int64_t id) {
    return "SELECT Address.*, tbLänder.Länder AS LandListe, tbLänder.ID AS LandID, tbAnreden.Anrede AS AnredeListe "
           "FROM (Address LEFT JOIN tbLänder ON Address.IDLand = tbLänder.ID) "
           "LEFT JOIN tbAnreden ON Address.IDAnrede = tbAnreden.IDAnrede WHERE (((Address.ID)=" +
           std::to_string(id) + "));";
}

Adresse gelesen(jet::Recordset& rows) {
    const auto text = [&](std::string_view feld) { return rows.Fields(feld).Value().textOr(); };
    Adresse adresse;
    for (const Textspalte& spalte : Textspalten)
        adresse.*spalte.Feld = text(spalte.Name);
    adresse.ID = rows.Fields("Address.ID").Value().longOr();
    // A country that has left the list lives on as the free text.
    adresse.IDLand = rows.Fields("LandID").Value().longOr();
    adresse.Country = rows.Fields("LandListe").Value().textOr(adresse.Country);
    adresse.Anrede = rows.Fields("AnredeListe").Value().textOr(adresse.Anrede);
    adresse.Stammkunde = rows.Fields("OwnerID").Value().longOr(1) == 0;
    adresse.WerErstellt = text("WerErstellt");
    adresse.WannErstellt = rows.Fields("WannErstellt").Value().date();
    adresse.WerGeändert = text("WerGeändert");
    adresse.WannGeändert = rows.Fields("WannGeändert").Value().date();
    return adresse;
}

const std::string& oderName(const std::string& wer, const Speichernder& speichernder) {
    return wer.empty() ? speichernder.Name : wer;
}

/// A salutation key that says something else than the text would hide the text at the next reading.
void AnredeLösen(jet::Database& db, jet::Recordset& rows, const std::string& anrede) {
    const basic::Value schlüssel = rows.Fields("IDAnrede").Value();
    if (schlüssel.isNull()) return;
    jet::Recordset liste =
        db.OpenRecordset("SELECT Anrede FROM tbAnreden WHERE IDAnrede = " + std::to_string(schlüssel.longOr()));
    const bool gleich = !liste.Eof() && basic::equalText(liste.Fields("Anrede").Value().textOr(), anrede);
    if (!gleich) rows.Fields("IDAnrede") = basic::Value();
}

void eintragen(jet::Recordset& rows, const Adresse& adresse) {
    rows.Fields("OwnerID") = adresse.Stammkunde ? 0 : 1;
    for (const Textspalte& spalte : Textspalten)
        rows.Fields(spalte.Name) = adresse.*spalte.Feld;
    rows.Fields("IDLand") = adresse.IDLand == 0 ? basic::Value() : basic::Value(adresse.IDLand);
}

std::int64_t anlegen(jet::Recordset& rows, const Adresse& adresse, const Speichernder& wer) {
    rows.AddNew();
    eintragen(rows, adresse);
    rows.Fields("WerErstellt") = oderName(adresse.WerErstellt, wer);
    rows.Fields("WannErstellt") = wer.Jetzt;
    rows.Update();
    rows.setBookmark(rows.LastModified());
    return rows.Fields("ID").Value().longOr();
}

void ändern(jet::Database& db, jet::Recordset& rows, const Adresse& adresse, const Speichernder& wer) {
    rows.Edit();
    eintragen(rows, adresse);
    AnredeLösen(db, rows, adresse.Anrede);
    rows.Fields("WerGeändert") = oderName(adresse.WerGeändert, wer);
    rows.Fields("WannGeändert") = wer.Jetzt;
    rows.Update();
}

} // namespace

std::optional<Adresse> AdresseLesen(jet::Database& db, std::int64_t id) {
    jet::Recordset rows = db.OpenRecordset(Adressabfrage(id), jet::RecordsetType::Snapshot);
    if (rows.Eof()) return std::nullopt;
    return gelesen(rows);
}

std::int64_t AdresseSpeichern(jet::Database& db, const Adresse& adresse, const Speichernder& wer) {
    jet::Recordset rows = db.OpenRecordset("SELECT * FROM Address WHERE ID = " + std::to_string(adresse.ID));
    if (adresse.ID == 0) return anlegen(rows, adresse, wer);
    if (rows.Eof()) return 0;
    try {
        ändern(db, rows, adresse, wer);
    } catch (const jet::Error& error) {
        if (error.number() == static_cast<int>(Fehlt)) return 0; // deleted since it was read
        throw;
    }
    return adresse.ID;
}

} // namespace addresses
