#include "store/rows.h"

namespace store {

void addRow(jet::Recordset& rows, FieldValues values) {
    rows.AddNew();
    for (const auto& [name, value] : values)
        rows.Fields(name) = value;
    rows.Update();
}

std::int64_t addCountedRow(jet::Recordset& rows, std::string_view counter, FieldValues values) {
    addRow(rows, values);
    rows.setBookmark(rows.LastModified());
    return rows.Fields(counter).Value().longOr();
}

void deleteAll(jet::Recordset& rows) {
    while (!rows.Eof()) {
        rows.Delete();
        rows.MoveNext();
    }
}

} // namespace store
