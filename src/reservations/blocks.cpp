#include "reservations/blocks.h"

#include "platform/basic/quietly.h"
#include "platform/jet/sql_values.h"

#include <string>

namespace reservations {

namespace {

/// A pattern of Like that means the text itself. A '#' may be typed into a short name and would stand for a digit, the
/// others may come from imported data.
std::string alsMuster(std::string_view text) {
    std::string muster;
    for (const char zeichen : text) {
        const bool sonderzeichen = std::string_view("*?#[%").find(zeichen) != std::string_view::npos;
        muster += sonderzeichen ? std::string{'[', zeichen, ']'} : std::string(1, zeichen);
    }
    return muster;
}

bool hatZeilen(jet::Database& db, const std::string& abfrage) {
    return !db.OpenRecordset(abfrage, jet::RecordsetType::Snapshot).Eof();
}

} // namespace

bool istBlockmitglied(jet::Database& db, int id) {
    return hatZeilen(db, "SELECT tbBlockbuchung.IDBelegung  From tbBlockbuchung WHERE (((tbBlockbuchung.IDBelegung)= " +
                             std::to_string(id) + " ));");
}

bool istBlockmitgliedMitKürzel(jet::Database& db, std::string_view kürzel) {
    return hatZeilen(db, "SELECT tblBelegung.Kürzel, tbBlockbuchung.IDBlockbuchung FROM tblBelegung INNER JOIN "
                         "tbBlockbuchung ON tblBelegung.ID = tbBlockbuchung.IDBelegung  WHERE (((tblBelegung.Kürzel) "
                         "Like " +
                             jet::sqlText(alsMuster(kürzel)) + ")); ");
}

void FixÜbernehmen(jet::Database& db, int id, bool fix) {
    auto rs = db.OpenRecordset("SELECT tbBlockbuchung.IDBlockbuchung FROM tbBlockbuchung  INNER JOIN tblBelegung ON "
                               "tbBlockbuchung.IDBelegung = tblBelegung.ID  WHERE (((tblBelegung.ID)=" +
                                   std::to_string(id) + "));",
                               jet::RecordsetType::Snapshot);
    if (rs.Eof() || rs.At(0).isNull()) return;
    db.Execute(std::string("UPDATE tbBlockbuchung INNER JOIN tblBelegung ON tbBlockbuchung.IDBelegung = tblBelegung.id "
                           " SET tblBelegung.FIX = ") +
               (fix ? "-1" : "0") + " WHERE (((tbBlockbuchung.IDBlockbuchung)=" + std::to_string(rs.At(0).longOr()) +
               "));");
}

void AusBlockNehmen(jet::Database& db, int id) {
    db.Execute(" DELETE tbBlockbuchung.IDBelegung From tbBlockbuchung  WHERE (((tbBlockbuchung.IDBelegung)=" +
               std::to_string(id) + ")); ");
}

bool BemerkungÜbernehmen(jet::Database& db, int id, std::string_view bemerkung) {
    // The remark stands in the statement as it is: a text with an apostrophe has never reached the members. It is
    // turned away before it could end its literal and say something else.
    if (bemerkung.find('\'') != std::string_view::npos) return false;
    const std::string wert = bemerkung.empty() ? "NULL" : "CStr(" + jet::sqlText(bemerkung) + ")";
    return basic::quietly([&] {
        db.Execute("UPDATE tbBlockbuchung  INNER JOIN tblBelegung  ON tbBlockbuchung.IDBelegung = tblBelegung.ID  SET "
                   "tblBelegung.Info = " +
                   wert +
                   " WHERE (((tbBlockbuchung.IDBlockbuchung)=(SELECT tbBlockbuchung.IDBlockbuchung  From "
                   "tbBlockbuchung  WHERE (((tbBlockbuchung.IDBelegung)=" +
                   std::to_string(id) + "));)));");
    });
}

} // namespace reservations
