#include "platform/jet/lexer.h"

#include <gtest/gtest.h>

using basic::Date;
using basic::Value;
using jet::scanShape;
using jet::Shape;
using Kind = jet::ast::Literal::Kind;

namespace {

Shape shapeOf(std::string_view sql) {
    Shape shape;
    scanShape(sql, shape);
    return shape;
}

/// The only literal of a statement.
jet::LiteralValue literalOf(const std::string& text) {
    const Shape shape = shapeOf("SELECT " + text + " FROM t");
    EXPECT_EQ(shape.literals.size(), 1U) << text;
    return shape.literals.empty() ? jet::LiteralValue{} : shape.literals.front();
}

} // namespace

TEST(Lexer, ReadsLiterals) {
    struct Case {
        const char* text;
        Kind kind;
        Value value;
    };
    const Case cases[] = {
        {"'x'", Kind::Text, "x"},
        {"''", Kind::Text, ""},
        {"''''", Kind::Text, "'"},
        {"'a''b'", Kind::Text, "a'b"},
        {"\"12\"\" Rohr\"", Kind::Text, "12\" Rohr"},
        {"'sagt \"ja\"'", Kind::Text, "sagt \"ja\""},
        {"'Straße_1'", Kind::Text, "Straße_1"},
        {"'Str*'", Kind::WildcardText, "Str*"},
        {"'%'", Kind::WildcardText, "%"},
        {"'[a-c]'", Kind::WildcardText, "[a-c]"},
        {"0", Kind::Integer, 0},
        {"2147483647", Kind::Integer, 2147483647},
        {"2147483648", Kind::Double, 2147483648.0},
        {"123456789012345678901234567890", Kind::Double, 123456789012345678901234567890.0},
        {"7.25", Kind::Double, 7.25},
        {".5", Kind::Double, 0.5},
        {"1.", Kind::Double, 1.0},
        {"5.0", Kind::Double, 5.0},
        {"1e3", Kind::Double, 1000.0},
        {"1.5E-2", Kind::Double, 0.015},
        {"&H1F", Kind::Integer, 31},
        {"&hffffffff", Kind::Double, 4294967295.0},
        {"#06-15-2026#", Kind::Date, Date::fromYmd(2026, 6, 15)},
        {"#6/5/2026#", Kind::Date, Date::fromYmd(2026, 6, 5)},
        {"#06-15-26#", Kind::Date, Date::fromYmd(2026, 6, 15)},
        {"#06-15-30#", Kind::Date, Date::fromYmd(1930, 6, 15)},
        {"#2026-06-15#", Kind::Date, Date::fromYmd(2026, 6, 15)},
        {"#02-29-2028#", Kind::Date, Date::fromYmd(2028, 2, 29)},
        {"#06-15-2026 10:30:05#", Kind::Date, Date::fromYmdHms(2026, 6, 15, 10, 30, 5)},
        {"# 06-15-2026 #", Kind::Date, Date::fromYmd(2026, 6, 15)},
        {"#10:30#", Kind::Date, Date::fromYmdHms(1899, 12, 30, 10, 30, 0)},
    };
    for (const Case& c : cases) {
        const jet::LiteralValue literal = literalOf(c.text);
        EXPECT_EQ(literal.kind, c.kind) << c.text;
        EXPECT_EQ(literal.value, c.value) << c.text;
    }
}

TEST(Lexer, LeavesDigitsOfNamesAlone) {
    EXPECT_EQ(shapeOf("SELECT F1, tbZusätze_1.[Farbe 2], `3`, Größe3 FROM t2").literals.size(), 0U);
    EXPECT_EQ(shapeOf("a &Halle & b&Haus").literals.size(), 0U);
    EXPECT_EQ(shapeOf("a='x'or b=1AND c=.5").literals.size(), 3U);
    EXPECT_EQ(shapeOf("VALUES (12.5,3)").literals.size(), 2U);
    EXPECT_EQ(shapeOf("SELECT [it's] + '#', [#1] ").literals.size(), 1U);
}

TEST(Lexer, ShapeForgetsValuesButNotKinds) {
    const std::string key = shapeOf("SELECT a FROM t WHERE b='x' AND c=1").key;
    EXPECT_EQ(shapeOf("SELECT a FROM t WHERE b=\"yy'y\" AND c=20000").key, key);
    for (const char* other : {"SELECT a FROM t WHERE b='x*' AND c=1", "SELECT a FROM t WHERE b='x' AND c=1.5",
                              "SELECT a FROM t WHERE b=#01-01-2026# AND c=1", "SELECT a FROM t WHERE b='x' AND c=1 "})
        EXPECT_NE(shapeOf(other).key, key) << other;
}

TEST(Lexer, ReusedShapeHoldsNothingOfTheOneBefore) {
    Shape shape = shapeOf("SELECT 'a', 'b', 'c'");
    scanShape("SELECT 1", shape);
    EXPECT_EQ(shape.key, "SELECT \x01");
    ASSERT_EQ(shape.literals.size(), 1U);
    EXPECT_EQ(shape.literals[0].value, Value(1));
}

TEST(Lexer, NumbersLiteralsAsTheShapeDoes) {
    const std::string sql = "SELECT 1, 'a*', [b 2].c3, #06-15-2026#, 2.5, &HA FROM t;";
    const Shape shape = shapeOf(sql);
    std::size_t next = 0;
    for (const jet::Token& token : jet::tokenize(sql)) {
        if (token.kind != jet::TokenKind::Literal) continue;
        EXPECT_EQ(token.literal, next);
        EXPECT_EQ(token.literalKind, shape.literals.at(next++).kind) << token.text;
    }
    EXPECT_EQ(next, shape.literals.size());
}
