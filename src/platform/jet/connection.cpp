#include "platform/jet/connection.h"

#include "platform/jet/data_file.h"
#include "platform/jet/definitions.h"
#include "platform/jet/properties.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <thread>

namespace jet {

namespace {

/// Shapes of writes through recordsets; a house has some dozens.
constexpr std::size_t maxKeptStatements = 256;

bool isAny(const Error& error, std::initializer_list<ErrorNumber> numbers) {
    return std::ranges::any_of(numbers, [&](ErrorNumber number) { return static_cast<int>(number) == error.number(); });
}

double clockValue(Slot::Kind kind, Date now) {
    const double day = now.day().serial();
    if (kind == Slot::Kind::Today) return day;
    return kind == Slot::Kind::Now ? now.serial() : now.serial() - day;
}

} // namespace

Connection::Connection(std::shared_ptr<const WorkspaceSettings> settings, const OpenOptions& options)
    : settings_(std::move(settings)), path_(absolutePath(options.path)) {
    requireReadableFile(path_);
    storage_ = openStorage(path_, options.readOnly ? FileMode::ReadOnly : FileMode::ReadWrite, *settings_->clock);
    sqlite3_busy_handler(storage_.get(), &Connection::onBusy, this);
    try {
        openChecked(options);
    } catch (const Error& error) {
        const bool foreign = sqlite3_errcode(storage_.get()) == SQLITE_NOTADB;
        close();
        if (foreign) raiseForeignFile(path_);
        throw Error(error.number(), error.text() + " " + path_);
    }
}

void Connection::openChecked(const OpenOptions& options) {
    requireDataFile(storage_.get(), "main", path_);
    if (!passwordFits(storage_.get(), "main", options.password)) raise(ErrorNumber::WrongPassword);
    if (options.exclusive) openExclusively(options.readOnly);
    rebuildOutdatedIndexes(storage_.get(), "main");
    catalogue_ = std::make_unique<FileCatalogue>(storage_.get(), path_, options.readOnly, options.links);
}

void Connection::openExclusively(bool readOnly) {
    run(storage_.get(), "PRAGMA main.locking_mode=EXCLUSIVE");
    if (readOnly) return;
    run(storage_.get(), "BEGIN EXCLUSIVE");
    run(storage_.get(), "COMMIT");
}

void Connection::close() {
    dropStatements();
    catalogue_.reset();
    storage_.reset();
    transactionSchema_.clear();
}

sqlite3* Connection::storage() const {
    if (!storage_) raise(ErrorNumber::DatabaseClosed);
    return storage_.get();
}

FileCatalogue& Connection::catalogue() {
    if (!storage_) raise(ErrorNumber::DatabaseClosed);
    return *catalogue_;
}

int Connection::onBusy(void* connection, int attempts) noexcept {
    try {
        return static_cast<Connection*>(connection)->waitOn(attempts) ? 1 : 0;
    } catch (...) {
        // Nothing may be thrown through the storage; a wait that cannot be shown ends.
        return 0;
    }
}

bool Connection::waitOn(int attempts) {
    using std::chrono::milliseconds;
    using std::chrono::steady_clock;
    constexpr std::array pauses{1, 2, 5, 10, 15, 20, 25};
    const auto now = steady_clock::now();
    if (attempts == 0) waitStart_ = now;
    const auto waited = std::chrono::duration_cast<milliseconds>(now - waitStart_);
    if (waited.count() >= settings_->lockTimeout) return false;
    if (settings_->waitCallback && !settings_->waitCallback(static_cast<int>(waited.count()))) return false;
    const auto pause = pauses[std::min(static_cast<std::size_t>(attempts), pauses.size() - 1)];
    std::this_thread::sleep_for(std::min(milliseconds(pause), milliseconds(settings_->lockTimeout) - waited));
    return true;
}

Plan Connection::translate(Parsed& parsed, Identities identities) {
    const auto compiled = std::make_shared<const Compiled>(compile(parsed, shape_.literals, catalogue(), identities));
    return {compiled, prepareStatement(storage(), compiled->sql), identities, std::make_shared<PlanUse>(), {}};
}

/// A table or field that is not known may have come with another station's change, or with a link that was set through
/// another connection.
bool Connection::reloadAfterUnknownName(const Error& error) {
    const bool unknownName = isAny(error, {ErrorNumber::UnknownTable, ErrorNumber::TooFewParameters,
                                           ErrorNumber::TableMissing, ErrorNumber::Internal});
    if (!unknownName || inTransaction()) return false;
    if (catalogue().reloadIfChanged()) {
        dropStatements();
        return true;
    }
    if (!isAny(error, {ErrorNumber::UnknownTable})) return false;
    return catalogue().followChangedLinks();
}

/// Translates the statement whose shape is at hand.
Plan& Connection::translateNew(std::string_view sql, Parsed parsed, Identities identities) {
    try {
        return plans_.insert(shape_, translate(parsed, identities));
    } catch (const Error& error) {
        if (!reloadAfterUnknownName(error)) throw;
    }
    Parsed again = parse(sql);
    return plans_.insert(shape_, translate(again, identities));
}

void Connection::bindSlots(const Plan& plan) const {
    int index = 0;
    std::optional<Date> now; // one moment for the whole statement
    for (const Slot& slot : plan.compiled->slots) {
        ++index;
        if (slot.kind == Slot::Kind::Literal) {
            bindValue(plan.statement.get(), index, shape_.literals[slot.literal].value);
            continue;
        }
        if (!now) now = settings_->clock->now();
        sqlite3_bind_double(plan.statement.get(), index, clockValue(slot.kind, *now));
    }
}

/// Has the storage noticed, while it ran the statement, that another process has changed the tables?
bool Connection::wasOutdated(sqlite3_stmt* statement) {
    if (sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_REPREPARE, 1) == 0) return false;
    return catalogue().reloadIfChanged();
}

Plan& Connection::planForRows(std::string_view sql, Identities identities) {
    if (Plan* known = plans_.find(shape_, identities)) return *known;
    Parsed parsed = parse(sql);
    if (!std::holds_alternative<ast::Select>(parsed.statement)) raise(ErrorNumber::StatementKind);
    return translateNew(sql, std::move(parsed), identities);
}

/// Null after a statement that defines tables: it is done already.
Plan* Connection::planForChange(std::string_view sql) {
    if (Plan* known = plans_.find(shape_, Identities::Omit)) return known;
    Parsed parsed = parse(sql);
    if (std::holds_alternative<ast::Select>(parsed.statement)) raise(ErrorNumber::StatementKind);
    if (!isDefinition(parsed.statement)) return &translateNew(sql, std::move(parsed), Identities::Omit);
    define(*this, parsed.statement);
    return nullptr;
}

std::optional<RowBlock> Connection::tryRows(const Plan& plan, bool lastTry) {
    if (plan.compiled->kind != Compiled::Kind::Rows) raise(ErrorNumber::StatementKind);
    bindSlots(plan);
    try {
        const ResetGuard reset(plan.statement.get());
        RowBlock rows = readRows(plan.statement.get(), *plan.compiled, plan.use->lastRowCount);
        plan.use->lastRowCount = rows.count;
        if (lastTry || !wasOutdated(plan.statement.get())) return rows;
    } catch (const Error& error) {
        // From here on the plan may be gone.
        if (lastTry || !reloadAfterUnknownName(error)) throw;
    }
    return std::nullopt;
}

RowsOfPlan Connection::query(std::string_view sql, Identities identities) {
    std::ignore = storage();
    scanShape(sql, shape_);
    for (bool lastTry = false;; lastTry = true) {
        const Plan& plan = planForRows(sql, identities);
        if (auto rows = tryRows(plan, lastTry)) return {plan.compiled, plan.use, std::move(*rows)};
        dropStatements();
    }
}

void Connection::execute(std::string_view sql) {
    std::ignore = storage();
    scanShape(sql, shape_);
    for (bool lastTry = false;; lastTry = true) {
        const Plan* plan = planForChange(sql);
        if (plan == nullptr) {
            recordsAffected_ = 0;
            return;
        }
        try {
            recordsAffected_ = runChange(*plan);
            if (wasOutdated(plan->statement.get())) dropStatements();
            return;
        } catch (const Error& error) {
            if (lastTry || !reloadAfterUnknownName(error)) throw;
        }
        dropStatements();
    }
}

int Connection::runChange(const Plan& plan) {
    if (plan.compiled->kind != Compiled::Kind::Change) raise(ErrorNumber::StatementKind);
    bindSlots(plan);
    return write(plan.statement.get(), plan.compiled->target->schema);
}

int Connection::write(sqlite3_stmt* statement, const std::string& schema) {
    requireWritable(schema);
    const ResetGuard reset(statement);
    while (stepRow(statement)) {
    }
    return static_cast<int>(sqlite3_changes64(storage_.get()));
}

sqlite3_stmt* Connection::keptStatement(const std::string& sql) {
    const auto found = keptStatements_.find(sql);
    if (found != keptStatements_.end()) return found->second.get();
    if (keptStatements_.size() >= maxKeptStatements) {
        keptStatements_.clear();
        ++statementGeneration_;
    }
    return keptStatements_.emplace(sql, prepareStatement(storage(), sql)).first->second.get();
}

void Connection::dropStatements() {
    plans_.clear();
    keptStatements_.clear();
    ++statementGeneration_;
}

void Connection::schemaChanged() {
    dropStatements();
    catalogue().reload();
}

void Connection::refreshCatalogue() {
    const bool tables = catalogue().reloadIfChanged();
    const bool links = !inTransaction() && catalogue().followChangedLinks();
    if (tables || links) dropStatements();
}

void Connection::linksChanged() {
    dropStatements();
    catalogue().followLinks();
}

void Connection::requireWritable(const std::string& schema) const {
    if (!inTransaction()) return;
    if (schema != transactionSchema_)
        throw std::logic_error("a transaction writes only the file it was begun on: " + schema);
    // After a full disk the storage has rolled back by itself; writing on would commit row by row.
    if (sqlite3_get_autocommit(storage()) != 0) raise(ErrorNumber::NoTransaction);
}

void Connection::begin(const std::string& schema) {
    if (inTransaction()) throw std::logic_error("a transaction inside another");
    run(storage(), "BEGIN");
    try {
        // Takes the write lock of this one file; BEGIN IMMEDIATE would lock every attached file.
        run(storage(), "DELETE FROM " + quoted(schema) + "." + quoted(propertiesTable) + " WHERE 0");
    } catch (const Error&) {
        sqlite3_exec(storage(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
    transactionSchema_ = schema;
}

void Connection::commit() {
    if (!inTransaction() || sqlite3_get_autocommit(storage()) != 0) raise(ErrorNumber::NoTransaction);
    run(storage(), "COMMIT");
    transactionSchema_.clear();
}

void Connection::rollback() noexcept {
    if (!inTransaction() || !storage_) return;
    sqlite3_exec(storage_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    transactionSchema_.clear();
    try {
        if (catalogue_->reloadIfChanged()) dropStatements();
    } catch (const std::exception&) {
        // The next statement meets the same failure and reports it.
        dropStatements();
    }
}

} // namespace jet
