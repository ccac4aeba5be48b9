#include "reservations/number_form.h"
#include "start/parameters.h"
#include "support/jet_files.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

namespace reservations {
namespace {

using services::MsgResult;

struct Nummern : support::TestStart {
    Nummern() {
        house();
        g.dbHaupt = open(file("Lokal.mdb"));
    }
    void store(const char* f1, const char* f2, const char* f3, const char* f4) {
        start::SatzSchreiben(g.dbHaupt, "BeNummer", {{"F1", f1}, {"F2", f2}, {"F3", f3}, {"F4", f4}, {"F5", "5"}});
    }
    [[nodiscard]] std::string stored() {
        return support::allRows(g.dbHaupt, "SELECT '[' & F1 & ']', F2, F3, F4, F5 FROM tblParameter WHERE Satz = "
                                           "'BeNummer'");
    }
};

TEST(NumberForm, WhatItsListsDoNotKnowStays) {
    Nummern n;
    n.store("R", "\"KW\" ww", "sieben", "manche");
    frmBeNummer form(n.g);
    EXPECT_EQ(form.cboDatum.ListIndex, -1);
    EXPECT_EQ(form.opFreie.Value, -1);
    EXPECT_EQ(form.txtBeNummerBeispiel.Text, "R 0000 KW 25");
    EXPECT_TRUE(form.canClose());
    form.txtVor.Text = "B";
    form.txtVor_Change();
    form.cmdSpeichern_Click();
    EXPECT_EQ(n.stored(), "[B] \"KW\" ww sieben manche 5");
}

TEST(NumberForm, TheExampleFollowsEachChange) {
    struct Case {
        const char* vor;
        const char* nummer;
        int datum;
        const char* text;
    };
    Nummern n;
    frmBeNummer form(n.g);
    EXPECT_EQ(form.cboDatum.Items.ListCount(), 10);
    for (const Case& c : {Case{"", "", 0, " 0000 "},
                          {"R", "7", 1, "R 0007 26"},
                          {"R ", "12345", 2, "R  12345 2026"},
                          {"", "999999999", 3, " 999999999 Jun 26"},
                          {"", "12345678901234567890", 4, " 0000 Jun 2026"},
                          {"", "1", 5, " 0001 06 2026"},
                          {"", "1", 6, " 0001 06 26"},
                          {"", "1", 7, " 0001 15 06 26"},
                          {"", "1", 8, " 0001 25 26"},
                          {"", "1", 9, " 0001 25 2026"}}) {
        form.txtVor.Text = c.vor;
        form.txtVor_Change();
        form.txtBeNummer.Text = c.nummer;
        form.txtBeNummer_Change();
        form.cboDatum.choose(c.datum);
        form.cboDatum_Click();
        EXPECT_EQ(form.txtBeNummerBeispiel.Text, c.text);
    }
}

TEST(NumberForm, StoresWhetherTheRecordIsThereOrNot) {
    Nummern n;
    n.g.dbHaupt.Execute("DELETE FROM tblParameter WHERE Satz = 'BeNummer'");
    n.g.einstellungen.BeNummer = {"alt", "", "", "Alle", "5"};
    frmBeNummer form(n.g);
    EXPECT_EQ(form.txtVor.Text, "alt");
    EXPECT_EQ(form.opFreie.Value, 0);
    form.opFreie_Click(1);
    form.cboDatum.choose(2);
    form.cboDatum_Click();
    form.txtVor.Text = "";
    form.txtVor_Change();
    for (int i = 0; i < 2; ++i) {
        form.cmdSpeichern_Click();
        EXPECT_EQ(n.stored(), "[] yyyy  Freilassen Null");
    }
    EXPECT_EQ(n.g.einstellungen.BeNummer, (std::vector<std::string>{"", "yyyy", "", "Freilassen", "5"}));
    EXPECT_TRUE(form.canClose());
}

TEST(NumberForm, ReadsWhatAnotherStationHasStored) {
    Nummern n;
    n.g.einstellungen.BeNummer = {"alt", "", "", "Alle", ""};
    n.store("neu", "yy", "3", "Freilassen");
    const frmBeNummer form(n.g);
    EXPECT_EQ(form.txtBeNummerBeispiel.Text, "neu 0003 26");
    EXPECT_EQ(form.opFreie.Value, 1);
}

TEST(NumberForm, AHostilePrefixIsStoredAsItStands) {
    Nummern n;
    n.store("", "", "", "Alle");
    frmBeNummer form(n.g);
    EXPECT_EQ(form.txtVor.Keys.filtered("a;b~c"), "abc");
    form.txtVor.Text = "Haus \"Möwe' or 1=1";
    form.txtVor_Change();
    form.cmdSpeichern_Click(); // closes the pair of quotes
    EXPECT_EQ(n.stored(), "[Haus \"Möwe' or 1=1\"]   Alle 5");
    EXPECT_EQ(form.txtBeNummerBeispiel.Text, "Haus \"Möwe' or 1=1\" 0000 ");
    EXPECT_EQ(n.g.einstellungen.BeNummer.at(0), "Haus \"Möwe' or 1=1\"");
}

TEST(NumberForm, ClosingAsksOnlyAboutChanges) {
    Nummern n;
    n.store("R", "yy", "", "Alle");
    frmBeNummer form(n.g);
    form.txtVor.Text = "Q";
    form.txtVor_Change();
    n.dialogs.press(MsgResult::Cancel);
    EXPECT_FALSE(form.canClose());
    EXPECT_EQ(n.dialogs.last().text, "Änderungen speichern?");
    n.dialogs.press(MsgResult::No);
    EXPECT_TRUE(form.canClose());
    EXPECT_EQ(n.stored(), "[R] yy  Alle 5");
    form.txtVor.Text = "R"; // typed back
    form.txtVor_Change();
    EXPECT_TRUE(form.canClose());

    form.opFreie_Click(1);
    n.g.dbHaupt.Close();
    n.dialogs.press(MsgResult::Yes);
    n.dialogs.acknowledge(); // the engine's own words
    EXPECT_FALSE(form.canClose());
}

} // namespace
} // namespace reservations
