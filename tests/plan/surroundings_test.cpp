#include "plan/surroundings.h"

#include "start/parameters.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <filesystem>
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

TEST_F(Surroundings, WebProgramIsSearchedOnceAndThenKnown) {
    program.dialogs.press(services::MsgResult::No);
    umgebung().Internet();
    EXPECT_EQ(program.dialogs.last().text,
              "Die Datei 'netzlader.exe' konnte nicht gefunden werden. Möchten Sie selber nach ihr suchen?");
    program.dialogs.press(services::MsgResult::Yes);
    program.dialogs.type(std::nullopt);
    umgebung().Internet();
    EXPECT_EQ(program.setting("Internet"), "");
    const auto elsewhere = program.file("anderswo.exe");
    std::ofstream(elsewhere) << "x";
    program.dialogs.press(services::MsgResult::Yes);
    program.dialogs.type(elsewhere);
    umgebung().Internet();
    EXPECT_EQ(program.setting("Internet"), elsewhere);
    umgebung().Internet();
    EXPECT_EQ(program.dialogs.asked().size(), 5U) << "known now";
    std::filesystem::remove(elsewhere);
    program.dialogs.press(services::MsgResult::No);
    umgebung().Internet(); // gone again
}

TEST_F(Surroundings, NewHeadingGoesToThePlanAndToTheListsThatCarryTheSameWord) {
    program.house();
    auto& db = program.g.dbHaupt;
    EXPECT_THROW(umgebung().Beschriften(Planbeschriftung::Zimmerspalte, "Wohnung"), jet::Error) << "no data files";
    db = program.open(program.file("Lokal.mdb"));
    program.g.einstellungen.Beschriftungen = {"Reserviert von:", "Zimmer"};
    start::SatzSchreiben(db, "Spaltenbeschriftung", {{"F7", "Land"}, {"F8", "alt"}, {"F11", "Personen"}});
    umgebung().Beschriften(Planbeschriftung::Belegungsrahmen, "Gebucht");
    umgebung().Beschriften(Planbeschriftung::Zimmerspalte, "Wohnung");
    EXPECT_EQ(start::BeschriftungLesen(db, "F1"), "Gebucht");
    EXPECT_EQ(start::BeschriftungLesen(db, "F2"), "Wohnung");
    EXPECT_EQ(start::FeldLesen(db, "Spaltenbeschriftung", "F7"), basic::Value("Land"));
    EXPECT_EQ(start::FeldLesen(db, "Spaltenbeschriftung", "F8"), basic::Value("Gebucht"));
    EXPECT_EQ(start::FeldLesen(db, "Spaltenbeschriftung", "F11"), basic::Value("Wohnung"));
    EXPECT_EQ(program.g.einstellungen.Beschriftungen.at(1), "Wohnung");
    EXPECT_THROW(umgebung().Beschriften(Planbeschriftung::Zimmerspalte, std::string(300, 'x')), jet::Error)
        << "longer than a field";
}

TEST_F(Surroundings, OffersPastDueAreSeenToBeforeTheStatistics) {
    program.house();
    program.g.dbHaupt = program.open(program.file("Lokal.mdb"));
    EXPECT_TRUE(umgebung().AngebotePrüfen({})) << "there are none";
    auto& db = program.g.dbHaupt;
    db.Execute("INSERT INTO tbBelegArten (BelegungsID, BelegungsArt) VALUES (4, 'Angebot')");
    db.Execute("INSERT INTO tblBelegung (Zimmernummer, Von, Bis, Belegungsart, Gelöscht) VALUES (1, #06-14-2026#, "
               "#06-17-2026#, 4, False)");
    int changed = 0;
    const auto goesOn = [&](services::MsgResult answer) {
        program.dialogs.press(answer);
        return umgebung().AngebotePrüfen([&] { ++changed; });
    };
    EXPECT_FALSE(goesOn(services::MsgResult::No)) << "the user sees to them first";
    EXPECT_EQ(changed, 0);
    EXPECT_TRUE(goesOn(services::MsgResult::Yes));
    EXPECT_EQ(changed, 1);
    EXPECT_TRUE(umgebung().AngebotePrüfen({})) << "they wait now";
    program.g.dbHaupt.Close();
    EXPECT_TRUE(umgebung().AngebotePrüfen({})) << "what cannot be asked keeps nobody from the statistics";
}

} // namespace
} // namespace plan
