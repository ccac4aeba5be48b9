#include "reservations/tariffs.h"
#include "support/test_house.h"

#include <gmock/gmock.h>

namespace reservations {
namespace {

using testing::ElementsAre;

void insert(support::TestHouse& house, const char* tarif) {
    house.db().Execute("INSERT INTO tblTarife (Tarif) VALUES (" + jet::sqlText(tarif) + ")");
}

TEST(Tariffs, StandInTheOrderOfTheirAmounts) {
    support::TestHouse house;
    for (const auto* tarif : {"110", "9,5", "1.234,50", "72,25"})
        insert(house, tarif);
    EXPECT_THAT(TarifeLesen(house.db()), ElementsAre("9,50", "72,25", "110,00", "1.234,50"));
}

TEST(Tariffs, OnlyANumberThatIsNotThereYetIsAdded) {
    struct Case {
        const char* typed;
        bool added;
    };
    support::TestHouse house;
    insert(house, "30,5");
    for (const Case& c : {Case{"", false},
                          {"abc", false},
                          {"*", false},
                          {"' or '1'='1", false},
                          {"12,5,0", false},
                          {"1e300", false}, // no room for it
                          {"30,50", false}, // there in another spelling
                          {"30.5", true},   // the point is no comma
                          {"1.234,56", true},
                          {"1234,56", false},
                          {"1e9", true},
                          {"-5", true}})
        EXPECT_EQ(TarifAnlegen(house.db(), c.typed), c.added) << c.typed;
    EXPECT_THAT(TarifeLesen(house.db()), ElementsAre("-5,00", "30,50", "305,00", "1.234,56", "1.000.000.000,00"));
}

TEST(Tariffs, GoByTheirFormattedAmount) {
    support::TestHouse house;
    for (const auto* tarif : {"30,5", "1234,5", "80"})
        insert(house, tarif);
    EXPECT_FALSE(TarifLöschen(house.db(), ""));
    EXPECT_FALSE(TarifLöschen(house.db(), "' or '1'='1"));
    EXPECT_FALSE(TarifLöschen(house.db(), "81"));
    EXPECT_TRUE(TarifLöschen(house.db(), "30,50"));
    EXPECT_TRUE(TarifLöschen(house.db(), "1.234,5"));
    EXPECT_FALSE(TarifLöschen(house.db(), "1.234,50"));
    EXPECT_THAT(TarifeLesen(house.db()), ElementsAre("80,00"));
}

TEST(Tariffs, ARowThatIsNoNumberCanBeTakenOutAgain) {
    support::TestHouse house;
    for (const auto* tarif : {"80", "nach Absprache"})
        insert(house, tarif);
    EXPECT_THAT(TarifeLesen(house.db()), ElementsAre());
    EXPECT_FALSE(TarifAnlegen(house.db(), "80")); // found in spite of the list
    EXPECT_TRUE(TarifLöschen(house.db(), "nach Absprache"));
    EXPECT_THAT(TarifeLesen(house.db()), ElementsAre("80,00"));
}

} // namespace
} // namespace reservations
