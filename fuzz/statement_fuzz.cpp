#include "platform/jet/compiler.h"
#include "platform/jet/parser.h"
#include "platform/jet/sql_functions.h"
#include "platform/jet/storage.h"
#include "platform/jet/stored_schema.h"
#include "platform/services/clock.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <variant>

namespace {

struct TableText {
    const char* name;
    const char* columns; ///< in the storage's SQL
    const char* rows;
};

/// The tables of the dialect's tests, and one whose fields have the names that the storage and the compiler use.
constexpr std::array tables{
    TableText{"Lager",
              "Nr INTEGER PRIMARY KEY AUTOINCREMENT, Ort TEXT(20) COLLATE DE, Lager TEXT(20) COLLATE DE, Menge DOUBLE, "
              "Anzahl SHORTINT, Flag YESNOINT NOT NULL DEFAULT 0, Datum DATEREAL, Info MEMOTEXT COLLATE DE",
              "(1, 'Zürich', 'Nord', 7.5, 3, -1, 43712.0, NULL), (2, 'ulm', NULL, NULL, -2, 0, NULL, 'a*b')"},
    TableText{
        "Posten",
        "Nr LONGINT, LagerNr LONGINT, \"Text\" TEXT(30) COLLATE DE, Preis DOUBLE, Fertig YESNOINT NOT NULL DEFAULT 0",
        "(10, 1, 'Schraube', 0.75, -1), (13, NULL, 'frei', 9.0, 0)"},
    TableText{
        "Halle",
        "Nr LONGINT NOT NULL, Name TEXT(20) COLLATE DE, LagerNr LONGINT, \"Start-Tag\" DATEREAL, PRIMARY KEY (Nr)",
        "(1, 'A', 1, 43983.0), (2, 'B', NULL, NULL)"},
    TableText{"Leer", "Nr INTEGER PRIMARY KEY AUTOINCREMENT, Wert DOUBLE", ""},
    TableText{"Namen", "rowid LONGINT, oid LONGINT, j_id LONGINT, c1 LONGINT, s LONGINT, h1 LONGINT, k1 LONGINT",
              "(1, 2, 3, 4, 5, 6, 7)"},
};

class FixedCatalogue final : public jet::Catalogue {
public:
    explicit FixedCatalogue(sqlite3* storage) {
        for (const TableText& text : tables)
            add(storage, text.name);
    }

    [[nodiscard]] jet::TablePtr find(const jet::SqlName& table) const override {
        const auto found = byName_.find(table.folded());
        return found == byName_.end() ? nullptr : found->second;
    }

private:
    void add(sqlite3* storage, const std::string& name) {
        auto table = std::make_shared<jet::Table>();
        table->name = jet::SqlName(name);
        table->schema = "main";
        table->storedName = name;
        const auto columns = jet::prepareStatement(storage, "PRAGMA main.table_info(" + jet::quoted(name) + ")");
        while (jet::stepRow(columns.get())) {
            const int index = static_cast<int>(table->columns.size());
            table->columns.push_back(
                jet::columnOfDeclaration(jet::columnText(columns.get(), 1), jet::columnText(columns.get(), 2)));
            table->columnByName[table->columns.back().name.folded()] = index;
            if (sqlite3_column_int(columns.get(), 5) != 0) table->keyColumns.push_back(index);
        }
        byName_[table->name.folded()] = std::move(table);
    }

    std::map<std::string, jet::TablePtr> byName_;
};

constexpr int instructionLimit = 200'000;

/// Statements are translated for, and run on, these few tables in memory.
class Engine {
public:
    Engine() : storage_(opened(clock_)), catalogue_(storage_.get()) {}

    void translateAndRead(std::string_view sql) {
        jet::Shape shape;
        jet::scanShape(sql, shape);
        jet::Parsed parsed = jet::parse(sql);
        const jet::Compiled compiled = jet::compile(parsed, shape.literals, catalogue_, jet::Identities::Include);
        const jet::StatementHandle statement = jet::prepareStatement(storage_.get(), compiled.sql);
        if (compiled.kind == jet::Compiled::Kind::Rows) read(statement.get(), compiled, shape);
    }

private:
    static jet::StorageHandle opened(const services::Clock& clock) {
        sqlite3* storage = nullptr;
        if (sqlite3_open(":memory:", &storage) != SQLITE_OK) std::abort();
        sqlite3_db_config(storage, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        jet::registerFunctions(storage, clock);
        for (const TableText& table : tables) {
            jet::run(storage, std::string("CREATE TABLE ") + table.name + " (" + table.columns + ")");
            const std::string rows = table.rows;
            if (!rows.empty()) jet::run(storage, std::string("INSERT INTO ") + table.name + " VALUES " + rows);
        }
        return jet::StorageHandle(storage);
    }

    void read(sqlite3_stmt* statement, const jet::Compiled& compiled, const jet::Shape& shape) {
        int index = 0;
        for (const jet::Slot& slot : compiled.slots) {
            ++index;
            if (slot.kind == jet::Slot::Kind::Literal)
                jet::bindValue(statement, index, shape.literals[slot.literal].value);
            else
                sqlite3_bind_double(statement, index, clock_.now().serial());
        }
        bool tooLong = false;
        const auto stop = [](void* flag) {
            *static_cast<bool*>(flag) = true;
            return 1;
        };
        sqlite3_progress_handler(storage_.get(), instructionLimit, stop, &tooLong);
        try {
            while (jet::stepRow(statement) && !tooLong) {
            }
        } catch (const jet::Error&) {
            if (!tooLong) throw;
        }
    }

    services::FixedClock clock_{jet::Date::fromYmdHms(2026, 6, 15, 10, 30, 0)};
    jet::StorageHandle storage_;
    FixedCatalogue catalogue_;
};

} // namespace

/// A statement is refused by the compiler, or the storage takes what the compiler has written: an internal error means
/// that something was passed through which nobody had understood.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Engine engine;
    try {
        engine.translateAndRead({reinterpret_cast<const char*>(data), size});
    } catch (const jet::Error& error) {
        if (error.number() != static_cast<int>(jet::ErrorNumber::Internal)) return 0;
        std::fprintf(stderr, "%s\n", error.text().c_str());
        std::abort();
    }
    return 0;
}
