#include "values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace basic {
namespace {

struct Case {
    Value value;
    std::string expected;
};

template <typename Call>
void expectAll(const std::vector<Case>& cases, Call call) {
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(outcome([&, v = value] { return call(v); }), expected) << shown(value);
}

const std::string manyNines(400, '9');

TEST(Numbers, AreReadWithCommaAndPointsIgnored) {
    expectAll({{"7.25", "Double 725"},
               {"7,25", "Double 7,25"},
               {"1.234.567,5", "Double 1234567,5"},
               {" 12 ", "Double 12"},
               {",5", "Double 0,5"},
               {"5,", "Double 5"},
               {"-3,5", "Double -3,5"},
               {"+3", "Double 3"},
               {"3-", "Double -3"},
               {"1e3", "Double 1000"},
               {"1E-2", "Double 0,01"},
               {"12,50 €", "Double 12,5"},
               {"€ 7", "Double 7"},
               {"&H10", "Double 16"},
               {"&HFFFF", "Double -1"},
               {"1e-9999", "Double 0"},
               {"0e9999", "Double 0"},
               {true, "Double -1"},
               {Date(2.5), "Double 2,5"}},
              CDbl);
}

TEST(Numbers, RefuseWhatIsNoneAndWhatIsTooLarge) {
    expectAll({{"", "Error 13"},
               {" ", "Error 13"},
               {".", "Error 13"},
               {",", "Error 13"},
               {"-", "Error 13"},
               {"x", "Error 13"},
               {"3x", "Error 13"},
               {"3 7", "Error 13"},
               {"1,2,3", "Error 13"},
               {"--3", "Error 13"},
               {"1e", "Error 13"},
               {"12:30", "Error 13"},
               {"&Hxyz", "Error 13"},
               {"nan", "Error 13"},
               {"inf", "Error 13"},
               {std::string("7\0", 2), "Error 13"},
               {"\xFF", "Error 13"},
               {"1e400", "Error 6"},
               {"-1e999999999999", "Error 6"},
               {manyNines, "Error 6"},
               {Value(), "Error 94"}},
              CDbl);
}

TEST(Numbers, BecomeWholeByHalfToEvenWithinTheRange) {
    expectAll({{4.5, "Integer 4"},
               {5.5, "Integer 6"},
               {-4.5, "Integer -4"},
               {"4,5", "Integer 4"},
               {true, "Integer -1"},
               {32767.4, "Integer 32767"},
               {32767.5, "Error 6"},
               {99999, "Error 6"},
               {-32768, "Integer -32768"},
               {"", "Error 13"},
               {Value(), "Error 94"}},
              CInt);
    expectAll({{99999, "Integer 99999"},
               {2147483647.4, "Integer 2147483647"},
               {2147483648.0, "Error 6"},
               {-2147483649.0, "Error 6"},
               {std::nan(""), "Error 6"},
               {std::numeric_limits<double>::infinity(), "Error 6"}},
              CLng);
}

TEST(Numbers, AreTrueUnlessZero) {
    expectAll({{3, "Wahr"},
               {0, "Falsch"},
               {0.1, "Wahr"},
               {"Wahr", "Wahr"},
               {"falsch", "Falsch"},
               {"True", "Wahr"},
               {" false ", "Falsch"},
               {"0,0", "Falsch"},
               {"-1", "Wahr"},
               {"ja", "Error 13"},
               {Value(), "Error 94"}},
              CBool);
}

TEST(Numbers, PrintWithFifteenDigits) {
    expectAll({{0.75, "'0,75'"},
               {0.1 + 0.2, "'0,3'"},
               {1.0 / 3, "'0,333333333333333'"},
               {-1234567.5, "'-1234567,5'"},
               {100.0, "'100'"},
               {-0.0, "'0'"},
               {0.0001, "'0,0001'"},
               {0.00001, "'1E-05'"},
               {123456789012345.0, "'123456789012345'"},
               {1e15, "'1E+15'"},
               {1.5e300, "'1,5E+300'"},
               {std::int64_t{1} << 62, "'4611686018427387904'"},
               {true, "'Wahr'"},
               {false, "'Falsch'"},
               {"Straße", "'Straße'"},
               {std::nan(""), "Error 6"},
               {Value(), "Error 94"}},
              CStr);
}

TEST(Numbers, PrintForStatementsWithThePoint) {
    expectAll({{0.75, "' .75'"},
               {-0.75, "'-.75'"},
               {12, "' 12'"},
               {-12, "'-12'"},
               {0, "' 0'"},
               {10.5, "' 10.5'"},
               {"7,25", "' 7.25'"},
               {true, "'True'"},
               {Date(43823.5), "' 43823.5'"},
               {"x", "Error 13"},
               {Value(), "Error 94"}},
              Str);
}

TEST(Val, ReadsEnglishAndNeverFails) {
    expectAll({{"4,9", "Double 4"},        {"4.9", "Double 4,9"},
               {4.9, "Double 4"},          {"3 7x", "Double 37"},
               {"x", "Double 0"},          {"", "Double 0"},
               {"-", "Double 0"},          {"  - 2 . 5 ", "Double -2,5"},
               {".5", "Double 0,5"},       {"1e3", "Double 1000"},
               {"1d2", "Double 100"},      {"1e", "Double 1"},
               {"1e+", "Double 1"},        {"4.9.1", "Double 4,9"},
               {"12 Zimmer", "Double 12"}, {"&HFF", "Double 255"},
               {"&hffff", "Double -1"},    {"&H8000&", "Double 32768"},
               {"&O17", "Double 15"},      {"&H", "Double 0"},
               {"&", "Double 0"},          {std::string("1\0002", 3), "Double 1"},
               {Value(), "Error 94"}},
              Val);
    EXPECT_EQ(Val(manyNines), std::numeric_limits<double>::max());
    EXPECT_EQ(Val("-1e99999999999999999999"), -std::numeric_limits<double>::max());
}

TEST(IsNumeric, KnowsTextsButNotDates) {
    expectAll({{"7,5", "Wahr"},
               {"24.12.2019", "Wahr"},
               {"", "Falsch"},
               {"zwei", "Falsch"},
               {"1e999", "Falsch"},
               {3, "Wahr"},
               {true, "Wahr"},
               {Date(3), "Falsch"},
               {Value(), "Falsch"}},
              IsNumeric);
}

TEST(Value, ReadsWithAStandInForNull) {
    const Value null;
    EXPECT_EQ(null.textOr("leer"), "leer");
    EXPECT_EQ(null.longOr(7), 7);
    EXPECT_TRUE(null.boolOr(true));
    EXPECT_EQ(null.date(), std::nullopt);
    EXPECT_EQ(Value(0.75).textOr(), "0,75");
    EXPECT_EQ(Value("4,5").longOr(), 4);
    EXPECT_EQ(Value("09.04.2019").dateOr(), Date::fromYmd(2019, 4, 9));
    EXPECT_EQ(errorOf([] { return Value("x").doubleOr(); }), 13);
    EXPECT_FALSE(Value("") == Value());
    EXPECT_TRUE(Value(std::optional<int>()).isNull());
}

TEST(Errors, CarryNumberTextAndDetail) {
    try {
        raise(ErrorNumber::RowChanged);
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 3197);
        EXPECT_EQ(error.text(), "Der Datensatz wurde inzwischen an anderer Stelle geändert.");
    }
    try {
        raise(ErrorNumber::UnknownTable, "tbKunden");
    } catch (const Error& error) {
        EXPECT_EQ(error.text(), std::string(standardText(ErrorNumber::UnknownTable)) + " tbKunden");
    }
}

} // namespace
} // namespace basic
