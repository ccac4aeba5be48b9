#include "platform/jet/recordset_state.h"

#include <algorithm>

namespace jet {

namespace {

char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Equal but for the case of plain letters: the usual spelling differences, without folding anything.
bool sameAscii(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    return std::equal(a.begin(), a.end(), b.begin(),
                      [](char x, char y) { return x == y || lowerAscii(x) == lowerAscii(y); });
}

using Match = bool (*)(const OutputColumn& column, const SqlName& name);

bool matchesName(const OutputColumn& column, const SqlName& name) { return column.name == name; }

bool matchesQualified(const OutputColumn& column, const SqlName& name) {
    if (column.sourceAlias.empty()) return false;
    return column.sourceAlias.folded() + "." + column.sourceField.folded() == name.folded();
}

bool matchesField(const OutputColumn& column, const SqlName& name) {
    return !column.sourceField.empty() && column.sourceField == name;
}

std::optional<std::size_t> findColumn(const std::vector<OutputColumn>& columns, std::string_view name) {
    const auto place = [&](auto found) { return static_cast<std::size_t>(found - columns.begin()); };
    const auto quick =
        std::ranges::find_if(columns, [&](const auto& column) { return sameAscii(column.name.text(), name); });
    if (quick != columns.end()) return place(quick);
    const SqlName folded(name);
    for (const Match matches : {&matchesName, &matchesQualified, &matchesField}) {
        const auto found = std::ranges::find_if(columns, [&](const auto& column) { return matches(column, folded); });
        if (found != columns.end()) return place(found);
    }
    return std::nullopt;
}

} // namespace

void Recordset::State::read() {
    const auto identities = type == RecordsetType::Dynaset ? Identities::Include : Identities::Omit;
    RowsOfPlan result = connection->query(select, identities);
    plan = std::move(result.plan);
    use = std::move(result.use);
    rows = std::move(result.rows);
    deleted.clear();
    deletedCount = 0;
    lastModified.reset();
    current = 0;
    bof = eof = rows.count == 0;
}

void Recordset::State::requireOpen() const {
    if (!connection || !connection->isOpen()) raise(ErrorNumber::DatabaseClosed);
}

std::size_t Recordset::State::requireRow() const {
    if (bof || eof) raise(ErrorNumber::NoCurrentRecord);
    if (isDeleted(current)) raise(ErrorNumber::RowDeleted);
    return current;
}

std::optional<std::size_t> Recordset::State::nextRow(std::size_t from) const {
    for (std::size_t row = from; row < rows.count; ++row)
        if (!isDeleted(row)) return row;
    return std::nullopt;
}

std::optional<std::size_t> Recordset::State::previousRow(std::size_t before) const {
    for (std::size_t row = before; row > 0; --row)
        if (!isDeleted(row - 1)) return row - 1;
    return std::nullopt;
}

/// On the row, or before the first (behind the last) where there is none.
void Recordset::State::standOn(std::optional<std::size_t> row, bool& otherwise) {
    bof = eof = false;
    if (row)
        current = *row;
    else
        otherwise = true;
}

void Recordset::State::dropPending() {
    mode = Mode::Reading;
    pending.clear();
    assigned.clear();
}

std::size_t Recordset::State::ordinal(std::string_view name) const {
    requireOpen();
    const auto found = findColumn(plan->columns, name);
    if (!found) raise(ErrorNumber::ItemNotFound, name);
    return *found;
}

const Value& Recordset::State::valueAt(std::size_t column) const {
    if (column >= rows.width) raise(ErrorNumber::ItemNotFound, std::to_string(column));
    if (mode != Mode::Reading) return pending[column];
    return value(requireRow(), column);
}

Recordset::Recordset(std::shared_ptr<Connection> connection, std::string select, RecordsetType type)
    : state_(std::make_unique<State>()) {
    state_->connection = std::move(connection);
    state_->select = std::move(select);
    state_->type = type;
    state_->read();
}

Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::Eof() const { return state_->eof; }

bool Recordset::Bof() const { return state_->bof; }

void Recordset::MoveFirst() {
    state_->requireOpen();
    const auto first = state_->nextRow(0);
    if (!first) raise(ErrorNumber::NoCurrentRecord);
    state_->dropPending();
    state_->standOn(first, state_->eof);
}

void Recordset::MoveLast() {
    state_->requireOpen();
    const auto last = state_->previousRow(state_->rows.count);
    if (!last) raise(ErrorNumber::NoCurrentRecord);
    state_->dropPending();
    state_->standOn(last, state_->bof);
}

void Recordset::MoveNext() {
    state_->requireOpen();
    if (state_->eof) raise(ErrorNumber::NoCurrentRecord);
    if (state_->mode != State::Mode::Reading) state_->dropPending();
    state_->standOn(state_->nextRow(state_->bof ? 0 : state_->current + 1), state_->eof);
}

void Recordset::MovePrevious() {
    state_->requireOpen();
    if (state_->bof) raise(ErrorNumber::NoCurrentRecord);
    if (state_->mode != State::Mode::Reading) state_->dropPending();
    state_->standOn(state_->previousRow(state_->eof ? state_->rows.count : state_->current), state_->bof);
}

int Recordset::RecordCount() const { return static_cast<int>(state_->rows.count - state_->deletedCount); }

RecordField Recordset::Fields(std::string_view name) { return {*this, state_->ordinal(name)}; }

RecordField Recordset::Fields(std::size_t position) {
    if (position >= state_->rows.width) raise(ErrorNumber::ItemNotFound, std::to_string(position));
    return {*this, position};
}

std::size_t Recordset::FieldCount() const { return state_->rows.width; }

std::string Recordset::FieldName(std::size_t position) const {
    if (position >= state_->rows.width) raise(ErrorNumber::ItemNotFound, std::to_string(position));
    return state_->plan->columns[position].name.text();
}

ExprType Recordset::FieldTypeAt(std::size_t position) const {
    if (position >= state_->rows.width) raise(ErrorNumber::ItemNotFound, std::to_string(position));
    return state_->plan->columns[position].type;
}

std::size_t Recordset::Ordinal(std::string_view name) const { return state_->ordinal(name); }

const Value& Recordset::At(std::size_t position) const { return state_->valueAt(position); }

void Recordset::AddNew() { state_->beginAdd(); }

void Recordset::Edit() { state_->beginEdit(); }

void Recordset::Update() { state_->update(); }

void Recordset::CancelUpdate() {
    if (state_->mode == State::Mode::Reading) raise(ErrorNumber::NoEdit);
    state_->dropPending();
}

void Recordset::Delete() { state_->remove(); }

Bookmark Recordset::bookmark() const {
    if (state_->bof || state_->eof) raise(ErrorNumber::NoCurrentRecord);
    return Bookmark{state_->current};
}

void Recordset::setBookmark(Bookmark bookmark) {
    state_->requireOpen();
    const auto row = static_cast<std::size_t>(bookmark);
    if (row >= state_->rows.count) raise(ErrorNumber::InvalidBookmark);
    state_->dropPending();
    state_->standOn(row, state_->eof);
}

Bookmark Recordset::LastModified() const {
    if (!state_->lastModified) raise(ErrorNumber::NoCurrentRecord);
    return Bookmark{*state_->lastModified};
}

void Recordset::Requery() {
    state_->requireOpen();
    state_->dropPending();
    state_->read();
}

void Recordset::Close() {
    state_->dropPending();
    state_->connection.reset();
    state_->rows.count = 0;
    state_->bof = state_->eof = true;
}

const Value& RecordField::Value() const { return recordset_->state_->valueAt(column_); }

RecordField& RecordField::operator=(const basic::Value& value) {
    recordset_->state_->assign(column_, value);
    return *this;
}

std::string RecordField::Name() const { return recordset_->FieldName(column_); }

} // namespace jet
