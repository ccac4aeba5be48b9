#pragma once

#include "platform/jet/workspace.h"
#include "support/temp_folder.h"

#include <fstream>
#include <sstream>
#include <string>

namespace support {

/// A folder with a workspace whose clock stands still.
struct JetFolder {
    TempFolder folder;
    services::FixedClock clock{basic::Date::fromYmdHms(2026, 6, 15, 10, 30, 0)};
    jet::Workspace workspace{clock};

    [[nodiscard]] std::string file(std::string_view name) const { return folder.file(name); }
    [[nodiscard]] jet::Database create(std::string_view name, std::string_view connect = {}) const {
        return workspace.CreateDatabase(file(name), connect);
    }
    [[nodiscard]] jet::Database open(std::string_view name, std::string_view connect = {}) const {
        return workspace.OpenDatabase(file(name), false, false, connect);
    }
};

/// Number of the Error that the action raises; 0 when it raises none.
template <typename Action>
int errorNumber(const Action& action) {
    try {
        action();
        return 0;
    } catch (const jet::Error& error) {
        return error.number();
    }
}

template <typename Action>
std::string errorText(const Action& action) {
    try {
        action();
        return {};
    } catch (const jet::Error& error) {
        return error.text();
    }
}

/// First field of the first row as text; "(keine)" where there is no row.
inline std::string oneValue(jet::Database& database, std::string_view select) {
    jet::Recordset rows = database.OpenRecordset(select, jet::RecordsetType::Snapshot);
    return rows.Eof() ? "(keine)" : rows.At(0).textOr("Null");
}

/// All rows, fields between blanks, rows between bars.
inline std::string allRows(jet::Database& database, std::string_view select) {
    std::string text;
    jet::Recordset rows = database.OpenRecordset(select, jet::RecordsetType::Snapshot);
    for (; !rows.Eof(); rows.MoveNext()) {
        if (!text.empty()) text += " | ";
        for (std::size_t i = 0; i < rows.FieldCount(); ++i)
            text += (i == 0 ? "" : " ") + rows.At(i).textOr("Null");
    }
    return text;
}

inline std::string fileBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

inline void writeBytes(const std::string& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace support
