// herbergo-sql: the support tool of the house, an administrator's way into the data files.

#include "platform/jet/cell_text.h"
#include "platform/jet/parser.h"
#include "platform/jet/workspace.h"
#include "store/database_files.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <variant>

namespace {

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

enum class Header { Omit, Print };

struct Options {
    std::string file;
    std::string statement;
    std::string password{store::kPassword};
    bool batch = false;
    bool create = false;
};

void printHeader(const jet::Recordset& rows) {
    for (std::size_t i = 0; i < rows.FieldCount(); ++i)
        std::cout << (i == 0 ? "" : "\t") << jet::escaped(rows.FieldName(i));
    std::cout << '\n';
}

void printRows(jet::Recordset& rows) {
    for (; !rows.Eof(); rows.MoveNext()) {
        for (std::size_t i = 0; i < rows.FieldCount(); ++i)
            std::cout << (i == 0 ? "" : "\t") << jet::cellText(rows.At(i));
        std::cout << '\n';
    }
}

bool returnsRows(std::string_view sql) { return std::holds_alternative<jet::ast::Select>(jet::parse(sql).statement); }

void run(jet::Database& database, const std::string& sql, Header header) {
    if (!returnsRows(sql)) {
        database.Execute(sql);
        std::cout << "ok " << database.RecordsAffected() << '\n';
        return;
    }
    jet::Recordset rows = database.OpenRecordset(sql, jet::RecordsetType::Snapshot);
    std::cout << "ok " << rows.RecordCount() << '\n';
    if (header == Header::Print) printHeader(rows);
    printRows(rows);
}

/// An error is one line, whatever its text quotes.
std::string errorLine(const jet::Error& error) {
    std::string text = error.text();
    std::ranges::replace_if(
        text, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return "error " + std::to_string(error.number()) + ' ' + text;
}

/// Prints the answer; false if it is an error.
bool answer(jet::Database& database, const std::string& sql, Header header) {
    try {
        run(database, sql, header);
        return true;
    } catch (const jet::Error& error) {
        std::cout << errorLine(error) << '\n';
        return false;
    }
}

/// Each line of the standard input is a statement; whoever talks to the tool gets each answer at once.
void answerLines(jet::Database& database) {
    for (std::string line; std::getline(std::cin, line);) {
        answer(database, line, Header::Omit);
        std::cout << '\n' << std::flush;
    }
}

jet::Database open(const jet::Workspace& workspace, const Options& options) {
    const std::string connect = ";PWD=" + options.password;
    std::error_code unreadable;
    if (options.create && !std::filesystem::exists(options.file, unreadable))
        return workspace.CreateDatabase(options.file, connect);
    return workspace.OpenDatabase(options.file, false, false, connect);
}

int execute(const Options& options) {
    const services::SystemClock clock;
    const jet::Workspace workspace(clock);
    bool answered = true;
    try {
        jet::Database database = open(workspace, options);
        if (options.batch)
            answerLines(database);
        else
            answered = answer(database, options.statement, Header::Print);
    } catch (const jet::Error& error) {
        std::cerr << errorLine(error) << '\n';
        return exitFailed;
    }
    std::cout.flush();
    return answered && std::cout ? 0 : exitFailed;
}

void labelInGerman(CLI::App& app) {
    app.set_help_flag("-h,--help", "Zeigt diese Hilfe")->group("Optionen");
    app.failure_message([](const CLI::App*, const CLI::Error& error) {
        return "Falscher Aufruf: " + std::string(error.what()) + "\nMehr mit --help.\n";
    });
    const auto formatter = app.get_formatter();
    formatter->label("OPTIONS", "OPTIONEN");
    formatter->label("Usage", "Aufruf");
    formatter->label("Positionals", "Angaben");
    formatter->label("Excludes", "nicht mit");
}

void requireStatement(const Options& options) {
    if (options.file.empty()) throw CLI::ValidationError("DATEI", "Es fehlt die Datenbankdatei");
    if (!options.batch && options.statement.empty())
        throw CLI::ValidationError("ANWEISUNG", "Es fehlt die Anweisung (oder --batch)");
}

void describe(CLI::App& app, Options& options) {
    labelInGerman(app);
    auto* batch = app.add_flag("--batch", options.batch,
                               "Liest von der Standardeingabe, je Zeile eine Anweisung; auf jede Antwort folgt eine "
                               "leere Zeile");
    auto* create = app.add_flag("--create", options.create, "Legt eine leere Datei an, wenn dort keine ist");
    auto* password = app.add_option("--password", options.password, "Kennwort der Datei (sonst das des Hauses)");
    for (CLI::Option* option : {batch, create, password})
        option->group("Optionen");
    password->type_name("KENNWORT");
    app.add_option("DATEI", options.file, "Die Datenbankdatei")->type_name("");
    app.add_option("ANWEISUNG", options.statement, "Die Anweisung, wenn nicht --batch")->type_name("")->excludes(batch);
    app.callback([&options] { requireStatement(options); });
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    CLI::App app("Führt Anweisungen auf einer Datenbankdatei des Hauses aus.", "herbergo-sql");
    Options options;
    describe(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : exitUsage;
    }
    return execute(options);
}
