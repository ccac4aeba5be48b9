#include "reservations/tariffs.h"

#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/jet/sql_values.h"

#include <algorithm>

namespace reservations {

namespace {

std::string formatiert(double preis) { return basic::Format(preis, "###,##0.00"); }

std::vector<std::string> lesen(jet::Database& db) {
    std::vector<std::string> tarife;
    auto rs = db.OpenRecordset("SELECT CDbl([tblTarife].[Tarif]) AS dTarif From tblTarife  ORDER BY "
                               "CDbl([tblTarife].[Tarif])",
                               jet::RecordsetType::Snapshot);
    for (; !rs.Eof(); rs.MoveNext())
        tarife.push_back(formatiert(rs.At(0).doubleOr()));
    return tarife;
}

} // namespace

std::vector<std::string> TarifeLesen(jet::Database& db) {
    return basic::quietly(std::vector<std::string>(), [&] { return lesen(db); });
}

bool TarifAnlegen(jet::Database& db, std::string_view preis) {
    const auto zahl = basic::parseNumber(preis);
    if (!zahl) return false;
    const std::string tarif = formatiert(*zahl);
    const std::vector<std::string> tarife = TarifeLesen(db);
    if (std::ranges::find(tarife, tarif) != tarife.end()) return false;
    return basic::quietly(false, [&] {
        auto rs = db.OpenRecordset("SELECT tblTarife.Tarif From tblTarife WHERE (((tblTarife.Tarif) like " +
                                   jet::sqlText(preis) + " )); ");
        if (!rs.Eof()) return false;
        rs.AddNew();
        rs.Fields("Tarif") = tarif;
        rs.Update();
        return true;
    });
}

bool TarifLöschen(jet::Database& db, std::string_view preis) {
    const auto zahl = basic::parseNumber(preis);
    // What is no number can be taken out too: one such row keeps the whole list from being read.
    const std::string tarif = zahl ? formatiert(*zahl) : std::string(preis);
    return basic::quietly(false, [&] {
        auto rs = db.OpenRecordset("SELECT tblTarife.Tarif From tblTarife WHERE format(tblTarife.Tarif, "
                                   "'###,##0.00')= " +
                                   jet::sqlText(tarif) + " ");
        if (rs.Eof()) return false;
        rs.Delete();
        return true;
    });
}

} // namespace reservations
