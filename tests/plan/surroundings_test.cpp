#include "plan/surroundings.h"

#include "support/test_start.h"

#include <gtest/gtest.h>

#include <fstream>

namespace plan {
namespace {

struct Surroundings : testing::Test {
    support::TestStart program;
    int closed = 0;

    [[nodiscard]] Umgebung umgebung() {
        return UmgebungAus(program.g, [this] { ++closed; });
    }
};

TEST_F(Surroundings, SampleDataComeAndGoByBuildingThePlanAnew) {
    umgebung().Beispieldaten();
    EXPECT_TRUE(program.g.BeispielAnzeigen && program.g.Neuaufbau);
    EXPECT_EQ(closed, 1);
    program.g.BeispielAktiv = true;
    EXPECT_TRUE(umgebung().BeispielAktiv);
    umgebung().Beispieldaten();
    EXPECT_FALSE(program.g.BeispielAnzeigen);
    EXPECT_EQ(closed, 2);
}

TEST_F(Surroundings, PathFormDecidesHowThePlanGoesOn) {
    auto ergebnis = start::PfadeErgebnis::Weiter;
    program.windows.beiDatenbankpfade = [&](const start::PfadeAnfrage& anfrage) {
        EXPECT_FALSE(anfrage.beimStart);
        return ergebnis;
    };
    const auto open = [&] { umgebung().öffnen(start::Fenster::Datenbankpfade); };
    open();
    EXPECT_EQ(closed, 0);
    ergebnis = start::PfadeErgebnis::ProgrammEnde;
    open();
    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(program.g.Neuaufbau);
    ergebnis = start::PfadeErgebnis::Neuaufbau;
    open();
    EXPECT_EQ(closed, 2);
    EXPECT_TRUE(program.g.Neuaufbau);
}

TEST_F(Surroundings, RenewalOfTheDataFilesWarnsAndEndsOnlyWhenItsProgramRuns) {
    for (const auto answer : {services::MsgResult::No, services::MsgResult::Yes}) {
        program.dialogs.press(answer);
        umgebung().Strukturupdate(); // there is no such program here
        EXPECT_EQ(closed, 0);
        EXPECT_EQ(program.dialogs.last().style.buttons, services::MsgButtons::YesNo);
    }
}

TEST_F(Surroundings, TheSeasonCalendarOpensOverThePlan) {
    bool opened = false;
    program.windows.vorhanden.insert(start::Fenster::Saisonzeiten);
    program.windows.beiSaisonzeiten = [&] { opened = true; };
    umgebung().öffnen(start::Fenster::Saisonzeiten);
    EXPECT_TRUE(opened);
    EXPECT_EQ(closed, 0);
}

TEST_F(Surroundings, ToolsAreThoseOfTheProgramFolder) {
    EXPECT_FALSE(umgebung().hat("gebdaten.exe"));
    std::ofstream(program.file("gebdaten.exe")) << "x";
    EXPECT_TRUE(umgebung().hat("gebdaten.exe"));
    EXPECT_TRUE(umgebung().has(start::Fenster::Datenbankpfade));
    EXPECT_FALSE(umgebung().has(start::Fenster::Artikel));
}

} // namespace
} // namespace plan
