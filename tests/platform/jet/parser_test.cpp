#include "platform/jet/parser.h"
#include "platform/jet/printer.h"

#include <gmock/gmock.h>

#include <span>
#include <string>

using jet::parse;
using testing::ElementsAre;

namespace {

std::string canonical(std::string_view sql) {
    jet::Shape shape;
    jet::scanShape(sql, shape);
    return jet::print(parse(sql).statement, shape.literals);
}

struct Case {
    const char* sql;
    const char* printed;
};

void expectPrinted(std::span<const Case> cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(canonical(c.sql), c.printed);
        EXPECT_EQ(canonical(c.printed), c.printed);
    }
}

/// The same for expressions, without SELECT in front.
void expectExpressions(std::span<const Case> cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(canonical(std::string("SELECT ") + c.sql), std::string("SELECT ") + c.printed);
        EXPECT_EQ(canonical(std::string("SELECT ") + c.printed), std::string("SELECT ") + c.printed);
    }
}

} // namespace

TEST(Parser, BindsOperatorsByRank) {
    const Case cases[] = {
        {"a Imp b Eqv c", "([a] IMP ([b] EQV [c]))"},
        {"a Eqv b Xor c", "([a] EQV ([b] XOR [c]))"},
        {"a Xor b Or c", "([a] XOR ([b] OR [c]))"},
        {"a Or b And c", "([a] OR ([b] AND [c]))"},
        {"Not a = 3 Or b", "((NOT ([a] = 3)) OR [b])"},
        {"Not (a)=5", "(NOT ([a] = 5))"},
        {"Not a And b", "((NOT [a]) AND [b])"},
        {"a = Not b", "([a] = (NOT [b]))"},
        {"'Nr ' & 4 + 5 = x", "(('Nr ' & (4 + 5)) = [x])"},
        {"a + b Mod c", "([a] + ([b] MOD [c]))"},
        {"a Mod b \\ c", "([a] MOD ([b] \\ [c]))"},
        {"a \\ b * c", "([a] \\ ([b] * [c]))"},
        {"-a * b", "((-[a]) * [b])"},
        {"-a ^ b", "(-([a] ^ [b]))"},
        {"a ^ -b", "([a] ^ (-[b]))"},
        {"a*-1", "([a] * (-1))"},
        {"a - b - c", "([a] - [b] - [c])"},
        {"a - (b - c)", "([a] - ([b] - [c]))"},
        {"a / b * c", "([a] / [b] * [c])"},
        {"a * b + c * d", "(([a] * [b]) + ([c] * [d]))"},
        {"2 < 3 = True", "(2 < 3 = TRUE)"},
    };
    expectExpressions(cases);
}

TEST(Parser, ReadsPredicates) {
    const Case cases[] = {
        {"a Between 1 And 2 And b", "(([a] BETWEEN 1 AND 2) AND [b])"},
        {"a Not Between b+1 And c & 'x' Or d", "(([a] NOT BETWEEN ([b] + 1) AND ([c] & 'x')) OR [d])"},
        {"a like 'x' & '*' and b", "(([a] LIKE ('x' & '*')) AND [b])"},
        {"a Not Like 'x'", "([a] NOT LIKE 'x')"},
        {"a is not  Null Or b Is NULL", "(([a] IS NOT NULL) OR ([b] IS NULL))"},
        {"a <> NULL and b > 0", "(([a] <> NULL) AND ([b] > 0))"},
        {"a in (1,2, 3)", "([a] IN (1, 2, 3))"},
        {"a Not In (Select b From t;)", "([a] NOT IN (SELECT [b] FROM [t]))"},
        {"a In ((SELECT 1) UNION (SELECT 2))", "([a] IN (SELECT 1 UNION SELECT 2))"},
        {"Exists (SELECT * FROM t)", "EXISTS (SELECT * FROM [t])"},
        {"Not Exists (SELECT * FROM t)", "(NOT EXISTS (SELECT * FROM [t]))"},
        {"a=(SELECT b FROM t;) AND ((c)=1)", "(([a] = (SELECT [b] FROM [t])) AND ([c] = 1))"},
        {"((SELECT 1)+2)", "((SELECT 1) + 2)"},
    };
    expectExpressions(cases);
}

TEST(Parser, ReadsNamesAndFunctions) {
    const Case cases[] = {
        {"tblBelegung!Belegungsart", "[tblBelegung].[Belegungsart]"},
        {"[t x].[Tele-Fax], t.[f x], [t]!f, `a]b`", "[t x].[Tele-Fax], [t].[f x], [t].[f], `a]b`"},
        {"Name, Standard, Fix, Start, Ende, Master, Data, Region, Address.Address, Count, Left",
         "[Name], [Standard], [Fix], [Start], [Ende], [Master], [Data], [Region], [Address].[Address], [Count], "
         "[Left]"},
        {"t.Date, t.Select, [Date], [Null]", "[t].[Date], [t].[Select], [Date], [Null]"},
        {"Date, now(), TIME ()", "Date(), Now(), Time()"},
        {"True, false, NULL", "TRUE, FALSE, NULL"},
        {"Left(a,1), Left$ (a, 2), Right(a, b), String(3, 'x')",
         "Left([a], 1), Left([a], 2), Right([a], [b]), String(3, 'x')"},
        {"Count(*), COUNT(a), Rnd()", "Count(*), COUNT([a]), Rnd()"},
        {"IIf(a is null, 'x', DateAdd('d',7 ,b))", "IIf(([a] IS NULL), 'x', DateAdd('d', 7, [b]))"},
        {"a AS b, c d, e [f g]", "[a] AS [b], [c] AS [d], [e] AS [f g]"},
        {"(SELECT x FROM t WHERE y='Bank') AS TEXT4", "(SELECT [x] FROM [t] WHERE ([y] = 'Bank')) AS [TEXT4]"},
        {"#06-15-2026 10:30:00#, #2026-06-15#, 1e30, 5.0, 'a''b'",
         "#06-15-2026 10:30:00#, #06-15-2026#, 1e+30, 5.0, 'a''b'"},
    };
    expectExpressions(cases);
}

TEST(Parser, ReadsSelects) {
    const Case cases[] = {
        {"select distinct TOP 5 percent a from t", "SELECT DISTINCT TOP 5 PERCENT [a] FROM [t]"},
        {"SELECT ALL TOP 3 *, t.*, t.a FROM t", "SELECT TOP 3 *, [t].*, [t].[a] FROM [t]"},
        {"SELECT DISTINCTROW a FROM t x;  ", "SELECT DISTINCTROW [a] FROM [t] AS [x]"},
        {"SELECT Top, All, Percent FROM t", "SELECT [Top], [All], [Percent] FROM [t]"},
        {"SELECT a, Count(b) FROM t WHERE c GROUP BY a, d+1 HAVING Sum(b) <> 0 ORDER BY a desc, Count(b), 2 ASC",
         "SELECT [a], Count([b]) FROM [t] WHERE [c] GROUP BY [a], ([d] + 1) HAVING (Sum([b]) <> 0) "
         "ORDER BY [a] DESC, Count([b]), 2"},
        {"SELECT * FROM ((a INNER JOIN b ON a.x=b.x) LEFT OUTER JOIN c AS c_1 ON a.y = c_1.y) RIGHT JOIN d ON 1",
         "SELECT * FROM [a] INNER JOIN [b] ON ([a].[x] = [b].[x]) LEFT JOIN [c] AS [c_1] ON ([a].[y] = [c_1].[y]) "
         "RIGHT JOIN [d] ON 1"},
        {"SELECT * FROM a INNER JOIN (b LEFT JOIN c ON 1) ON 2",
         "SELECT * FROM [a] INNER JOIN ([b] LEFT JOIN [c] ON 1) ON 2"},
        {"SELECT * FROM a, b c, (d JOIN e ON 1)", "SELECT * FROM [a], [b] AS [c], [d] INNER JOIN [e] ON 1"},
        {"SELECT * FROM (SELECT a FROM t;) AS x, ((SELECT 1) UNION ALL (SELECT 2)) y",
         "SELECT * FROM (SELECT [a] FROM [t]) AS [x], (SELECT 1 UNION ALL SELECT 2) AS [y]"},
        {"(SELECT a FROM t;) UNION (SELECT null FROM u WHERE (x);) order by 1 ;",
         "SELECT [a] FROM [t] UNION SELECT NULL FROM [u] WHERE [x] ORDER BY 1"},
        {"((SELECT 1 UNION SELECT 2) UNION ALL SELECT 3)", "SELECT 1 UNION SELECT 2 UNION ALL SELECT 3"},
        {"SELECT a FROM t WHERE b IN (SELECT c FROM u WHERE (d=1);)ORDER BY (a)",
         "SELECT [a] FROM [t] WHERE ([b] IN (SELECT [c] FROM [u] WHERE ([d] = 1))) ORDER BY [a]"},
        {"SELECT a\r\n\tFROM t\r\nWHERE a<>1AND b='x'or c", "SELECT [a] FROM [t] WHERE ((([a] <> 1) AND ([b] = 'x')) "
                                                            "OR [c])"},
    };
    expectPrinted(cases);
}

TEST(Parser, ReadsWrites) {
    const Case cases[] = {
        {"UPDATE a LEFT JOIN b ON a.x=b.x SET a.y = [z]+1, w=NULL WHERE b.x Is Null;",
         "UPDATE [a] LEFT JOIN [b] ON ([a].[x] = [b].[x]) SET [a].[y] = ([z] + 1), [w] = NULL WHERE ([b].[x] IS NULL)"},
        {"DELETE * FROM t", "DELETE * FROM [t]"},
        {"DELETE  From t WHERE ((a)=1)", "DELETE FROM [t] WHERE ([a] = 1)"},
        {"delete DISTINCTROW t.*, t.f, g From t", "DELETE [t].*, [t].[f], [g] FROM [t]"},
        {"INSERT INTO t ( a, [Name], Date )values  (1, True,-1)",
         "INSERT INTO [t] ([a], [Name], [Date]) VALUES (1, TRUE, (-1))"},
        {"Insert into t Values (CDate('1.2.26'), 12.5,3)", "INSERT INTO [t] VALUES (CDate('1.2.26'), 12.5, 3)"},
        {"INSERT INTO t (a) (SELECT b FROM u)", "INSERT INTO [t] ([a]) SELECT [b] FROM [u]"},
        {"INSERT INTO t SELECT * FROM u;", "INSERT INTO [t] SELECT * FROM [u]"},
    };
    expectPrinted(cases);
}

TEST(Parser, ReadsDefinitions) {
    const Case cases[] = {
        {"CREATE TABLE t (Id COUNTER CONSTRAINT pk PRIMARY KEY, [a b] SHORT NOT NULL, c INTEGER UNIQUE, Name TEXT(50), "
         "e CHAR, f CURRENCY, Date DATETIME, g BIT, h MEMO, i BYTE, j Int NULL)",
         "CREATE TABLE [t] ([Id] COUNTER PRIMARY KEY, [a b] SHORT NOT NULL, [c] LONG UNIQUE, [Name] TEXT(50), "
         "[e] TEXT(255), [f] DOUBLE, [Date] DATETIME, [g] YESNO, [h] MEMO, [i] SHORT, [j] LONG)"},
        {"create table t (a long, b long, constraint pk primary key (a, b));",
         "CREATE TABLE [t] ([a] LONG, [b] LONG, PRIMARY KEY ([a], [b]))"},
        {"CREATE UNIQUE INDEX i ON t (a DESC, b) WITH PRIMARY",
         "CREATE UNIQUE INDEX [i] ON [t] ([a], [b]) WITH PRIMARY"},
        {"CREATE INDEX i ON t (a)", "CREATE INDEX [i] ON [t] ([a])"},
        {"DROP TABLE t", "DROP TABLE [t]"},
        {"DROP INDEX i ON t", "DROP INDEX [i] ON [t]"},
        {"ALTER TABLE t ADD a TEXT(5)", "ALTER TABLE [t] ADD COLUMN [a] TEXT(5)"},
        {"ALTER TABLE t ADD COLUMN Date DATE", "ALTER TABLE [t] ADD COLUMN [Date] DATETIME"},
        {"ALTER TABLE t ADD Column LONG", "ALTER TABLE [t] ADD COLUMN [Column] LONG"},
    };
    expectPrinted(cases);
}

TEST(Parser, NamesTheLiteralsThatSteerTheStructure) {
    EXPECT_THAT(parse("SELECT TOP 5 a, 7 FROM t WHERE b=1 ORDER BY 2, a+3, (1)").structuralLiterals,
                ElementsAre(0, 3, 5));
    EXPECT_THAT(parse("CREATE TABLE t (a TEXT(5), b TEXT(6))").structuralLiterals, ElementsAre(0, 1));
    EXPECT_THAT(parse("SELECT a FROM t WHERE b=1").structuralLiterals, ElementsAre());
}

TEST(Parser, PrintsWhatNestsToTheLimit) {
    std::string sql = "SELECT ";
    for (int i = 0; i < 66; ++i)
        sql += "(1 + - (";
    sql += "1";
    for (int i = 0; i < 66; ++i)
        sql += "))";
    const std::string printed = canonical(sql);
    EXPECT_EQ(canonical(printed), printed);
}

TEST(Parser, KeepsPlaces) {
    const auto parsed = parse("SELECT a, bb + 1 AS c FROM t, u");
    const auto& core = std::get<jet::ast::Select>(parsed.statement).cores.at(0);
    EXPECT_EQ(core.items.at(1).position.offset, 10U);
    EXPECT_EQ(core.items.at(1).expr->position.offset, 10U);
    const auto& join = std::get<jet::ast::JoinSource>(core.from->node);
    EXPECT_EQ(join.right->position.offset, 30U);
}
