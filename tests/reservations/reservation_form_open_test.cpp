#include "reservations/reservation_form_house.h"
#include "start/parameters.h"

namespace reservations {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ReservationOpening : public ReservationForm {
protected:
    static std::vector<std::string> texte(const services::ListItems& items) {
        std::vector<std::string> result;
        for (int index = 0; index < items.ListCount(); ++index)
            result.push_back(items.List(index));
        return result;
    }
    void raucher(int zimmer, const char* text) {
        house.db().Execute("UPDATE tbZimmernummern SET Raucher = " + jet::sqlText(text) +
                           " WHERE Zimmernummer = " + std::to_string(zimmer));
    }
};

TEST_F(ReservationOpening, AStayThatIsGoneClosesTheFormWithAWord) {
    antworten({MsgResult::OK});
    const frmReservierung form = öffnen(77);
    EXPECT_TRUE(form.Geschlossen());
    EXPECT_EQ(form.ID(), 0);
}

TEST_F(ReservationOpening, ANewStayTakesWhatThePlanMarkedAndTheDefaultsOfRoomAndSettings) {
    raucher(3, "Nichtraucher");
    house.db().Execute(
        "UPDATE tbZimmernummern SET PreisDefault = 1234.5, AnzahlGästeDefault = 3 WHERE Zimmernummer = 3");
    s.g.einstellungen.WäscheOptionen = {"true", "", "wahr", "", "", ""};
    s.g.einstellungen.Wäsche1Tage = 9;
    const frmReservierung form = öffnen({.Zimmernummer = 3, .Von = day(20, 6), .Bis = day(20, 6), .Art = 3});
    EXPECT_EQ(form.fldBis.Text, "21.06.2026"); // one marked day is one night
    EXPECT_EQ(form.fldZimmer.Text, "Zimmer 3 (Nichtraucher)");
    EXPECT_THAT(texte(form.fldZimmer.Items),
                ElementsAre("Zimmer 1", "Zimmer 2", "Zimmer 3 (Nichtraucher)", "Zimmer 4"));
    EXPECT_EQ(form.cboArt.Items.ItemData(form.cboArt.ListIndex), 3);
    EXPECT_EQ(form.cboTarif.Text + " " + form.fldPreis.Text, "1.234,50 1.234,50");
    EXPECT_EQ(form.fldAnzahlG_ste.Text + form.fldResTage.Text + form.fldW_sche1.Text, "319");
    EXPECT_TRUE(form.chFr_hst_ck.Value && !form.chMittag.Value && form.chAbendessen.Value);
    EXPECT_EQ(form.txtResDatum.Text, "15.06.26");
    EXPECT_EQ(form.cmdBestVorschau.Caption, "Bestätigung (ein&f.)");
    EXPECT_EQ(form.cmdRechnung.Caption, "Bestätigung/ &Rechnung");
    EXPECT_FALSE(form.cmdL_schen.Enabled);
    EXPECT_FALSE(form.cmdErster.Visible);
    EXPECT_FALSE(form.Änderung());
}

TEST_F(ReservationOpening, WithoutADayOrARoomTheFieldsStayEmpty) {
    for (const int zimmer : {0, 5, 77}) { // none, the waiting row, one that there is not
        const frmReservierung form = öffnen({.Zimmernummer = zimmer});
        EXPECT_EQ(form.fldZimmer.Text + form.fldVon.Text + form.fldBis.Text + form.fldResTage.Text, "") << zimmer;
        EXPECT_EQ(form.cmdBestVorschau.Caption, "Angebot (ein&f.)");
        EXPECT_EQ(form.cmdRechnung.Caption, "&Angebot");
        EXPECT_EQ(form.cboArt.ListIndex, 0);
        EXPECT_EQ(form.fldPreis.Text, "0,00");
    }
}

TEST_F(ReservationOpening, OnlyFreeRoomsAreOfferedWhereTheHouseWantsIt) {
    s.g.einstellungen.AlleFreien = "Ja";
    belegt(1, 19, 21);
    belegt(3, 20, 22);
    const frmReservierung form = neu(20, 23);
    EXPECT_THAT(texte(form.fldZimmer.Items), ElementsAre("Zimmer 2", "Zimmer 4"));
    EXPECT_EQ(form.OptZiAuswahl1.Value, 1);

    frmReservierung eigene = öffnen(belegt(4, 20, 22));
    EXPECT_THAT(texte(eigene.fldZimmer.Items), ElementsAre("Zimmer 2", "Zimmer 4")); // its own stands where it belongs
    EXPECT_EQ(eigene.fldZimmer.Text, "Zimmer 4");
    eigene.fldBis.Text = "21.06.2026"; // another period: its own room is as taken as any
    (void)eigene.fldBis_LostFocus();
    EXPECT_THAT(texte(eigene.fldZimmer.Items), ElementsAre("Zimmer 2"));
    EXPECT_EQ(eigene.fldZimmer.Text, "");
    eigene.OptZiAuswahl1_Click(0);
    EXPECT_EQ(eigene.fldZimmer.Items.ListCount(), 4);
}

TEST_F(ReservationOpening, TheDefaultOfTheRoomListIsAskedFor) {
    frmReservierung form = neu();
    EXPECT_FALSE(form.OptZiAuswahl1_KeyDown(services::Key::Return));
    antworten({MsgResult::Yes, MsgResult::Cancel});
    EXPECT_TRUE(form.OptZiAuswahl1_KeyDown(services::Key::F2));
    EXPECT_TRUE(form.OptZiAuswahl1_KeyDown(services::Key::F2));
    EXPECT_EQ(s.dialogs.last().title, "Vorgabe beim Öffnen");
    EXPECT_EQ(start::JaNeinLesen(house.db(), "AlleFreien"), "Ja");
    EXPECT_EQ(neu().OptZiAuswahl1.Value, 1);
}

TEST_F(ReservationOpening, ATypeThatSaysANumberOfGuestsIsFollowedAtOnceOrAsked) {
    house.db().Execute("UPDATE tbBelegArten SET BelegungsArt = 'Drei' WHERE BelegungsID = 2");
    EXPECT_EQ(öffnen({.Zimmernummer = 1, .Art = 2}).fldAnzahlG_ste.Text, "3");
    EXPECT_THAT(gefragt(), IsEmpty());
    const int id = static_cast<int>(house.stay({.Von = day(20, 6), .Bis = day(21, 6), .Belegungsart = 2}));
    for (const bool ja : {false, true}) {
        antworten({ja ? MsgResult::Yes : MsgResult::No});
        const frmReservierung form = öffnen(id);
        EXPECT_THAT(gefragt(), ElementsAre("Anzahl der Gäste auf 3 setzen?"));
        EXPECT_EQ(s.dialogs.last().title, "Anzahl der Gäste ändern");
        EXPECT_EQ(form.fldAnzahlG_ste.Text, ja ? "3" : "2");
        EXPECT_EQ(form.Änderung(), ja);
    }
    house.db().Execute("UPDATE tblBelegung SET Fix = True");
    EXPECT_EQ(öffnen(id).fldAnzahlG_ste.Text, "2");
}

// The waiting row of a day

TEST_F(ReservationOpening, TheWaitingRowIsWalkedThroughAndAskedAboutChanges) {
    std::vector<int> ids;
    for (const auto* kürzel : {"eins", "zwei", "drei"})
        ids.push_back(belegt(1, 20, 22, kürzel, true));
    frmReservierung form = öffnen({.IDs = ids, .Wartetag = day(20, 6)});
    EXPECT_EQ(form.Caption(), "Warteposition für den 20.06.2026 (3 vorläufige Reservierungen)");
    EXPECT_TRUE(form.cmdErster.Visible && form.cmdLetzter.Visible);
    EXPECT_FALSE(form.cmdGroesser.Visible || form.cmdKleiner.Visible);
    EXPECT_EQ(form.fldZimmer.Text, "");
    form.cmdVoriger_Click();
    EXPECT_EQ(form.fldK_rzel.Text, "eins");
    form.cmdLetzter_Click();
    EXPECT_EQ(form.fldK_rzel.Text, "drei");
    form.cmdN_chster_Click();
    EXPECT_EQ(form.fldK_rzel.Text, "drei");

    form.fldInfo.Text = "neu";
    form.Feld_Change();
    antworten({MsgResult::Cancel, MsgResult::No});
    form.cmdErster_Click();
    EXPECT_EQ(form.fldK_rzel.Text, "drei");
    form.cmdErster_Click();
    EXPECT_EQ(form.fldK_rzel.Text, "eins");
    EXPECT_EQ(form.fldInfo.Text, "");

    house.db().Execute("DELETE * FROM tblBelegung WHERE Kürzel = 'zwei'"); // at another station
    form.cmdN_chster_Click();
    EXPECT_EQ(form.fldK_rzel.Text, "drei");
    EXPECT_EQ(form.Caption(), "Warteposition für den 20.06.2026 (2 vorläufige Reservierungen)");
}

// Sizes and menu

TEST_F(ReservationOpening, TheSizeIsKeptByTheWorkstation) {
    frmReservierung form = neu();
    EXPECT_TRUE(form.istGross() && form.frZusatz.Visible);
    form.cmdKleiner_Click();
    EXPECT_FALSE(form.frZusatz.Visible);
    EXPECT_EQ(form.lbWarnungSchrift.Caption, " Ü b e r s c h n e i d u n g ");
    form.Menü_Click("mnuGroesse");
    EXPECT_EQ(start::FeldLesen(s.g.dbArbeitsplatz, "Res_Groesse")->textOr(), "klein");
    frmReservierung wieder = neu();
    EXPECT_FALSE(wieder.istGross());
    EXPECT_TRUE(wieder.cmdGroesser.Visible && !wieder.cmdKleiner.Visible);
    wieder.cmdGroesser_Click();
    EXPECT_EQ(wieder.lbWarnungSchrift.Caption, " Ü b e r s c h n e i d u n g s w a r n u n g ");
}

TEST_F(ReservationOpening, WhatWaitsForAWindowCannotBeChosen) {
    const frmReservierung form = neu();
    for (const auto* name : {"mnuNummerEinstellen", "mnuWeiterePersonen", "mnuPfade", "mnuDok1", "mnuDok5",
                             "mnuvorhAngebot", "mnuVorhBest", "mnuVorhRechnung"})
        EXPECT_FALSE(form.Menü.find(name)->Enabled) << name;
    EXPECT_TRUE(form.Menü.find("mnuStatus")->Enabled);
    for (const services::Button* knopf : {&form.cmdBestVorschau, &form.cmdRechnung, &form.cmdAnmeldung,
                                          &form.cmdZahlDetails, &form.cmdBlockbuchung, &form.cmdBezahlt})
        EXPECT_FALSE(knopf->Enabled) << knopf->Caption;
    EXPECT_EQ(form.cmdBezahlt.Caption, "Unbekannt");
    EXPECT_FALSE(form.cboArtikel.Enabled);

    using enum Fenster;
    s.windows.vorhanden.insert({Reservierungsnummern, WeitereGäste, Dokumente, Rechnungen, Zahlungen, Blockbuchung});
    frmReservierung alles = neu();
    EXPECT_TRUE(alles.Menü.find("mnuWeiterePersonen")->Enabled && alles.Menü.find("mnuDok3")->Enabled);
    EXPECT_TRUE(alles.cmdBestVorschau.Enabled && alles.cmdRechnung.Enabled && alles.cmdBlockbuchung.Enabled);
    s.windows.beiReservierungsnummern = [] {};
    alles.Menü_Click("mnuNummerEinstellen");
    EXPECT_THAT(s.windows.geöffnet, ElementsAre(Reservierungsnummern));
}

// Closing

TEST_F(ReservationOpening, ClosingAsksAboutTheStayThenAboutTheAddress) {
    struct Case {
        bool stay;
        bool address;
        std::vector<MsgResult> answers;
        bool closes;
        bool stored;
    };
    using enum MsgResult;
    for (const Case& c : {Case{false, false, {}, true, false},
                          {true, false, {Cancel}, false, false},
                          {true, false, {No}, true, false},
                          {true, false, {Yes}, true, true},
                          {true, true, {Yes}, true, true},
                          {false, true, {Cancel}, false, false},
                          {false, true, {No}, true, false},
                          {true, true, {No, No}, true, false}}) {
        house.db().Execute("DELETE * FROM tblBelegung");
        frmReservierung form = öffnen(gespeichert());
        if (c.stay) {
            form.fldInfo.Text = "neu";
            form.Feld_Change();
        }
        form.adresse.Adress_nderung = c.address;
        for (const MsgResult answer : c.answers)
            s.dialogs.press(answer);
        EXPECT_EQ(form.canClose(), c.closes);
        EXPECT_EQ(gefragt().size(), c.answers.size());
        EXPECT_EQ(feld("Info", form.ID()).textOr(), c.stored ? "neu" : "");
    }
}

TEST_F(ReservationOpening, AnotherGuestIsAChangeAndAFailedSaveKeepsTheFormOpen) {
    const int id = gespeichert();
    const auto anderer = house.guest({.LastName = "Zander", .Country = "Deutschland"});
    frmReservierung form = öffnen(id);
    form.adresse.cboAdresse_Click(anderer);
    form.fldVon.Text = "";
    antworten({MsgResult::Yes, MsgResult::OK, MsgResult::OK});
    EXPECT_FALSE(form.canClose());
    EXPECT_EQ(gefragt()[0], "Änderungen der Reservierung speichern?");
    form.cmdAbbrechen_Click();
    EXPECT_TRUE(form.canClose());
    EXPECT_EQ(feld("GastID", id), Value(gast));
}

} // namespace
} // namespace reservations
