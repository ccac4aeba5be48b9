#include "reservations/season_form.h"
#include "support/jet_files.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

namespace reservations {
namespace {

using services::Leave;
using services::MsgButtons;
using services::MsgDefault;
using services::MsgResult;
using support::allRows;
using support::TestStart;

constexpr auto kZeilen = "SELECT Saisonbezeichnung, Start, Ende FROM tbSaisonzeiten ORDER BY idSaisonzeiten";
constexpr auto kFrage = "Änderungen oder neue Daten speichern?";
constexpr auto kSommer = "Hauptsaison 01.06.2026 01.09.2026 | Nebensaison 01.09.2026 01.12.2026";

struct Kalender : TestStart {
    explicit Kalender(bool seasons = true) {
        house();
        g.dbHaupt = open(file("Lokal.mdb"));
        if (!seasons) return;
        season("Hauptsaison", "#06-01-2026#", "#09-01-2026#");
        season("Nebensaison", "#09-01-2026#", "#12-01-2026#");
    }
    void season(const std::string& name, const std::string& start, const std::string& ende) {
        g.dbHaupt.Execute("INSERT INTO tbSaisonzeiten (Saisonbezeichnung, Start, Ende) VALUES ('" + name + "', " +
                          start + ", " + ende + ")");
    }
    [[nodiscard]] std::string rows() { return allRows(g.dbHaupt, kZeilen); }
};

void type(frmSaison& form, const std::string& name, const std::string& von, const std::string& bis) {
    form.txtName.Text = name;
    form.txtVon.Text = von;
    form.txtBis.Text = bis;
    form.Feld_Change();
}

void choose(frmSaison& form, int row) {
    form.grSaison.Row = row;
    form.grSaison_RowColChange();
}

std::string shown(const frmSaison& form) { return form.txtName.Text + " " + form.txtVon.Text + " " + form.txtBis.Text; }

TEST(SeasonForm, RefusesWhatIsNoSeason) {
    struct Case {
        const char* name;
        const char* von;
        const char* bis;
        const char* text;
    };
    constexpr auto overlap = "Die Saisonzeiten überschneiden sich mit einer bereits vorhandenen Saison. Bitte "
                             "überprüfen Sie die Eingabe.";
    constexpr auto range = "Bitte überprüfen Sie das Anfangs- und Enddatum.";
    Kalender k;
    frmSaison form(k.g);
    for (const Case& c : {Case{" ", "", "", "Das Feld 'Saisonbezeichnung' darf zum Speichern nicht leer sein"},
                          {"Hauptsaison", "", "", "Das Feld 'Saisonbeginn' darf zum Speichern nicht leer sein"},
                          {"Hauptsaison", "01.01.2027", "", "Das Feld 'Saisonende' darf zum Speichern nicht leer sein"},
                          {"Messe", "01.01.2027", "02.01.2027", "Bitte wählen Sie einen Eintrag aus der Liste."},
                          {"Hauptsaison", "31.02.2027", "01.03.2027", "Bitte überprüfen Sie das Datum"},
                          {"Hauptsaison", "01.02.2027", "....", "Bitte überprüfen Sie das Datum"},
                          {"Hauptsaison", "01.02.2027", "1.2.27",
                           "Das Anfangs- und das Enddatum sind gleich. Bitte überprüfen Sie die Eingabe."},
                          {"Hauptsaison", "02.02.2027", "01.02.2027", range},
                          {"Hauptsaison", "31.05.2026", "02.06.2026", overlap}, // ends in one
                          {"Hauptsaison", "30.11.2026", "02.12.2026", overlap}, // begins in one
                          {"Hauptsaison", "10.07.2026", "20.07.2026", overlap}, // within one
                          {"Hauptsaison", "01.01.2026", "31.12.2026", overlap}, // around both
                          {"Hauptsaison", "01.06.2026", "01.09.2026", overlap}, // the very same days
                          {"Hauptsaison", "01.06.2026", "02.06.2026", overlap}}) {
        form.cmdNeu_Click();
        type(form, c.name, c.von, c.bis);
        k.dialogs.acknowledge();
        form.cmdSpeichern_Click();
        EXPECT_EQ(k.dialogs.last().text, c.text) << c.von << " - " << c.bis;
        k.dialogs.press(MsgResult::No); // to the question of the next round
    }
    EXPECT_TRUE(form.canClose());
    EXPECT_EQ(k.rows(), kSommer);
}

TEST(SeasonForm, SeasonsMayTouchAndOneMayBeMoved) {
    Kalender k;
    frmSaison form(k.g);
    form.cmdNeu_Click();
    type(form, "zwischenSAISON", "1.3.26", "01.06.2026"); // touches the first one; stored in the list's spelling
    form.cmdSpeichern_Click();
    EXPECT_EQ(k.rows(), std::string(kSommer) + " | Zwischensaison 01.03.2026 01.06.2026");
    EXPECT_EQ(form.grSaison.Row, 2);
    choose(form, 0);
    type(form, "Sondersaison", "01.07.2026", "01.09.2026"); // no overlap with itself
    form.cmdSpeichern_Click();
    EXPECT_EQ(k.rows(), "Sondersaison 01.07.2026 01.09.2026 | Nebensaison 01.09.2026 01.12.2026 | "
                        "Zwischensaison 01.03.2026 01.06.2026");
    EXPECT_TRUE(form.canClose());
    EXPECT_EQ(k.dialogs.asked().size(), 0U);
}

TEST(SeasonForm, ANewSeasonJoinsTheLastOne) {
    Kalender k;
    frmSaison form(k.g);
    EXPECT_EQ(shown(form), "Hauptsaison 01.06.2026 01.09.2026");
    form.cmdNeu_Click();
    EXPECT_EQ(shown(form), " 01.12.2026 ");
    EXPECT_EQ(form.grSaison.Row, -1);
    EXPECT_TRUE(form.canClose()); // nothing was typed yet

    Kalender empty(false);
    const frmSaison first(empty.g);
    EXPECT_EQ(shown(first), " 15.06.2026 ");
}

TEST(SeasonForm, LeavingAChangeAsksAndMayBeCalledOff) {
    Kalender k;
    frmSaison form(k.g);
    type(form, "Hauptsaison", "01.05.2026", "01.09.2026");
    k.dialogs.press(MsgResult::Cancel);
    choose(form, 1);
    EXPECT_EQ(k.dialogs.last().text, kFrage);
    EXPECT_EQ(k.dialogs.last().title, "Änderungen speichern");
    EXPECT_EQ(k.dialogs.last().style.buttons, MsgButtons::YesNoCancel);
    EXPECT_EQ(form.grSaison.Row, 0);
    EXPECT_EQ(shown(form), "Hauptsaison 01.05.2026 01.09.2026");

    k.dialogs.press(MsgResult::Cancel);
    EXPECT_FALSE(form.canClose());
    form.txtVon.Text = "01.10.2026"; // a save that is refused keeps the window too
    k.dialogs.press(MsgResult::Yes);
    k.dialogs.acknowledge();
    EXPECT_FALSE(form.canClose());

    k.dialogs.press(MsgResult::No);
    choose(form, 1);
    EXPECT_EQ(shown(form), "Nebensaison 01.09.2026 01.12.2026");
    EXPECT_EQ(k.rows(), kSommer);
}

TEST(SeasonForm, ASaveOnTheWayToAnotherRowKeepsTheWay) {
    Kalender k;
    frmSaison form(k.g);
    form.grSaison_HeaderClick(1);
    choose(form, 1);
    type(form, "Nebensaison", "01.01.2026", "01.02.2026"); // will stand first
    k.dialogs.press(MsgResult::Yes);
    choose(form, 0); // Hauptsaison, second afterwards
    EXPECT_EQ(shown(form), "Hauptsaison 01.06.2026 01.09.2026");
    EXPECT_EQ(form.grSaison.Row, 1);
    EXPECT_EQ(form.grSaison.Rows->TextMatrix(0, 1), "01.01.2026");
}

TEST(SeasonForm, SortsByTheHeadingAndBackwardsByASecondClick) {
    struct Case {
        int column;
        const char* first;
    };
    Kalender k;
    k.season("Hauptsaison", "#01-15-2025#", "#02-01-2025#");
    k.season("Sondersaison", "Null", "Null"); // by another program
    frmSaison form(k.g);
    choose(form, 1);
    for (const Case& c : {Case{1, ""},
                          {1, "Nebensaison"},
                          {1, ""},
                          {2, ""},
                          {2, "Nebensaison"},
                          {3, "Hauptsaison"},
                          {3, "Sondersaison"},
                          {0, "Sondersaison"}}) {
        const unsigned before = form.grSaison.version;
        form.grSaison_HeaderClick(c.column);
        const int column = c.first[0] == '\0' ? 1 : 3;
        EXPECT_EQ(form.grSaison.Rows->TextMatrix(0, column), c.first) << c.column;
        EXPECT_EQ(form.grSaison.Rows->TextMatrix(form.grSaison.Row, 3), "Nebensaison"); // the row goes with its season
        EXPECT_EQ(form.grSaison.version, before + (c.column > 0 ? 1U : 0U));
    }
}

TEST(SeasonForm, DeletesOnlyAChosenSeasonAndAsksBefore) {
    Kalender k;
    frmSaison form(k.g);
    k.dialogs.press(MsgResult::No);
    form.cmdL_schen_Click();
    EXPECT_EQ(k.dialogs.last().text, "Soll dieser Datensatz endgültig gelöscht werden?");
    EXPECT_EQ(k.dialogs.last().style.standard, MsgDefault::Button2);
    EXPECT_EQ(k.rows(), kSommer);
    for (const auto* after : {"Nebensaison 01.09.2026 01.12.2026", " 15.06.2026 "}) {
        k.dialogs.press(MsgResult::Yes);
        form.cmdL_schen_Click();
        EXPECT_EQ(shown(form), after);
    }
    k.dialogs.acknowledge();
    form.cmdL_schen_Click();
    EXPECT_EQ(k.dialogs.last().text,
              "Der Zustand der Falle ist noch in Gebrauch und kann deshalb nicht gelöscht werden.");
}

TEST(SeasonForm, ASeasonThatAnotherStationDeletedIsStoredAnew) {
    Kalender k;
    frmSaison form(k.g);
    k.open(k.file("Zentral.mdb")).Execute("DELETE FROM tbSaisonzeiten");
    type(form, "Hauptsaison", "01.06.2026", "02.09.2026");
    form.cmdSpeichern_Click();
    EXPECT_EQ(k.rows(), "Hauptsaison 01.06.2026 02.09.2026");
    EXPECT_EQ(form.grSaison.Row, 0);
}

TEST(SeasonForm, AFailedSaveIsToldAndKeepsTheChange) {
    Kalender k;
    frmSaison form(k.g);
    type(form, "Hauptsaison", "01.06.2026", "02.08.2026");
    k.g.dbHaupt.Close();
    k.dialogs.acknowledge();
    form.cmdSpeichern_Click();
    EXPECT_EQ(k.dialogs.last().title, "Herbergo");
    k.dialogs.press(MsgResult::Cancel);
    EXPECT_FALSE(form.canClose());
}

TEST(SeasonForm, AFieldIsLeftOnlyWithWhatItMayHold) {
    Kalender k;
    frmSaison form(k.g);
    form.txtName.Text = "Ostern";
    form.txtVon.Text = "30.02.2026";
    k.dialogs.acknowledge(2);
    EXPECT_EQ(form.txtName_LostFocus(), Leave::Stay);
    EXPECT_EQ(form.txtVon_LostFocus(), Leave::Stay);
    EXPECT_EQ(k.dialogs.last().text, "Bitte überprüfen Sie das Datum");
    form.txtName.Text = "sondersaison";
    form.txtVon.Text = "5.2"; // this year
    form.txtBis.Text = "";
    EXPECT_EQ(form.txtName_LostFocus(), Leave::Go);
    EXPECT_EQ(form.txtVon_LostFocus(), Leave::Go);
    EXPECT_EQ(form.txtBis_LostFocus(), Leave::Go);
    EXPECT_EQ(shown(form), "Sondersaison 05.02.2026 ");
}

} // namespace
} // namespace reservations
