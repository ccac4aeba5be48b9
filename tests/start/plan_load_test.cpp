#include "start/plan_load.h"

#include "start/parameters.h"
#include "start/start_main.h"
#include "start/system_folders.h"
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
        s.Lesen.Zahlungsmigration = [this](GlobalState&) { steps.emplace_back("zahlung"); };
        s.PlanAufbauen = step("plan");
        s.BeispielUpgrades = step("beispiel");
        s.ParameterUpgrade = step("parameter");
        s.FeiertagZeigen = step("feiertag");
        s.VorgabelandLesen = step("land");
        s.ZimmervorgabenLesen = step("vorgaben");
        s.Upgrades = step("upgrades");
        s.AngebotePrüfen = step("angebote");
        return s;
    }
};

TEST(PlanLoad, StepsComeInTheirOrder) {
    TestStart s;
    s.house();
    ASSERT_EQ(Main(s.g), Weg::Plan);
    std::ofstream(s.file("auswerter.exe")) << "";
    Recorder r;
    s.dialogs.press(MsgResult::No);
    EXPECT_EQ(PlanLaden(s.g, r.all()), Ladeergebnis::Fertig);
    EXPECT_EQ(r.steps, (std::vector<std::string>{"heute", "zahlung", "plan", "parameter", "feiertag", "land",
                                                 "vorgaben", "upgrades", "angebote"}));
    EXPECT_TRUE(s.g.FormularGeladen);
    EXPECT_EQ(Planüberschrift(s.g), "Herbergo Version 4.10");
    for (const auto* name : {"Rechnungen", "Anmeldungen", "Bestätigungen", "Angebote", "Sicherungen"})
        EXPECT_TRUE(fs::is_directory(s.file(name))) << name;
    EXPECT_TRUE(StatistikMöglich(s.g));
    EXPECT_FALSE(s.g.werkzeuge.holdaten);

    s.g.BeispielAnzeigen = true;
    r.steps.clear();
    EXPECT_EQ(PlanLaden(s.g, r.all()), Ladeergebnis::Fertig);
    EXPECT_EQ(r.steps.at(3), "beispiel");
    EXPECT_FALSE(StatistikMöglich(s.g)); // the statistics tool would count invented guests
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
