#include "platform/jet/workspace.h"
#include "support/statement_cases.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

/// The dialect's rules, a file of statements for each area, each statement in a fresh data file with the same small
/// tables.
class Dialect : public testing::TestWithParam<std::string> {};

TEST_P(Dialect, GivesTheRowsItMust) {
    const support::TempFolder folder(support::TempFolder::Place::Memory);
    const services::FixedClock clock(jet::Date::fromYmdHms(2026, 6, 15, 10, 30, 0));
    const jet::Workspace workspace(clock);
    const std::string filled = folder.file("Vorlage.mdb");
    {
        jet::Database database = workspace.CreateDatabase(filled, "");
        support::runScript(HERBERGO_TEST_DATA "/dialect/tables.sql", database);
    }
    const std::vector<support::StatementCase> cases = support::readStatementCases(GetParam());
    ASSERT_FALSE(cases.empty());
    for (const support::StatementCase& one : cases) {
        const std::string path = folder.file("Versuch.mdb");
        std::filesystem::copy_file(filled, path, std::filesystem::copy_options::overwrite_existing);
        jet::Database database = workspace.OpenDatabase(path);
        support::runStatementCase(one, database);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, Dialect, testing::ValuesIn(support::caseFiles("dialect")),
                         [](const auto& file) { return std::filesystem::path(file.param).stem().string(); });

} // namespace
