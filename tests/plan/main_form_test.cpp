#include "plan/main_form.h"

#include "plan/imagined_source.h"
#include "plan/main_menu.h"
#include "support/scripted_dialogs.h"
#include "support/scripted_windows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace plan {
namespace {

using start::Fenster;
using testing::ElementsAre;

constexpr Farbe Gelb = 0x00F0F0;

PlanEinstellungen Haus() {
    PlanEinstellungen e;
    e.strTitel = "Möwe & Co";
    e.Farben[0] = 0x404040;
    e.Farben[2] = Gelb;
    e.Belegungsarten = {"frei", "Meier          ", "Schulze", "", "Angebot", "   "};
    return e;
}

struct MainForm : testing::Test {
    explicit MainForm(Hausgröße größe = {}) : plan(größe, Haus()) {}

    [[nodiscard]] Umgebung umgebung() {
        return {
            .dialogs = &dialogs,
            .windows = &windows,
            .öffnen = [this](Fenster) { done.push_back("öffnen"); },
            .vorhanden = [this](std::string_view datei) { return dateien.contains(std::string(datei)); },
            .starten = [this](std::string_view programm,
                              const std::string& argument) { done.push_back(std::string(programm) + " " + argument); },
            .zeigen = [this](std::string_view datei) { done.emplace_back(datei); },
            .Beispieldaten = [this] { done.emplace_back("Beispieldaten"); }};
    }
    [[nodiscard]] frmMain form(std::vector<Markierung> rows = {}) {
        plan.quelle.rows = std::move(rows);
        frmMain form(plan.raster, plan.clock, umgebung());
        form.Form_Load();
        return form;
    }
    static std::set<std::string> enabled(const frmMain& form) {
        std::set<std::string> names;
        for (const auto& head : form.Menü.Entries)
            for (const auto& entry : head.Entries)
                if (entry.Enabled) names.insert(entry.Name);
        return names;
    }

    GedachterPlan plan;
    support::ScriptedDialogs dialogs;
    support::ScriptedWindows windows;
    std::set<std::string> dateien;
    std::vector<std::string> done;
};

TEST_F(MainForm, OpensWithTodayInItsFieldsAndItsHoliday) {
    plan.quelle.feiertage = {{tag(1), "Pfingstmontag"}, {tag(4), "Fronleichnam"}};
    auto main = form();
    EXPECT_EQ(main.fldDatum.Text, "01.06.26");
    EXPECT_EQ(main.fldWochentag.Text, "Mo");
    EXPECT_EQ(main.txtFeiertag.Text, "Pfingstmontag");
    EXPECT_TRUE(main.txtFeiertag.Visible);
    EXPECT_EQ(main.Caption(), "Möwe & Co Version 4.10");
    EXPECT_FALSE(main.lblBeispieldaten.Visible);
}

TEST_F(MainForm, PointerTellsDayAndHolidayAndNothingBesideTheCells) {
    plan.quelle.feiertage = {{tag(4), "Fronleichnam"}};
    auto main = form();
    main.MouseMove(2, 6); // the plan begins on 30 May
    EXPECT_EQ(main.fldDatum.Text, "04.06.26");
    EXPECT_EQ(main.fldWochentag.Text, "Do");
    EXPECT_EQ(main.txtFeiertag.Text, "Fronleichnam");
    main.MouseMove(2, 7);
    EXPECT_FALSE(main.txtFeiertag.Visible);
    for (const auto& [zeile, spalte] : {std::pair{0, 3}, {3, 0}, {5, 3}, {3, 11}}) {
        main.MouseMove(2, 6);
        main.MouseMove(zeile, spalte);
        EXPECT_EQ(main.fldDatum.Text + main.fldWochentag.Text + main.txtFeiertag.Text, "") << zeile << ' ' << spalte;
        EXPECT_FALSE(main.txtFeiertag.Visible);
        EXPECT_EQ(main.fldTag, 0);
    }
}

TEST_F(MainForm, ShortNameLiesOnTheFirstVisibleCellOfItsBar) {
    auto main = form({{.Von = tag(25, 5),
                       .Bis = tag(2),
                       .Zimmernummer = 1,
                       .BelegungsID = 2,
                       .Checked = true,
                       .ID = 1,
                       .AnzahlGäste = 3,
                       .Kürzel = "Wübben"},
                      {.Von = tag(2),
                       .Bis = tag(5),
                       .Zimmernummer = 1,
                       .BelegungsID = 2,
                       .ID = 2,
                       .AnzahlGäste = 1,
                       .Kürzel = "Albers"},
                      {.Von = tag(2), .Bis = tag(4), .Zimmernummer = 2, .BelegungsID = 0, .ID = 3, .Kürzel = "frei"}});
    main.MouseMove(1, 3);
    EXPECT_TRUE(main.lblKürzel.Visible);
    EXPECT_EQ(main.lblKürzel.Caption, "Wübben/CH/3");
    EXPECT_EQ(main.KürzelPlatz, (Platz{1, 1, 3}));
    main.MouseMove(1, 5);
    EXPECT_EQ(main.lblKürzel.Caption, "Albers/1");
    EXPECT_EQ(main.KürzelPlatz, (Platz{1, 4, 6}));
    EXPECT_EQ(main.cmdBezahlt.Caption, "inaktiv");
    main.MouseMove(1, 7); // departure day
    EXPECT_FALSE(main.lblKürzel.Visible);
    main.MouseMove(2, 5); // a bar in the colour of a free cell counts as free
    EXPECT_FALSE(main.lblKürzel.Visible);
    main.MouseMove(1, 5);
    plan.quelle.rows.clear();
    main.Navigation_Click(Navigationsleiste.back());
    EXPECT_FALSE(main.lblKürzel.Visible) << "the stay under the pointer is gone after the reload";
}

TEST_F(MainForm, FrameOffersTheNamedTypesInTheirColours) {
    auto main = form();
    ASSERT_EQ(main.optBelArt.Buttons.size(), 3U);
    EXPECT_EQ(main.optBelArt.Caption, "Reserviert von:");
    EXPECT_EQ(main.optBelArt.Buttons[0].Caption, "Meier");
    EXPECT_EQ(main.optBelArt.Buttons[1].BackColor, Gelb);
    EXPECT_EQ(main.AuswahlArt, 0);
    main.optBelArt_Click(2);
    EXPECT_EQ(main.AuswahlArt, 4);
    main.optBelArt_Click(1);
    EXPECT_EQ(main.AuswahlArt, 2);
    EXPECT_EQ(main.AuswahlFarbe, Gelb);
    EXPECT_EQ(main.optBelArt.Value, 1);
}

TEST_F(MainForm, MenuOffersOnlyWhatIsThere) {
    windows.vorhanden.clear();
    EXPECT_THAT(enabled(form()), ElementsAre("mnuBeenden", "mnuBeispieldaten", "mnuDatenAb"));
    windows.vorhanden = {Fenster::Datenbankpfade, Fenster::Reservierung};
    dateien = {"auswerter.exe", "holdaten.exe", "Handbuch.pdf", "strukturneu.exe"};
    auto main = form();
    EXPECT_THAT(enabled(main),
                ElementsAre("mnuBeenden", "mnuBeispieldaten", "mnuDatenAb", "mnuDatenbankpfad", "mnuDatenimport",
                            "mnuHandbuch", "mnuLetzteReservierung", "mnuNeueReservierung", "mnuStatistik"));
    EXPECT_TRUE(main.cmdNeu.Enabled);
    EXPECT_EQ(main.Menü.find("mnuDrucken")->Caption, "Möwe && Co &drucken");
    EXPECT_FALSE(main.Menü.find("mnuBeispieldaten")->Checked);
}

TEST_F(MainForm, SampleDataAreMarkedAndHaveNoStatistics) {
    dateien = {"auswerter.exe", "gebdaten.exe"};
    auto beispiel = umgebung();
    beispiel.BeispielAktiv = true;
    const frmMain main(plan.raster, plan.clock, beispiel);
    EXPECT_TRUE(main.Menü.find("mnuBeispieldaten")->Checked);
    EXPECT_TRUE(main.lblBeispieldaten.Visible);
    EXPECT_EQ(main.lblBeispieldaten.Caption, "Sie sehen zur Zeit die Beispieldaten");
    EXPECT_FALSE(main.Menü.find("mnuStatistik")->Enabled);
    EXPECT_TRUE(main.Menü.find("mnuDatenexport")->Enabled);
}

TEST_F(MainForm, EntriesLeadWhereTheySay) {
    windows.vorhanden = {Fenster::Datenbankpfade};
    dateien = {"auswerter.exe", "holdaten.exe", "kontaktor.exe", "Handbuch.pdf"};
    auto main = form();
    for (const auto* name : {"mnuStatistik", "mnuDatenimport", "mnuAdressverwaltung", "mnuHandbuch", "mnuDatenbankpfad",
                             "mnuBeispieldaten"})
        main.Menu_Click(name);
    EXPECT_THAT(done, ElementsAre("auswerter.exe Instanz:0", "holdaten2.exe ", "kontaktor.exe ", "Handbuch.pdf",
                                  "öffnen", "Beispieldaten"));
    main.Menu_Click("mnuFeiertage"); // not there
    main.Menu_Click("mnuUnbekannt");
    EXPECT_EQ(done.size(), 6U);
    EXPECT_FALSE(main.Endegewünscht());
    main.Menu_Click("mnuBeenden");
    EXPECT_TRUE(main.Endegewünscht());
}

TEST_F(MainForm, StatisticsWaitForOffersPastDue) {
    dateien = {"auswerter.exe"};
    bool weiter = false;
    auto rest = umgebung();
    rest.AngebotePrüfen = [&](const std::function<void()>& geändert) {
        plan.quelle.rows = {{.Von = tag(1), .Bis = tag(3), .Zimmernummer = 1, .BelegungsID = 2, .ID = 1}};
        geändert();
        return weiter;
    };
    frmMain main(plan.raster, plan.clock, rest);
    main.Menu_Click("mnuStatistik");
    EXPECT_TRUE(done.empty());
    EXPECT_EQ(plan.raster.AnzahlReservierungen(), 1) << "the plan shows what the questions have changed";
    weiter = true;
    main.Menu_Click("mnuStatistik");
    EXPECT_THAT(done, ElementsAre("auswerter.exe Instanz:0"));
}

TEST_F(MainForm, DateJumpTakesAnyDateAndIgnoresTheRest) {
    auto main = form();
    const auto jump = [&](std::optional<std::string> answer) {
        dialogs.type(std::move(answer));
        main.Menu_Click("mnuDatenAb");
        return plan.raster.PlanStart();
    };
    EXPECT_EQ(jump("24.12.25"), basic::Date::fromYmd(2025, 12, 24));
    EXPECT_EQ(dialogs.last().title, "Zeitleiste verschieben");
    EXPECT_EQ(dialogs.last().text, "Geben Sie das Anfangsdatum der Darstellung ein:");
    EXPECT_EQ(jump(std::nullopt), basic::Date::fromYmd(2025, 12, 24));
    EXPECT_EQ(jump("morgen"), basic::Date::fromYmd(2025, 12, 24));
    EXPECT_EQ(jump("3.6."), tag(3));
    EXPECT_EQ(jump("31.12.9999"), tag(3)) << "a window past the calendar's end";
    EXPECT_NE(main.Fehler(), "");
    EXPECT_EQ(jump("20.12.9999"), basic::Date::fromYmd(9999, 12, 20));
    for (int i = 0; i < 4; ++i)
        main.Navigation_Click(Navigationsleiste[8]); // three months on: nowhere to go
    EXPECT_EQ(plan.raster.PlanStart(), basic::Date::fromYmd(9999, 12, 20));
}

/// What the settings' reader may hand on, however wrong.
TEST(MainFormSizes, WindowComesUpWithAnyNumbers) {
    for (const auto& [zimmer, tage, höhe] : {std::tuple{0, 35, 320},
                                             {-1, 35, 320},
                                             {1, 1, 320},
                                             {98, 100, 320},
                                             {99, 35, 320},
                                             {300, 1000, 1},
                                             {9, 0, -5},
                                             {9, -3, 2000000000}}) {
        SCOPED_TRACE(testing::Message() << zimmer << " rooms, " << tage << " days");
        PlanEinstellungen e;
        e.AnzahlZimmer = zimmer;
        e.SichtbareZeilen = zimmer;
        e.AnzahlTage = tage;
        e.ZeilenHoehe = höhe;
        GedachteQuelle quelle;
        quelle.rows = {{.Von = tag(1), .Bis = tag(2), .Zimmernummer = 1, .BelegungsID = 1, .ID = 1},
                       {.Von = basic::Date(1e9), .Bis = basic::Date(1e9 + 2), .Zimmernummer = 1, .ID = 2}};
        const services::FixedClock clock{tag(1)};
        Planraster raster(e, GedachteZimmer(std::max(zimmer, 0)), quelle, clock);
        frmMain main(raster, clock);
        main.Form_Load();
        EXPECT_EQ(main.Fehler(), "");
        EXPECT_GE(raster.AnzahlTage(), 1);
        EXPECT_EQ(raster.SUBSetLabels(1).back().Caption, "Vorläufig");
        main.cmdLetzter_Click();
        main.MouseMove(raster.Wartezeile(), raster.AnzahlTage());
        EXPECT_EQ(main.fldZimmer, raster.Wartezeile());
    }
}

} // namespace
} // namespace plan
