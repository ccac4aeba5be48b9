#include "addresses/countries.h"

#include "platform/jet/sql_values.h"

namespace addresses {

namespace {

std::vector<Listeneintrag> Liste(jet::Database& db, std::string_view sql) {
    const jet::RecordsetType nurLesen = jet::RecordsetType::Snapshot;
    std::vector<Listeneintrag> liste;
    for (jet::Recordset rows = db.OpenRecordset(sql, nurLesen); !rows.Eof(); rows.MoveNext())
        if (std::string name = rows.At(1).textOr(); !name.empty())
            liste.push_back({rows.At(0).longOr(), std::move(name)});
    return liste;
}

} // namespace

std::vector<Listeneintrag> LänderLesen(jet::Database& db) {
    return Liste(db, "SELECT ID, Länder FROM tbLänder ORDER BY Länder");
}

std::vector<Listeneintrag> AnredenLesen(jet::Database& db) {
    return Liste(db, "SELECT IDAnrede, Anrede FROM tbAnreden ORDER BY IDAnrede");
}

std::int64_t LandSuchen(jet::Database& db, std::string_view name) {
    jet::Recordset rows =
        db.OpenRecordset("Select * From tbLänder Where Länder = " + jet::sqlText(name), jet::RecordsetType::Snapshot);
    return rows.Eof() ? 0 : rows.Fields("ID").Value().longOr();
}

std::int64_t LandAnlegen(jet::Database& db, std::string_view name) {
    if (const std::int64_t vorhanden = LandSuchen(db, name); vorhanden != 0) return vorhanden;
    jet::Recordset rows = db.OpenRecordset("SELECT * FROM tbLänder WHERE ID = 0");
    rows.AddNew();
    rows.Fields("Länder") = name;
    rows.Update();
    rows.setBookmark(rows.LastModified());
    return rows.Fields("ID").Value().longOr();
}

void LandLöschen(jet::Database& db, std::int64_t id) {
    db.Execute(" delete tbLänder.*, tbLänder.Länder From tbLänder WHERE (((tbLänder.ID)= " + std::to_string(id) + "))");
}

} // namespace addresses
