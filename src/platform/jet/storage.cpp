#include "platform/jet/storage.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace jet {

namespace {

constexpr std::string_view errorPrefix = "jet:";

/// "NOT NULL constraint failed: table.field" names the field behind its last point.
std::string fieldOfConstraint(std::string_view message) {
    const auto point = message.rfind('.');
    return point == std::string_view::npos ? std::string() : std::string(message.substr(point + 1));
}

ErrorNumber constraintNumber(int extendedCode) {
    return extendedCode == SQLITE_CONSTRAINT_NOTNULL ? ErrorNumber::ValueRequired : ErrorNumber::KeyViolation;
}

/// What cannot be written has met a full disk, a quota or a limit; the storage tells only the first of them apart.
ErrorNumber inputOutputNumber(int extendedCode) {
    return extendedCode == SQLITE_IOERR_WRITE ? ErrorNumber::DiskFull : ErrorNumber::Corrupt;
}

/// The storage's own bounds on a statement: "too many SQL variables", "Expression tree is too large", ...
bool tellsOfSize(std::string_view message) {
    constexpr std::array<std::string_view, 4> marks{"too many", "too large", "parser stack overflow", "at most"};
    return std::ranges::any_of(marks,
                               [&](std::string_view mark) { return message.find(mark) != std::string_view::npos; });
}

std::optional<ErrorNumber> fileErrorNumber(int extendedCode) {
    switch (extendedCode & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return ErrorNumber::Locked;
    case SQLITE_FULL:
        return ErrorNumber::DiskFull;
    case SQLITE_READONLY:
        return ErrorNumber::NotUpdatable;
    case SQLITE_CORRUPT:
        return ErrorNumber::Corrupt;
    case SQLITE_NOTADB:
        return ErrorNumber::UnknownFormat;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return ErrorNumber::CannotOpen;
    case SQLITE_IOERR:
        return inputOutputNumber(extendedCode);
    case SQLITE_TOOBIG:
        return ErrorNumber::FieldTooSmall;
    default:
        return std::nullopt;
    }
}

void bindTexts(sqlite3_stmt* statement, std::span<const std::string> texts) {
    int index = 0;
    for (const std::string& text : texts)
        sqlite3_bind_text(statement, ++index, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

} // namespace

std::string encodeError(const Error& error) {
    return std::string(errorPrefix) + std::to_string(error.number()) + ":" + error.text();
}

std::optional<Error> decodeError(std::string_view text) {
    if (!text.starts_with(errorPrefix)) return std::nullopt;
    text.remove_prefix(errorPrefix.size());
    int number = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto length = static_cast<std::size_t>(end - text.data());
    if (problem != std::errc() || length >= text.size() || text[length] != ':') return std::nullopt;
    return Error(number, std::string(text.substr(length + 1)));
}

void raiseStorageError(sqlite3* storage) {
    const int extendedCode = sqlite3_extended_errcode(storage);
    const std::string message = sqlite3_errmsg(storage);
    if (const auto error = decodeError(message)) throw Error(*error);
    if ((extendedCode & 0xff) == SQLITE_CONSTRAINT) {
        const ErrorNumber number = constraintNumber(extendedCode);
        raise(number, number == ErrorNumber::ValueRequired ? fieldOfConstraint(message) : std::string());
    }
    if (const auto number = fileErrorNumber(extendedCode)) raise(*number);
    if (message == "integer overflow") raise(ErrorNumber::Overflow);
    if (tellsOfSize(message)) raise(ErrorNumber::TooComplex);
    raise(ErrorNumber::Internal, message);
}

StatementHandle prepareStatement(sqlite3* storage, std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v3(storage, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                          &statement, nullptr);
    if (result != SQLITE_OK) raiseStorageError(storage);
    return StatementHandle(statement);
}

bool stepRow(sqlite3_stmt* statement) {
    const int result = sqlite3_step(statement);
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) raiseStorageError(sqlite3_db_handle(statement));
    return false;
}

void bindValue(sqlite3_stmt* statement, int index, const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        sqlite3_bind_null(statement, index);
        break;
    case Value::Kind::Boolean:
        sqlite3_bind_int(statement, index, std::get<bool>(value.storage()) ? -1 : 0);
        break;
    case Value::Kind::Integer:
        sqlite3_bind_int64(statement, index, std::get<std::int64_t>(value.storage()));
        break;
    case Value::Kind::Double:
        sqlite3_bind_double(statement, index, std::get<double>(value.storage()));
        break;
    case Value::Kind::Date:
        sqlite3_bind_double(statement, index, std::get<Date>(value.storage()).serial());
        break;
    case Value::Kind::Text: {
        const std::string& text = value.text();
        sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
        break;
    }
    }
}

std::string columnText(sqlite3_stmt* statement, int column) {
    const unsigned char* text = sqlite3_column_text(statement, column);
    if (text == nullptr) return {};
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

void run(sqlite3* storage, std::string_view sql, std::span<const std::string> texts) {
    const StatementHandle statement = prepareStatement(storage, sql);
    bindTexts(statement.get(), texts);
    while (stepRow(statement.get())) {
    }
}

std::optional<std::string> queryText(sqlite3* storage, std::string_view sql, std::span<const std::string> texts) {
    const StatementHandle statement = prepareStatement(storage, sql);
    bindTexts(statement.get(), texts);
    if (!stepRow(statement.get()) || sqlite3_column_type(statement.get(), 0) == SQLITE_NULL) return std::nullopt;
    return columnText(statement.get(), 0);
}

std::int64_t queryNumber(sqlite3* storage, std::string_view sql) {
    const StatementHandle statement = prepareStatement(storage, sql);
    return stepRow(statement.get()) ? sqlite3_column_int64(statement.get(), 0) : 0;
}

} // namespace jet
