#include "addresses/address_list.h"

#include "store/database_files.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

#include <chrono>

namespace addresses {
namespace {

using support::TestHouse;

std::string lines(const Adressliste& liste, std::string_view typed, std::size_t limit = 10) {
    std::string text;
    for (const services::Match& match : liste.matches(typed, limit))
        text += (text.empty() ? "" : " | ") + match.Text;
    return text;
}

TEST(AddressList, ShowsWhatAnAddressHas) {
    TestHouse house;
    const Adressliste liste(house.db());
    EXPECT_EQ(liste.Anzahl(), 0U);
    const auto whole =
        house.guest({.LastName = "Müller", .FirstName = "Anna", .City = "Bremen", .PostalCode = "28195"});
    const auto town = house.guest({.LastName = "Oslo", .City = "Bremen"});
    const auto name = house.guest({.LastName = "Nur"});
    house.db().Execute("INSERT INTO Address (FirstName, City) VALUES (Null, Null)");
    house.db().Execute("INSERT INTO Address (LastName, FirstName) VALUES (Null, 'Otto')");
    EXPECT_EQ(liste.Anzahl(), 0U) << "read once, until somebody says that it is out of date";

    Adressliste neu(house.db());
    EXPECT_EQ(neu.Zeile(whole), "Müller, Anna, 28195 Bremen");
    EXPECT_EQ(neu.Zeile(town), "Oslo, Bremen");
    EXPECT_EQ(neu.Zeile(name), "Nur");
    EXPECT_EQ(neu.Zeile(99), "");
    EXPECT_EQ(lines(neu, "ot"), "Otto") << "an address without a last name can still be found";
    EXPECT_EQ(neu.Anzahl(), 4U) << "one without any name cannot";
    house.guest({.LastName = "Später"});
    EXPECT_EQ(neu.Zeile(house.guest({.LastName = "Eben"})), "Eben") << "a single one is always as it is now";
    neu.veraltet();
    EXPECT_EQ(lines(neu, "sp"), "Später");
}

TEST(AddressList, LooksForWhatOtherStationsHaveStored) {
    TestHouse house;
    const auto gast = std::to_string(house.guest({.LastName = "Alt"}));
    Adressliste liste(house.db());
    EXPECT_EQ(lines(liste, "a"), "Alt");
    struct Case {
        std::string statement;
        const char* found;
    };
    for (const Case& c :
         {Case{"INSERT INTO Address (LastName) VALUES ('Anders')", "Alt | Anders"},
          {"UPDATE Address SET LastName = 'Aalt', WannGeändert = Now() WHERE ID = " + gast, "Aalt | Anders"},
          {"DELETE * FROM Address WHERE ID = " + gast, "Anders"},
          {"DELETE * FROM Address", ""}}) {
        const std::string vorher = lines(liste, "a");
        house.db().Execute(c.statement);
        EXPECT_EQ(lines(liste, "a"), vorher) << "one reading holds until somebody asks";
        liste.nachsehen();
        EXPECT_EQ(lines(liste, "a"), c.found) << c.statement;
    }
}

TEST(AddressList, APreparedListReadsNothingAtTheFirstKey) {
    TestHouse house;
    house.guest({.LastName = "Meier"});
    Adressliste liste(house.db());
    liste.nachsehen();
    liste.prepare();
    house.guest({.LastName = "Meiser"});
    EXPECT_EQ(lines(liste, "mei"), "Meier");
}

TEST(AddressList, MatchesBeginningsWithoutRegardToCase) {
    TestHouse house;
    for (const char* name : {"Müller", "MÜLLERBURG", "Muller",
                             "Mu\xCC\x88"
                             "ck",
                             "Meier", "Meier-Huber", "O'Neill", "100% Reisen", "[Test*"})
        house.guest({.LastName = name, .FirstName = "Anna"});
    house.guest({.LastName = "Meier", .FirstName = "Bert"});
    house.guest({.LastName = "Zeile\r\nzwei"});
    const Adressliste liste(house.db());
    struct Case {
        const char* typed;
        const char* found;
    };
    for (const Case& c : {
             Case{"mü", "Mu\xCC\x88"
                        "ck, Anna | Müller, Anna | MÜLLERBURG, Anna"},
             {"MU", "Muller, Anna"},
             {"mei", "Meier, Anna | Meier, Bert | Meier-Huber, Anna"},
             {"meier, b", "Meier, Bert"},
             {"Meier,", "Meier, Anna | Meier, Bert"},
             {"Anna", ""},
             {"o'", "O'Neill, Anna"},
             {"%", ""},
             {"*", ""},
             {"[t", "[Test*, Anna"},
             {"  mull", "Muller, Anna"},
             {"zeile ", "Zeile  zwei"},
         })
        EXPECT_EQ(lines(liste, c.typed), c.found) << c.typed;
    EXPECT_EQ(lines(liste, "m", 2), "Meier, Anna | Meier, Bert") << "the first of the list, not any";
    EXPECT_EQ(lines(liste, "m", 0), "");
    EXPECT_EQ(lines(liste, "", 2), "[Test*, Anna | 100% Reisen, Anna") << "whoever opens the list sees its beginning";
}

TEST(AddressList, IsEmptyWhileItsTableCannotBeRead) {
    TestHouse house;
    house.guest({.LastName = "Weg"});
    jet::Database db = house.open("Lokal.mdb");
    const Adressliste liste(db);
    db.Close();
    EXPECT_TRUE(liste.matches("we", 5).empty());
    house.workspace().Reopen(db, house.file("Lokal.mdb"), store::openConnect());
    EXPECT_EQ(lines(liste, "we"), "Weg") << "and is read when it can be";
}

TEST(AddressList, TwoLettersAmongFiftyThousandAnswerAtOnce) {
    TestHouse house;
    {
        jet::Database zentral = house.open("Zentral.mdb");
        jet::Transaction transaction(zentral, "Address");
        jet::Recordset rows = zentral.OpenRecordset("SELECT LastName, FirstName, City FROM Address WHERE ID = 0");
        for (int i = 0; i < 50000; ++i) {
            rows.AddNew();
            rows.Fields(0) = (i % 2 == 0 ? "Müller " : "Schmidt ") + std::to_string(i);
            rows.Fields(1) = "Änne";
            rows.Fields(2) = "Bremen";
            rows.Update();
        }
        transaction.Commit();
    }
    const Adressliste liste(house.db());
    ASSERT_EQ(liste.Anzahl(), 50000U);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(liste.matches("MÜ", 20).size(), 20U);
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took.count(), 100); // some milliseconds; the bound leaves room for a debug build on a busy machine
}

} // namespace
} // namespace addresses
