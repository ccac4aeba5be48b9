#include "platform/jet/row_block.h"

#include "platform/basic/convert.h"
#include "platform/jet/storage.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>

namespace jet {

namespace {

/// A result that has left the range of numbers is an error, not a value.
double finite(double number) {
    if (!std::isfinite(number)) raise(ErrorNumber::Overflow);
    return number;
}

void appendText(sqlite3_stmt* statement, int column, std::vector<Value>& values) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    values.emplace_back(text == nullptr ? std::string() : std::string(text, size));
}

/// A value whose type the translation could not tell: as the storage has it.
void appendAny(sqlite3_stmt* statement, int column, int storedKind, std::vector<Value>& values) {
    switch (storedKind) {
    case SQLITE_INTEGER:
        values.emplace_back(static_cast<std::int64_t>(sqlite3_column_int64(statement, column)));
        break;
    case SQLITE_FLOAT:
        values.emplace_back(finite(sqlite3_column_double(statement, column)));
        break;
    default:
        appendText(statement, column, values);
    }
}

/// Sums and products of whole numbers may pass their 32 bits; they go on as doubles.
void appendWhole(sqlite3_stmt* statement, int column, std::vector<Value>& values) {
    const std::int64_t whole = sqlite3_column_int64(statement, column);
    if (sqlite3_column_type(statement, column) == SQLITE_INTEGER && whole == static_cast<std::int32_t>(whole))
        values.emplace_back(whole);
    else
        values.emplace_back(finite(sqlite3_column_double(statement, column)));
}

void appendValue(sqlite3_stmt* statement, int column, ExprType type, std::vector<Value>& values) {
    const int storedKind = sqlite3_column_type(statement, column);
    if (storedKind == SQLITE_NULL) {
        values.emplace_back();
        return;
    }
    switch (type) {
    case ExprType::Boolean:
        values.emplace_back(sqlite3_column_double(statement, column) != 0);
        break;
    case ExprType::Integer:
    case ExprType::Long:
        appendWhole(statement, column, values);
        break;
    case ExprType::Double:
        values.emplace_back(finite(sqlite3_column_double(statement, column)));
        break;
    case ExprType::Date:
        values.emplace_back(basic::CDate(sqlite3_column_double(statement, column)));
        break;
    case ExprType::Text:
        appendText(statement, column, values);
        break;
    case ExprType::Any:
        appendAny(statement, column, storedKind, values);
        break;
    }
}

std::vector<int> identityColumns(const Compiled& compiled) {
    std::vector<int> columns;
    for (const BaseSource& source : compiled.sources)
        columns.push_back(source.rowIdColumn);
    return columns;
}

std::int64_t wholeNumber(sqlite3_stmt* statement, int column) {
    const bool found = column >= 0 && sqlite3_column_type(statement, column) != SQLITE_NULL;
    return found ? sqlite3_column_int64(statement, column) : RowBlock::noIdentity;
}

/// Rows by their sort keys; those without one come first, as Null sorts. The values stay where they are.
void sortRows(RowBlock& rows, const std::vector<std::int64_t>& keys) {
    if (std::ranges::is_sorted(keys)) return;
    rows.order.resize(rows.count);
    std::iota(rows.order.begin(), rows.order.end(), std::size_t{0});
    std::ranges::stable_sort(rows.order, {}, [&](std::size_t row) { return keys[row]; });
}

} // namespace

void RowBlock::append(std::vector<Value>&& record, const std::vector<std::int64_t>& recordIdentities) {
    values.insert(values.end(), std::make_move_iterator(record.begin()), std::make_move_iterator(record.end()));
    identities.insert(identities.end(), recordIdentities.begin(), recordIdentities.end());
    if (!order.empty()) order.push_back(count);
    ++count;
}

RowBlock readRows(sqlite3_stmt* statement, const Compiled& compiled, std::size_t expected) {
    RowBlock rows;
    std::vector<std::int64_t> sortKeys;
    const std::vector<int> identities = compiled.updatable ? identityColumns(compiled) : std::vector<int>();
    rows.width = compiled.columns.size();
    rows.identityWidth = identities.size();
    rows.values.reserve(expected * rows.width);
    rows.identities.reserve(expected * rows.identityWidth);
    while (stepRow(statement)) {
        int column = 0;
        for (const OutputColumn& output : compiled.columns)
            appendValue(statement, column++, output.type, rows.values);
        for (const int identity : identities)
            rows.identities.push_back(wholeNumber(statement, identity));
        if (compiled.sortColumn >= 0) sortKeys.push_back(wholeNumber(statement, compiled.sortColumn));
        ++rows.count;
    }
    sortRows(rows, sortKeys);
    return rows;
}

} // namespace jet
