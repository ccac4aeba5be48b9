#include "support/jet_files.h"
#include "support/station.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <sqlite3.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using support::errorNumber;
using support::errorText;
using support::JetFolder;

constexpr int nobody = 65534;

void fillTable(jet::Database& database) {
    database.Execute("CREATE TABLE tbGast (ID COUNTER PRIMARY KEY, Ort TEXT(200))");
    jet::Transaction transaction(database, "tbGast");
    for (int i = 0; i < 200; ++i)
        database.Execute("INSERT INTO tbGast (Ort) VALUES ('" + std::string(150, 'x') + "')");
    transaction.Commit();
}

/// First page of a file as the old engine wrote it; only its beginning is fixed.
std::string jetHeaderPage() {
    std::string page(2048, '\0');
    page.replace(0, 4, std::string("\0\1\0\0", 4));
    page.replace(4, 15, "Standard Jet DB");
    page[0x14] = '\1';
    return page;
}

} // namespace

TEST(OpenFile, NamesWhatIsNoDataFile) {
    const JetFolder house;
    std::filesystem::create_directory(house.file("Ordner.mdb"));
    support::writeBytes(house.file("leer.mdb"), "");
    support::writeBytes(house.file("brief.mdb"), std::string(5000, 'b'));
    support::writeBytes(house.file("alt.mdb"), jetHeaderPage());
    sqlite3* foreign = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(house.file("fremd.mdb").c_str(), &foreign));
    ASSERT_EQ(SQLITE_OK, sqlite3_exec(foreign, "CREATE TABLE t (a)", nullptr, nullptr, nullptr));
    sqlite3_close(foreign);

    const std::vector<std::pair<std::string, int>> cases{
        {"fehlt.mdb", 3024}, {"weg/fehlt.mdb", 3044}, {"Ordner.mdb", 3051}, {"leer.mdb", 3343},
        {"brief.mdb", 3343}, {"alt.mdb", 3343},       {"fremd.mdb", 3343},
    };
    for (const auto& [name, number] : cases) {
        const std::string before = support::fileBytes(house.file(name));
        EXPECT_EQ(number, errorNumber([&, &file = name] { std::ignore = house.open(file); })) << name;
        EXPECT_EQ(before, support::fileBytes(house.file(name))) << name;
    }
    EXPECT_FALSE(std::filesystem::exists(house.file("fehlt.mdb")));
    EXPECT_NE(std::string::npos, errorText([&] { std::ignore = house.open("alt.mdb"); }).find("Jet-Engine"));
    EXPECT_EQ(std::string::npos, errorText([&] { std::ignore = house.open("brief.mdb"); }).find("Jet-Engine"));
}

TEST(OpenFile, RefusesATruncatedFileAtAnyLength) {
    const JetFolder house;
    {
        jet::Database database = house.create("Zentral.mdb");
        fillTable(database);
    }
    const std::string whole = support::fileBytes(house.file("Zentral.mdb"));
    for (const std::size_t length :
         {whole.size() - 4096, whole.size() - 1000, std::size_t{4096}, std::size_t{600}, std::size_t{50}}) {
        const std::string stump = whole.substr(0, length);
        support::writeBytes(house.file("Stumpf.mdb"), stump);
        EXPECT_EQ(3049, errorNumber([&] { std::ignore = house.open("Stumpf.mdb"); })) << length;
        EXPECT_EQ(stump, support::fileBytes(house.file("Stumpf.mdb"))) << length;
    }
}

TEST(OpenFile, AsksForThePasswordAndNeverShowsIt) {
    const JetFolder house;
    std::ignore = house.create("Zentral.mdb", ";PWD=geheim77");
    std::ignore = house.create("offen.mdb");
    EXPECT_EQ(0, errorNumber([&] { std::ignore = house.open("Zentral.mdb", ";pwd=geheim77"); }));
    for (const char* connect : {"", ";PWD=", ";PWD=Geheim77", ";PWD=geheim7"}) {
        EXPECT_EQ(3031, errorNumber([&] { std::ignore = house.open("Zentral.mdb", connect); })) << connect;
    }
    EXPECT_EQ(std::string::npos,
              errorText([&] { std::ignore = house.open("Zentral.mdb", ";PWD=versuch9"); }).find("versuch9"));
    EXPECT_EQ(std::string::npos, support::fileBytes(house.file("Zentral.mdb")).find("geheim77"));
    EXPECT_EQ(0, errorNumber([&] { std::ignore = house.open("offen.mdb", ";PWD=irgendeins"); }));
}

TEST(OpenFile, NeverReplacesAFile) {
    const JetFolder house;
    support::writeBytes(house.file("da.mdb"), "Inhalt");
    EXPECT_EQ(3204, errorNumber([&] { std::ignore = house.create("da.mdb"); }));
    EXPECT_EQ("Inhalt", support::fileBytes(house.file("da.mdb")));
    EXPECT_EQ(3044, errorNumber([&] { std::ignore = house.create("weg/neu.mdb"); }));
}

TEST(OpenFile, ReadsButDoesNotWriteWhatIsWriteProtected) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs a second user";
    const JetFolder house;
    {
        jet::Database database = house.create("Zentral.mdb");
        fillTable(database);
    }
    const std::string path = house.file("Zentral.mdb");
    struct Case {
        mode_t folder;
        mode_t file;
        int openNumber;
        int writeNumber;
    };
    const Case cases[] = {{0777, 0444, 0, 3027}, {0555, 0666, 0, 3027}, {0777, 0000, 3051, 3051}};
    for (const Case& one : cases) {
        std::filesystem::permissions(house.folder.path(), std::filesystem::perms(one.folder));
        std::filesystem::permissions(path, std::filesystem::perms(one.file));
        support::Station guest([&](support::Channel& channel) {
            if (::setuid(nobody) != 0) throw std::runtime_error("no second user");
            channel.say(std::to_string(errorNumber([&] { std::ignore = house.open("Zentral.mdb"); })));
            channel.say(std::to_string(errorNumber([&] {
                jet::Database database = house.open("Zentral.mdb");
                if (support::oneValue(database, "SELECT Count(*) FROM tbGast") != "200")
                    throw std::runtime_error("rows");
                database.Execute("UPDATE tbGast SET Ort = 'neu'");
            })));
        });
        EXPECT_EQ(std::to_string(one.openNumber), guest.channel().hear()) << std::oct << one.folder << " " << one.file;
        EXPECT_EQ(std::to_string(one.writeNumber), guest.channel().hear()) << std::oct << one.folder << " " << one.file;
        EXPECT_EQ(0, guest.wait());
    }
}

TEST(OpenFile, OpenedForReadingRefusesToWrite) {
    const JetFolder house;
    {
        jet::Database database = house.create("Zentral.mdb");
        fillTable(database);
    }
    jet::Database database = house.workspace.OpenDatabase(house.file("Zentral.mdb"), false, true);
    EXPECT_EQ("200", support::oneValue(database, "SELECT Count(*) FROM tbGast"));
    EXPECT_EQ(3027, errorNumber([&] { database.Execute("DELETE FROM tbGast"); }));
}

TEST(OpenFile, AFullDiskLeavesTheFileAsItWas) {
    const JetFolder house;
    {
        jet::Database database = house.create("Zentral.mdb");
        fillTable(database);
    }
    const auto size = std::filesystem::file_size(house.file("Zentral.mdb"));
    support::Station station([&](support::Channel& channel) {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{size + 8192, size + 8192};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        jet::Database database = house.open("Zentral.mdb");
        channel.say(
            std::to_string(errorNumber([&] { database.Execute("INSERT INTO tbGast (Ort) SELECT Ort FROM tbGast"); })));
        channel.say(support::oneValue(database, "SELECT Count(*) FROM tbGast"));
    });
    EXPECT_EQ("3026", station.channel().hear());
    EXPECT_EQ("200", station.channel().hear());
    EXPECT_EQ(0, station.wait());
    EXPECT_EQ(0, errorNumber([&] { jet::RepairDatabase(house.workspace, house.file("Zentral.mdb"), ""); }));
    jet::Database database = house.open("Zentral.mdb");
    EXPECT_EQ("200", support::oneValue(database, "SELECT Count(*) FROM tbGast"));
}

TEST(OpenFile, ATransactionHoldsItsFileBeforeItWrites) {
    JetFolder house;
    {
        jet::Database database = house.create("Zentral.mdb");
        fillTable(database);
    }
    support::Station other([&](support::Channel& channel) {
        jet::Database database = house.open("Zentral.mdb");
        jet::Transaction transaction(database, "tbGast");
        channel.say("begonnen");
        std::ignore = channel.hear();
        database.Execute("UPDATE tbGast SET Ort = 'anderer' WHERE ID = 1");
        transaction.Commit();
    });
    ASSERT_EQ("begonnen", other.channel().hear());
    jet::Database database = house.open("Zentral.mdb");
    house.workspace.setLockTimeout(50);
    // What both have read neither may write on the strength of it, so the second does not even begin.
    EXPECT_EQ(3218, errorNumber([&] { const jet::Transaction transaction(database, "tbGast"); }));
    EXPECT_EQ("xxx", support::oneValue(database, "SELECT Left(Ort, 3) FROM tbGast WHERE ID = 1"));
    other.channel().say("weiter");
    EXPECT_EQ(0, other.wait());
    EXPECT_EQ("anderer", support::oneValue(database, "SELECT Ort FROM tbGast WHERE ID = 1"));
}

TEST(OpenFile, WaitsForALockedFileAndThenSaysSo) {
    JetFolder house;
    {
        jet::Database database = house.create("Zentral.mdb");
        fillTable(database);
    }
    support::Station other([&](support::Channel& channel) {
        jet::Database database = house.open("Zentral.mdb");
        jet::Transaction transaction(database, "tbGast");
        database.Execute("UPDATE tbGast SET Ort = 'anderer' WHERE ID = 1");
        channel.say("gesperrt");
        std::ignore = channel.hear();
        transaction.Commit();
    });
    ASSERT_EQ("gesperrt", other.channel().hear());
    jet::Database database = house.open("Zentral.mdb");
    house.workspace.setLockTimeout(120);
    std::vector<int> waits;
    house.workspace.setWaitCallback([&](int waited) {
        waits.push_back(waited);
        return true;
    });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(3218, errorNumber([&] { database.Execute("UPDATE tbGast SET Ort = 'ich' WHERE ID = 2"); }));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(110));
    EXPECT_GE(waits.size(), 3U);
    EXPECT_TRUE(std::ranges::is_sorted(waits));
    EXPECT_EQ("xxx", support::oneValue(database, "SELECT Left(Ort, 3) FROM tbGast WHERE ID = 2"));

    // The callback ends the wait, too.
    house.workspace.setLockTimeout(60000);
    house.workspace.setWaitCallback([](int waited) { return waited < 20; });
    EXPECT_EQ(3218, errorNumber([&] { database.Execute("UPDATE tbGast SET Ort = 'ich' WHERE ID = 2"); }));

    // And a lock that goes away in time is only a wait.
    house.workspace.setWaitCallback([&](int waited) {
        if (waited < 1) other.channel().say("weiter");
        return true;
    });
    EXPECT_EQ(0, errorNumber([&] { database.Execute("UPDATE tbGast SET Ort = 'ich' WHERE ID = 2"); }));
    EXPECT_EQ("anderer ich",
              support::oneValue(database,
                                "SELECT Ort & ' ' & (SELECT Ort FROM tbGast WHERE ID = 2) FROM tbGast WHERE ID = 1"));
    EXPECT_EQ(0, other.wait());
}

TEST(OpenFile, ReopensInPlaceAndEndsOldRecordsets) {
    const JetFolder house;
    std::ignore = house.create("Eins.mdb");
    std::ignore = house.create("Zwei.mdb");
    jet::Database database = house.open("Eins.mdb");
    database.Execute("CREATE TABLE tbA (ID LONG PRIMARY KEY)");
    database.Execute("INSERT INTO tbA VALUES (1)");
    jet::Recordset rows = database.OpenRecordset("tbA");
    house.workspace.Reopen(database, house.file("Zwei.mdb"), "");
    EXPECT_EQ(house.file("Zwei.mdb"), database.Name());
    EXPECT_FALSE(database.HasTable("tbA"));
    EXPECT_EQ(3420, errorNumber([&] { rows.MoveNext(); }));
    EXPECT_EQ(3420, errorNumber([&] { rows.Edit(); }));
    EXPECT_EQ(3024, errorNumber([&] { house.workspace.Reopen(database, house.file("fehlt.mdb"), ""); }));
    EXPECT_FALSE(database.IsOpen());
    EXPECT_EQ(3420, errorNumber([&] { std::ignore = database.OpenRecordset("tbA"); }));
}
