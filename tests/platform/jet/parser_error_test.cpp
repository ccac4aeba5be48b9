#include "platform/jet/parser.h"

#include <gmock/gmock.h>

#include <string>
#include <tuple>

using basic::Error;
using basic::ErrorNumber;
using jet::parse;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

/// The text behind the standing one, or "" where the statement is accepted.
std::string detailOf(std::string_view sql) {
    try {
        std::ignore = parse(sql);
        return {};
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), static_cast<int>(ErrorNumber::Syntax)) << sql;
        const std::string standing(basic::standardText(ErrorNumber::Syntax));
        return error.text().starts_with(standing + " ") ? error.text().substr(standing.size() + 1) : error.text();
    }
}

struct Wrong {
    const char* sql;
    int character;
};

std::string repeated(std::string_view part, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += part;
    return result;
}

bool isTooComplex(const std::string& sql) {
    try {
        std::ignore = parse(sql);
        return false;
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), static_cast<int>(ErrorNumber::TooComplex)) << error.text();
        return true;
    }
}

} // namespace

TEST(ParserError, TellsWhatWasExpectedAndFound) {
    EXPECT_EQ(detailOf("SELECT FROM Lager"), "Erwartet: ein Ausdruck, gefunden: »FROM« (Zeichen 8).");
    EXPECT_EQ(detailOf("SELECT (1 + 2"), "Erwartet: »)«, gefunden: das Ende (Zeichen 14).");
    EXPECT_EQ(detailOf("SELECT Größe AS FROM Räume"), "Erwartet: ein Name, gefunden: »FROM« (Zeichen 17).");
    EXPECT_EQ(detailOf("UPDATE Lager Menge = 3"), "Erwartet: SET, gefunden: »=« (Zeichen 20).");
    EXPECT_EQ(detailOf("SELECT 'abc"), "Der Text wird nicht geschlossen (Zeichen 8).");
    EXPECT_EQ(detailOf("SELECT #13-45-2020#"), "#Monat-Tag-Jahr# wurde erwartet, und dies ist kein Datum (Zeichen 8).");
    EXPECT_EQ(detailOf("SELEKT 1"),
              "Erwartet: SELECT, UPDATE, DELETE, INSERT, CREATE, DROP oder ALTER, gefunden: »SELEKT« (Zeichen 1).");
    EXPECT_EQ(detailOf("CREATE TABLE t (a BLOB)"),
              "Erwartet: ein Datentyp (COUNTER, SHORT, LONG, DOUBLE, DATETIME, YESNO, TEXT oder MEMO), "
              "gefunden: »BLOB« (Zeichen 19).");
}

TEST(ParserError, ShortensWhatWasFound) {
    EXPECT_EQ(detailOf("SELECT 1 FROM t WHERE a 'überlanger Text mit mehr als dreißig Zeichen'"),
              "Erwartet: das Ende der Anweisung, gefunden: »'überlanger Text mit mehr als …« (Zeichen 25).");
}

TEST(ParserError, PointsAtTheCharacter) {
    const Wrong table[] = {
        {"", 1},
        {";", 1},
        {"   ", 4},
        {"SELECT", 7},
        {"SELECT 1,", 10},
        {"SELECT 1;;", 10},
        {"SELECT 1 2", 10},
        {"SELECT a.b.c FROM a", 11},
        {"SELECT a., b FROM a", 10},
        {"SELECT * FROM", 14},
        {"SELECT * FROM WHERE a=1", 15},
        {"SELECT * FROM t WHERE", 22},
        {"SELECT * FROM t GROUP a", 23},
        {"SELECT * FROM t ORDER BY", 25},
        {"SELECT * FROM t ORDER BY 0", 26},
        {"SELECT TOP 0 a FROM t", 12},
        {"SELECT TOP 'x' a FROM t", 12},
        {"SELECT TOP 101 PERCENT a FROM t", 12},
        {"SELECT * FROM a INNER b ON a.x=b.x", 23},
        {"SELECT * FROM a INNER JOIN b WHERE 1", 30},
        {"SELECT * FROM (a INNER JOIN b ON a.x=b.x", 41},
        {"SELECT * FROM (SELECT 1)", 25},
        {"SELECT a FROM t WHERE a Between 1 Or 2", 35},
        {"SELECT a FROM t WHERE a Is 5", 28},
        {"SELECT a FROM t WHERE a Is Not 5", 32},
        {"SELECT a FROM t WHERE a Not 5", 25},
        {"SELECT a FROM t WHERE a In 5", 28},
        {"SELECT a FROM t WHERE a In ()", 29},
        {"SELECT a FROM t WHERE a = = 5", 27},
        {"SELECT a FROM t WHERE Exists t", 30},
        {"SELECT Sum(*) FROM t", 12},
        {"SELECT Left$ FROM t", 8},
        {"SELECT Date(1)", 13},
        {"SELECT f(1,) FROM t", 12},
        {"(SELECT 1) UNION (SELECT 2 ORDER BY 1)", 18},
        {"(SELECT 1 ORDER BY 1) UNION SELECT 2", 23},
        {"SELECT 1 UNION (SELECT 2 UNION SELECT 3)", 16},
        {"SELECT 1 ORDER BY 1 UNION SELECT 2", 21},
        {"SELECT 1 UNION DELETE FROM t", 16},
        {"UPDATE t SET", 13},
        {"UPDATE t SET a", 15},
        {"UPDATE t SET a=1,", 18},
        {"DELETE t.* WHERE a=1", 12},
        {"DELETE FROM t ORDER BY a", 15},
        {"INSERT t (a) VALUES (1)", 8},
        {"INSERT INTO t (a, ) VALUES (1)", 19},
        {"INSERT INTO t (a) VALUES ()", 27},
        {"INSERT INTO t (a) VALUES 1", 26},
        {"INSERT INTO t", 14},
        {"CREATE t", 8},
        {"CREATE UNIQUE TABLE t (a LONG)", 15},
        {"CREATE TABLE t ()", 17},
        {"CREATE TABLE t (a TEXT(0))", 24},
        {"CREATE TABLE t (a TEXT(256))", 24},
        {"CREATE TABLE t (a LONG NOT)", 27},
        {"CREATE TABLE t (a LONG, PRIMARY KEY (a), PRIMARY KEY (a))", 42},
        {"CREATE INDEX i t (a)", 16},
        {"CREATE INDEX i ON t (a) WITH NULL", 30},
        {"DROP t", 6},
        {"DROP INDEX i", 13},
        {"ALTER TABLE t DROP a", 15},
        {"SELECT [abc", 8},
        {"SELECT `abc", 8},
        {"SELECT [] FROM t", 8},
        {"SELECT \"abc' FROM t", 8},
        {"SELECT #06-15-2026", 8},
        {"SELECT #02-30-2026#", 8},
        {"SELECT #06-15/2026#", 8},
        {"SELECT #257-15-2026#", 8},
        {"SELECT #06-15-2026 24:00#", 8},
        {"SELECT ##", 8},
        {"SELECT 1e999", 8},
        {"SELECT &H123456789", 8},
        {"SELECT ä FROM t WHERE ö = @x", 27},
        {"SELECT a ? b", 10},
        {"SELECT a\x01 FROM t", 9},
        {"SELECT [a\nb] FROM t", 8},
    };
    for (const Wrong& wrong : table)
        EXPECT_THAT(detailOf(wrong.sql), EndsWith("(Zeichen " + std::to_string(wrong.character) + ").")) << wrong.sql;
}

TEST(ParserError, RefusesBytesThatAreNoText) {
    using namespace std::string_view_literals;
    EXPECT_THAT(detailOf("SELECT a\0b FROM t"sv), HasSubstr("(Zeichen 9)"));
    EXPECT_THAT(detailOf("SELECT a\xff FROM t"), HasSubstr("UTF-8"));
    EXPECT_THAT(detailOf("SELECT 'a\xc3'"), HasSubstr("UTF-8"));
}

TEST(ParserError, LimitsTheLengthOfNames) {
    const std::string longest = repeated("ä", 64);
    EXPECT_EQ(detailOf("SELECT " + longest + ", [" + longest + "] FROM t"), "");
    EXPECT_THAT(detailOf("SELECT " + longest + "1 FROM t"), EndsWith("(Zeichen 8)."));
    EXPECT_THAT(detailOf("SELECT [" + longest + "1] FROM t"), EndsWith("(Zeichen 8)."));
}

TEST(ParserError, LimitsEveryKindOfNesting) {
    const auto nested = [](std::string_view open, std::string_view inner, std::string_view close, int depth) {
        return repeated(open, depth).append(inner).append(repeated(close, depth));
    };
    struct Kind {
        const char* before;
        const char* open;
        const char* inner;
        const char* close;
        int fits;
    };
    const Kind kinds[] = {
        {"SELECT ", "(", "1", ")", 200},
        {"SELECT ", "-", "1", "", 100}, // a sign counts twice, for itself and its brackets
        {"SELECT ", "Not ", "1", "", 100},
        {"SELECT ", "Abs(", "1", ")", 200},
        {"SELECT ", "1+(", "1", ")", 200},
        {"SELECT ", "(SELECT ", "1", ")", 200},
        {"SELECT ", "1 In (", "1", ")", 100},
        {"SELECT * FROM ", "(", "t", ")", 200},
        {"SELECT * FROM ", "(SELECT * FROM ", "t", ") AS t", 200},
        {"SELECT * FROM ", "(t JOIN ", "t", " ON a=b)", 199},
        {"", "(", "SELECT 1", ")", 200},
    };
    for (const Kind& kind : kinds) {
        EXPECT_FALSE(isTooComplex(kind.before + nested(kind.open, kind.inner, kind.close, kind.fits))) << kind.open;
        for (const int depth : {kind.fits + 1, 20'000})
            EXPECT_TRUE(isTooComplex(kind.before + nested(kind.open, kind.inner, kind.close, depth))) << kind.open;
    }
}

TEST(ParserError, LimitsChainsThatGrowTheTreeWithoutNesting) {
    EXPECT_FALSE(isTooComplex("SELECT a" + repeated("+a", 1000)));
    EXPECT_TRUE(isTooComplex("SELECT a" + repeated("+a", 1001)));
    EXPECT_TRUE(isTooComplex("SELECT a" + repeated("+a", 100'000)));
    EXPECT_TRUE(isTooComplex("SELECT a" + repeated(" Is Null", 100'000)));
    EXPECT_TRUE(isTooComplex("SELECT a" + repeated(" Or a=1", 1001)));
    EXPECT_TRUE(isTooComplex("SELECT * FROM t" + repeated(",t", 1001)));
    EXPECT_TRUE(isTooComplex("SELECT * FROM t" + repeated(" JOIN t ON 1", 1001)));
    // Each chain fits, but one hangs on the left end of the next.
    EXPECT_TRUE(isTooComplex("SELECT ((a" + repeated("+a", 600) + ")*2" + repeated("*2", 600) + ")"));
    EXPECT_FALSE(isTooComplex("SELECT a In (1" + repeated(",1", 100'000) + ")"));
}
