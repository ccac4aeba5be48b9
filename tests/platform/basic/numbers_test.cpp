#include "values.h"

#include "platform/basic/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace basic {
namespace {

const Date heiligabend = Date::fromYmd(2019, 12, 24);
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

struct Case {
    Value a;
    Value b;
    const char* expected;
};

template <typename Operator>
void expectAll(const std::vector<Case>& cases, Operator calculate) {
    for (const auto& item : cases)
        EXPECT_EQ(outcome([&] { return calculate(item.a, item.b); }), item.expected)
            << shown(item.a) << " and " << shown(item.b);
}

TEST(Rounding, GoesToTheEvenDigitOfTheDecimalValue) {
    const std::vector<std::tuple<double, int, double>> cases = {{2.5, 0, 2},       {3.5, 0, 4},
                                                                {-2.5, 0, -2},     {3.175, 2, 3.18},
                                                                {3.165, 2, 3.16},  {0.5, 0, 0},
                                                                {1.005, 2, 1},     {1.0051, 2, 1.01},
                                                                {0.05, 1, 0},      {9.96, 1, 10},
                                                                {0.004, 2, 0},     {1.0 / 3, 15, 1.0 / 3},
                                                                {1e300, 2, 1e300}, {123456.785, 2, 123456.78}};
    for (const auto& [value, decimals, expected] : cases)
        EXPECT_EQ(Round(value, decimals), expected) << value;
    EXPECT_EQ(errorOf([] { return Round(1, -1); }), 5);
    EXPECT_EQ(errorOf([] { return Round(1, 16); }), 5);
    EXPECT_EQ(errorOf([] { return Round(std::nan(""), 1); }), 6);
    EXPECT_EQ(Int(-1.5), -2);
    EXPECT_EQ(Fix(-1.5), -1);
    EXPECT_EQ(Sgn(-0.5), -1);
    EXPECT_EQ(Sgn(0), 0);
}

TEST(Operators, AddAndJoin) {
    expectAll({{1, 2, "Integer 3"},
               {1, 2.5, "Double 3,5"},
               {"a", "b", "'ab'"},
               {"3", "4", "'34'"},
               {"3,5", 4, "Double 7,5"},
               {"a", Value(), "Null"},
               {Value(), 1, "Null"},
               {"x", 1, "Error 13"},
               {true, true, "Integer -2"},
               {2147483647, 1, "Double 2147483648"},
               {std::numeric_limits<std::int64_t>::max(), 1, "Double 9,22337203685478E+18"},
               {heiligabend, 1, "Date 25.12.2019"},
               {1.5, heiligabend, "Date 25.12.2019 12:00:00"},
               {heiligabend, 1e10, "Error 6"},
               {1.7e308, 1.7e308, "Error 6"}},
              add);
}

TEST(Operators, SubtractDatesAsDays) {
    expectAll({{heiligabend, Date::fromYmd(2019, 12, 20), "Double 4"},
               {heiligabend, 1, "Date 23.12.2019"},
               {5, 7, "Integer -2"},
               {least, 1, "Double -9,22337203685478E+18"},
               {"5", "3", "Double 2"},
               {Value(), heiligabend, "Null"}},
              subtract);
    EXPECT_EQ(shown(negate(true)), "Integer 1");
    EXPECT_EQ(shown(negate("2,5")), "Double -2,5");
    EXPECT_EQ(shown(negate(Value())), "Null");
    EXPECT_EQ(shown(negate(least)), "Double 9,22337203685478E+18");
}

TEST(Operators, MultiplyAndDivide) {
    expectAll({{true, 3, "Integer -3"},
               {100000, 100000, "Double 10000000000"},
               {"2,5", 2, "Double 5"},
               {heiligabend, 2, "Double 87646"},
               {1e300, 1e300, "Error 6"},
               {0, Value(), "Null"}},
              multiply);
    expectAll({{9, 2, "Double 4,5"},
               {8, 2, "Double 4"},
               {1, 0, "Error 11"},
               {1, "0", "Error 11"},
               {Value(), 0, "Null"},
               {1e300, 1e-300, "Error 6"}},
              divide);
}

TEST(Operators, DivideWholeNumbers) {
    expectAll({{9.7, 3, "Integer 3"},
               {-7, 2, "Integer -3"},
               {4.5, 1, "Integer 4"},
               {5, 0.4, "Error 11"},
               {least, -1, "Double 9,22337203685478E+18"},
               {1e300, 1, "Error 6"},
               {1, Value(), "Null"}},
              integerDivide);
    expectAll({{-8, 3, "Integer -2"},
               {8, -3, "Integer 2"},
               {9.7, 3, "Integer 1"},
               {5.5, 4, "Integer 2"},
               {least, -1, "Integer 0"},
               {7, 0, "Error 11"}},
              modulo);
}

TEST(Operators, RaiseToPowers) {
    expectAll({{2, 10, "Double 1024"},
               {-2, 3, "Double -8"},
               {2, 0.5, "Double 1,4142135623731"},
               {0, 0, "Double 1"},
               {-2, 0.5, "Error 5"},
               {0, -1, "Error 5"},
               {10, 400, "Error 6"},
               {Value(), 2, "Null"}},
              power);
}

TEST(Operators, ConcatenateNullAsEmpty) {
    expectAll({{"Nr ", Value(), "'Nr '"},
               {Value(), Value(), "Null"},
               {"Nr ", 9, "'Nr 9'"},
               {0.75, "", "'0,75'"},
               {"", true, "'-1'"},
               {"am ", heiligabend, "'am 24.12.2019'"}},
              concat);
}

TEST(CompareValues, OrdersNumbersAndTextsApart) {
    EXPECT_EQ(compareValues(1, 2.5), -1);
    EXPECT_EQ(compareValues(true, 0), -1);
    EXPECT_EQ(compareValues(heiligabend, 43823), 0);
    EXPECT_EQ(compareValues(heiligabend, Date(43823.5)), -1);
    EXPECT_EQ(compareValues(least, least + 1), -1);
    EXPECT_EQ(compareValues("30", "200"), 1);
    EXPECT_EQ(compareValues("ÜBEL", "übel"), 0);
    EXPECT_EQ(compareValues(Value(), 1), std::nullopt);
    EXPECT_EQ(compareValues("a", Value()), std::nullopt);
    EXPECT_EQ(errorOf([] { return compareValues(4, "4"); }), 13);
}

} // namespace
} // namespace basic
