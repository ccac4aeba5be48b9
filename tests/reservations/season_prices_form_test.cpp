#include "reservations/season_prices_form.h"
#include "support/jet_files.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

namespace reservations {
namespace {

using services::Leave;
using services::MsgResult;

constexpr auto kPreise = "SELECT PreisHauptsaison, PreisZwischensaison, PreisNebensaison, PreisSondersaison FROM "
                         "tbZimmernummern WHERE Zimmernummer = 2";

struct Zimmer : support::TestStart {
    Zimmer() {
        house();
        g.dbHaupt = open(file("Lokal.mdb"));
        g.dbHaupt.Execute("INSERT INTO tbZimmernummern (Zimmernummer, NeueNummer, PreisDefault, PreisHauptsaison, "
                          "PreisNebensaison) VALUES (2, 'Turm ''Süd''', 80, 1234.5, 0)");
    }
    [[nodiscard]] std::string preise() { return support::allRows(g.dbHaupt, kPreise); }
};

TEST(SeasonPricesForm, ShowsPricesOfTheRoomAndNothingForNull) {
    Zimmer z;
    frmSaisonpreise form(z.g, 2);
    EXPECT_EQ(form.Caption(), "Saisonpreise Turm 'Süd'");
    EXPECT_EQ(form.lblStandard.Caption, "Standardpreis: 80,00");
    EXPECT_EQ(form.txtHaupt.Text, "1.234,50");
    EXPECT_EQ(form.txtZwischen.Text, "");
    EXPECT_EQ(form.txtNeben.Text, "0,00");
    EXPECT_TRUE(form.canClose());
    // Storing what is shown changes nothing.
    form.cmdSpeichern_Click();
    EXPECT_EQ(z.preise(), "1234,5 Null 0 Null");
}

TEST(SeasonPricesForm, RefusesWhatIsNoPrice) {
    Zimmer z;
    frmSaisonpreise form(z.g, 2);
    for (const auto* wrong : {"1,2,3", ",", "achtzig"}) {
        form.txtSonder.Text = wrong;
        form.Preis_Change();
        z.dialogs.acknowledge(2);
        EXPECT_EQ(form.Preis_LostFocus(form.txtSonder), Leave::Stay) << wrong;
        EXPECT_EQ(z.dialogs.last().text, "Bitte überprüfen Sie die Eingabe");
        form.cmdSpeichern_Click();
    }
    EXPECT_EQ(form.txtSonder.Keys.filtered("-1.5e3,7 €"), "153,7");
    EXPECT_EQ(z.preise(), "1234,5 Null 0 Null");
}

TEST(SeasonPricesForm, AnEmptyFieldStoresNullAndPricesTwoDecimals) {
    Zimmer z;
    frmSaisonpreise form(z.g, 2);
    form.txtHaupt.Text = " ";
    form.txtZwischen.Text = "99,995";
    form.txtNeben.Text = "";
    form.txtSonder.Text = "1234,5";
    form.Preis_Change();
    z.dialogs.press(MsgResult::Cancel);
    EXPECT_FALSE(form.canClose());
    EXPECT_EQ(z.dialogs.last().text, "Änderungen speichern?");
    z.dialogs.press(MsgResult::Yes);
    EXPECT_TRUE(form.canClose());
    EXPECT_EQ(z.preise(), "Null 100 Null 1234,5");
    EXPECT_TRUE(form.canClose());
}

TEST(SeasonPricesForm, ARoomThatIsGoneTakesNothing) {
    Zimmer z;
    const frmSaisonpreise unknown(z.g, 77);
    EXPECT_EQ(unknown.Caption(), "Saisonpreise 77");
    EXPECT_FALSE(unknown.txtHaupt.Enabled);
    EXPECT_FALSE(unknown.cmdSpeichern.Enabled);

    frmSaisonpreise form(z.g, 2);
    z.g.dbHaupt.Execute("DELETE FROM tbZimmernummern");
    form.txtHaupt.Text = "70";
    form.Preis_Change();
    form.cmdSpeichern_Click();
    z.dialogs.press(MsgResult::No);
    EXPECT_TRUE(form.canClose()); // the change is still asked about
}

} // namespace
} // namespace reservations
