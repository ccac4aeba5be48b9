#include "store/new_house.h"

#include "store/database_files.h"
#include "store/schema.h"
#include "support/process.h"
#include "support/test_house.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace {

namespace fs = std::filesystem;
using basic::Value;
using support::TempFolder;
using support::TestHouse;

std::set<std::string> filesIn(const fs::path& folder) {
    std::set<std::string> result;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        result.insert(entry.path().filename().string());
    return result;
}

const std::set<std::string> kHouseFiles = {"Beispiel.mdb", "Feiertag.mdb", "Herbergo.mdb", "Lokal.mdb", "Zentral.mdb"};

TEST(NewHouse, ItsLinkFileReachesEveryTable) {
    TestHouse house;
    EXPECT_EQ(house.db().TableNames().size(), store::schema().size());
    for (const store::SchemaTable& entry : store::schema()) {
        SCOPED_TRACE(entry.definition.Name);
        const jet::TableDef link = house.db().GetTableDef(entry.definition.Name);
        EXPECT_EQ(link.SourceTableName, entry.definition.Name);
        EXPECT_EQ(store::linkedFileName(link.Connect),
                  entry.home == store::HomeFile::Zentral ? "Zentral.mdb" : "Herbergo.mdb");
        EXPECT_EQ(house.db().OpenRecordset(entry.definition.Name).FieldCount(), entry.definition.Fields.size());
    }
}

TEST(NewHouse, TheSampleFileHasAllTablesOfItsOwn) {
    TestHouse house;
    jet::Database sample = house.open("Beispiel.mdb");
    EXPECT_EQ(sample.TableNames().size(), store::schema().size() + 1);
    EXPECT_TRUE(sample.GetTableDef("tblBelegung").Connect.empty());
    EXPECT_TRUE(sample.HasTable("tbSpaltenbreiten"));
    jet::Database holidays = house.open("Feiertag.mdb");
    EXPECT_EQ(holidays.TableNames(), (std::vector<std::string>{"tbFeiertage", "tbPLZ"}));
}

TEST(NewHouse, TheSampleFileShowsAHouseInUse) {
    TempFolder folder{TempFolder::Place::Memory};
    const services::FixedClock clock(support::day(15, 6));
    const jet::Workspace workspace(clock);
    store::createHouse(workspace, {folder.path().string(), clock.now()});
    jet::Database sample = workspace.OpenDatabase(folder.file("Beispiel.mdb"), false, false, store::openConnect());
    // what brings the sample up to date goes by the first row
    EXPECT_EQ(sample.OpenRecordset("tblBelegung").Fields("Von").Value(), Value(clock.today()));
    EXPECT_EQ(sample.OpenRecordset("SELECT F1 FROM tblParameter WHERE Satz = 'ZeitDarstellung'").Fields(0).Value(),
              Value("35"));
    jet::Database own = workspace.OpenDatabase(folder.file("Lokal.mdb"), false, false, store::openConnect());
    EXPECT_TRUE(own.OpenRecordset("tblBelegung").Eof());
}

TEST(NewHouse, StartsWithListsButWithoutRoomsAndSettings) {
    TestHouse house;
    EXPECT_EQ(house.value("SELECT Länder FROM tbLänder WHERE (((Länder)='Deutschland'))"), Value("Deutschland"));
    EXPECT_GT(house.count("tbAnreden"), 3);
    EXPECT_GT(house.count("tbZahlart"), 3);
    EXPECT_GT(house.count("tbKreditkarte"), 2);
    EXPECT_EQ(house.value("SELECT Beschreibung FROM TblHilfeDarstellung WHERE WahrNichtWahr = True"), Value("Ja"));
    EXPECT_EQ(house.count("TblHilfeDarstellung"), 2);
    EXPECT_EQ(house.count("tblParameter"), 0);
    EXPECT_EQ(house.count("tbZimmernummern"), 0);
    EXPECT_EQ(house.count("tblBelegung"), 0);
}

TEST(NewHouse, AFolderThatHoldsAFileOfAHouseIsLeftAlone) {
    for (const std::string& name : kHouseFiles) {
        TempFolder folder;
        std::ofstream(folder.file(name)) << "Daten";
        const services::FixedClock clock(support::day(15, 6));
        try {
            store::createHouse(jet::Workspace(clock), {folder.path().string(), clock.now()});
            FAIL() << name;
        } catch (const jet::Error& error) {
            EXPECT_EQ(error.number(), 3204);
            EXPECT_NE(error.text().find(name), std::string::npos) << error.text();
        }
        EXPECT_EQ(filesIn(folder.path()), std::set<std::string>{name});
        EXPECT_EQ(fs::file_size(folder.file(name)), 5U);
    }
}

TEST(NewHouse, WhatFailsMidwayLeavesNothingBehind) {
    TempFolder folder;
    const services::FixedClock clock(support::day(15, 6));
    std::ofstream(folder.file("datei")) << "x";
    EXPECT_THROW(store::createHouse(jet::Workspace(clock), {folder.file("datei/haus"), clock.now()}), jet::Error);
    EXPECT_THROW(store::createHouse(jet::Workspace(clock), {folder.file("a;b"), clock.now()}), jet::Error);
    // no room for the date so far back: the sample fails when the files stand already
    EXPECT_THROW(store::createHouse(jet::Workspace(clock), {folder.file("neu/haus"), basic::Date(-657434), true}),
                 std::exception);
    EXPECT_EQ(filesIn(folder.path()), std::set<std::string>{"datei"});
}

TEST(NewHouseProgram, MakesAHouseOnceAndSaysSo) {
    TempFolder folder;
    const std::string house = folder.file("haus/unten");
    const support::Finished first = support::runProgram("herbergo-neu", {house});
    EXPECT_EQ(first.exitCode, 0) << first.errors;
    EXPECT_EQ(filesIn(house), kHouseFiles);
    const support::Finished second = support::runProgram("herbergo-neu", {house});
    EXPECT_EQ(second.exitCode, 1);
    EXPECT_NE(second.errors.find("liegt bereits die Datei"), std::string::npos) << second.errors;
    EXPECT_EQ(support::runProgram("herbergo-neu", {}).exitCode, 2);
    EXPECT_EQ(support::runProgram("herbergo-neu", {house, "--unsinn"}).exitCode, 2);
    EXPECT_EQ(support::runProgram("herbergo-neu", {"--help"}).exitCode, 0);
}

} // namespace
