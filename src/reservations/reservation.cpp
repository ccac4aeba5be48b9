#include "reservations/reservation.h"

#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"

namespace reservations {

namespace {

using basic::Value;

// Reading

constexpr auto Felder =
    "SELECT tblBelegung.ID, tblBelegung.WannErstellt, Wäsche1, Zahlart, tblBelegung.WerErstellt, "
    "tblBelegung.WerGeändert, Wäsche2, Frühstück, AnzahlÜbernachtungen, AnzahlGäste, tblBelegung.Anz_Kinder, Gelöscht, "
    "Zimmernummer, Von, Bis, GastID, Kürzel, Info, Belegungsart, Preis, PreisProNacht, tblBelegung.Checked, "
    "tblBelegung.Mittag, tblBelegung.Abendessen, tblBelegung.Alter_Kinder, tblBelegung.BelegNummer, "
    "tblBelegung.BelegNummer_eigen, tblBelegung.IDAdressRechnung, Fix, VerpflegungAusweisen, Abgerechnet, IST_Geteilt "
    "FROM tblBelegung WHERE ID";

std::string bedingung(std::span<const int> ids) {
    if (ids.size() == 1) return " = " + std::to_string(ids.front());
    std::string list;
    for (const int id : ids)
        list += (list.empty() ? "" : ", ") + std::to_string(id);
    return " in (" + list + ") ORDER BY tblBelegung.ID";
}

class Leser {
public:
    explicit Leser(jet::Recordset& rows) : rows_(&rows) {}

    [[nodiscard]] std::string text(std::string_view field) const { return value(field).textOr(); }
    [[nodiscard]] std::int64_t lang(std::string_view field) const { return value(field).longOr(); }
    [[nodiscard]] int zahl(std::string_view field) const { return static_cast<int>(lang(field)); }
    [[nodiscard]] double betrag(std::string_view field) const { return value(field).doubleOr(); }
    [[nodiscard]] bool ja(std::string_view field) const { return value(field).boolOr(); }
    [[nodiscard]] std::optional<basic::Date> tag(std::string_view field) const { return value(field).date(); }

private:
    [[nodiscard]] Value value(std::string_view field) const { return rows_->Fields(field).Value(); }
    jet::Recordset* rows_;
};

void leseAufenthalt(const Leser& l, Reservierung& r) {
    r.ID = l.zahl("ID");
    r.Zimmernummer = l.zahl("Zimmernummer");
    r.Von = l.tag("Von");
    r.Bis = l.tag("Bis");
    r.AnzahlÜbernachtungen = l.zahl("AnzahlÜbernachtungen");
    r.GastID = l.lang("GastID");
    r.IDAdressRechnung = l.lang("IDAdressRechnung");
    r.Belegungsart = l.zahl("Belegungsart");
    r.Kürzel = l.text("Kürzel");
    r.Info = l.text("Info");
    r.Preis = l.betrag("Preis");
    r.PreisProNacht = l.betrag("PreisProNacht");
    r.Fix = l.ja("Fix");
}

void leseGäste(const Leser& l, Reservierung& r) {
    r.AnzahlGäste = l.zahl("AnzahlGäste");
    r.Anz_Kinder = l.zahl("Anz_Kinder");
    r.Alter_Kinder = l.text("Alter_Kinder");
    r.Frühstück = l.ja("Frühstück");
    r.Mittag = l.ja("Mittag");
    r.Abendessen = l.ja("Abendessen");
    r.VerpflegungAusweisen = l.ja("VerpflegungAusweisen");
    r.Wäsche1 = l.zahl("Wäsche1");
    r.Wäsche2 = l.zahl("Wäsche2");
}

void leseStand(const Leser& l, Reservierung& r) {
    r.BelegNummer = l.lang("BelegNummer");
    r.BelegNummer_eigen = l.text("BelegNummer_eigen");
    r.WannErstellt = l.tag("WannErstellt");
    r.WerErstellt = l.text("WerErstellt");
    r.WerGeändert = l.text("WerGeändert");
    r.Checked = l.ja("Checked");
    r.Gelöscht = l.ja("Gelöscht");
    r.Abgerechnet = l.zahl("Abgerechnet") == 1 || basic::equalText(l.text("IST_Geteilt"), "Y");
}

// Short name

/// "12_05" of "12.05.2026".
std::string tagUndMonat(std::string_view datum) { return basic::Left(datum, 2) + "_" + basic::Mid(datum, 4, 2); }

std::string bisZumKomma(std::string_view name) { return std::string(name.substr(0, name.find(','))); }

// Writing

Value oderNull(const std::string& text) { return text.empty() ? Value() : Value(text); }
Value oderNull(std::int64_t schlüssel) { return schlüssel == 0 ? Value() : Value(schlüssel); }

/// The field order is that of the form; a value that does not fit names its field in the error.
void schreibeAnfang(jet::Recordset& rows, const Reservierung& r) {
    rows.Fields("Von") = r.Von;
    rows.Fields("Bis") = r.Bis;
    rows.Fields("GastID") = r.GastID;
    rows.Fields("IDAdressRechnung") = oderNull(r.IDAdressRechnung);
    rows.Fields("Belegungsart") = r.Belegungsart;
    rows.Fields("VerpflegungAusweisen") = r.VerpflegungAusweisen;
    rows.Fields("Wäsche1") = r.Wäsche1;
    rows.Fields("Wäsche2") = r.Wäsche2;
    rows.Fields("Frühstück") = r.Frühstück;
    rows.Fields("Mittag") = r.Mittag;
    rows.Fields("Abendessen") = r.Abendessen;
    rows.Fields("Alter_Kinder") = oderNull(r.Alter_Kinder);
    rows.Fields("Belegnummer") = r.BelegNummer;
    rows.Fields("BelegNummer_eigen") = oderNull(r.BelegNummer_eigen);
    rows.Fields("AnzahlGäste") = r.AnzahlGäste == 0 ? 1 : r.AnzahlGäste;
}

void schreibeRest(jet::Recordset& rows, const Reservierung& r) {
    rows.Fields("Anz_Kinder") = r.Anz_Kinder;
    rows.Fields("Fix") = r.Fix;
    rows.Fields("WerErstellt") = oderNull(r.WerErstellt);
    rows.Fields("WerGeändert") = oderNull(r.WerGeändert);
    rows.Fields("Info") = oderNull(r.Info);
    rows.Fields("Kürzel") = r.Kürzel;
    rows.Fields("PreisProNacht") = r.PreisProNacht;
    rows.Fields("Preis") = r.Preis;
    rows.Fields("AnzahlÜbernachtungen") = r.AnzahlÜbernachtungen;
    rows.Fields("Checked") = r.Checked;
    rows.Fields("Gelöscht") = r.Gelöscht;
}

Speicherergebnis anlegen(jet::Database& db, Reservierung& r, const std::function<void(Reservierung&)>& ergänzen) {
    auto rows = db.OpenRecordset("SELECT * FROM tblBelegung WHERE Kürzel = " + jet::sqlText(r.Kürzel));
    if (!rows.Eof()) return Speicherergebnis::KürzelVergeben;
    if (ergänzen) ergänzen(r);
    rows.AddNew();
    rows.Fields("Zimmernummer") = r.Zimmernummer == 0 ? 1 : r.Zimmernummer;
    schreibeAnfang(rows, r);
    rows.Fields("WannErstellt") = r.WannErstellt;
    schreibeRest(rows, r);
    rows.Update();
    rows.setBookmark(rows.LastModified());
    r.ID = static_cast<int>(rows.Fields("ID").Value().longOr());
    return Speicherergebnis::Gespeichert;
}

Speicherergebnis ändern(jet::Database& db, const Reservierung& r) {
    auto rows = db.OpenRecordset("SELECT * FROM tblBelegung WHERE ID = " + std::to_string(r.ID));
    if (rows.Eof()) return Speicherergebnis::Verschwunden;
    rows.Edit();
    if (r.Zimmernummer != 0) rows.Fields("Zimmernummer") = r.Zimmernummer;
    schreibeAnfang(rows, r);
    if (r.WannErstellt) rows.Fields("WannErstellt") = r.WannErstellt;
    schreibeRest(rows, r);
    rows.Update();
    return Speicherergebnis::Gespeichert;
}

} // namespace

std::vector<Reservierung> ReservierungenLesen(jet::Database& db, std::span<const int> ids) {
    std::vector<Reservierung> result;
    if (ids.empty()) return result;
    auto rows = db.OpenRecordset(Felder + bedingung(ids), jet::RecordsetType::Snapshot);
    for (; !rows.Eof(); rows.MoveNext()) {
        Reservierung& r = result.emplace_back();
        const Leser leser(rows);
        leseAufenthalt(leser, r);
        leseGäste(leser, r);
        leseStand(leser, r);
    }
    return result;
}

bool KürzelVergeben(jet::Database& db, std::string_view kürzel, int id) {
    if (kürzel.empty()) return false;
    auto rows = db.OpenRecordset("SELECT tblBelegung.*, tblBelegung.Kürzel From tblBelegung WHERE "
                                 "(((tblBelegung.Kürzel)= " +
                                     jet::sqlText(kürzel) + " )); ",
                                 jet::RecordsetType::Snapshot);
    for (; !rows.Eof(); rows.MoveNext())
        if (rows.Fields("ID").Value().longOr() != id) return true;
    return false;
}

std::string VorgabeKürzel(jet::Database& db, std::string_view name, std::string_view von, std::string_view bis,
                          int id) {
    const std::string kürzel =
        basic::Left(basic::Trim(bisZumKomma(basic::Trim(name))), 6) + tagUndMonat(von) + "-" + tagUndMonat(bis);
    std::string frei = kürzel;
    for (int zähler = 1; KürzelVergeben(db, frei, id); ++zähler)
        frei = kürzel + "/" + std::to_string(zähler);
    return frei;
}

std::int64_t LetzteRechnungsadresse(jet::Database& db, std::int64_t gast) {
    auto rows = db.OpenRecordset(
        "SELECT  tblBelegung.Bis, tblBelegung.GastID, tblBelegung.IDAdressRechnung From tblBelegung  Where "
        "(((tblBelegung.Bis) < Date()) And ((tblBelegung.GastID) = " +
            std::to_string(gast) +
            ") And ((tblBelegung.IDAdressRechnung) Is Not Null And (tblBelegung.IDAdressRechnung) <> "
            "(tblBelegung.GastID))) ORDER BY tblBelegung.Bis DESC",
        jet::RecordsetType::Snapshot);
    return rows.Eof() ? 0 : rows.Fields("IDAdressRechnung").Value().longOr();
}

Speicherergebnis ReservierungSpeichern(jet::Database& db, Reservierung& reservierung,
                                       const std::function<void(Reservierung&)>& ergänzen) {
    return reservierung.ID == 0 ? anlegen(db, reservierung, ergänzen) : ändern(db, reservierung);
}

void ReservierungZurücknehmen(jet::Database& db, int id) {
    db.Execute("DELETE tblBelegung.ID From tblBelegung  WHERE (((tblBelegung.ID)=" + std::to_string(id) + "));");
}

void ReservierungLöschen(jet::Database& db, int id, const std::function<void()>& nachDerZeile) {
    const std::string nummer = std::to_string(id);
    db.Execute("DELETE * FROM tblBelegung WHERE ID = " + nummer);
    if (nachDerZeile) nachDerZeile();
    db.Execute(" DELETE tbRePosten.*, tbRePosten.IDBelegung  From tbRePosten  WHERE (((tbRePosten.IDBelegung)=" +
               nummer + "));");
    db.Execute(" DELETE tbRechnungen_zu_Posten.IDBelegung, tbRechnungen_zu_Posten.*  From tbRechnungen_zu_Posten "
               "WHERE (((tbRechnungen_zu_Posten.IDBelegung)=" +
               nummer + "));");
}

} // namespace reservations
