#include "start/plan_load.h"

#include "start/parameters.h"
#include "start/start_main.h"
#include "start/system_folders.h"
#include "start/upgrades.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace start {
namespace {

namespace fs = std::filesystem;
using services::MsgResult;
using support::TestStart;

struct Recorder {
    std::vector<std::string> steps;

    [[nodiscard]] std::function<void()> step(const char* name) {
        return [this, name] { steps.emplace_back(name); };
    }
    [[nodiscard]] Ladeschritte all() {
        Ladeschritte s;
        s.HeuteZeigen = step("heute");
        s.Zahlungsmigration = [this](GlobalState&) { steps.emplace_back("zahlung"); };
        s.PlanAufbauen = [this] {
            steps.emplace_back("plan");
            return true;
        };
        s.FeiertagZeigen = step("feiertag");
        s.VorgabelandLesen = step("land");
        s.ZimmervorgabenLesen = step("vorgaben");
        s.AngebotePrüfen = step("angebote");
        return s;
    }
};

TEST(PlanLoad, StepsComeInTheirOrder) {
    TestStart s;
    s.house();
    ASSERT_EQ(Main(s.g), Weg::Plan);
    Recorder r;
    s.dialogs.press(MsgResult::No);
    EXPECT_EQ(PlanLaden(s.g, r.all()), Ladeergebnis::Fertig);
    EXPECT_EQ(r.steps,
              (std::vector<std::string>{"heute", "zahlung", "plan", "feiertag", "land", "vorgaben", "angebote"}));
    EXPECT_TRUE(s.g.FormularGeladen);
    for (const auto* name : {"Rechnungen", "Anmeldungen", "Bestätigungen", "Angebote", "Sicherungen"})
        EXPECT_TRUE(fs::is_directory(s.file(name))) << name;

    BeispieldatenUmschalten(s.g);
    EXPECT_TRUE(s.g.Neuaufbau);
    EXPECT_FALSE(s.g.OhneBeispielFrage); // only leaving the sample answers the question beforehand
    EXPECT_EQ(PlanLaden(s.g, r.all()), Ladeergebnis::Fertig);
    EXPECT_TRUE(s.g.BeispielAktiv);
}

TEST(PlanLoad, OlderHouseGetsItsFieldsAndThenItsPlan) {
    TestStart s;
    s.house();
    // A house from before rooms had defaults and payments had kinds.
    jet::Database source = s.open(s.file("Herbergo.mdb"));
    source.DeleteTableDef("tbZahlart");
    source.DeleteTableDef("tbZimmernummern");
    jet::TableDef rooms;
    rooms.Name = "tbZimmernummern";
    rooms.Fields = {jet::CreateField("Zimmernummer", jet::FieldType::Integer),
                    jet::CreateField("NeueNummer", jet::FieldType::Text, 50)};
    source.AppendTableDef(rooms);
    SatzSchreiben(source, "Räumlichkeiten", {{"F1", "0"}});
    SatzSchreiben(source, "Farben", {{"F1", "255"}});
    source.Close();
    ASSERT_EQ(Main(s.g), Weg::Plan);
    int read = 0;
    Ladeschritte schritte;
    schritte.PlanAufbauen = [&] {
        ++read;
        return s.g.dbHaupt.OpenRecordset("SELECT PreisDefault, katBlockBuchung FROM tbZimmernummern").Eof();
    };
    EXPECT_EQ(PlanLaden(s.g, schritte), Ladeergebnis::Fertig);
    EXPECT_EQ(read, 2);
    EXPECT_TRUE(s.open(s.file("Lokal.mdb")).HasTable("tbZahlart"));
    EXPECT_EQ(PlanLaden(s.g, schritte), Ladeergebnis::Fertig);
    EXPECT_EQ(read, 3);
}

TEST(PlanLoad, UpgradeThatFailsIsOffered) {
    TestStart s;
    s.house();
    ASSERT_EQ(Main(s.g), Weg::Plan);
    s.open(s.file("Herbergo.mdb")).DeleteTableDef("tbZimmernummern");
    for (const MsgResult answer : {MsgResult::Retry, MsgResult::Cancel})
        s.dialogs.press(answer);
    datenAktualisieren(s.g);
    EXPECT_EQ(s.dialogs.last().text, "Das Anfügen von Tabellenfeldern ist fehlgeschlagen.");
    EXPECT_EQ(s.dialogs.last().title, "neue Tabellenfelder anlegen");
    EXPECT_EQ(s.dialogs.last().style.buttons, services::MsgButtons::RetryCancel);
}

TEST(PlanLoad, CancelledFirstRunBuildsNoPlan) {
    TestStart s;
    s.house();
    ASSERT_EQ(Main(s.g), Weg::Plan);
    Recorder r;
    s.dialogs.press(MsgResult::Cancel);
    EXPECT_EQ(PlanLaden(s.g, r.all()), Ladeergebnis::Ende);
    EXPECT_EQ(r.steps, (std::vector<std::string>{"heute", "zahlung"}));
    EXPECT_FALSE(s.g.FormularGeladen);
    EXPECT_FALSE(fs::exists(s.file("Rechnungen")));
}

TEST(PlanLoad, BrokenLinksShowTheSampleDataAndSayOnThePlanThatTheyAre) {
    TestStart s;
    s.house();
    ASSERT_EQ(Main(s.g), Weg::Plan);
    fs::remove(s.file("Zentral.mdb"));
    EXPECT_EQ(PlanLaden(s.g, {}), Ladeergebnis::Fertig);
    EXPECT_TRUE(s.g.BeispielAktiv);
    EXPECT_FALSE(s.g.BeispielAnzeigen);
}

TEST(PlanLoad, NothingToOpenEndsWithTheReason) {
    TestStart s;
    s.dialogs.acknowledge();
    EXPECT_EQ(PlanLaden(s.g, {}), Ladeergebnis::Ende);
    EXPECT_EQ(s.dialogs.last().style.icon, services::MsgIcon::Critical);
}

TEST(SystemFolders, EachThatCannotBeMadeIsNamed) {
    const support::TempFolder folder;
    std::ofstream(folder.file("Angebote")) << "eine Datei steht im Weg";
    support::ScriptedDialogs dialogs;
    dialogs.acknowledge();
    Systemordner(folder.path().string(), dialogs, "Herbergo");
    EXPECT_EQ(dialogs.last().text, "Fehler beim Anlegen des Systemordners " + folder.path().string() +
                                       "\\Angebote. Bitte wenden Sie sich an den Hersteller der Software.");
    EXPECT_TRUE(fs::is_directory(folder.file("Sicherungen")));
}

} // namespace
} // namespace start
