#include "store/postal_codes.h"

#include "platform/basic/text.h"
#include "store/database_files.h"
#include "support/jet_files.h"
#include "support/process.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace store {
namespace {

using support::allRows;
using support::runProgram;
using support::TempFolder;
using support::TestHouse;

using Rows = std::vector<PostalCode>;
using Lines = std::vector<int>;

TEST(PostalCodeList, BadLinesAreCountedAndTheOthersRead) {
    struct Case {
        std::string bytes;
        Rows rows;
        Lines bad;
    };
    const std::vector<Case> cases = {
        {"", {}, {}},
        {"\n\r\n  \n", {}, {}},
        {"PLZ;Ort\n28195;Bremen", {{"28195", "Bremen"}}, {}},
        {"28195;Bremen\nPLZ;Ort\n", {{"28195", "Bremen"}}, {2}},
        {"\xEF\xBB\xBF\"PLZ\";\"Ort\"\r\n\"17459\";\"Ückeritz\"\r\n", {{"17459", "Ückeritz"}}, {}},
        {"17459;\xDC"
         "ckeritz\n",
         {{"17459", "Ückeritz"}},
         {}},
        {"17459;U\xCC\x88"
         "ckeritz\n",
         {{"17459", "Ückeritz"}},
         {}},
        {" 1010 ; Wien ;Österreich;mehr\n", {{"1010", "Wien"}}, {}},
        {"1;\"Ort \"\"am\"\" See\"\n", {}, {1}},
        {"1;\"offen\n2;zwei\n", {{"2", "zwei"}}, {1}},
        {"1;\"zu\"hinten\n", {}, {1}},
        {"12345\n;Ort\n12345;\nX;Y\n1;a~b\n1;\"a;b\"\n1_1;Ort\n", {}, {1, 2, 3, 4, 5, 6, 7}},
        {"1;" + std::string(80, 'x') + "\n1;" + std::string(81, 'x') + "\n" + std::string(21, '1') + ";Ort\n",
         {{"1", std::string(80, 'x')}},
         {2, 3}},
        {std::string("1;a\0b\n2;b", 9), {{"2", "b"}}, {1}},
        {"SW1A 1AA;London", {{"SW1A 1AA", "London"}}, {}},
    };
    for (const Case& c : cases) {
        const PostalCodeList list = readPostalCodes(c.bytes);
        EXPECT_EQ(list.rows, c.rows) << c.bytes;
        EXPECT_EQ(list.badLines, c.bad) << c.bytes;
    }
}

TEST(PostalCodeList, TheOneOfANewHouseHoldsGermanCodesOnceEach) {
    const PostalCodeList list = readPostalCodes(builtInPostalCodes());
    EXPECT_EQ(list.badLines, Lines());
    EXPECT_GT(list.rows.size(), 300U);
    std::set<std::string> seen;
    for (const auto& [code, place] : list.rows) {
        EXPECT_EQ(code.size(), 5U) << place;
        EXPECT_TRUE(seen.insert(code + place).second) << code << " twice";
    }
    for (const char* known : {"01067Dresden", "10115Berlin", "20095Hamburg", "28195Bremen", "50667Köln", "80331München",
                              "90402Nürnberg", "99084Erfurt"})
        EXPECT_TRUE(seen.contains(known)) << known;
}

TEST(PostalCodeTable, RowsAreAddedOnceOrTakeTheOthersPlace) {
    TestHouse house;
    jet::Database file = house.open("Feiertag.mdb");
    const std::string all = "SELECT PLZ, Ort FROM tbPLZ ORDER BY PLZ, Ort";
    EXPECT_EQ(storePostalCodes(file, {{"2", "b"}, {"1", "a"}, {"1", "A"}, {"1", "c"}}, ExistingCodes::Keep), 3);
    EXPECT_EQ(storePostalCodes(file, {{"1", "a"}, {"3", "d"}}, ExistingCodes::Keep), 1);
    EXPECT_EQ(allRows(file, all), "1 a | 1 c | 2 b | 3 d");
    EXPECT_ANY_THROW(storePostalCodes(file, {{"4", "e"}, {std::string(99, '5'), "zu lang"}}, ExistingCodes::Replace));
    EXPECT_EQ(allRows(file, all), "1 a | 1 c | 2 b | 3 d") << "all or nothing";
    EXPECT_EQ(storePostalCodes(file, {{"4", "e"}}, ExistingCodes::Replace), 1);
    EXPECT_EQ(allRows(file, all), "4 e");
}

TEST(PostalCodeProgram, PutsAListIntoAHouse) {
    TempFolder folder;
    const std::string house = folder.file("haus");
    ASSERT_EQ(runProgram("herbergo-neu", {house}).exitCode, 0);
    support::writeBytes(folder.file("liste.csv"), "PLZ;Ort\n1010;Wien\n1010;Wien\n28195;Bremen\nunsinn\n");
    const support::Finished added = runProgram("herbergo-plz", {house, folder.file("liste.csv")});
    EXPECT_EQ(added.exitCode, 0) << added.errors;
    EXPECT_EQ(added.output, "1 von 3 Orten aufgenommen; die anderen waren schon da.\n");
    EXPECT_EQ(added.errors, "herbergo-plz: 1 Zeile ist keine Angabe 'PLZ;Ort' und wurde übergangen: 5\n");
    EXPECT_EQ(runProgram("herbergo-plz", {house, folder.file("liste.csv"), "--ersetzen"}).exitCode, 0);
    const services::FixedClock clock(support::day(15, 6));
    jet::Database file =
        jet::Workspace(clock).OpenDatabase(folder.file("haus/Feiertag.mdb"), false, true, openConnect());
    EXPECT_EQ(allRows(file, "SELECT PLZ, Ort FROM tbPLZ ORDER BY PLZ"), "1010 Wien | 28195 Bremen");
}

TEST(PostalCodeProgram, TellsWhatIsWrongAndChangesNothing) {
    TempFolder folder;
    const std::string house = folder.file("haus");
    support::writeBytes(folder.file("leer.csv"), "PLZ;Ort\n");
    support::writeBytes(folder.file("gut.csv"), "1010;Wien\n");
    for (const auto& call : {std::vector<std::string>{house, folder.file("fehlt.csv")},
                             {house, folder.file("leer.csv"), "--ersetzen"},
                             {house, folder.path().string()},
                             {house, folder.file("gut.csv")}}) {
        const support::Finished refused = runProgram("herbergo-plz", call);
        EXPECT_EQ(refused.exitCode, 1) << call[1];
        EXPECT_NE(refused.errors.find("Es wurde nichts verändert."), std::string::npos) << refused.errors;
    }
    EXPECT_FALSE(std::filesystem::exists(house));
    EXPECT_EQ(runProgram("herbergo-plz", {house}).exitCode, 2);
    EXPECT_EQ(runProgram("herbergo-plz", {"--help"}).exitCode, 0);
}

} // namespace
} // namespace store
