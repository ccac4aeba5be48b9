#include "store/table_fields.h"

#include "platform/basic/quietly.h"
#include "platform/basic/text.h"

#include <algorithm>

namespace store {

namespace {

jet::Database open(const jet::Workspace& workspace, const clsTabFelder& change) {
    return workspace.OpenDatabase(change.DatenbankPfad, false, false, ";PWD=" + change.Passwort);
}

bool hasField(const jet::TableDef& table, std::string_view name) {
    const std::string wanted = basic::foldCase(name);
    return std::ranges::any_of(table.Fields,
                               [&](const jet::FieldDef& field) { return basic::foldCase(field.Name) == wanted; });
}

jet::FieldDef describedField(const clsTabFelder& change) {
    const bool isText = change.FeldTyp == jet::FieldType::Text;
    jet::FieldDef field = jet::CreateField(change.FeldName, change.FeldTyp, isText ? change.FeldGroesse : 0);
    field.AllowZeroLength = isText && change.LeerErlaubt;
    return field;
}

jet::FieldDef firstField(const clsTabFelder& change) {
    if (change.FeldTyp != jet::FieldType::Integer && change.FeldTyp != jet::FieldType::Long)
        return describedField(change);
    return jet::CreateField("ID" + basic::Mid(change.TabellenName, 3), change.FeldTyp);
}

} // namespace

bool clsTabFelder::Anfügen(const jet::Workspace& workspace) const {
    return basic::quietly([&] {
        jet::Database database = open(workspace, *this);
        if (!hasField(database.GetTableDef(TabellenName), FeldName))
            database.AppendField(TabellenName, describedField(*this));
    });
}

bool clsTabFelder::NeueTabelle(const jet::Workspace& workspace) const {
    return basic::quietly([&] {
        jet::Database database = open(workspace, *this);
        if (database.HasTable(TabellenName)) return;
        jet::TableDef table;
        table.Name = TabellenName;
        table.Fields = {firstField(*this)};
        database.AppendTableDef(table);
    });
}

} // namespace store
