#include "start/address_form.h"
#include "start/database_form.h"
#include "start/parameters.h"
#include "start/start_main.h"
#include "store/path_test.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

namespace start {
namespace {

using services::MsgResult;
using support::TestStart;

constexpr auto kNichtKorrekt = "Der Datenbankpfad ist nicht korrekt. Bitte überprüfen Sie die Einstellungen.";

TEST(PathForm, ShowsWhatIsStored) {
    TestStart s;
    s.g.instanz.Nummer = 1;
    s.set("Pfa1", "/daten/Herberg1.mdb");
    s.set("Zentra1", "/daten/Zentra1.mdb");
    s.set("Exce1", "/daten/Sicherung");
    const frmDatenbank form(s.g, {});
    EXPECT_EQ(form.lblPfad.Caption, "Quelldaten (Herberg1.mdb)");
    EXPECT_EQ(form.lblZentral.Caption, "Gemeinsame Daten (Zentra1.mdb)");
    EXPECT_EQ(form.txtPfad.Text, "/daten/Herberg1.mdb");
    EXPECT_EQ(form.txtZentral.Text, "/daten/Zentra1.mdb");
    EXPECT_EQ(form.txtSicherung.Text, "/daten/Sicherung");
}

TEST(PathForm, RefusesWrongFiles) {
    TestStart s;
    s.house("netz");
    s.house();
    frmDatenbank form(s.g, {.beimStart = true});
    // The link file passes either test, by its links; a swapped file does not.
    for (const auto* wrong : {"Lokal.mdb", "netz/LOKAL.mdb", "netz/Zentral.mdb", "netz", "fehlt.mdb"}) {
        form.txtPfad.Text = "vorher";
        s.dialogs.type(s.file(wrong));
        s.dialogs.acknowledge();
        form.cmdPfad_Click();
        EXPECT_EQ(form.txtPfad.Text, "") << wrong;
        EXPECT_EQ(s.dialogs.last().text, kNichtKorrekt);
    }
    s.dialogs.type(s.file("netz/Herbergo.mdb"));
    form.cmdPfad_Click();
    EXPECT_EQ(s.dialogs.last().text, "Herbergo.mdb|Herbergo.mdb|Access Datenbanken (*.mdb)|*.mdb|");
    EXPECT_EQ(form.txtPfad.Text, s.file("netz/Herbergo.mdb"));
    s.dialogs.type(std::nullopt); // cancelled: nothing changes
    form.cmdPfad_Click();
    EXPECT_EQ(form.txtPfad.Text, s.file("netz/Herbergo.mdb"));

    s.dialogs.acknowledge();
    form.cmdSpeichern_Click(); // the shared file is missing
    EXPECT_EQ(s.dialogs.last().text, "Bitte überprüfen Sie die Datenbankpfade.");
    EXPECT_FALSE(form.Ergebnis());
    EXPECT_EQ(s.setting("Pfad"), "");
}

TEST(PathForm, SavesThePathsAndMovesTheLinks) {
    TestStart s;
    s.house("netz");
    s.house();
    frmDatenbank form(s.g, {});
    for (const auto* name : {"netz/Herbergo.mdb", "netz/Zentral.mdb", "sicher"})
        s.dialogs.type(s.file(name));
    form.cmdPfad_Click();
    form.cmdZentral_Click();
    form.cmdSicherung_Click();
    form.chBeispiel.Value = true;
    form.cmdSpeichern_Click();
    EXPECT_EQ(form.Ergebnis(), PfadeErgebnis::Neuaufbau);
    EXPECT_TRUE(s.g.BeispielAnzeigen);
    EXPECT_EQ(s.setting("Pfad"), s.file("netz/Herbergo.mdb"));
    EXPECT_EQ(s.setting("Zentral"), s.file("netz/Zentral.mdb"));
    EXPECT_EQ(s.setting("Excel"), s.file("sicher"));
    jet::Database links = s.open(s.file("Lokal.mdb"));
    EXPECT_EQ(links.GetTableDef("tblBelegung").Connect, store::linkConnect(s.file("netz/Zentral.mdb")));
    EXPECT_EQ(links.GetTableDef("tblTarife").Connect, store::linkConnect(s.file("netz/Herbergo.mdb")));
}

TEST(PathForm, LeavingWithoutGoodPathsEndsOnlyTheStart) {
    TestStart s;
    {
        frmDatenbank form(s.g, {.beimStart = true});
        form.cmdAbbrechen_Click();
        EXPECT_EQ(form.Ergebnis(), PfadeErgebnis::ProgrammEnde);
    }
    s.g.FormularGeladen = true;
    frmDatenbank fromMenu(s.g, {});
    fromMenu.cmdAbbrechen_Click();
    EXPECT_EQ(fromMenu.Ergebnis(), PfadeErgebnis::Weiter);
    s.g.FormularGeladen = false;
    s.house();
    frmDatenbank form(s.g, {.beimStart = true});
    form.cmdAbbrechen_Click();
    EXPECT_EQ(form.Ergebnis(), PfadeErgebnis::Weiter);
    form.cmdEnde_Click();
    EXPECT_EQ(form.Ergebnis(), PfadeErgebnis::ProgrammEnde);
}

TEST(PathForm, NamesTheApplication) {
    struct Case {
        std::optional<std::string> answer;
        const char* titel;
    };
    TestStart s;
    s.house();
    frmDatenbank form(s.g, {});
    for (const Case& c : {Case{"Pension 'Möwe'", "Pension 'Möwe'"}, {"", "Herbergo 0"}, {std::nullopt, "Herbergo 0"}}) {
        s.dialogs.type(c.answer);
        form.cmdName_Click();
        EXPECT_EQ(s.g.strTitel(), c.titel);
        jet::Database lokal = s.open(s.file("Lokal.mdb"));
        EXPECT_EQ(FeldLesen(lokal, "titel")->textOr(), c.titel);
    }
    EXPECT_EQ(s.dialogs.last().title, "Namen vergeben");
    EXPECT_EQ(s.dialogs.last().text, "Bitte wählen Sie einem Namen für diese Anwendung:");
    EXPECT_EQ(s.dialogs.last().vorgabe, "0. Instanz");
}

TEST(AddressForm, SharedAddressesAreWarnedOfAndNeedTheMainHouse) {
    support::ScriptedDialogs dialogs;
    frmAdressHilfe form(dialogs, "Herbergo", {.HauptprogrammErreichbar = true});
    EXPECT_EQ(form.opAdressen.Buttons.at(1).Caption, "vorhandene Adressen des Herbergos benutzen");
    dialogs.acknowledge();
    form.opAdressen_Click(1);
    EXPECT_EQ(dialogs.last().text, "Achtung! Diese Option kann später nicht mehr rückgängig gemacht werden!");
    form.cmdOK_Click();
    EXPECT_EQ(form.Ergebnis(), Adresswahl::AdrAusBel);

    frmAdressHilfe alone(dialogs, "Herbergo", {});
    EXPECT_FALSE(alone.opAdressen.Buttons.at(1).Enabled);
    alone.cmdOK_Click();
    EXPECT_EQ(alone.Ergebnis(), Adresswahl::AdrEinzeln);

    frmAdressHilfe left(dialogs, "Herbergo", {});
    left.cmdAbbrechen_Click();
    EXPECT_TRUE(left.Beendet());
    EXPECT_EQ(left.Ergebnis(), Adresswahl::Keine);
}

} // namespace
} // namespace start
