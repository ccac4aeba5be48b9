#pragma once

#include "platform/jet/recordset.h"
#include "platform/jet/table_def.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

class Connection;

/// An open data file with what its links reach. One object may close and reopen in place on another file; recordsets
/// opened before then answer 3420.
class Database {
public:
    explicit Database(std::shared_ptr<Connection> connection);
    Database(Database&&) noexcept = default;
    Database& operator=(Database&&) noexcept = default;
    ~Database();

    /// Full path of the file; empty when closed.
    [[nodiscard]] std::string Name() const;
    [[nodiscard]] bool IsOpen() const;
    void Close();

    /// A table's name or a SELECT.
    [[nodiscard]] Recordset OpenRecordset(std::string_view source, RecordsetType type = RecordsetType::Dynaset);
    /// UPDATE, DELETE, INSERT or a definition of tables. Rows that break a key are skipped and not counted; any other
    /// error leaves nothing written.
    void Execute(std::string_view sql);
    /// Rows that the last Execute hit, changed or not.
    [[nodiscard]] int RecordsAffected() const;

    /// Names of all tables and links, in order of their names.
    [[nodiscard]] std::vector<std::string> TableNames() const;
    /// 3265 when there is none.
    [[nodiscard]] TableDef GetTableDef(std::string_view name) const;
    [[nodiscard]] bool HasTable(std::string_view name) const;
    /// Appends a table or (Connect set) a link. 3010 when the name is taken.
    void AppendTableDef(const TableDef& table);
    /// Several at once, with one flush for the tables and one for the links: all tables or none, all links or none.
    void AppendTableDefs(std::span<const TableDef> tables);
    void DeleteTableDef(std::string_view name);
    /// Appends a field to a table of this file (not of a link). 3191 when it is there.
    void AppendField(std::string_view table, const FieldDef& field);
    void SetAllowZeroLength(std::string_view table, std::string_view field, bool allow);
    /// Points a link to another place: 3024 when the file is missing, 3011 when the table is.
    void RefreshLink(std::string_view name, std::string_view connect);

    [[nodiscard]] const std::shared_ptr<Connection>& connection() const { return connection_; }

private:
    std::shared_ptr<Connection> connection_;
};

} // namespace jet
