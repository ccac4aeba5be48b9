#include "store/sample_dates.h"

#include "platform/basic/dates.h"
#include "store/database_files.h"

#include <array>
#include <utility>

namespace store {

namespace {

/// Rows come in the order of their numbers: the first is the one that the sample was built around.
int daysBehind(jet::Recordset& stays, basic::Date today) {
    if (stays.Eof()) return 0;
    return today.dayNumber() - stays.Fields("Von").Value().dateOr(today).dayNumber();
}

void shiftField(jet::Recordset& rows, std::string_view field, int days) {
    if (const auto date = rows.Fields(field).Value().date()) rows.Fields(field) = basic::DateAdd("d", days, *date);
}

void shiftStays(jet::Recordset& stays, int days) {
    for (; !stays.Eof(); stays.MoveNext()) {
        stays.Edit();
        shiftField(stays, "Von", days);
        shiftField(stays, "Bis", days);
        stays.Update();
    }
}

void shiftBilling(jet::Database& database, int days) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kColumns = {{{"tbZahlung", "ZahlDatum"},
                                                                                        {"tbRePosten", "DatumPo"},
                                                                                        {"tbRePosten", "DatumPoBis"},
                                                                                        {"tbRechnungen", "DatumRe"}}};
    for (const auto& [table, field] : kColumns) {
        const std::string column = std::string(table) + "." + std::string(field);
        database.Execute("UPDATE " + std::string(table) + " SET " + column + " = DateAdd('d'," + std::to_string(days) +
                         " ," + column + ")");
    }
}

} // namespace

void shiftSampleDates(const jet::Workspace& workspace, const std::string& beispiel, basic::Date today) {
    jet::Database database = workspace.OpenDatabase(beispiel, false, false, openConnect());
    // A shift cut short would never be made good: the first stay would arrive today already.
    jet::Transaction transaction(database, "tblBelegung");
    jet::Recordset stays = database.OpenRecordset("tblBelegung");
    const int days = daysBehind(stays, today);
    if (days == 0) return;
    shiftStays(stays, days);
    shiftBilling(database, days);
    transaction.Commit();
}

} // namespace store
