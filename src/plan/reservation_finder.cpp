#include "plan/reservation_finder.h"

#include "platform/basic/convert.h"
#include "platform/basic/format.h"

#include <functional>
#include <utility>

namespace plan {

namespace {

using jet::Recordset;

/// The day as the statements compare it, read by the rules of the German locale. Two digits mean the years 1930 to
/// 2029 only.
std::string dayText(basic::Date tag) {
    const int year = basic::partsOf(tag).year;
    return basic::Format(tag, year >= 1930 && year <= 2029 ? "dd.mm.yy" : "dd.mm.yyyy");
}

int number(Recordset& rows, std::string_view field) { return static_cast<int>(rows.Fields(field).Value().longOr()); }

std::string text(Recordset& rows, std::string_view field) { return rows.Fields(field).Value().textOr(); }

template <typename T>
std::vector<T> rowsOf(jet::Database& db, const std::string& sql, const std::function<T(Recordset&)>& read) {
    std::vector<T> result;
    for (auto rows = db.OpenRecordset(sql, jet::RecordsetType::Snapshot); !rows.Eof(); rows.MoveNext())
        result.push_back(read(rows));
    return result;
}

Mausfund wartend(Recordset& rows) {
    return {.ID = number(rows, "ID"), .BelegNummer_eigen = text(rows, "BelegNummer_eigen"), .Von = text(rows, "Von")};
}

Mausfund imZimmer(Recordset& rows) {
    auto fund = wartend(rows);
    fund.Bis = text(rows, "Bis");
    fund.GastID = number(rows, "GastID");
    return fund;
}

Aufenthalt aufenthalt(Recordset& rows) {
    return {.ID = number(rows, "ID"),
            .Kürzel = text(rows, "Kürzel"),
            .FirstName = text(rows, "FirstName"),
            .LastName = text(rows, "LastName"),
            .Zimmernummer = number(rows, "Zimmernummer"),
            .Von = rows.Fields("Von").Value().dateOr(),
            .Bis = rows.Fields("Bis").Value().dateOr(),
            .AnzahlGäste = number(rows, "AnzahlGäste"),
            .Preis = rows.Fields("Preis").Value().doubleOr(),
            .Checked = rows.Fields("Checked").Value().boolOr(),
            .GastID = number(rows, "GastID"),
            .IDAdressRechnung = number(rows, "IDAdressRechnung")};
}

std::vector<Aufenthalt> aufenthalte(jet::Database& db, const std::string& bedingung) {
    return rowsOf<Aufenthalt>(
        db,
        "SELECT tblBelegung.ID, tblBelegung.WannErstellt, Wäsche1, Zahlart, tblBelegung.WerErstellt, "
        "tblBelegung.Wergeändert, Wäsche2, Frühstück,AnzahlÜbernachtungen, AnzahlGäste, tblBelegung.Anz_Kinder, "
        "Gelöscht, Zimmernummer, Von, Bis, GastID, Kürzel, Info, Belegungsart, Preis, PreisProNacht, LastName, "
        "FirstName, Address, City, Phone, [Tele-Fax], PostalCode, tblBelegung.Checked, tblBelegung.Mittag, "
        "tblBelegung.Abendessen, tblBelegung.Alter_Kinder, tblBelegung.BelegNummer, tblBelegung.BelegNummer_eigen , "
        "tblBelegung.IDAdressRechnung FROM tblBelegung INNER JOIN Address ON tblBelegung.GastID = Address.ID WHERE (" +
            bedingung + ")",
        aufenthalt);
}

} // namespace

std::vector<Mausfund> UnterMausImZimmer(jet::Database& db, int zimmernummer, basic::Date tag) {
    const auto datum = dayText(tag);
    return rowsOf<Mausfund>(
        db,
        "SELECT ID, BelegNummer_eigen,Von, Bis, Kürzel, GastID, Checked, AnzahlGäste ,tblBelegung.Anz_Kinder FROM "
        "tblBelegung WHERE Zimmernummer = " +
            std::to_string(zimmernummer) + " AND Gelöscht = FALSE  AND DATEDIFF('d',Von, '" + datum +
            "')>=0 AND DATEDIFF('d',Bis, '" + datum + "') < 0;",
        imZimmer);
}

std::vector<Mausfund> UnterMausWartend(jet::Database& db, basic::Date tag) {
    const auto datum = dayText(tag);
    return rowsOf<Mausfund>(
        db,
        "SELECT ID, BelegNummer_eigen, Von, Kürzel, Checked FROM tblBelegung WHERE Gelöscht = TRUE  AND "
        "DATEDIFF('d',Von, '" +
            datum + "')>=0 AND DATEDIFF('d',Bis, '" + datum + "') <= 0;",
        wartend);
}

std::optional<Gastname> GastLesen(jet::Database& db, int gastID) {
    auto rows = db.OpenRecordset("SELECT Address.FirstName, Address.LastName, Address.City From Address WHERE "
                                 "(((Address.ID)=" +
                                     std::to_string(gastID) + "));",
                                 jet::RecordsetType::Snapshot);
    if (rows.Eof()) return std::nullopt;
    return Gastname{text(rows, "FirstName"), text(rows, "LastName"), text(rows, "City")};
}

std::optional<Aufenthalt> AufenthaltLesen(jet::Database& db, int id) {
    auto rows = aufenthalte(db, "Gelöscht = false and tblBelegung.ID = " + std::to_string(id));
    if (rows.empty()) return std::nullopt;
    return std::move(rows.front());
}

std::vector<Aufenthalt> WartendeLesen(jet::Database& db, basic::Date tag) {
    const auto datum = dayText(tag);
    return aufenthalte(db, "Gelöscht = TRUE AND DATEDIFF('d',Von, '" + datum + "')>=0 AND DATEDIFF('d',Bis, '" + datum +
                               "') <= 0");
}

std::vector<int> AktuelleReservierungen(jet::Database& db, int zimmernummer) {
    const auto zimmer = std::to_string(zimmernummer);
    return rowsOf<int>(
        db,
        "SELECT tblBelegung.ID, tblBelegung.Von, DateDiff('d',Now(),[Von]) AS VonDIFF, tblBelegung.Zimmernummer, "
        "DateDiff('d',Now(),[Bis]) AS BisDIFF, tblBelegung.Von, tblBelegung.Bis From tblBelegung WHERE "
        "(((DateDiff('d',Now(),[Von]))>=-2 And (DateDiff('d',Now(),[Von]))<=2) AND ((tblBelegung.Zimmernummer)=" +
            zimmer +
            ")) OR (((DateDiff('d',Now(),[Bis]))>=-2 And (DateDiff('d',Now(),[Bis]))<=2) AND "
            "((tblBelegung.Zimmernummer)=" +
            zimmer + ")) OR (((tblBelegung.Zimmernummer)=" + zimmer +
            ") AND ((tblBelegung.Von)<= Now()) AND ((tblBelegung.Bis)>= Now()))order by tblBelegung.Von;",
        [](Recordset& rows) { return number(rows, "ID"); });
}

} // namespace plan
