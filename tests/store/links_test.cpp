#include "store/links.h"

#include "store/database_files.h"
#include "store/path_test.h"
#include "store/repair.h"
#include "support/test_house.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using support::day;
using support::TestHouse;

std::string homeOf(jet::Database& database, std::string_view table) {
    return store::linkedFileName(database.GetTableDef(table).Connect);
}

/// Moves the two home files of a house into a folder of another name, as an administrator does with a network share.
struct MovedHouse {
    TestHouse house;
    std::string shared;
    std::string source;

    explicit MovedHouse(std::string_view folder) {
        house.rooms(2);
        house.stay({.Zimmernummer = 1, .Von = day(10, 6), .Bis = day(20, 6)});
        house.db().Close();
        fs::create_directories(house.file(folder));
        shared = house.file(std::string(folder) + "/Zentral.mdb");
        source = house.file(std::string(folder) + "/Herbergo.mdb");
        fs::rename(house.file("Zentral.mdb"), shared);
        fs::rename(house.file("Herbergo.mdb"), source);
    }
    [[nodiscard]] store::LinkPlaces places() const { return {house.file("Lokal.mdb"), shared}; }
};

TEST(Links, StaleLinksFailTheTestAndRelinkingHealsThemWithoutTouchingData) {
    MovedHouse moved("netz");
    const jet::Workspace& workspace = moved.house.workspace();
    EXPECT_FALSE(store::linksWork(workspace, moved.places().LokalDB));
    EXPECT_EQ(store::relinkAll(workspace, moved.places(), moved.shared, moved.source), std::vector<std::string>());
    EXPECT_TRUE(store::linksWork(workspace, moved.places().LokalDB));

    jet::Database database = moved.house.open("Lokal.mdb");
    EXPECT_EQ(database.OpenRecordset("tblBelegung").RecordCount(), 1);
    EXPECT_EQ(database.OpenRecordset("tbZimmernummern").RecordCount(), 3);
}

TEST(Links, TheSourceFileIsToldByItsNameAlsoInAFolderNamedLikeTheSharedFile) {
    MovedHouse first("Zentrale Daten");
    const jet::Workspace& workspace = first.house.workspace();
    EXPECT_TRUE(store::relinkAll(workspace, first.places(), first.shared, first.source).empty());
    // the second time the old links carry the folder's name
    EXPECT_TRUE(store::relinkAll(workspace, first.places(), first.shared, first.source).empty());
    jet::Database database = first.house.open("Lokal.mdb");
    EXPECT_EQ(homeOf(database, "tbZimmernummern"), "Herbergo.mdb");
    EXPECT_EQ(homeOf(database, "tblBelegung"), "Zentral.mdb");
}

TEST(Links, ALinkThatCannotBeSetKeepsItsPlaceAndTheOthersAreSet) {
    MovedHouse moved("netz");
    {
        jet::Database source = moved.house.workspace().OpenDatabase(moved.source, false, false, store::openConnect());
        source.DeleteTableDef("tbKategorie");
    }
    EXPECT_EQ(store::relinkAll(moved.house.workspace(), moved.places(), moved.shared, moved.source),
              std::vector<std::string>{"tbKategorie"});
    EXPECT_TRUE(store::linksWork(moved.house.workspace(), moved.places().LokalDB));
}

TEST(Links, ATableAddedLaterGetsItsLink) {
    TestHouse house;
    house.db().Close();
    {
        jet::Database source = house.open("Herbergo.mdb");
        jet::TableDef table;
        table.Name = "tbNeu";
        table.Fields = {jet::CreateField("Wort", jet::FieldType::Text, 50)};
        source.AppendTableDef(table);
    }
    const store::LinkPlaces places{house.file("Lokal.mdb"), house.file("Zentral.mdb")};
    store::linkOrRefresh(house.workspace(), places, true, "tbNeu", house.file("Herbergo.mdb"));
    jet::Database database = house.open("Lokal.mdb");
    EXPECT_TRUE(store::tableIsLinked(database, "tbNeu"));
    EXPECT_FALSE(store::tableIsLinked(database, "tbNeuer"));
    EXPECT_TRUE(database.OpenRecordset("tbNeu").Eof());
    database.Close();
    // nothing to link, nothing to point elsewhere
    store::linkOrRefresh(house.workspace(), places, true, "tbLeer", "");
    store::linkOrRefresh(house.workspace(), {}, true, "tbLeer", house.file("Herbergo.mdb"));
    store::linkOrRefresh(house.workspace(), places, false, "tbLeer", house.file("Herbergo.mdb"));
    EXPECT_FALSE(store::tableIsLinked(house.open("Lokal.mdb"), "tbLeer"));
}

TEST(Links, AnInstanceThatSharesAddressesReadsThoseOfTheMainProgram) {
    TestHouse main;
    main.guest({.LastName = "Gemeinsam"});
    main.db().Close();
    TestHouse second;
    second.db().Close();
    store::LinkPlaces places{second.file("Lokal.mdb"), main.file("Zentral.mdb")};
    places.AdrAusBel = true;
    const auto guestsOfSecond = [&](int instance) {
        places.Instanz = instance;
        EXPECT_TRUE(
            store::relinkAll(second.workspace(), places, second.file("Zentral.mdb"), second.file("Herbergo.mdb"))
                .empty());
        jet::Database database = second.open("Lokal.mdb");
        EXPECT_EQ(database.OpenRecordset("tblBelegung").RecordCount(), 0);
        return database.OpenRecordset("Address").RecordCount();
    };
    EXPECT_EQ(guestsOfSecond(1), 1);
    EXPECT_EQ(guestsOfSecond(0), 0); // the main program goes by its own file whatever is noted
}

TEST(Paths, AFileIsRightWhenItHoldsItsTableUnderThePassword) {
    TestHouse house;
    const auto holds = [&](std::string_view file, std::string_view table) {
        return store::fileHoldsTable(house.workspace(), house.file(file), table);
    };
    EXPECT_TRUE(holds("Zentral.mdb", store::kSharedTestTable));
    EXPECT_TRUE(holds("Herbergo.mdb", store::kSourceTestTable));
    EXPECT_FALSE(holds("Zentral.mdb", store::kSourceTestTable));
    EXPECT_FALSE(holds("Fehlt.mdb", store::kSharedTestTable));
    EXPECT_FALSE(store::fileHoldsTable(house.workspace(), "", store::kSharedTestTable));
    EXPECT_FALSE(fs::exists(house.file("Fehlt.mdb")));
    jet::Database foreign = house.workspace().CreateDatabase(house.file("Fremd.mdb"), ";PWD=anders");
    jet::TableDef table;
    table.Name = "tblBelegung";
    table.Fields = {jet::CreateField("ID", jet::FieldType::Long)};
    foreign.AppendTableDef(table);
    foreign.Close();
    EXPECT_FALSE(holds("Fremd.mdb", store::kSharedTestTable));
}

TEST(Paths, NamesOfInstancesTakeTheLastLettersPlace) {
    const store::FileNames second = store::fileNames(2);
    EXPECT_EQ(second.Zentral, "Zentra2.mdb");
    EXPECT_EQ(second.Herbergo, "Herberg2.mdb");
    EXPECT_EQ(second.Beispiel, "Beispie2.mdb");
    EXPECT_EQ(second.Lokal, "Loka2.mdb");
    EXPECT_EQ(store::localFileBeside("/haus/" + second.Beispiel, second.Lokal), "/haus/Loka2.mdb");
    EXPECT_EQ(store::localFileBeside("/häuser/Beispiel.mdb", "Lokal.mdb"), "/häuser/Lokal.mdb");
    EXPECT_EQ(store::localFileBeside("", "Lokal.mdb"), "Lokal.mdb");
}

TEST(Paths, LinksOfEitherPlatformNameTheirFile) {
    EXPECT_EQ(store::linkedFileName(";DATABASE=C:\\Zentrale\\Herbergo.mdb;PWD=x"), "Herbergo.mdb");
    EXPECT_EQ(store::linkedFileName(";database=/srv/Zentrale/Herbergo.mdb"), "Herbergo.mdb");
    EXPECT_EQ(store::linkedFileName(";PWD=x;DATABASE=Zentral.mdb"), "Zentral.mdb");
    EXPECT_EQ(store::linkedFileName(""), "");
}

TEST(Repair, PassesOverWhatCannotBeRepaired) {
    TestHouse house;
    house.rooms(1);
    house.db().Close();
    fs::remove(house.file("Lokal.mdb"));
    fs::resize_file(house.file("Herbergo.mdb"), 1000);
    store::repairFiles(house.workspace(), house.file("Lokal.mdb"), house.file("Herbergo.mdb"),
                       house.file("Zentral.mdb"));
    EXPECT_FALSE(fs::exists(house.file("Lokal.mdb")));
    EXPECT_EQ(fs::file_size(house.file("Herbergo.mdb")), 1000U);
    EXPECT_TRUE(store::fileHoldsTable(house.workspace(), house.file("Zentral.mdb"), store::kSharedTestTable));
}

} // namespace
