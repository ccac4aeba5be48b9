#include "values.h"

#include "platform/basic/like.h"
#include "platform/basic/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>

namespace basic {
namespace {

TEST(CompareText, IgnoresCaseButCountsAccents) {
    for (const auto& [a, b] : std::vector<std::pair<std::string, std::string>>{
             {"Übel", "üBEL"}, {"ZIMMER", "zimmer"}, {"É", "é"}, {"", ""}, {"u\u0308", "ü"}})
        EXPECT_TRUE(equalText(a, b)) << a << " " << b;
    for (const auto& [a, b] : std::vector<std::pair<std::string, std::string>>{
             {"Müller", "Muller"}, {"Müller", "Mueller"}, {"é", "e"}, {"a b", "ab"}, {"a-b", "ab"}, {"a", ""}})
        EXPECT_FALSE(equalText(a, b)) << a << " " << b;
}

TEST(CompareText, OrdersLikeADictionary) {
    std::vector<std::string> names = {"Zahn", "Übel", "Turm", "Ufer",   "Apfel", "Ärger",  "Azur",
                                      "30",   "200",  "Öl",   "Olm",    "Ort",   "a b",    "ab",
                                      "",     "zahn", "_x",   "Straße", "Stras", "Strauß", "Über 3"};
    std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) {
        const int order = compareText(a, b);
        return order != 0 ? order < 0 : a < b;
    });
    const std::vector<std::string> expected = {"",       "_x",   "200",  "30",     "a b",  "ab",    "Apfel",
                                               "Ärger",  "Azur", "Öl",   "Olm",    "Ort",  "Stras", "Straße",
                                               "Strauß", "Turm", "Übel", "Über 3", "Ufer", "Zahn",  "zahn"};
    EXPECT_EQ(names, expected);
}

std::string randomText(std::mt19937& generator, std::string_view alphabet) {
    std::string text;
    for (auto length = generator() % 7; length > 0; --length)
        text.push_back(alphabet[generator() % alphabet.size()]);
    return text;
}

int sign(int number) { return (number > 0) - (number < 0); }

TEST(CompareText, AgreesWithItsSortKeys) {
    std::string alphabet = "aAbBzZ\xC3\xA4\x84\xCC\x88";
    for (char c = ' '; c < 127; ++c)
        alphabet.push_back(c);
    std::mt19937 generator(4711);
    for (int i = 0; i < 50000; ++i) {
        const std::string a = randomText(generator, alphabet);
        const std::string b = randomText(generator, alphabet);
        ASSERT_EQ(sign(compareText(a, b)), sign(collationKey(a).compare(collationKey(b)))) << a << " / " << b;
        ASSERT_EQ(sign(compareText(a, b)), -sign(compareText(b, a)));
    }
}

TEST(CompareText, SurvivesInvalidTexts) {
    EXPECT_TRUE(equalText("a\xFF", "A\xEF\xBF\xBD"));
    EXPECT_NE(compareText(std::string_view("a\0b", 3), "ac"), 0);
    EXPECT_EQ(collationKey("\xC3"), collationKey("\xEF\xBF\xBD"));
    EXPECT_FALSE(collationKey(std::string(10000, 'x')).empty());
    EXPECT_TRUE(collationVersion().starts_with("de-"));
}

TEST(FoldCase, FoldsUmlautsAndKeepsSharpS) {
    EXPECT_EQ(foldCase("PRÄFIX"), "präfix");
    EXPECT_EQ(foldCase("Straße"), "straße");
    EXPECT_NE(foldCase("Straße"), foldCase("STRASSE"));
    EXPECT_EQ(foldCase("A\u0308"), "ä");
    EXPECT_EQ(foldCase("ΣΑΣ"), foldCase("σας"));
    EXPECT_EQ(UCase("größe"), "GRÖßE");
    EXPECT_EQ(LCase("GRÖßE ÉŽ"), "größe éž");
}

TEST(Text, CountsCharacters) {
    EXPECT_EQ(Len("Größe"), 5);
    EXPECT_EQ(Len("a\xFF\xC3"), 3);
    EXPECT_EQ(Left("Größe", 3), "Grö");
    EXPECT_EQ(Left("Größe", 99), "Größe");
    EXPECT_EQ(Right("Größe", 2), "ße");
    EXPECT_EQ(Right("Größe", 99), "Größe");
    EXPECT_EQ(Right("Größe", 0), "");
    EXPECT_EQ(Mid("Größe", 3, 2), "öß");
    EXPECT_EQ(Mid("Größe", 4), "ße");
    EXPECT_EQ(Mid("Größe", 6), "");
    EXPECT_EQ(Mid("Größe", 9'000'000'000'000'000'000), "");
    EXPECT_EQ(errorOf([] { return Mid("a", 0); }), 5);
    EXPECT_EQ(errorOf([] { return Mid("a", 1, -1); }), 5);
    EXPECT_EQ(errorOf([] { return Left("a", -1); }), 5);
    EXPECT_EQ(errorOf([] { return Right("a", -1); }), 5);
}

TEST(Text, TrimsBlanksOnly) {
    EXPECT_EQ(Trim("  a b \t "), "a b \t");
    EXPECT_EQ(LTrim("  a "), "a ");
    EXPECT_EQ(RTrim("  a "), "  a");
    EXPECT_EQ(Trim("   "), "");
}

TEST(Text, FindsAndReplaces) {
    EXPECT_EQ(InStr(1, "Ein Übel", "ü"), 5);
    EXPECT_EQ(InStr(2, "aXbx", "x"), 2);
    EXPECT_EQ(InStr(3, "aXbx", "x"), 4);
    EXPECT_EQ(InStr(1, "", "x"), 0);
    EXPECT_EQ(InStr(1, "", ""), 0);
    EXPECT_EQ(InStr(2, "abc", ""), 2);
    EXPECT_EQ(InStr(4, "abc", ""), 0);
    EXPECT_EQ(InStr(1, "abc", "d"), 0);
    EXPECT_EQ(errorOf([] { return InStr(0, "abc", "a"); }), 5);
    EXPECT_EQ(InStrRev("äbäb", "B"), 4);
    EXPECT_EQ(InStrRev("abc", ""), 3);
    EXPECT_EQ(InStrRev("", "a"), 0);
    EXPECT_EQ(Replace("a'b''", "'", "''"), "a''b''''");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(Split("a;;b", ";"), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_EQ(Split("a;", ";"), (std::vector<std::string>{"a", ""}));
    EXPECT_EQ(Split("", ";"), std::vector<std::string>());
    EXPECT_EQ(Split("a;b", ""), std::vector<std::string>{"a;b"});
}

TEST(Text, BuildsFromCharacters) {
    EXPECT_EQ(String(3, "äx"), "äää");
    EXPECT_EQ(Space(2), "  ");
    EXPECT_EQ(errorOf([] { return Space(-1); }), 5);
    EXPECT_EQ(errorOf([] { return String(3, ""); }), 5);
    EXPECT_EQ(errorOf([] { return Space(std::int64_t{1} << 60); }), 6);
    EXPECT_EQ(Chr(128), "€");
    EXPECT_EQ(Chr(228), "ä");
    EXPECT_EQ(Chr(13) + Chr(10), "\r\n");
    EXPECT_EQ(Asc("€"), 128);
    EXPECT_EQ(Asc("Ω"), 63);
    for (std::int64_t code = 0; code < 256; ++code)
        EXPECT_EQ(Asc(Chr(code)), code);
    EXPECT_EQ(errorOf([] { return Chr(256); }), 5);
    EXPECT_EQ(errorOf([] { return Asc(""); }), 5);
}

TEST(Text, KnowsValidAndComposedTexts) {
    EXPECT_TRUE(isValidText("Größe \U0001F600 \uFFFD"));
    for (const char* text : {"\xFF", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "a\x80", "\xE2\x82"})
        EXPECT_FALSE(isValidText(text));
    EXPECT_EQ(normalised("Gro\u0308ße"), "Größe");
    EXPECT_TRUE(isValidText(normalised("a\u0308\xFF")));
}

TEST(Like, KnowsItsWildcards) {
    struct Case {
        const char* pattern;
        const char* text;
        bool expected;
    };
    for (const auto& [pattern, text, expected] :
         std::vector<Case>{{"a*", "Abend", true},     {"*n?", "Abende", false},
                           {"*d?", "Abende", true},   {"?", "Ü", true},
                           {"?", "", false},          {"#", "7", true},
                           {"#", "x", false},         {"[b-f]", "D", true},
                           {"[b-f]", "g", false},     {"[!b-f]", "g", true},
                           {"[!b-f]", "D", false},    {"[*]", "*", true},
                           {"[*]", "x", false},       {"a_b", "axb", false},
                           {"a_b", "a_b", true},      {"%b%", "abc", true},
                           {"bar", "BAR", true},      {"ÜBEL*", "übelst", true},
                           {"u*", "übel", false},     {"[a-z]", "ä", true},
                           {"[a-b]", "Ä", true},      {"[c-z]", "ä", false},
                           {"a.b", "axb", false},     {"a+(b)", "a+(b)", true},
                           {"[", "[", true},          {"a[b", "A[B", true},
                           {"[]a", "a", true},        {"[!]", "!", true},
                           {"[a-]", "-", true},       {"[-a]", "-", true},
                           {"[f-a]", "c", false},     {"[äö]x", "ÖX", true},
                           {"*", "", true},           {"", "", true},
                           {"", "a", false},          {"**a**", "a", true},
                           {"[[]x]", "[x]", true},    {"a*b*c", "aXbXbc", true},
                           {"a*b*c", "aXbXb", false}, {"*24.12.*", "24.12.2019", true},
                           {"stra?e", "Straße", true}})
        EXPECT_EQ(LikePattern(pattern).matches(text), expected) << pattern << " on " << text;
}

TEST(Like, TurnsItsOperandsIntoGermanText) {
    EXPECT_EQ(shown(like(4711, "47*")), "Wahr");
    EXPECT_EQ(shown(like(0.5, "0,*")), "Wahr");
    EXPECT_EQ(shown(like(Date::fromYmd(2019, 12, 24), "24.12.*")), "Wahr");
    EXPECT_EQ(shown(like("BAR", "bar")), "Wahr");
    EXPECT_EQ(shown(like(Value(), "*")), "Null");
    EXPECT_EQ(shown(like("a", Value())), "Null");
    EXPECT_TRUE(hasWildcard("a[") && hasWildcard("%") && hasWildcard("#") && !hasWildcard("a_b]"));
}

TEST(Like, StaysQuickOnHostilePatterns) {
    std::string pattern;
    for (int i = 0; i < 50; ++i)
        pattern += "*a";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(LikePattern(pattern + "*b").matches(std::string(20000, 'a')));
    EXPECT_FALSE(LikePattern(pattern + "*b").matches("ä" + std::string(20000, 'a')));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_FALSE(LikePattern("\xFF*").matches(std::string_view("\0", 1)));
}

} // namespace
} // namespace basic
