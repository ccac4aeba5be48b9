#include "masterdata/holidays.h"

#include "platform/jet/sql_values.h"

namespace masterdata {

std::vector<Feiertag> FeiertageEinlesen(jet::Database& db, basic::Date von, basic::Date bis) {
    std::vector<Feiertag> feiertage;
    auto rs = db.OpenRecordset("SELECT tbFeiertage.FTBezeichnung, tbFeiertage.FTDatum From tbFeiertage  WHERE "
                               "(((tbFeiertage.FTDatum)>=" +
                                   jet::sqlDate(von) + " And (tbFeiertage.FTDatum)<=" + jet::sqlDate(bis) + " )); ",
                               jet::RecordsetType::Snapshot);
    for (; !rs.Eof(); rs.MoveNext())
        feiertage.push_back({rs.Fields("FTDatum").Value().dateOr(), rs.Fields("FTBezeichnung").Value().textOr()});
    return feiertage;
}

} // namespace masterdata
