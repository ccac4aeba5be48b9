#include "platform/jet/field_value.h"
#include "platform/jet/recordset_state.h"

#include <algorithm>

namespace jet {

namespace {

const Column& columnOf(const Compiled& plan, const OutputColumn& output) {
    const Table& table = *plan.sources[static_cast<std::size_t>(output.source)].table;
    return table.columns[static_cast<std::size_t>(output.column)];
}

std::string parameter(int index) { return "?" + std::to_string(index); }

std::string qualifiedTable(const Compiled& plan, std::size_t source) {
    return plan.sources[source].table->qualifiedName();
}

} // namespace

void Recordset::State::requireUpdatable() const {
    requireOpen();
    if (type == RecordsetType::Snapshot) raise(ErrorNumber::NotSupported);
    if (!plan->updatable || plan->sources.empty()) raise(ErrorNumber::NotUpdatable);
}

void Recordset::State::beginAdd() {
    requireUpdatable();
    pending.assign(rows.width, Value());
    assigned.assign(rows.width, false);
    for (std::size_t i = 0; i < rows.width; ++i)
        if (plan->columns[i].source >= 0 && plan->columns[i].type == ExprType::Boolean) pending[i] = false;
    mode = Mode::Adding;
}

void Recordset::State::beginEdit() {
    requireUpdatable();
    const Value* record = rows.row(requireRow());
    pending.assign(record, record + rows.width);
    assigned.assign(rows.width, false);
    mode = Mode::Editing;
}

void Recordset::State::assign(std::size_t column, const Value& value) {
    if (mode == Mode::Reading) raise(ErrorNumber::NoEdit);
    const OutputColumn& output = plan->columns[column];
    if (output.source < 0) raise(ErrorNumber::NotUpdatable, output.name.text());
    const auto source = static_cast<std::size_t>(output.source);
    const Column& field = columnOf(*plan, output);
    if (mode == Mode::Editing && rows.identity(current, source) == RowBlock::noIdentity)
        raise(ErrorNumber::NoCurrentRecord, output.name.text());
    if (mode == Mode::Editing && field.counter) raise(ErrorNumber::NotUpdatable, output.name.text());
    pending[column] = storedValue(field, value);
    assigned[firstOf(column)] = true;
    // A field may stand in the list twice; both show the new value and it is written once.
    for (std::size_t i = 0; i < rows.width; ++i)
        if (i != column && plan->columns[i].source == output.source && plan->columns[i].column == output.column)
            pending[i] = pending[column];
}

/// The first column of the list that shows the same field.
std::size_t Recordset::State::firstOf(std::size_t column) const {
    const OutputColumn& output = plan->columns[column];
    for (std::size_t i = 0; i < column; ++i)
        if (plan->columns[i].source == output.source && plan->columns[i].column == output.column) return i;
    return column;
}

std::vector<std::size_t> Recordset::State::assignedSources() const {
    std::vector<std::size_t> sources;
    for (std::size_t i = 0; i < rows.width; ++i)
        if (assigned[i]) sources.push_back(static_cast<std::size_t>(plan->columns[i].source));
    std::ranges::sort(sources);
    sources.erase(std::unique(sources.begin(), sources.end()), sources.end());
    return sources;
}

std::vector<std::size_t> Recordset::State::assignedColumns(std::size_t source) const {
    std::vector<std::size_t> columns;
    for (std::size_t i = 0; i < rows.width; ++i)
        if (assigned[i] && belongsTo(i, source)) columns.push_back(i);
    return columns;
}

/// Columns of the list that show this table's fields, each field once.
std::vector<std::size_t> Recordset::State::shownColumns(std::size_t source) const {
    std::vector<std::size_t> columns;
    for (std::size_t i = 0; i < rows.width; ++i)
        if (belongsTo(i, source) && firstOf(i) == i) columns.push_back(i);
    return columns;
}

std::string Recordset::State::fieldName(std::size_t column) const {
    return quoted(columnOf(*plan, plan->columns[column]).name.text());
}

std::string Recordset::State::insertText(std::size_t source, const std::vector<std::size_t>& written) const {
    std::string fields;
    std::string values;
    int index = 0;
    for (const std::size_t column : written) {
        fields += (fields.empty() ? "" : ", ") + fieldName(column);
        values += (values.empty() ? "" : ", ") + parameter(++index);
    }
    if (fields.empty()) return "INSERT INTO " + qualifiedTable(*plan, source) + " DEFAULT VALUES";
    return "INSERT INTO " + qualifiedTable(*plan, source) + " (" + fields + ") VALUES (" + values + ")";
}

/// The row as it was read: its identity and every field that the list shows, byte by byte.
std::string Recordset::State::conditionText(const std::vector<std::size_t>& shown, int firstParameter) const {
    std::string text = " WHERE _rowid_ = " + parameter(firstParameter);
    int index = firstParameter;
    for (const std::size_t column : shown) {
        text += " AND " + fieldName(column) + " IS " + parameter(++index);
        if (plan->columns[column].type == ExprType::Text) text += " COLLATE BINARY";
    }
    return text;
}

std::string Recordset::State::updateText(std::size_t source, const PlannedWrite& write) const {
    std::string text = "UPDATE " + qualifiedTable(*plan, source) + " SET ";
    int index = 0;
    for (const std::size_t column : write.written) {
        text += (index == 0 ? "" : ", ") + fieldName(column);
        text += " = " + parameter(++index);
    }
    return text + conditionText(write.shown, index + 1);
}

/// Binds fields of a record behind `index` and gives the last index used.
int Recordset::State::bindColumns(sqlite3_stmt* statement, int index, const std::vector<std::size_t>& columns,
                                  const Value* record) const {
    for (const std::size_t column : columns)
        bindValue(statement, ++index, record[column]);
    return index;
}

PlannedWrite Recordset::State::planWrite(PlannedWrite::Kind kind, std::size_t source) const {
    PlannedWrite write{kind, source, assigned, nullptr, 0, assignedColumns(source), shownColumns(source)};
    const bool isInsert = kind == PlannedWrite::Kind::Insert;
    write.statement =
        connection->keptStatement(isInsert ? insertText(source, write.written) : updateText(source, write));
    write.generation = connection->statementGeneration();
    return write;
}

/// Writes of one kind come in loops and in recordsets of the same plan: they find their statement without its text.
const PlannedWrite& Recordset::State::prepareWrite(std::size_t source) {
    constexpr std::size_t maxKept = 8;
    const auto kind = mode == Mode::Adding ? PlannedWrite::Kind::Insert : PlannedWrite::Kind::Update;
    const auto found = std::ranges::find_if(use->writes, [&](const PlannedWrite& write) {
        return write.generation == connection->statementGeneration() && write.source == source && write.kind == kind &&
               write.assigned == assigned;
    });
    if (found == use->writes.begin() && found != use->writes.end()) return *found;
    PlannedWrite write = found == use->writes.end() ? planWrite(kind, source) : std::move(*found);
    if (found != use->writes.end()) use->writes.erase(found);
    if (use->writes.size() >= maxKept) use->writes.pop_back();
    return *use->writes.insert(use->writes.begin(), std::move(write));
}

void Recordset::State::update() {
    requireOpen();
    if (mode == Mode::Reading) raise(ErrorNumber::NoEdit);
    if (mode == Mode::Adding)
        insertAll();
    else
        updateAll();
    dropPending();
}

void Recordset::State::insertAll() {
    std::vector<std::size_t> sources = assignedSources();
    if (sources.empty()) sources.push_back(0);
    std::vector<std::int64_t> identities(rows.identityWidth, RowBlock::noIdentity);
    for (const std::size_t source : sources) {
        identities[source] = insert(source);
        completeInserted(source, identities[source]);
    }
    lastModified = rows.count;
    rows.append(std::move(pending), identities);
    if (!deleted.empty()) deleted.push_back(false);
}

std::int64_t Recordset::State::insert(std::size_t source) {
    const PlannedWrite& write = prepareWrite(source);
    bindColumns(write.statement, 0, write.written, pending.data());
    connection->write(write.statement, plan->sources[source].table->schema);
    return sqlite3_last_insert_rowid(connection->storage());
}

/// The number that the engine has given.
void Recordset::State::completeInserted(std::size_t source, std::int64_t identity) {
    for (std::size_t i = 0; i < rows.width; ++i)
        if (belongsTo(i, source) && columnOf(*plan, plan->columns[i]).counter) pending[i] = identity;
}

void Recordset::State::updateAll() {
    const std::size_t row = requireRow();
    const std::vector<std::size_t> sources = assignedSources();
    // Of several tables none is written when one has changed.
    if (sources.empty()) requireUnchanged(0);
    for (const std::size_t source : sources)
        if (sources.size() > 1) requireUnchanged(source);
    for (const std::size_t source : sources) {
        updateSource(source);
        showEverywhere(source);
    }
    lastModified = row;
}

void Recordset::State::updateSource(std::size_t source) {
    const PlannedWrite& write = prepareWrite(source);
    const int last = bindColumns(write.statement, 0, write.written, pending.data());
    sqlite3_bind_int64(write.statement, last + 1, rows.identity(current, source));
    bindColumns(write.statement, last + 1, write.shown, rows.row(current));
    if (connection->write(write.statement, plan->sources[source].table->schema) == 0) raiseLost(source);
}

/// An Update that assigns nothing still tells that the row has changed.
void Recordset::State::requireUnchanged(std::size_t source) {
    if (rows.identity(current, source) == RowBlock::noIdentity) return;
    const std::vector<std::size_t> shown = shownColumns(source);
    const std::string text = "SELECT 1 FROM " + qualifiedTable(*plan, source) + conditionText(shown, 1);
    sqlite3_stmt* statement = connection->keptStatement(text);
    sqlite3_bind_int64(statement, 1, rows.identity(current, source));
    bindColumns(statement, 1, shown, rows.row(current));
    bool unchanged = false;
    {
        const ResetGuard reset(statement);
        unchanged = stepRow(statement);
    }
    if (!unchanged) raiseLost(source);
}

void Recordset::State::raiseLost(std::size_t source) const {
    sqlite3_stmt* statement =
        connection->keptStatement("SELECT 1 FROM " + qualifiedTable(*plan, source) + " WHERE _rowid_ = ?1");
    sqlite3_bind_int64(statement, 1, rows.identity(current, source));
    const ResetGuard reset(statement);
    raise(stepRow(statement) ? ErrorNumber::RowChanged : ErrorNumber::RowDeleted);
}

/// The new values in every row of a join that shows the same record.
void Recordset::State::showEverywhere(std::size_t source) {
    const std::int64_t changed = rows.identity(current, source);
    const bool once = rows.identityWidth == 1;
    const std::size_t first = once ? current : 0;
    const std::size_t last = once ? current + 1 : rows.count;
    for (std::size_t row = first; row < last; ++row) {
        if (rows.identity(row, source) != changed) continue;
        for (std::size_t i = 0; i < rows.width; ++i)
            if (belongsTo(i, source)) rows.row(row)[i] = pending[i];
    }
}

void Recordset::State::markDeleted(std::size_t row) {
    if (deleted.empty()) deleted.assign(rows.count, false);
    if (deleted[row]) return;
    deleted[row] = true;
    ++deletedCount;
}

/// Only a counter is never given twice; any other identity may have passed to a new row, which must not go instead.
void Recordset::State::remove() {
    requireUpdatable();
    dropPending();
    const std::size_t row = requireRow();
    const std::int64_t gone = rows.identity(row, 0);
    if (gone == RowBlock::noIdentity) raise(ErrorNumber::NoCurrentRecord);
    const bool reused = std::ranges::none_of(plan->sources.front().table->columns, &Column::counter);
    const std::vector<std::size_t> shown = reused ? shownColumns(0) : std::vector<std::size_t>();
    sqlite3_stmt* statement =
        connection->keptStatement("DELETE FROM " + qualifiedTable(*plan, 0) + conditionText(shown, 1));
    sqlite3_bind_int64(statement, 1, gone);
    bindColumns(statement, 1, shown, &value(row, 0));
    if (connection->write(statement, plan->sources.front().table->schema) == 0) raiseLost(0);
    if (rows.identityWidth == 1) return markDeleted(row);
    for (std::size_t other = 0; other < rows.count; ++other)
        if (rows.identity(other, 0) == gone) markDeleted(other);
}

} // namespace jet
