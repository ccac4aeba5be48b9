#include "platform/jet/workspace.h"
#include "store/database_files.h"
#include "store/new_house.h"
#include "support/process.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using support::Finished;
using support::TempFolder;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

namespace {

class SqlTool : public testing::Test {
protected:
    /// Answers to the statements, one a line, on the file of this test, which is created if need be.
    [[nodiscard]] std::string batch(std::string_view statements) const {
        const Finished run = support::runProgram("herbergo-sql", {"--batch", "--create", file()}, statements);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.errors, "");
        return run.output;
    }
    [[nodiscard]] static Finished call(const std::vector<std::string>& arguments, std::string_view input = {}) {
        return support::runProgram("herbergo-sql", arguments, input);
    }
    [[nodiscard]] std::string file(std::string_view name = "x.mdb") const { return folder_.file(name); }

private:
    TempFolder folder_;
};

} // namespace

TEST_F(SqlTool, AnswersAStatementOnAFileItHasJustCreated) {
    EXPECT_EQ(batch("SELECT Format(1234.5,\"#,##0.00\")\n"), "ok 1\n1.234,50\n\n");
}

TEST_F(SqlTool, PrintsEachKindOfValueInItsOwnForm) {
    EXPECT_EQ(batch("CREATE TABLE t (a COUNTER PRIMARY KEY, b YESNO, d DATETIME, x DOUBLE, s TEXT(50), m MEMO)\n"
                    "INSERT INTO t (b, d, x, s) VALUES (True, #12-31-2025#, 0.1, 'ä')\n"
                    "INSERT INTO t (d, x, s) VALUES (#12-31-2025 14:05:09#, 1e9 / 3, '')\n"
                    "SELECT * FROM t ORDER BY a\n"),
              "ok 0\n\n"
              "ok 1\n\n"
              "ok 1\n\n"
              "ok 2\n"
              "1\t-1\t31.12.2025\t0.1\tä\tNULL\n"
              "2\t0\t31.12.2025 14:05:09\t333333333.333333\t\tNULL\n\n");
}

TEST_F(SqlTool, KeepsEveryRowOnOneLineWhateverTheTextsHold) {
    EXPECT_EQ(batch("SELECT 'a' & Chr(9) & 'b' & Chr(10) & 'c\\d', 'NULL', Null\n"),
              "ok 1\na\\tb\\nc\\\\d\tNULL\tNULL\n\n");
}

TEST_F(SqlTool, GoesOnAfterAnErrorAndSaysItInOneLine) {
    const std::string output = batch("SELECT\n"
                                     "\n"
                                     "SELECT 1 FROM nirgends\n"
                                     "\xC3(\n"
                                     "SELECT 7");
    std::vector<std::string> answers;
    std::istringstream lines(output);
    for (std::string line, blank; std::getline(lines, line);) {
        answers.push_back(line);
        if (line == "ok 1") std::getline(lines, answers.back());
        ASSERT_TRUE(std::getline(lines, blank));
        EXPECT_EQ(blank, "");
    }
    EXPECT_THAT(answers,
                testing::ElementsAre(StartsWith("error 3075 "), StartsWith("error 3075 "),
                                     MatchesRegex("error 30[0-9]+ .*nirgends.*"), StartsWith("error 3075 "), "7"));
}

TEST_F(SqlTool, CountsTheRowsThatAChangeHit) {
    EXPECT_EQ(batch("CREATE TABLE t (a LONG PRIMARY KEY, b LONG)\n"
                    "INSERT INTO t VALUES (1, 5)\n"
                    "INSERT INTO t VALUES (2, 5)\n"
                    "UPDATE t SET b = 5\n"
                    "DELETE * FROM t WHERE a > 1\n"
                    "DELETE * FROM t WHERE a > 1\n"),
              "ok 0\n\nok 1\n\nok 1\n\nok 2\n\nok 1\n\nok 0\n\n");
}

TEST_F(SqlTool, TakesAStatementOfAnyLength) {
    const std::string text(300'000, 'x');
    EXPECT_EQ(batch("SELECT Len('" + text + "')\n"), "ok 1\n300000\n\n");

    std::string deep = "SELECT ";
    deep.append(100'000, '(').append("1").append(100'000, ')');
    EXPECT_THAT(batch(deep + "\nSELECT 1\n"), MatchesRegex("error [0-9]+ [^\n]*\n\nok 1\n1\n\n"));
}

TEST_F(SqlTool, FollowsTheLinksOfALinkFileToBothHomes) {
    const services::SystemClock clock;
    store::createHouse(jet::Workspace(clock), {.Ordner = file("haus"), .Jetzt = clock.today(), .beispieldatei = false});
    const std::string statements =
        "INSERT INTO tbZimmernummern (Zimmernummer, NeueNummer) VALUES (1, '101')\n"
        "INSERT INTO tblBelegung (Zimmernummer, Von, Bis, Kürzel) VALUES (1, #06-15-2026#, #06-18-2026#, 'Müller')\n"
        "SELECT NeueNummer, Kürzel, Von FROM tblBelegung INNER JOIN tbZimmernummern ON tblBelegung.Zimmernummer = "
        "tbZimmernummern.Zimmernummer\n";
    EXPECT_EQ(call({"--batch", file("haus/Lokal.mdb")}, statements).output,
              "ok 1\n\nok 1\n\nok 1\n101\tMüller\t15.06.2026\n\n");
    EXPECT_EQ(call({"--batch", file("haus/Zentral.mdb")}, "SELECT Count(*) FROM tblBelegung\n").output, "ok 1\n1\n\n");
}

TEST_F(SqlTool, SingleStatementPrintsAHeaderAndTellsAnErrorByItsExitCode) {
    const Finished rows = call({"--create", file(), "SELECT 1 AS [Nr], 'Müller' AS Gast"});
    EXPECT_EQ(rows.output, "ok 1\nNr\tGast\n1\tMüller\n");
    EXPECT_EQ(rows.exitCode, 0);

    const Finished change = call({file(), "CREATE TABLE t (a LONG)"});
    EXPECT_EQ(change.output, "ok 0\n");

    const Finished error = call({file(), "SELECT b FROM t"});
    EXPECT_THAT(error.output, MatchesRegex("error 3061 [^\n]*b[^\n]*\n"));
    EXPECT_EQ(error.exitCode, 1);
}

TEST_F(SqlTool, RefusesWhatIsNoDatabaseFileOfTheHouse) {
    std::ofstream(file("text.mdb")) << "Guten Tag";
    ASSERT_EQ(call({"--create", "--password", "anders", file("other.mdb"), "SELECT 1"}).exitCode, 0);
    const struct {
        std::vector<std::string> arguments;
        const char* error;
    } cases[] = {
        {{"--batch", file("missing.mdb")}, "error 3024 "},
        {{file("missing.mdb"), "SELECT 1"}, "error 3024 "},
        {{"--create", file("no/such/folder.mdb"), "SELECT 1"}, "error 3044 "},
        {{file("text.mdb"), "SELECT 1"}, "error 3343 "},
        {{"--create", file("text.mdb"), "SELECT 1"}, "error 3343 "},
        {{file("other.mdb"), "SELECT 1"}, "error 3031 "},
        {{"--password", "falsch", file("other.mdb"), "SELECT 1"}, "error 3031 "},
    };
    for (const auto& [arguments, error] : cases) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const Finished run = call(arguments, "SELECT 1\n");
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.output, "");
        EXPECT_THAT(run.errors, StartsWith(error));
    }
    EXPECT_FALSE(std::filesystem::exists(file("missing.mdb")));
    EXPECT_EQ(call({"--password", "anders", file("other.mdb"), "SELECT 1"}).exitCode, 0);
}

TEST_F(SqlTool, ExplainsAWrongCallWithoutTouchingAnything) {
    const std::vector<std::vector<std::string>> calls = {{},
                                                         {"--create", file()},
                                                         {"--create", "--batch", file(), "SELECT 1"},
                                                         {"--create", "--nonsense", file(), "SELECT 1"}};
    for (const auto& arguments : calls) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const Finished run = call(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.output, "");
        EXPECT_THAT(run.errors, StartsWith("Falscher Aufruf: "));
    }
    EXPECT_FALSE(std::filesystem::exists(file()));
    const Finished help = call({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_THAT(help.output, HasSubstr("--password"));
}
