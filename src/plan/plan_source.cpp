#include "plan/plan_source.h"

#include "platform/basic/format.h"
#include "platform/jet/sql_values.h"

#include <map>

namespace plan {

namespace {

/// Positions in the select list of the plan query (some of its names come twice).
enum Feld : std::size_t {
    BelegungsID = 0,
    BelegungsArt = 1,
    ID = 2,
    Zimmernummer = 3,
    Von = 4,
    Bis = 5,
    GastID = 6,
    Kürzel = 8,
    AnzahlGäste = 12,
    Gelöscht = 14,
    Checked = 15,
    IDAdressRechnung = 21,
    NeueNummer = 31,
    Firstname = 32,
    Lastname = 33,
    Diff = 36
};

class Zeilenleser {
public:
    explicit Zeilenleser(const jet::Recordset& rs) : rs_(rs) {}

    void lies(Markierung& row) const {
        row.Von = rs_.At(Von).dateOr();
        row.Bis = rs_.At(Bis).dateOr();
        row.Zimmernummer = number(Zimmernummer);
        row.BelegungsID = number(BelegungsID);
        row.Gelöscht = rs_.At(Gelöscht).boolOr();
        row.Checked = rs_.At(Checked).boolOr();
        row.Diff = number(Diff);
        text(Firstname, row.Firstname);
        text(Lastname, row.Lastname);
        text(NeueNummer, row.NeueNummer);
        row.GastID = number(GastID);
        row.ID = number(ID);
        row.IDAdressRechnung = number(IDAdressRechnung);
        row.AnzahlGäste = number(AnzahlGäste);
        text(Kürzel, row.Kürzel);
    }

private:
    [[nodiscard]] int number(std::size_t field) const { return static_cast<int>(rs_.At(field).longOr(0)); }
    void text(std::size_t field, std::string& into) const {
        const auto& value = rs_.At(field);
        if (value.isText())
            into = value.text();
        else
            into.clear();
    }

    const jet::Recordset& rs_;
};

bool istAngebot(const basic::Value& belegungsart) { return basic::Format(belegungsart, "<") == "angebot"; }

} // namespace

std::string Planabfrage(basic::Date fensterstart, basic::Date fensterende) {
    return "SELECT tbBelegArten.BelegungsID, tbBelegArten.BelegungsArt, tblBelegung.ID, tblBelegung.Zimmernummer, "
           "tblBelegung.Von, tblBelegung.Bis, tblBelegung.GastID, tblBelegung.Info, tblBelegung.Kürzel, "
           "tblBelegung.Preis, tblBelegung.PreisProNacht, tblBelegung.AnzahlÜbernachtungen, tblBelegung.AnzahlGäste, "
           "tblBelegung.Anz_Kinder, tblBelegung.Gelöscht, tblBelegung.Checked, tblBelegung.WerErstellt, "
           "tblBelegung.WannErstellt, tblBelegung.WerGeändert, tblBelegung.WannGeändert, tblBelegung.Abgerechnet, "
           "tblBelegung.IDAdressRechnung, tblBelegung.Wäsche1, tblBelegung.Wäsche2, tblBelegung.Frühstück, "
           "tblBelegung.Zahlart, tblBelegung.Mittag, tblBelegung.Abendessen, tblBelegung.Alter_Kinder, "
           "tblBelegung.BelegNummer, tblBelegung.BelegNummer_eigen, "
           "tbZimmernummern.NeueNummer,Address.Firstname,Address.Lastname, tblBelegung.AnzahlGäste, "
           "tblBelegung.Anz_Kinder, [tbZimmernummern].[AnzahlGästeDefault]-[tblBelegung].[AnzahlGäste] AS Diff FROM "
           "((tblBelegung INNER JOIN tbZimmernummern ON tblBelegung.Zimmernummer = tbZimmernummern.Zimmernummer) INNER "
           "JOIN Address ON tblBelegung.GastID = Address.ID) INNER JOIN tbBelegArten ON tblBelegung.Belegungsart = "
           "tbBelegArten.BelegungsID WHERE (((tblBelegung.Von)<=" +
           jet::sqlDate(fensterende) + ") AND ((tblBelegung.Bis)>=" + jet::sqlDate(fensterstart) + "));";
}

const std::vector<Markierung>& PlanAusDatenbank::Reservierungen(basic::Date fensterstart, basic::Date fensterende) {
    auto rs = db_->OpenRecordset(Planabfrage(fensterstart, fensterende), jet::RecordsetType::Dynaset);
    rows_.resize(static_cast<std::size_t>(rs.RecordCount()));
    const Zeilenleser leser(rs);
    std::map<int, bool> angebot; // asked once for each type instead of once for each row
    for (auto row = rows_.begin(); row != rows_.end(); ++row, rs.MoveNext()) {
        leser.lies(*row);
        const auto [art, neu] = angebot.try_emplace(row->BelegungsID);
        if (neu) art->second = istAngebot(rs.At(BelegungsArt));
        row->Angebot = art->second;
    }
    return rows_;
}

std::vector<masterdata::Feiertag> PlanAusDatenbank::Feiertage(basic::Date start, basic::Date ende) {
    return masterdata::FeiertageEinlesen(*db_, start, ende);
}

} // namespace plan
