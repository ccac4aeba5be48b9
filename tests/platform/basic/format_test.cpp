#include "values.h"

#include "platform/basic/format.h"

#include <gtest/gtest.h>

#include <cmath>

namespace basic {
namespace {

const Date heiligabend = Date::fromYmdHms(2019, 12, 24, 18, 5, 9);

struct Case {
    Value value;
    const char* pattern;
    const char* expected;
};

void expectAll(const std::vector<Case>& cases) {
    for (const auto& [value, pattern, expected] : cases)
        EXPECT_EQ(Format(value, pattern, Date::fromYmd(2019, 7, 15)), expected) << shown(value) << " by " << pattern;
}

TEST(FormatNumber, PrintsAmounts) {
    expectAll({{7654.3, "##,##0.00", "7.654,30"},
               {7654.3, "#,##0.00", "7.654,30"},
               {1234567.891, "###,##0.00", "1.234.567,89"},
               {0, "####,##0.00", "0,00"},
               {-1234.5, "#,##0.00", "-1.234,50"},
               {999.995, "#,##0.00", "1.000,00"},
               {123, "#,##0.0", "123,0"},
               {0.5, "0.00", "0,50"},
               {7, "0000", "0007"},
               {12345, "0000", "12345"},
               {7, "00", "07"},
               {1e15, "#,##0", "1.000.000.000.000.000"},
               {5, "0", "5"},
               {true, "0", "-1"},
               {heiligabend, "0", "43824"}});
}

TEST(FormatNumber, RoundsHalvesAwayFromZeroOnDecimalDigits) {
    expectAll({{3.175, "0.00", "3,18"},
               {-3.175, "0.00", "-3,18"},
               {1.005, "0.00", "1,01"},
               {2.5, "0", "3"},
               {0.5, "0", "1"},
               {0.49, "0", "0"},
               {0.285, "0.00", "0,29"},
               {9.995, "0.00", "10,00"},
               {1.115, "0.00", "1,12"},
               {0.1 + 0.2, "0.0###############", "0,3"},
               {-0.001, "0.00", "0,00"},
               {0.0049999, "0.00", "0,00"},
               {1e-300, "0.00", "0,00"}});
}

TEST(FormatNumber, ReadsGermanTextsAndLeavesOthers) {
    expectAll({{"7,5", "0.00", "7,50"},
               {"1.234,5", "#,##0.00", "1.234,50"},
               {"2019-12-24", "0", "43823"},
               {"frei", "0.00", "frei"},
               {"", "0.00", ""},
               {Value(), "0.00", ""},
               {Value(), "0;-0;0;\"ohne\"", "ohne"}});
}

TEST(FormatNumber, HasPlacesSectionsAndLiterals) {
    expectAll({{0, "#", ""},
               {0.5, "#.##", ",5"},
               {5, "0.##", "5,"},
               {12.5, ".00", "12,50"},
               {1234, "0-00-0", "1-23-4"},
               {12345, "0-00-0", "12-34-5"},
               {0.123, "0.0%", "12,3%"},
               {1234567, "#,##0,", "1.235"},
               {1234567, "0,,.00", "1,23"},
               {5, "0 \"Zi. m\"", "5 Zi. m"},
               {5, "\\d0", "d5"},
               {5, "0\\", "5"},
               {5, "0\"offen", "5offen"},
               {12.5, "0.00 €", "12,50 €"},
               {-3, "0;(0)", "(3)"},
               {-3, "0;;", "-3"},
               {0, "0;(0);\"nichts\"", "nichts"},
               {-0.3, "0;(0)", "0"},
               {5, ";", ""},
               {12345, "0.00E+00", "1,23E+04"},
               {0.00099999, "0.00e-00", "1,00e-03"},
               {0, "0.0E+0", "0,0E+0"}});
}

TEST(FormatNumber, KnowsTheNamedPatterns) {
    expectAll({{1234.5, "Standard", "1.234,50"},
               {1234.5, "Fixed", "1234,50"},
               {1234.5, "currency", "1.234,50 €"},
               {0.25, "Percent", "25,00%"},
               {1234.5, "General Number", "1234,5"},
               {"1.5", "General Number", "15"},
               {3, "Yes/No", "Ja"},
               {0, "Yes/No", "Nein"},
               {true, "True/False", "Wahr"},
               {heiligabend, "Short Date", "24.12.2019"},
               {heiligabend, "Long Date", "Dienstag, 24. Dezember 2019"},
               {heiligabend, "Short Time", "18:05"},
               {heiligabend, "General Date", "24.12.2019 18:05:09"},
               {0.75, "", "0,75"},
               {heiligabend, "", "24.12.2019 18:05:09"},
               {Value(), "", ""}});
}

TEST(FormatDate, PrintsThePartsOfTheHouse) {
    expectAll({{heiligabend, "dd.mm.yy", "24.12.19"},
               {heiligabend, "dd.mm.yyyy", "24.12.2019"},
               {heiligabend, "mm-dd-yyyy", "12-24-2019"},
               {heiligabend, "yyyymmdd", "20191224"},
               {heiligabend, "yyyy_mm_dd_hh_mm_ss", "2019_12_24_18_05_09"},
               {heiligabend, "ddd, dd.mmm.yyyy", "Di, 24.Dez.2019"},
               {heiligabend, "ddd, dd.mmm.yy", "Di, 24.Dez.19"},
               {heiligabend, "Ddd", "Di"},
               {heiligabend, "dddd", "Dienstag"},
               {heiligabend, "w", "3"},
               {heiligabend, "ww yyyy", "52 2019"},
               {heiligabend, "ww yy", "52 19"},
               {heiligabend, "mmm yy", "Dez 19"},
               {heiligabend, "mm yyyy", "12 2019"},
               {heiligabend, "mmmm", "Dezember"},
               {heiligabend, "dd mm yy", "24 12 19"},
               {heiligabend, "yyyy", "2019"},
               {heiligabend, "yy", "19"},
               {heiligabend, "dd", "24"},
               {heiligabend, "m", "12"},
               {heiligabend, "q", "4"},
               {heiligabend, "y", "358"},
               {heiligabend, "hh:mm", "18:05"},
               {heiligabend, "h:m:s", "18:5:9"},
               {heiligabend, "hh:nn:ss", "18:05:09"},
               {heiligabend, "d/m/yyyy", "24.12.2019"},
               {heiligabend, "hh:mm dd.mm", "18:05 24.12"},
               {heiligabend, "hh\"h und \"mm", "18h und 05"},
               {heiligabend, "h:mm AM/PM", "6:05 PM"},
               {heiligabend, "h a/p", "6 p"},
               {heiligabend, "ttttt", "18:05:09"},
               {heiligabend, "DD.MM.YYYY", "24.12.2019"},
               {heiligabend, "dd. mmmm \\u\\m hh Ü\\hr", "24. Dezember um 18 Ühr"},
               {Date::fromYmd(2019, 3, 9), "d. mmm yyyy", "9. Mrz 2019"}});
}

TEST(FormatDate, TakesTextsAndNumbers) {
    expectAll({{"24.12.2019", "dd.mm.yy", "24.12.19"},
               {"24.12.", "yyyymmdd", "20191224"},
               {43823, "dd.mm.yyyy", "24.12.2019"},
               {"43823", "dd.mm.yyyy", "24.12.2019"},
               {"offen", "dd.mm.yyyy", "offen"},
               {Value(), "dd.mm.yyyy", ""}});
    EXPECT_EQ(errorOf([] { return Format(1e10, "dd.mm.yyyy"); }), 6);
    EXPECT_EQ(errorOf([] { return Format(std::nan(""), "yyyy"); }), 6);
    EXPECT_EQ(errorOf([] { return Format(std::nan(""), "0.00"); }), 6);
}

TEST(FormatText, ChangesCaseAndFills) {
    expectAll({{"GRÖSSE Ä", "<", "grösse ä"},
               {"größe ä", ">", "GRÖßE Ä"},
               {Value(), "<", ""},
               {12, ">", "12"},
               {"abc", "@@@@@", "  abc"},
               {"abc", "!@@@@@", "abc  "},
               {"abcde", "@-@@", "abc-de"},
               {"abcde", "!@-@", "a-bcde"},
               {"äö", "&&&&\\x", "äöx"},
               {"12345678", "@@/@@ @@@@", "12/34 5678"},
               {"", "@;\"leer\"", "leer"}});
}

TEST(Format, SurvivesHostilePatterns) {
    const std::string zeros(200000, '0');
    EXPECT_EQ(Format(5, zeros).size(), zeros.size());
    EXPECT_EQ(Format(5, "0." + zeros).size(), zeros.size() + 2);
    EXPECT_EQ(Format(1e308, "#,##0").size(), 309U + 102U);
    EXPECT_EQ(Format(1e-308, "0.0"), "0,0");
    EXPECT_EQ(Format(5, "0" + std::string(100000, '%')).substr(0, 2), "50");
    EXPECT_EQ(Format(5, "0" + std::string(100000, ',')), "0");
    EXPECT_EQ(Format(5, std::string(100000, ';')), "");
    EXPECT_EQ(Format(5, std::string("0\0", 2)), std::string("5\0", 2));
    EXPECT_EQ(Format("\xFF", "<"), "\xEF\xBF\xBD");
    EXPECT_EQ(Format(5, "\\\xC3"), "\xC3");
}

} // namespace
} // namespace basic
