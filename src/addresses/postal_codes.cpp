#include "addresses/postal_codes.h"

#include "addresses/like_text.h"
#include "platform/basic/quietly.h"
#include "platform/jet/sql_values.h"
#include "store/database_files.h"

namespace addresses {

namespace {

std::vector<Ort> gelesen(const jet::Workspace& ws, const std::string& datei, std::string_view anfang) {
    jet::Database feiertag = ws.OpenDatabase(datei, false, true, store::openConnect());
    jet::Recordset rows = feiertag.OpenRecordset("SELECT tbPLZ.Ort, tbPLZ.PLZ From tbPLZ WHERE (((tbPLZ.PLZ) Like " +
                                                     jet::sqlText(LikeText(anfang) + "*") + ")) Order by Ort",
                                                 jet::RecordsetType::Snapshot);
    std::vector<Ort> orte;
    for (; !rows.Eof(); rows.MoveNext())
        orte.push_back({rows.At(1).textOr(), rows.At(0).textOr()});
    return orte;
}

} // namespace

std::vector<Ort> OrteZurPLZ(const jet::Workspace& ws, const std::string& datei, std::string_view anfang) {
    if (anfang.empty()) return {};
    return basic::quietly(std::vector<Ort>(), [&] { return gelesen(ws, datei, anfang); });
}

} // namespace addresses
