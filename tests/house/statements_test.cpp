#include "store/database_files.h"
#include "store/new_house.h"
#include "support/statement_cases.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

/// Every statement that the program, its forms and its upkeep send, on one filled house. What a form relies on stands
/// here with the rows it must get; a change of the engine that alters one of them breaks the house.
class StatementsOfTheHouse : public testing::TestWithParam<std::string> {
protected:
    StatementsOfTheHouse() {
        store::NewHouse house;
        house.Ordner = folder_.path().string();
        house.Jetzt = clock_.now();
        store::createHouse(workspace_, house);
        jet::Database database = open("Lokal.mdb");
        support::runScript(HERBERGO_TEST_DATA "/filled_house.sql", database);
        jet::Database holidays = open("Feiertag.mdb");
        support::runScript(HERBERGO_TEST_DATA "/filled_feiertag.sql", holidays);
    }

    jet::Database open(const std::string& name) {
        return workspace_.OpenDatabase(folder_.file(name), false, false, store::openConnect());
    }

    /// Cases that write find the house as it was filled: the files are kept aside and put back.
    void keepFiles() {
        for (const std::string& name : written)
            fs::copy_file(folder_.file(name), folder_.file(name + ".vorlage"), fs::copy_options::overwrite_existing);
    }
    void restoreFiles() {
        for (const std::string& name : written)
            fs::copy_file(folder_.file(name + ".vorlage"), folder_.file(name), fs::copy_options::overwrite_existing);
    }

    void run(const support::StatementCase& one) {
        {
            jet::Database database = open(one.file.empty() ? "Lokal.mdb" : one.file + ".mdb");
            support::runStatementCase(one, database);
        }
        if (one.changes()) restoreFiles();
    }

    static inline const std::vector<std::string> written{"Zentral.mdb", "Herbergo.mdb", "Feiertag.mdb", "Beispiel.mdb"};
    const support::TempFolder folder_{support::TempFolder::Place::Memory};
    const services::FixedClock clock_{jet::Date::fromYmdHms(2026, 6, 15, 10, 30, 0)};
    const jet::Workspace workspace_{clock_};
};

TEST_P(StatementsOfTheHouse, GiveTheRowsTheyMust) {
    const std::vector<support::StatementCase> cases = support::readStatementCases(GetParam());
    ASSERT_FALSE(cases.empty());
    keepFiles();
    for (const support::StatementCase& one : cases)
        run(one);
}

INSTANTIATE_TEST_SUITE_P(Files, StatementsOfTheHouse, testing::ValuesIn(support::caseFiles("statements")),
                         [](const auto& file) { return fs::path(file.param).stem().string(); });

} // namespace
