#include "reservations/season_price.h"
#include "support/scripted_dialogs.h"
#include "support/test_house.h"

#include <gtest/gtest.h>

#include <sstream>

namespace reservations {
namespace {

using support::day;

constexpr auto kZuWenig = "Für die Berechnung der Saisonpreise liegen nicht genug Stammdaten vor. Kontrollieren Sie in "
                          "den Einstellungen die Preise für die Zimmer und legen Sie Saisonzeiten fest.";

/// A year of two seasons, and a third one that room 1 has no price for.
struct Haus {
    support::TestHouse house;
    support::ScriptedDialogs dialogs;
    clsSaisonpreis preis{house.db(), dialogs, "Möwe"};

    Haus() {
        house.room({.Zimmernummer = 1, .PreisDefault = 50.0, .PreisHauptsaison = 90.0, .PreisNebensaison = 60.5});
        house.room({.Zimmernummer = 2, .PreisDefault = 50.0});
        house.room({.Zimmernummer = 3, .PreisDefault = {}, .PreisHauptsaison = 90.0});
        house.room({.Zimmernummer = 4, .PreisDefault = 0.0, .PreisHauptsaison = 90.0, .PreisNebensaison = 0.0});
        house.season({"Hauptsaison", day(1, 6), day(1, 9)});
        house.season({"Nebensaison", day(1, 9), day(1, 12)});
        house.season({"Zwischensaison", day(1, 2), day(1, 3)});
    }
    double rechne(int zimmer, const std::string& von, const std::string& bis) {
        return preis.Saisonpreis_Ausrechnen(zimmer, von, bis, false);
    }
    /// "2x90 Hauptsaison, ..." of the lines with nights.
    [[nodiscard]] std::string zeilen() const {
        std::ostringstream text;
        for (const Saisonzeile& z : preis.Zeilen())
            if (z.Nächte > 0) text << z.Nächte << 'x' << z.Preis << '=' << z.Summe << ' ' << z.Saison << ", ";
        return text.str();
    }
};

TEST(SeasonPrice, WhatCannotBeComputedIsZero) {
    struct Case {
        const char* tells;
        int zimmer;
        const char* von;
        const char* bis;
    };
    Haus h;
    for (const Case& c : {Case{"no date", 1, "", "02.06.2026"},
                          {"no day", 1, "31.06.2026", "02.07.2026"},
                          {"text", 1, "01.06.2026", "' or 1=1"},
                          {"no night", 1, "01.06.2026", "01.06.2026"},
                          {"departure first", 1, "03.06.2026", "01.06.2026"},
                          {"a slip in the century", 1, "01.06.2026", "05.06.9926"},
                          {"outside the calendar, in spite of the default price", 1, "01.04.2026", "04.04.2026"},
                          {"the day on which the last season ends", 1, "01.12.2026", "02.12.2026"},
                          {"no season price at all", 2, "01.06.2026", "03.06.2026"},
                          {"no such room", 77, "01.06.2026", "03.06.2026"},
                          {"no room", 0, "01.06.2026", "03.06.2026"},
                          {"season without price, default Null", 3, "01.09.2026", "03.09.2026"},
                          {"season's price 0 counts as one", 4, "01.09.2026", "03.09.2026"}})
        EXPECT_EQ(h.rechne(c.zimmer, c.von, c.bis), 0) << c.tells;
}

TEST(SeasonPrice, EachNightHasThePriceOfTheDayOnWhichItBegins) {
    struct Case {
        const char* von;
        const char* bis;
        double summe;
        const char* zeilen;
        int saisons;
    };
    Haus h;
    for (const Case& c : {Case{"30.08.2026", "02.09.2026", 240.5, "2x90=180 Hauptsaison, 1x60.5=60.5 Nebensaison, ", 2},
                          {"30.5.26", "2.6.26", 190, "1x90=90 Hauptsaison, 2x50=100 Ohne Saison, ", 2},
                          {"27.02.2026", "02.03.2026", 150, "2x50=100 Zwischensaison, 1x50=50 Ohne Saison, ", 2},
                          {"31.08.2026", "01.09.2026", 90, "1x90=90 Hauptsaison, ", 1}}) {
        EXPECT_EQ(h.rechne(1, c.von, c.bis), c.summe) << c.von;
        EXPECT_EQ(h.zeilen(), c.zeilen);
        EXPECT_EQ(h.preis.AnzahlSaisons(), c.saisons);
    }
}

TEST(SeasonPrice, ANightWithoutPriceSpoilsTheTotalButNotTheOtherLines) {
    Haus h;
    EXPECT_EQ(h.rechne(4, "30.05.2026", "03.06.2026"), 0);
    EXPECT_EQ(h.preis.Zeilen().at(0).Summe, 180);
    EXPECT_EQ(h.preis.Zeilen().at(4).Summe, 0);
    // The next calculation begins anew, also when it fails.
    EXPECT_EQ(h.rechne(4, "Mai", ""), 0);
    EXPECT_EQ(h.zeilen(), "");
    EXPECT_EQ(h.preis.AnzahlSaisons(), 0);
    EXPECT_EQ(h.preis.Zeilen().at(4).Saison, "Ohne Saison");
}

TEST(SeasonPrice, TellsWhatItFoundWhenAsked) {
    struct Case {
        int zimmer;
        const char* von;
        const char* bis;
        const char* text;
    };
    Haus h;
    for (const Case& c :
         {Case{1, "31.05.2026", "03.06.2026",
               "Folgende Saisonzeiten und Preise wurden gefunden:\n2 Nächte Hauptsaison, Preis: 90,00 pro Nacht\n"
               "1 Nacht ohne Saison, Standardpreis: 50,00 pro Nacht"},
          {1, "28.02.2026", "01.03.2026",
           "Folgende Saisonzeiten und Preise wurden gefunden:\n1 Nacht Zwischensaison, Preis: 50,00 pro Nacht"},
          {1, "01.04.2026", "03.04.2026", kZuWenig},
          {2, "01.06.2026", "03.06.2026", kZuWenig}}) {
        h.dialogs.acknowledge();
        (void)h.preis.Saisonpreis_Ausrechnen(c.zimmer, c.von, c.bis, true);
        EXPECT_EQ(h.dialogs.last().text, c.text);
        EXPECT_EQ(h.dialogs.last().title, "Möwe");
    }
    // Failures are not told.
    EXPECT_EQ(h.preis.Saisonpreis_Ausrechnen(1, "heute", "morgen", true), 0);
    h.house.db().Close();
    EXPECT_EQ(h.preis.Saisonpreis_Ausrechnen(1, "01.06.2026", "03.06.2026", true), 0);
}

TEST(SeasonPrice, AStayOfManyYearsIsCounted) {
    Haus h;
    h.house.season({"Sondersaison", day(1, 1, 2027), day(1, 1, 2040)});
    EXPECT_EQ(h.rechne(1, "01.01.2027", "15.12.2037"), 4001 * 50.0);
}

} // namespace
} // namespace reservations
