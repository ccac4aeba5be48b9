#include "support/jet_files.h"
#include "support/station.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sqlite3.h>

namespace {

using support::errorNumber;
using support::JetFolder;
using support::oneValue;

void fill(jet::Database& database) {
    database.Execute("CREATE TABLE tbGast (ID COUNTER PRIMARY KEY, Ort TEXT(60))");
    database.Execute("CREATE UNIQUE INDEX Ort ON tbGast (Ort)");
    jet::Transaction transaction(database, "tbGast");
    for (int i = 0; i < 300; ++i)
        database.Execute("INSERT INTO tbGast (Ort) VALUES ('Ort " + std::to_string(i) + std::string(40, '.') + "')");
    transaction.Commit();
}

/// Root page of a table or index, to hurt it.
std::size_t rootPage(const std::string& path, const std::string& name) {
    sqlite3* file = nullptr;
    sqlite3_open(path.c_str(), &file);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(file, "SELECT rootpage FROM sqlite_schema WHERE name = ?1", -1, &statement, nullptr);
    sqlite3_bind_text(statement, 1, name.c_str(), -1, SQLITE_STATIC);
    sqlite3_step(statement);
    const auto page = static_cast<std::size_t>(sqlite3_column_int(statement, 0));
    sqlite3_finalize(statement);
    sqlite3_close(file);
    return page;
}

void overwritePage(const std::string& path, std::size_t page, std::string_view withPageOf, std::size_t source) {
    constexpr std::size_t size = 4096;
    std::string bytes = support::fileBytes(path);
    bytes.replace((page - 1) * size, size, withPageOf.substr((source - 1) * size, size));
    support::writeBytes(path, bytes);
}

} // namespace

TEST(Maintenance, RebuildsIndexesThatAloneAreHurt) {
    const JetFolder house;
    const std::string path = house.file("Zentral.mdb");
    {
        jet::Database database = house.create("Zentral.mdb");
        database.Execute("CREATE TABLE tbGast (ID COUNTER PRIMARY KEY, Ort TEXT(60))");
        database.Execute("CREATE UNIQUE INDEX Ort ON tbGast (Ort)");
        database.Execute("INSERT INTO tbGast (Ort) VALUES ('Altstadt')");
    }
    const std::string before = support::fileBytes(path);
    const std::size_t index = rootPage(path, "tbGast.Ort");
    {
        jet::Database database = house.open("Zentral.mdb");
        database.Execute("UPDATE tbGast SET Ort = 'Neustadt'");
        database.Execute("INSERT INTO tbGast (Ort) VALUES ('Dorf')");
    }
    // The root of the index as it was before the changes, the rows as they are.
    overwritePage(path, index, before, index);
    jet::RepairDatabase(house.workspace, path, "");
    jet::Database database = house.open("Zentral.mdb");
    EXPECT_EQ("1", oneValue(database, "SELECT ID FROM tbGast WHERE Ort = 'Neustadt'"));
    EXPECT_EQ("2", oneValue(database, "SELECT Count(*) FROM tbGast WHERE Ort > 'A'"));
}

TEST(Maintenance, RefusesToRepairHurtRows) {
    const JetFolder house;
    const std::string path = house.file("Zentral.mdb");
    {
        jet::Database database = house.create("Zentral.mdb");
        fill(database);
    }
    overwritePage(path, rootPage(path, "tbGast"), std::string(4096, 'x'), 1);
    const std::string hurt = support::fileBytes(path);
    EXPECT_EQ(3049, errorNumber([&] { jet::RepairDatabase(house.workspace, path, ""); }));
    EXPECT_EQ(hurt, support::fileBytes(path));
    EXPECT_EQ(3024, errorNumber([&] { jet::RepairDatabase(house.workspace, house.file("fehlt.mdb"), ""); }));
}

TEST(Maintenance, CopiesKeepEverythingAndReplaceNothing) {
    const JetFolder house;
    jet::Database database = house.create("Zentral.mdb", ";PWD=geheim77");
    fill(database);
    database.Execute("DELETE FROM tbGast WHERE ID > 20");
    const auto path = [&](const char* name) { return house.file(name); };
    using Copy = void (*)(const jet::Workspace&, const std::string&, const std::string&, std::string_view);
    for (const Copy copy : {Copy{&jet::CompactDatabase}, Copy{&jet::BackupDatabase}}) {
        copy(house.workspace, path("Zentral.mdb"), path("Kopie.mdb"), ";PWD=geheim77");
        EXPECT_EQ(3031, errorNumber([&] { std::ignore = house.open("Kopie.mdb"); }));
        {
            jet::Database opened = house.open("Kopie.mdb", ";PWD=geheim77");
            EXPECT_EQ("20", oneValue(opened, "SELECT Count(*) FROM tbGast"));
            opened.Execute("INSERT INTO tbGast (Ort) VALUES ('neu')");
            EXPECT_EQ("301", oneValue(opened, "SELECT Max(ID) FROM tbGast")) << "the counter goes on";
        }
        EXPECT_EQ(3204,
                  errorNumber([&] { copy(house.workspace, path("Zentral.mdb"), path("Kopie.mdb"), ";PWD=geheim77"); }));
        EXPECT_EQ(3031, errorNumber([&] { copy(house.workspace, path("Zentral.mdb"), path("Zwei.mdb"), ""); }));
        std::filesystem::remove(path("Kopie.mdb"));
    }
    // Nothing unfinished stays behind, and the file is still open and good.
    const std::filesystem::directory_iterator entries(house.folder.path());
    EXPECT_EQ(1, std::distance(begin(entries), end(entries)));
    EXPECT_EQ("20", oneValue(database, "SELECT Count(*) FROM tbGast"));
}

TEST(Maintenance, ACopyOfOpenFilesKeepsTheLocksOfThisProcess) {
    JetFolder house;
    jet::Database database = house.create("Zentral.mdb");
    fill(database);
    support::Station other([&](support::Channel& channel) {
        house.workspace.setLockTimeout(30);
        std::ignore = channel.hear();
        channel.say(std::to_string(errorNumber([&] {
            jet::Database mine = house.open("Zentral.mdb");
            mine.Execute("DELETE FROM tbGast");
        })));
    });
    jet::Transaction transaction(database, "tbGast");
    database.Execute("UPDATE tbGast SET Ort = 'x' WHERE ID = 1");
    jet::BackupDatabase(house.workspace, house.file("Zentral.mdb"), house.file("Kopie.mdb"), "");
    other.channel().say("los");
    EXPECT_EQ("3218", other.channel().hear());
    transaction.Commit();
    jet::Database copy = house.open("Kopie.mdb");
    EXPECT_EQ("Ort 0", oneValue(copy, "SELECT Left(Ort, 5) FROM tbGast WHERE ID = 1"))
        << "the copy has what was committed";
}

TEST(Maintenance, TextIndexesOfAnotherCollationAreRebuilt) {
    const JetFolder house;
    const std::string path = house.file("Zentral.mdb");
    {
        jet::Database database = house.create("Zentral.mdb");
        fill(database);
    }
    sqlite3* file = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(path.c_str(), &file));
    const auto backwards = [](void*, int aSize, const void* a, int bSize, const void* b) {
        const std::string_view left(static_cast<const char*>(a), static_cast<std::size_t>(aSize));
        return std::string_view(static_cast<const char*>(b), static_cast<std::size_t>(bSize)).compare(left);
    };
    ASSERT_EQ(SQLITE_OK, sqlite3_create_collation(file, "DE", SQLITE_UTF8, nullptr, backwards));
    const char* spoil = "REINDEX tbGast; UPDATE \"~properties\" SET Value = 'alt' WHERE Name = 'Collation'";
    ASSERT_EQ(SQLITE_OK, sqlite3_exec(file, spoil, nullptr, nullptr, nullptr));
    sqlite3_close(file);

    jet::Database database = house.open("Zentral.mdb");
    const std::string name = "Ort 17" + std::string(40, '.');
    EXPECT_EQ("18", oneValue(database, "SELECT ID FROM tbGast WHERE Ort = '" + name + "'"));
    database.Close();
    EXPECT_EQ(0, errorNumber([&] { jet::RepairDatabase(house.workspace, path, ""); }));
}
