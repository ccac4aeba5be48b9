#include "start/parameters.h"

#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"

namespace start {

namespace {

void schreiben(jet::Recordset& rows, std::string_view key, std::string_view name, const Feldwerte& felder) {
    if (rows.Eof()) {
        rows.AddNew();
        rows.Fields(key) = name;
    } else {
        rows.Edit();
    }
    for (const auto& [feld, wert] : felder)
        rows.Fields(feld) = wert;
    rows.Update();
}

} // namespace

std::optional<basic::Value> FeldLesen(jet::Database& db, std::string_view satz, std::string_view feld) {
    jet::Recordset rows = db.OpenRecordset("SELECT SATZ, " + std::string(feld) +
                                               " from tblParameter WHERE Satz = " + jet::sqlText(satz) + ";",
                                           jet::RecordsetType::Snapshot);
    if (rows.Eof()) return std::nullopt;
    return rows.Fields(feld).Value();
}

std::optional<std::string> JaNeinLesen(jet::Database& db, std::string_view satz) {
    const auto wert = FeldLesen(db, satz);
    if (!wert) return std::nullopt;
    return wert->textOr();
}

void JaNeinSchreiben(jet::Database& db, std::string_view satz, int wert) {
    SatzSchreiben(db, satz, {{"F1", wert == 1 ? "Ja" : "Nein"}});
}

std::string BeschriftungLesen(jet::Database& db, std::string_view feld) {
    const auto wert = FeldLesen(db, "Beschriftungen", feld);
    return wert ? wert->textOr() : "Bezeichnung";
}

void SatzSchreiben(jet::Database& db, std::string_view satz, const Feldwerte& felder) {
    jet::Recordset rows = db.OpenRecordset("SELECT * FROM tblParameter WHERE Satz = " + jet::sqlText(satz));
    schreiben(rows, "Satz", satz, felder);
}

void TextSchreiben(jet::Database& db, std::string_view textbaustein, std::string_view inhalt) {
    jet::Recordset rows = db.OpenRecordset("SELECT * FROM tblTexte WHERE Textbaustein = " + jet::sqlText(textbaustein));
    schreiben(rows, "Textbaustein", textbaustein, {{"Inhalt", std::string(inhalt)}});
}

} // namespace start
