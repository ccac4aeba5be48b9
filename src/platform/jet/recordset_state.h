#pragma once

#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace jet {

struct Recordset::State {
    enum class Mode { Reading, Adding, Editing };

    std::shared_ptr<Connection> connection; ///< null once closed
    std::string select;
    RecordsetType type = RecordsetType::Dynaset;
    std::shared_ptr<const Compiled> plan;
    std::shared_ptr<PlanUse> use; ///< shared with other recordsets of the plan
    RowBlock rows;

    std::size_t current = 0;
    bool bof = false;
    bool eof = false;
    std::vector<bool> deleted; ///< empty while no row is
    std::size_t deletedCount = 0;
    std::optional<std::size_t> lastModified;

    Mode mode = Mode::Reading;
    std::vector<Value> pending; ///< the record being added or edited, one value for each column
    std::vector<bool> assigned;

    void read();
    void requireOpen() const;
    [[nodiscard]] bool isDeleted(std::size_t row) const { return !deleted.empty() && deleted[row]; }
    [[nodiscard]] std::size_t requireRow() const;
    [[nodiscard]] std::optional<std::size_t> nextRow(std::size_t from) const;
    [[nodiscard]] std::optional<std::size_t> previousRow(std::size_t before) const;
    void standOn(std::optional<std::size_t> row, bool& otherwise);
    void dropPending();
    [[nodiscard]] std::size_t ordinal(std::string_view name) const;
    [[nodiscard]] const Value& value(std::size_t row, std::size_t column) const { return rows.row(row)[column]; }
    [[nodiscard]] const Value& valueAt(std::size_t column) const;

    // writing
    void requireUpdatable() const;
    void beginAdd();
    void beginEdit();
    void assign(std::size_t column, const Value& value);
    void update();
    void remove();

private:
    [[nodiscard]] std::size_t firstOf(std::size_t column) const;
    [[nodiscard]] bool belongsTo(std::size_t column, std::size_t source) const {
        return plan->columns[column].source == static_cast<int>(source);
    }
    [[nodiscard]] std::vector<std::size_t> assignedSources() const;
    [[nodiscard]] std::vector<std::size_t> assignedColumns(std::size_t source) const;
    [[nodiscard]] std::vector<std::size_t> shownColumns(std::size_t source) const;
    [[nodiscard]] const PlannedWrite& prepareWrite(std::size_t source);
    [[nodiscard]] PlannedWrite planWrite(PlannedWrite::Kind kind, std::size_t source) const;
    [[nodiscard]] std::string fieldName(std::size_t column) const;
    [[nodiscard]] std::string insertText(std::size_t source, const std::vector<std::size_t>& written) const;
    [[nodiscard]] std::string updateText(std::size_t source, const PlannedWrite& write) const;
    [[nodiscard]] std::string conditionText(const std::vector<std::size_t>& shown, int firstParameter) const;
    int bindColumns(sqlite3_stmt* statement, int index, const std::vector<std::size_t>& columns,
                    const Value* record) const;

    void insertAll();
    [[nodiscard]] std::int64_t insert(std::size_t source);
    void completeInserted(std::size_t source, std::int64_t identity);
    void updateAll();
    void updateSource(std::size_t source);
    void requireUnchanged(std::size_t source);
    [[noreturn]] void raiseLost(std::size_t source) const;
    void showEverywhere(std::size_t source);
    void markDeleted(std::size_t row);
};

} // namespace jet
