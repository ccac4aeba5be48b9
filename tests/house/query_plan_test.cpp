#include "plan/plan_source.h"
#include "platform/jet/explain.h"
#include "support/test_house.h"

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

/// What the mouse, the save and the plan ask again and again must never read the whole table of stays.
class QueryPlan : public testing::Test {
protected:
    std::vector<std::string> planOf(std::string_view sql) { return jet::explainedPlan(house_.db(), sql); }

    support::TestHouse house_;
};

TEST_F(QueryPlan, TheWindowIsFoundByTheDayOfDeparture) {
    const auto plan = planOf(plan::Planabfrage(support::day(8, 6), support::day(20, 7)));
    EXPECT_THAT(plan, Each(Not(HasSubstr("SCAN"))));
    EXPECT_THAT(plan, Contains(AllOf(HasSubstr("SEARCH t1"), HasSubstr("Bis>"))));
    EXPECT_THAT(plan, Each(Not(HasSubstr("TEMP B-TREE")))) << "rows are sorted by who reads them";
}

TEST_F(QueryPlan, AnOverlapReadsOneRoomFromAnIndexAlone) {
    const auto plan =
        planOf("SELECT ID FROM tblBelegung WHERE Zimmernummer = 1 AND Gelöscht = FALSE  AND (Von >= "
               "CVDATE('19.06.2026') AND von "
               "<= CVDATE( ' 21.06.2026 ' ) OR  Bis >= CVDATE('19.06.2026') AND BIS <= CVDATE('21.06.2026') OR  "
               "(CVDATE('18.06.2026') > Von AND (CVDATE('18.06.2026')) < Bis) OR (CVDATE('22.06.2026') > Von AND "
               "(CVDATE('22.06.2026') < Bis)))");
    EXPECT_THAT(plan, Contains(AllOf(HasSubstr("SEARCH t1 USING COVERING INDEX"), HasSubstr("Zimmernummer=?"))));
}

TEST_F(QueryPlan, FreeRoomsAreFoundWithoutTouchingTheTable) {
    const auto plan = planOf(
        "SELECT tbZimmernummern.Zimmernummer, tbZimmernummern.NeueNummer From tbZimmernummern WHERE "
        "(((tbZimmernummern.Zimmernummer)  Not In (SELECT DISTINCT tblBelegung.Zimmernummer  FROM tblBelegung  WHERE "
        "(((tblBelegung.Von)=#06-15-2026#) AND ((tblBelegung.Gelöscht)=False)) OR (((tblBelegung.Von)>#06-15-2026# And "
        "(tblBelegung.Von)<#06-16-2026#) AND ((tblBelegung.Gelöscht)=False)) OR (((tblBelegung.Von)<=#06-15-2026#) AND "
        "((tblBelegung.Gelöscht)=False) AND ((tblBelegung.Bis)>=#06-16-2026#)) OR (((tblBelegung.Gelöscht)=False) AND "
        "((tblBelegung.Bis)=#06-16-2026#)) OR (((tblBelegung.Gelöscht)=False) AND ((tblBelegung.Bis)>#06-15-2026# And "
        "(tblBelegung.Bis)<#06-16-2026#));))) order by tbZimmernummern.Zimmernummer; ");
    EXPECT_THAT(plan, Contains(AllOf(HasSubstr("t2"), HasSubstr("COVERING INDEX"))));
}

TEST_F(QueryPlan, PointQueriesUseTheirIndexes) {
    const std::pair<const char*, const char*> cases[] = {
        {"SELECT * FROM tblBelegung WHERE ID = 5", "INTEGER PRIMARY KEY"},
        {"SELECT tblBelegung.*, tblBelegung.Kürzel From tblBelegung WHERE (((tblBelegung.Kürzel)= 'Meier_101' )); ",
         "Kürzel=?"},
        {"SELECT ID FROM tblBelegung WHERE Kürzel Like 'Meier_101'", "Kürzel=?"},
        {"SELECT ID, BelegNummer_eigen, Von, Kürzel, Checked FROM tblBelegung WHERE Gelöscht = TRUE ", "Gelöscht=?"},
        {"SELECT ID FROM tblBelegung WHERE GastID = 7", "GastID=?"},
        {"SELECT ID FROM tblBelegung WHERE IDAdressRechnung = 7", "IDAdressRechnung=?"},
        {"UPDATE tblBelegung SET tblBelegung.Checked = true WHERE (((tblBelegung.ID)= 5))", "INTEGER PRIMARY KEY"},
        {"SELECT * FROM tbRePosten WHERE IDBelegung = 5", "IDBelegung=?"},
        {"SELECT * FROM tbRechnungen_zu_Posten WHERE IDRechnung = 5", "IDRechnung=?"},
        {"SELECT * FROM tbZahlung WHERE IdRechnung = 5", "IdRechnung=?"},
        {"SELECT F1 FROM tblParameter WHERE Satz = 'Räumlichkeiten'", "Satz=?"},
    };
    for (const auto& [sql, expected] : cases)
        EXPECT_THAT(planOf(sql), Contains(AllOf(HasSubstr("SEARCH t1"), HasSubstr(expected)))) << sql;
}

TEST_F(QueryPlan, NumbersComeSortedFromTheirIndex) {
    const auto plan =
        planOf("SELECT distinct BelegNummer_eigen,  BelegNummer  From tblBelegung  Where BelegNummer <> NULL and "
               "belegnummer > 0   ORDER BY tblBelegung.BelegNummer");
    EXPECT_THAT(plan, Contains(AllOf(HasSubstr("COVERING INDEX"), HasSubstr("BelegNummer>?"))));
}

TEST_F(QueryPlan, AChangeOverAJoinStartsFromTheFewRows) {
    const auto plan = planOf("UPDATE tblBelegung INNER JOIN tbRechnungen_zu_Posten ON tblBelegung.ID = "
                             "tbRechnungen_zu_Posten.IDBelegung SET tblBelegung.Abgerechnet = 1 WHERE "
                             "tbRechnungen_zu_Posten.IDRechnung = 5");
    EXPECT_THAT(plan, Each(Not(HasSubstr("SCAN"))));
}

} // namespace
