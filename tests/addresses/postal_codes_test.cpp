#include "addresses/postal_codes.h"

#include "store/database_files.h"
#include "store/postal_codes.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

namespace addresses {
namespace {

using Orte = std::vector<Ort>;

TEST(PostalCodes, PlacesComeByTheBeginningOfTheirCode) {
    support::TestHouse house;
    const std::string datei = house.file("Feiertag.mdb");
    EXPECT_EQ(OrteZurPLZ(house.workspace(), datei, "28195"), Orte());
    {
        jet::Database file = house.open("Feiertag.mdb");
        store::storePostalCodes(file, {{"17459", "Ückeritz"}, {"17454", "Zinnowitz"}, {"17449", "Peenemünde"}},
                                store::ExistingCodes::Replace);
        file.Execute("INSERT INTO tbPLZ (PLZ, Ort) VALUES (Null, 'ohne')");
    }
    EXPECT_EQ(OrteZurPLZ(house.workspace(), datei, "174"),
              (Orte{{"17449", "Peenemünde"}, {"17459", "Ückeritz"}, {"17454", "Zinnowitz"}}));
    EXPECT_EQ(OrteZurPLZ(house.workspace(), datei, "17459"), (Orte{{"17459", "Ückeritz"}}));
    for (const char* text : {"", "*", "1*", "#", "%", "[1]", "?", "1'", "174599", "\"", " 1"})
        EXPECT_EQ(OrteZurPLZ(house.workspace(), datei, text), Orte()) << text;
    EXPECT_EQ(OrteZurPLZ(house.workspace(), house.file("fehlt.mdb"), "1"), Orte());
}

} // namespace
} // namespace addresses
