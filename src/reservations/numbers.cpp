#include "reservations/numbers.h"

#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/jet/sql_values.h"

#include <limits>

namespace reservations {

namespace {

using jet::RecordsetType;

constexpr std::int64_t kHöchste = std::numeric_limits<std::int32_t>::max();

bool gibtZeile(jet::Database& db, const std::string& select) {
    return !db.OpenRecordset(select, RecordsetType::Snapshot).Eof();
}

/// Walks the numbers upward to the first one without a row.
std::int64_t ersteFreie(jet::Database& db, jet::Recordset& nummern, std::size_t spalte) {
    std::int64_t kandidat = 1;
    for (; !nummern.Eof(); nummern.MoveNext()) {
        if (nummern.At(spalte).longOr() == kandidat)
            ++kandidat;
        else if (!gibtZeile(db,
                            "SELECT   BelegNummer  From tblBelegung  Where BelegNummer = " + std::to_string(kandidat)))
            break;
    }
    return kandidat;
}

} // namespace

bool BelegnummerVergeben(jet::Database& db, std::int64_t nummer, int id) {
    return gibtZeile(db, " SELECT tblBelegung.BelegNummer, ID  From tblBelegung WHERE ((tblBelegung.BelegNummer = " +
                             std::to_string(nummer) + ") and (ID <> " + std::to_string(id) + "))");
}

bool BelegnummerTextVergeben(jet::Database& db, std::string_view text, int id) {
    return gibtZeile(db,
                     " SELECT tblBelegung.BelegNummer, ID  From tblBelegung WHERE ((tblBelegung.BelegNummer_eigen= " +
                         jet::sqlText(text) + ") and (ID <> " + std::to_string(id) + "))");
}

std::int64_t NächsteBelegnummer(jet::Database& db, const Nummernmuster& muster) {
    auto rs =
        db.OpenRecordset("SELECT distinct BelegNummer_eigen,  BelegNummer  From tblBelegung  Where BelegNummer <> "
                         "NULL and belegnummer > 0   ORDER BY tblBelegung.BelegNummer",
                         RecordsetType::Snapshot);
    if (rs.Eof()) return 1;
    const std::size_t spalte = rs.Ordinal("BelegNummer");
    std::int64_t nummer = 1;
    if (muster.Fehlende == "Alle") nummer = ersteFreie(db, rs, spalte);
    rs.MoveLast();
    // Kept: the free number is not taken. It may stand on a guest's papers, and would then mean two stays.
    nummer = rs.At(spalte).longOr() + 1;
    if (nummer > kHöchste)
        throw jet::Error(static_cast<int>(jet::ErrorNumber::Overflow),
                         "Die höchste Reservierungsnummer ist vergeben (" + std::to_string(kHöchste) +
                             "). Es kann keine weitere vergeben werden.");
    return nummer;
}

std::string BelegnummerText(const Nummernmuster& muster, std::int64_t nummer, basic::Date tag) {
    const std::string datum = muster.Datumsformat.empty() ? "" : basic::Format(tag, muster.Datumsformat);
    return muster.Vor + " " + basic::Format(nummer, "0000") + " " + datum;
}

Nummernmuster MusterAus(const std::vector<std::string>& beNummer) {
    const auto feld = [&](std::size_t i) { return i < beNummer.size() ? beNummer[i] : std::string(); };
    return {.Vor = feld(0), .Datumsformat = feld(1), .Start = feld(2), .Fehlende = feld(3)};
}

} // namespace reservations
