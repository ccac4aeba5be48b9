#include "support/jet_files.h"
#include "support/station.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <set>
#include <thread>

namespace {

using support::JetFolder;
using support::oneValue;

constexpr std::string_view password = ";PWD=geheim77";

void makeHouse(const JetFolder& house) {
    jet::Database shared = house.create("Zentral.mdb", password);
    shared.Execute("CREATE TABLE tbRePosten (ID COUNTER PRIMARY KEY, Marke LONG, Text MEMO)");
    shared.Execute("CREATE INDEX Marke ON tbRePosten (Marke)");
    shared.Execute("CREATE TABLE tbSumme (Nr LONG PRIMARY KEY, Wert LONG)");
    shared.Execute("INSERT INTO tbSumme VALUES (1, 0)");
    jet::Database source = house.create("Herbergo.mdb", password);
    source.Execute("CREATE TABLE tblParameter (Satz TEXT(50) PRIMARY KEY, F1 TEXT(50))");
    source.Execute("INSERT INTO tblParameter VALUES ('Zähler', '0')");
}

/// A workstation with a folder of its own for its link file.
jet::Database openStation(const JetFolder& own, const JetFolder& house) {
    jet::Database local = own.create("Lokal.mdb", password);
    std::vector<jet::TableDef> links;
    for (const auto& [table, file] : {std::pair{"tbRePosten", "Zentral.mdb"}, std::pair{"tbSumme", "Zentral.mdb"},
                                      std::pair{"tblParameter", "Herbergo.mdb"}}) {
        jet::TableDef link;
        link.Name = link.SourceTableName = table;
        link.Connect = ";DATABASE=" + house.file(file) + std::string(password);
        links.push_back(link);
    }
    local.AppendTableDefs(links);
    return local;
}

/// Three posts and the sum that tells of them: all or nothing.
void writeTransaction(jet::Database& local, int mark) {
    jet::Transaction transaction(local, "tbRePosten");
    jet::Recordset posts = local.OpenRecordset("SELECT * FROM tbRePosten WHERE ID = 0");
    for (int i = 0; i < 3; ++i) {
        posts.AddNew();
        posts.Fields("Marke") = mark;
        posts.Fields("Text") = std::string(2000, 'p');
        posts.Update();
    }
    local.Execute("UPDATE tbSumme SET Wert = Wert + 3 WHERE Nr = 1");
    transaction.Commit();
}

/// Writes until it is killed and reports each commit once it is done.
void writeWithoutEnd(const JetFolder& house, int firstMark, support::Channel& channel) {
    const JetFolder own;
    jet::Database local = openStation(own, house);
    channel.say("offen " + own.folder.path().string());
    for (int mark = firstMark;; ++mark) {
        writeTransaction(local, mark);
        channel.say("T " + std::to_string(mark));
        local.Execute("UPDATE tblParameter SET F1 = '" + std::to_string(mark) + "' WHERE Satz = 'Zähler'");
        channel.say("P " + std::to_string(mark));
    }
}

struct Reports {
    std::set<int> transactions;
    int parameter = 0;

    void hear(const std::string& line) {
        const int mark = line.size() > 2 ? std::atoi(line.c_str() + 2) : 0;
        if (line.starts_with("T ")) transactions.insert(mark);
        if (line.starts_with("P ")) parameter = mark;
    }
};

/// What a station that sees only the home files finds after the crash.
void expectWhole(const JetFolder& house, const Reports& reports) {
    jet::Database shared = house.open("Zentral.mdb", password);
    jet::Database source = house.open("Herbergo.mdb", password);
    EXPECT_EQ(oneValue(shared, "SELECT Count(*) FROM tbRePosten"), oneValue(shared, "SELECT Wert FROM tbSumme"));
    EXPECT_EQ("(keine)", oneValue(shared, "SELECT Marke FROM tbRePosten GROUP BY Marke HAVING Count(*) <> 3"));
    std::set<int> stored;
    jet::Recordset marks = shared.OpenRecordset("SELECT DISTINCT Marke FROM tbRePosten", jet::RecordsetType::Snapshot);
    for (; !marks.Eof(); marks.MoveNext())
        stored.insert(static_cast<int>(marks.At(0).longOr()));
    for (const int mark : reports.transactions)
        EXPECT_TRUE(stored.contains(mark)) << mark;
    EXPECT_GE(std::stoi(oneValue(source, "SELECT F1 FROM tblParameter")), reports.parameter);
}

} // namespace

TEST(Crash, AKilledStationLeavesWholeFilesWithEveryCommittedRow) {
    constexpr int kills = 100;
    const JetFolder house;
    makeHouse(house);
    Reports reports;
    std::mt19937 random(20260615);
    std::uniform_int_distribution<int> microseconds(0, 30000);
    for (int round = 0; round < kills; ++round) {
        support::Station writer([&](support::Channel& channel) { writeWithoutEnd(house, round * 1000 + 1, channel); });
        const std::string opened = writer.channel().hear().value_or("");
        ASSERT_TRUE(opened.starts_with("offen ")) << round;
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        writer.kill();
        while (const auto line = writer.channel().hear())
            reports.hear(*line);
        writer.wait();
        // The dead station's own folder is out of reach.
        std::filesystem::remove_all(opened.substr(opened.find(' ') + 1));
        expectWhole(house, reports);
    }
    for (const char* name : {"Zentral.mdb", "Herbergo.mdb"})
        EXPECT_EQ(0, support::errorNumber([&] { jet::RepairDatabase(house.workspace, house.file(name), password); }));
    EXPECT_GT(reports.transactions.size(), static_cast<std::size_t>(kills) / 4);
}
