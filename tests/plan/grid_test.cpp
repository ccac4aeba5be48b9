#include "plan/imagined_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace plan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Farbe Blau2 = 0x602000;
constexpr Farbe Blau2Hell = 0x9C5C3C;
constexpr Farbe Grün3 = 0x20F020;

PlanEinstellungen Farbenfroh() {
    PlanEinstellungen e;
    e.Farben = {0x404040, 0x0000FF, Blau2, Grün3, 0x00FFFF};
    e.FarbeSamstag = 0x505050;
    e.FarbeSonntag = 0x606060;
    return e;
}

struct Raster : testing::Test {
    GedachterPlan plan{{}, Farbenfroh()};

    [[nodiscard]] Farbe farbe(int zelle) const { return plan.raster.Bild(zelle).Fuellung; }
};

TEST_F(Raster, StayCoversItsNightsAndLeavesTheDepartureDayFree) {
    plan.zeige({{.Von = tag(3),
                 .Bis = tag(5),
                 .Zimmernummer = 2,
                 .BelegungsID = 2,
                 .Firstname = "Jörg",
                 .Lastname = "Wübben",
                 .NeueNummer = "102",
                 .GastID = 40,
                 .ID = 7,
                 .IDAdressRechnung = 41,
                 .AnzahlGäste = 2,
                 .Kürzel = "Wübben_Jörg"}});
    EXPECT_THAT(plan.belegt(), ElementsAre(13, 14));
    EXPECT_EQ(farbe(13), Blau2Hell);
    EXPECT_EQ(farbe(14), Blau2);
    EXPECT_TRUE(plan.raster.istFrei(15));
    const auto& zelle = plan.raster.Tage(14);
    EXPECT_EQ(zelle.Vorname, "Jörg");
    EXPECT_EQ(zelle.Nachname, "Wübben");
    EXPECT_EQ(zelle.GastID, 40);
    EXPECT_EQ(zelle.IDAdrRechnung, 41);
    EXPECT_EQ(zelle.Von, "03.06.2026");
    EXPECT_EQ(zelle.Bis, "05.06.2026");
    EXPECT_EQ(zelle.Datum, "04.06.26");
    EXPECT_EQ(zelle.Kuerzel, "Wübben_Jörg");
    EXPECT_EQ(zelle.Gaeste, 2);
    EXPECT_EQ(zelle.Zeile, 2);
    EXPECT_EQ(zelle.WeitereIDs, "");
    EXPECT_FALSE(zelle.Angebot || zelle.Checked || zelle.Warteposition);
}

// Where a stay of room 2 is drawn on a plan of ten days: cells 11 to 20, and 10 for what comes from before.
struct Lage {
    const char* geschichte;
    basic::Date von;
    basic::Date bis;
    std::vector<int> zellen;
    bool ersterTagHell;
};

TEST_F(Raster, StayIsDrawnWhereItTouchesTheWindow) {
    const Lage lagen[] = {
        {"one night", tag(4), tag(5), {14}, true},
        {"no night", tag(4), tag(4), {}, false},
        {"arrival on the first column is no overhang", tag(1), tag(3), {11, 12}, true},
        {"begins before: no first day, and the cell before the line", tag(30, 5), tag(3), {10, 11, 12}, false},
        {"leaves on the first day: only the cell before the line", tag(30, 5), tag(1), {10}, false},
        {"left the day before", tag(28, 5), tag(31, 5), {}, false},
        {"last night but one before the last column", tag(8), tag(9), {18}, true},
        {"leaves on the last column", tag(8), tag(10), {18, 19}, true},
        {"runs past the window: the last column stays free", tag(8), tag(25), {18, 19}, true},
        {"arrives on the last column", tag(10), tag(14), {}, false},
        {"arrives on the day behind the window", tag(11), tag(14), {}, false},
        {"covers the whole window", tag(1, 5), tag(31, 7), {10, 11, 12, 13, 14, 15, 16, 17, 18, 19}, false},
        {"hours of the day shift nothing",
         basic::Date::fromYmdHms(2026, 6, 4, 23, 0, 0),
         basic::Date::fromYmdHms(2026, 6, 6, 1, 0, 0),
         {14, 15},
         true},
    };
    for (const auto& lage : lagen) {
        SCOPED_TRACE(lage.geschichte);
        plan.zeige({{.Von = lage.von, .Bis = lage.bis, .Zimmernummer = 2, .BelegungsID = 2, .ID = 7}});
        EXPECT_EQ(plan.belegt(), lage.zellen);
        for (std::size_t i = 0; i < lage.zellen.size(); ++i)
            EXPECT_EQ(farbe(lage.zellen[i]), i == 0 && lage.ersterTagHell ? Blau2Hell : Blau2) << lage.zellen[i];
    }
}

TEST_F(Raster, OverhangOfTheFirstLineFallsIntoTheTemplate) {
    plan.zeige({{.Von = tag(30, 5), .Bis = tag(2), .Zimmernummer = 1, .ID = 7}});
    EXPECT_THAT(plan.belegt(), ElementsAre(0, 1));
    plan.zeige({});
    EXPECT_THAT(plan.belegt(), IsEmpty());
}

TEST_F(Raster, StayWithoutARoomOnThePlanIsNotDrawn) {
    plan.zeige({{.Von = tag(3), .Bis = tag(5), .Zimmernummer = 4, .ID = 1},
                {.Von = tag(3), .Bis = tag(5), .Zimmernummer = 4, .Gelöscht = true, .ID = 2},
                {.Von = tag(3), .Bis = tag(5), .Zimmernummer = 0, .ID = 3},
                {.Von = tag(3), .Bis = tag(5), .Zimmernummer = -7, .ID = 4}});
    EXPECT_THAT(plan.belegt(), IsEmpty());
    EXPECT_THAT(plan.raster.PlanIDs(), ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(plan.raster.AnzahlReservierungen(), 4);
}

TEST_F(Raster, LastWriterWinsASharedCellAndTheListTellsOfTheOthers) {
    plan.zeige({{.Von = tag(3), .Bis = tag(6), .Zimmernummer = 1, .BelegungsID = 2, .ID = 5},
                {.Von = tag(5), .Bis = tag(8), .Zimmernummer = 1, .BelegungsID = 3, .ID = 6},
                {.Von = tag(5), .Bis = tag(6), .Zimmernummer = 1, .BelegungsID = 2, .ID = 9}});
    EXPECT_EQ(plan.raster.Tage(4).WeitereIDs, "");
    EXPECT_EQ(plan.raster.Tage(5).WeitereIDs, "5,6,9");
    EXPECT_EQ(plan.raster.Tage(5).ID, 9);
    EXPECT_EQ(plan.raster.Tage(6).ID, 6);
    EXPECT_EQ(farbe(6), Grün3);
}

TEST_F(Raster, WaitingRowListsEveryStayAndCountsThemAsOffers) {
    plan.zeige({{.Von = tag(3), .Bis = tag(5), .Zimmernummer = 1, .BelegungsID = 3, .ID = 1},
                {.Von = tag(3), .Bis = tag(5), .Zimmernummer = 1, .BelegungsID = 2, .Gelöscht = true, .ID = 8},
                {.Von = tag(4), .Bis = tag(6), .Zimmernummer = 3, .BelegungsID = 2, .Gelöscht = true, .ID = 9}});
    EXPECT_THAT(plan.belegt(), ElementsAre(3, 4, 33, 34, 35));
    EXPECT_EQ(plan.raster.Tage(33).WeitereIDs, "8");
    EXPECT_EQ(plan.raster.Tage(34).WeitereIDs, "8,9");
    EXPECT_EQ(plan.raster.Tage(35).WeitereIDs, "9");
    EXPECT_TRUE(plan.raster.Tage(33).Angebot);
    EXPECT_TRUE(plan.raster.Tage(33).Warteposition);
    EXPECT_FALSE(plan.raster.Tage(3).Angebot);
}

TEST(RasterScrolled, WaitingRowIsTheLastLineAtEveryScrollPosition) {
    GedachterPlan plan({.zimmer = 12, .tage = 10, .sichtbar = 3}, Farbenfroh());
    ASSERT_EQ(plan.raster.HöchsteErsteZeile(), 10);
    for (const int erste : {1, 5, 10}) {
        SCOPED_TRACE(erste);
        plan.raster.setErsteZeile(erste);
        plan.zeige({{.Von = tag(3), .Bis = tag(4), .Zimmernummer = 2, .Gelöscht = true, .ID = 8}});
        EXPECT_THAT(plan.belegt(), ElementsAre(33));
        const auto labels = plan.raster.SUBSetLabels(erste);
        ASSERT_EQ(labels.size(), 4U);
        EXPECT_EQ(labels[0].Caption, std::to_string(100 + erste));
        EXPECT_EQ(labels[3].Caption, "Vorläufig");
    }
}

TEST(RasterScrolled, OnlyRoomsOnScreenAreDrawnOnTheLineWhereTheyStand) {
    GedachterPlan plan({.zimmer = 12, .tage = 10, .sichtbar = 3}, Farbenfroh());
    plan.raster.setErsteZeile(5);
    std::vector<Markierung> rows;
    for (int zimmer = 1; zimmer <= 12; ++zimmer)
        rows.push_back({.Von = tag(3), .Bis = tag(4), .Zimmernummer = zimmer, .ID = zimmer});
    plan.zeige(rows);
    EXPECT_THAT(plan.belegt(), ElementsAre(3, 13, 23)); // room 8 would fall into the waiting row
    EXPECT_EQ(plan.raster.Tage(3).ID, 5);
    plan.raster.setErsteZeile(99);
    EXPECT_EQ(plan.raster.ErsteZeile(), 10);
    plan.zeige(rows);
    EXPECT_EQ(plan.raster.Tage(23).ID, 12);
}

TEST(RasterColours, PartlyOccupiedRoomTakesItsOwnColour) {
    auto e = Farbenfroh();
    const Markierung halb{.Von = tag(3), .Bis = tag(5), .Zimmernummer = 1, .BelegungsID = 2, .Diff = 1, .ID = 1};
    GedachterPlan ohne({}, e);
    ohne.zeige({halb});
    EXPECT_EQ(ohne.raster.Bild(4).Fuellung, Blau2);

    e.FarbeTeilbelegt = Grün3;
    GedachterPlan mit({}, e);
    mit.zeige({halb});
    EXPECT_EQ(mit.raster.Bild(4).Fuellung, Grün3);
    EXPECT_EQ(mit.raster.Bild(3).Fuellung, aufgehellt(Grün3, 60));
    auto voll = halb;
    voll.Diff = -1;
    mit.zeige({voll});
    EXPECT_EQ(mit.raster.Bild(4).Fuellung, Blau2);
}

TEST_F(Raster, GuestInTheHouseHasAThickFrame) {
    plan.zeige({{.Von = tag(3), .Bis = tag(5), .Zimmernummer = 1, .Checked = true, .ID = 1},
                {.Von = tag(5), .Bis = tag(6), .Zimmernummer = 1, .ID = 2, .Angebot = true}});
    EXPECT_EQ(plan.raster.Bild(3).Rahmen, 3);
    EXPECT_EQ(plan.raster.Bild(4).Rahmen, 3);
    EXPECT_TRUE(plan.raster.Tage(4).Checked);
    EXPECT_EQ(plan.raster.Bild(5).Rahmen, 1);
    EXPECT_TRUE(plan.raster.Tage(5).Angebot);
}

TEST_F(Raster, ReloadFreesEveryCellAndColoursTheWeekends) {
    plan.zeige({{.Von = tag(1), .Bis = tag(9), .Zimmernummer = 2, .BelegungsID = 3, .Checked = true, .ID = 1}});
    plan.zeige({});
    EXPECT_THAT(plan.belegt(), IsEmpty());
    for (int zeile = 1; zeile <= 4; ++zeile)
        for (int spalte = 1; spalte <= 10; ++spalte) {
            const int zelle = plan.raster.Zelle(zeile, spalte);
            EXPECT_EQ(farbe(zelle), spalte == 6 ? 0x505050 : spalte == 7 ? 0x606060 : 0x404040) << zelle;
            EXPECT_EQ(plan.raster.Bild(zelle).Rahmen, 1);
            EXPECT_EQ(plan.raster.Tage(zelle).Zeile, zeile);
            EXPECT_EQ(plan.raster.Tage(zelle).Kuerzel, "");
        }
    EXPECT_EQ(plan.raster.Tage(40).Datum, "10.06.26");
    plan.raster.subZeigeDatum(tag(7), 10); // a Sunday
    EXPECT_EQ(farbe(1), 0x606060);
    EXPECT_EQ(farbe(7), 0x505050);
    EXPECT_EQ(plan.raster.Tage(31).Datum, "07.06.26");
}

TEST_F(Raster, LoadAsksForAMarginAroundTheWindow) {
    plan.raster.subZeigeDatum(tag(10), 10);
    EXPECT_EQ(plan.quelle.gefragtVon, tag(5));
    EXPECT_EQ(plan.quelle.gefragtBis, tag(20));
}

TEST_F(Raster, FailedLoadLeavesThePlanAsItWas) {
    plan.zeige({{.Von = tag(3), .Bis = tag(5), .Zimmernummer = 1, .ID = 1}});
    plan.quelle.kaputt = true;
    EXPECT_THROW(plan.raster.subZeigeDatum(tag(20), 10), jet::Error);
    EXPECT_EQ(plan.raster.PlanStart(), tag(1));
    EXPECT_EQ(plan.raster.Kopf()[0].Tag, "01");
    EXPECT_THAT(plan.belegt(), ElementsAre(3, 4));
}

TEST_F(Raster, SelectionBeingDrawnSurvivesAReload) {
    plan.raster.AktiveAuswahl = Auswahl{.Zeile = 1, .Von = tag(3), .Bis = tag(6), .Art = 3};
    plan.zeige({{.Von = tag(2), .Bis = tag(3), .Zimmernummer = 2, .BelegungsID = 2, .ID = 4}});
    EXPECT_EQ(farbe(4), Grün3);
    EXPECT_EQ(farbe(5), Grün3);
    EXPECT_TRUE(plan.raster.istFrei(6)); // the departure day
    plan.raster.AktiveAuswahl.reset();
    plan.zeige({});
    EXPECT_TRUE(plan.raster.istFrei(4));
}

TEST_F(Raster, TypeInAFreeColourCountsAsFree) {
    plan.zeige({{.Von = tag(3), .Bis = tag(6), .Zimmernummer = 1, .BelegungsID = 0, .ID = 4}});
    EXPECT_FALSE(plan.raster.istFrei(3)); // the first day is lighter
    EXPECT_TRUE(plan.raster.istFrei(4));
    EXPECT_EQ(plan.raster.Tage(4).ID, 4);
}

TEST_F(Raster, BarsAreRunsOfOneReservation) {
    plan.zeige({{.Von = tag(30, 5), .Bis = tag(3), .Zimmernummer = 2, .ID = 1, .Kürzel = "früher"},
                {.Von = tag(3), .Bis = tag(5), .Zimmernummer = 2, .Checked = true, .ID = 2, .Kürzel = "mitten"},
                {.Von = tag(7), .Bis = tag(30), .Zimmernummer = 2, .ID = 3, .Kürzel = "länger"}});
    const auto balken = plan.raster.BalkenDerZeile(2);
    ASSERT_EQ(balken.size(), 3U);
    EXPECT_EQ(balken[0].VonSpalte, 1);
    EXPECT_EQ(balken[0].BisSpalte, 2);
    EXPECT_TRUE(balken[0].LinksOffen);
    EXPECT_FALSE(balken[0].RechtsOffen);
    EXPECT_EQ(balken[1].Kuerzel, "mitten");
    EXPECT_EQ(balken[1].Rahmen, 3);
    EXPECT_FALSE(balken[1].LinksOffen || balken[1].RechtsOffen);
    EXPECT_EQ(balken[2].BisSpalte, 9);
    EXPECT_TRUE(balken[2].RechtsOffen);
    const auto darüber = plan.raster.BalkenDerZeile(1);
    ASSERT_EQ(darüber.size(), 1U);
    EXPECT_EQ(darüber[0].VonSpalte, 10);
    EXPECT_TRUE(darüber[0].Überlauf);
}

TEST(RasterLabels, SmokersAreTheRoomsRemark) {
    auto zimmer = GedachteZimmer(2);
    zimmer[0].Bemerkungen = "Doppelzimmer mit Bad";
    zimmer[0].Raucher = "Nichtraucher";
    zimmer.pop_back(); // nobody entered a row for waiting stays
    GedachteQuelle quelle;
    const services::FixedClock clock(tag(1));
    const Planraster raster(GedachterPlan::mit({}, {.zimmer = 2}), zimmer, quelle, clock);
    const auto labels = raster.SUBSetLabels(1);
    ASSERT_EQ(labels.size(), 3U);
    EXPECT_EQ(labels[0].Name, "Zimmernummer01");
    EXPECT_EQ(labels[0].ToolTipText, "Doppelzimmer mit Bad (Nichtraucher)");
    EXPECT_EQ(labels[1].ToolTipText, "");
    EXPECT_EQ(labels[2].ToolTipText, "In dieser Zeile finden Sie alle noch nicht endgültigen Reservierungen.");
    EXPECT_EQ(labels[2].Zimmer, nullptr);
}

TEST(RasterSize, AnyTypedSizeGivesAPlan) {
    struct Größe {
        int zimmer, tage, sichtbar, hoehe;
        int erwarteteZimmer, erwarteteTage, erwarteteSichtbar;
    };
    for (const auto& g :
         {Größe{0, 35, 10, 320, 0, 35, 10}, Größe{-1, 0, 0, 0, 0, 35, 10}, Größe{300, 1000, 20, 19, 98, 100, 20},
          Größe{9, 1, 12, 320, 9, 1, 10}, Größe{12, 14, 12, 320, 12, 14, 12}}) {
        SCOPED_TRACE(g.zimmer);
        PlanEinstellungen e;
        e.ZeilenHoehe = g.hoehe;
        GedachterPlan plan({.zimmer = g.zimmer, .tage = g.tage, .sichtbar = g.sichtbar}, e);
        EXPECT_EQ(plan.raster.AnzahlZimmer(), g.erwarteteZimmer);
        EXPECT_EQ(plan.raster.AnzahlTage(), g.erwarteteTage);
        EXPECT_EQ(plan.raster.SichtbareZeilen(), g.erwarteteSichtbar);
        EXPECT_EQ(plan.raster.fktTop(3), 640);
        plan.zeige({{.Von = tag(1, 1), .Bis = tag(31, 12), .Zimmernummer = 0, .Gelöscht = true, .ID = 1}});
        EXPECT_EQ(plan.raster.Tage(plan.raster.Zelle(plan.raster.Wartezeile(), 1)).ID, g.erwarteteTage > 1 ? 1 : 0);
    }
}

} // namespace
} // namespace plan
