#include "support/statement_cases.h"

#include "platform/basic/text.h"
#include "platform/jet/cell_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace support {

namespace {

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

/// The key of a "key: value" line; nothing for a row.
std::optional<std::string> keyOf(const std::string& line) {
    for (const char* key : {"case", "file", "order", "prepare", "sql", "rows", "affected", "check", "error"})
        if (line.starts_with(std::string(key) + ":")) return key;
    return std::nullopt;
}

class Reader {
public:
    explicit Reader(const std::string& path) : path_(path) {}

    std::vector<StatementCase> read() {
        std::ifstream stream(path_);
        if (!stream) fail("cannot be read");
        for (std::string line; std::getline(stream, line);) {
            ++line_;
            take(line);
        }
        return std::move(cases_);
    }

private:
    [[noreturn]] void fail(const std::string& what) const {
        throw std::runtime_error(path_ + ":" + std::to_string(line_) + ": " + what);
    }

    void take(const std::string& line) {
        if (line.empty()) {
            inRows_ = false;
            return;
        }
        const std::optional<std::string> key = keyOf(line);
        if (!key) {
            if (line.starts_with("#") && !inRows_) return;
            if (!inRows_) fail("neither a key nor a row: " + line);
            cases_.back().expected.back().rows.push_back(line);
            return;
        }
        std::string value = line.substr(key->size() + 1);
        if (value.starts_with(" ")) value.erase(0, 1);
        inRows_ = false;
        assign(*key, value);
    }

    void assign(const std::string& key, const std::string& value) {
        if (key == "case") {
            cases_.emplace_back();
            cases_.back().title = value;
            cases_.back().line = line_;
            return;
        }
        if (cases_.empty()) fail("no case yet");
        StatementCase& one = cases_.back();
        if (key == "file")
            one.file = value;
        else if (key == "order")
            one.anyOrder = value == "any";
        else if (key == "prepare")
            one.prepare.push_back(value);
        else if (key == "sql")
            one.sql = statement_ = value;
        else if (key == "check")
            statement_ = value;
        else if (key == "affected")
            one.affected = std::stoi(value);
        else if (key == "error")
            one.error = std::stoi(value);
        else
            startRows(one, value);
    }

    void startRows(StatementCase& one, const std::string& names) {
        one.expected.push_back({statement_, split(names, '\t'), {}});
        inRows_ = true;
    }

    std::string path_;
    std::vector<StatementCase> cases_;
    std::string statement_;
    int line_ = 0;
    bool inRows_ = false;
};

std::vector<std::string> rowsOf(jet::Database& database, const ExpectedRows& expected) {
    jet::Recordset rows = database.OpenRecordset(expected.statement, jet::RecordsetType::Dynaset);
    std::vector<std::size_t> columns;
    for (const std::string& name : expected.columns)
        columns.push_back(rows.Ordinal(name));
    for (std::size_t i = 0; expected.columns.empty() && i < rows.FieldCount(); ++i)
        columns.push_back(i);
    std::vector<std::string> lines;
    for (; !rows.Eof(); rows.MoveNext()) {
        std::string line;
        for (std::size_t i = 0; i < columns.size(); ++i)
            line += (i == 0 ? "" : "\t") + jet::cellText(rows.At(columns[i]));
        lines.push_back(line);
    }
    return lines;
}

void compare(const StatementCase& one, const ExpectedRows& expected, jet::Database& database) {
    std::vector<std::string> got = rowsOf(database, expected);
    std::vector<std::string> wanted = expected.rows;
    if (one.anyOrder) {
        std::sort(got.begin(), got.end());
        std::sort(wanted.begin(), wanted.end());
    }
    EXPECT_EQ(got, wanted) << expected.statement;
}

void runStatement(const StatementCase& one, jet::Database& database) {
    if (one.affected) {
        database.Execute(one.sql);
        EXPECT_EQ(database.RecordsAffected(), *one.affected) << one.sql;
    }
    for (const ExpectedRows& expected : one.expected)
        compare(one, expected, database);
}

bool isSelect(const std::string& sql) {
    const std::string word = basic::foldCase(basic::Left(basic::LTrim(sql), 6));
    return word == "select" || word.starts_with("(");
}

/// A statement that must fail fails as the kind of statement that it is; then nothing may have changed.
void runRefused(const StatementCase& one, jet::Database& database) {
    try {
        if (isSelect(one.sql) && !one.affected)
            (void)database.OpenRecordset(one.sql);
        else
            database.Execute(one.sql);
        ADD_FAILURE() << "no error: " << one.sql;
    } catch (const jet::Error& error) {
        EXPECT_EQ(error.number(), *one.error) << error.text() << "\n" << one.sql;
    }
    for (const ExpectedRows& expected : one.expected)
        compare(one, expected, database);
}

} // namespace

std::vector<StatementCase> readStatementCases(const std::string& path) { return Reader(path).read(); }

void runStatementCase(const StatementCase& one, jet::Database& database) {
    SCOPED_TRACE("line " + std::to_string(one.line) + ": " + one.title);
    try {
        for (const std::string& statement : one.prepare)
            database.Execute(statement);
        if (one.error)
            runRefused(one, database);
        else
            runStatement(one, database);
    } catch (const jet::Error& error) {
        ADD_FAILURE() << error.number() << " " << error.text() << "\n" << one.sql;
    }
}

std::vector<std::string> caseFiles(const std::string& folder) {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(HERBERGO_TEST_DATA) / folder))
        if (entry.path().extension() == ".txt") files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    return files;
}

void runScript(const std::string& path, jet::Database& database) {
    std::ifstream stream(path);
    if (!stream) throw std::runtime_error(path + " cannot be read");
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        if (line.empty() || line.starts_with("--")) continue;
        try {
            database.Execute(line);
        } catch (const jet::Error& error) {
            throw std::runtime_error(path + ":" + std::to_string(number) + ": " + error.text() + "\n" + line);
        }
    }
}

} // namespace support
