#include "reservations/reservation_form_house.h"

namespace reservations {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kGleich =
    "Das Anfangs- und Enddatum würde durch diesen Vorgang gleichgesetzt. Bitte korrigieren Sie den Eintrag.";

class ReservationStates : public ReservationForm {
protected:
    bool imHaus(int id) { return feld("Checked", id).boolOr(); }
};

// Check-in and check-out

TEST_F(ReservationStates, AnOfferAndAStayWithoutARoomAreNotCheckedIn) {
    const int id = gespeichert();
    frmReservierung form = öffnen(id);
    form.cboArt.choose(form.cboArt.Items.indexOf("Angebot"));
    form.cboArt_Click();
    antworten({MsgResult::OK, MsgResult::OK});
    form.lbChecked_Click();
    EXPECT_TRUE(form.cboArt.FocusRequested);
    EXPECT_EQ(s.dialogs.last().title, "Angebot/Status");
    form.cboArt.choose(0);
    form.fldZimmer.choose(-1);
    form.cmdHeute_Click();
    EXPECT_THAT(gefragt(), ElementsAre("Bitte ändern Sie zunächst das Feld Belegungsart.",
                                       "Bitte ändern Sie zunächst das Feld Zimmer."));
    EXPECT_FALSE(imHaus(id) || form.istEingecheckt());
    EXPECT_EQ(form.fldCheckDatum.Text, form.fldVon.Text); // a plain click later moves no date to today
}

TEST_F(ReservationStates, AStayOfNoNightsDoesNotComeOutOfACheck) {
    frmReservierung ankunft = öffnen(gespeichert(12, 15)); // leaves today
    antworten({MsgResult::OK, MsgResult::OK});
    ankunft.cmdHeute_Click();
    EXPECT_FALSE(ankunft.istEingecheckt() || imHaus(ankunft.ID()));
    EXPECT_EQ(ankunft.fldCheckDatum.Text, "12.06.2026");

    const int id = gespeichert(15, 18); // arrives today
    house.db().Execute("UPDATE tblBelegung SET Checked = True WHERE ID = " + std::to_string(id));
    frmReservierung abreise = öffnen(id);
    abreise.cmdHeute_Click();
    EXPECT_TRUE(abreise.istEingecheckt() && imHaus(id));
    EXPECT_EQ(abreise.fldCheckDatum.Text, "18.06.2026");
    EXPECT_EQ(s.dialogs.asked()[0].title, "Herbergo");
    EXPECT_EQ(s.dialogs.asked()[1].title, "titel");
    EXPECT_THAT(gefragt(), ElementsAre(kGleich, kGleich));
}

TEST_F(ReservationStates, APlainClickChangesTheFlagAtOnceAndNoDate) {
    const int id = gespeichert(20, 23);
    frmReservierung form = öffnen(id);
    EXPECT_EQ(form.lbChecked.Caption, "&Checked out");
    EXPECT_EQ(form.lbChecked.BackColor, look::Warnung);
    form.lbChecked_Click();
    EXPECT_TRUE(imHaus(id));
    EXPECT_EQ(form.lbChecked.Caption, "&Checked in");
    EXPECT_EQ(form.cmdHeute.BackColor, look::Aktiv);
    EXPECT_EQ(form.fldVon.Text + form.fldBis.Text, "20.06.202623.06.2026");
    EXPECT_FALSE(form.Änderung());
    form.lbChecked_Click();
    EXPECT_FALSE(imHaus(id));
    EXPECT_EQ(form.fldVon.Text + form.fldBis.Text, "20.06.202623.06.2026");
}

TEST_F(ReservationStates, TodayMovesTheDateOnTheFormAndWithTheSaveInTheRow) {
    const int id = gespeichert(20, 23);
    frmReservierung form = öffnen(id);
    form.cmdHeute_Click();
    EXPECT_EQ(form.fldVon.Text + " " + form.fldPreis.Text, "15.06.2026 640,00");
    EXPECT_TRUE(imHaus(id));
    EXPECT_EQ(feld("Von", id), Value(day(20, 6))); // who cancels now is in the house with the old day
    EXPECT_TRUE(form.Änderung());
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("Von", id), Value(day(15, 6)));
    house.clock().set(day(22, 6));
    s.clock.set(day(22, 6));
    form.cmdHeute_Click();
    EXPECT_EQ(form.fldBis.Text + " " + form.fldResTage.Text, "22.06.2026 7");
    EXPECT_FALSE(imHaus(id));
}

TEST_F(ReservationStates, ACheckOutBeforeTheArrivalIsPutInOrderByTheSave) {
    const int id = gespeichert(20, 23);
    house.db().Execute("UPDATE tblBelegung SET Checked = True");
    frmReservierung form = öffnen(id);
    form.cmdHeute_Click();
    EXPECT_EQ(form.fldPreis.Text, "240,00"); // never below nothing
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("Von", id), Value(day(15, 6)));
    EXPECT_EQ(feld("Bis", id), Value(day(20, 6)));
    EXPECT_EQ(feld("Preis", id), Value(400.0));
}

TEST_F(ReservationStates, AnEarlierArrivalIsNoSeasonPriceAnyMore) {
    house.db().Execute("UPDATE tbZimmernummern SET PreisHauptsaison = 120 WHERE Zimmernummer = 2");
    house.season({.Saisonbezeichnung = "Hauptsaison", .Start = day(1, 6), .Ende = day(30, 6)});
    const int id = gespeichert(20, 23);
    house.db().Execute("UPDATE tblBelegung SET PreisProNacht = 0, Preis = 360");
    frmReservierung form = öffnen(id);
    EXPECT_TRUE(form.istSaisonpreis());
    form.cmdHeute_Click();
    EXPECT_EQ(form.fldResTage.Text + " " + form.fldPreis.Text, "8 360,00");
    EXPECT_FALSE(form.istSaisonpreis());
}

TEST_F(ReservationStates, ANewStayKeepsItsCheckUntilItIsStored) {
    frmReservierung form = neu(16, 18);
    form.lbChecked_Click();
    EXPECT_TRUE(form.Änderung());
    form.lbChecked_Click();
    form.adresse.cboAdresse_Click(gast);
    form.fldVon.Text = "15.06.2026"; // what is typed is the day of the check
    form.fldVon_Change();
    form.lbChecked_Click();
    EXPECT_EQ(form.fldVon.Text, "15.06.2026");
    form.cmdReservieren_Click();
    EXPECT_TRUE(imHaus(form.ID()));
    EXPECT_EQ(feld("Von", form.ID()), Value(day(15, 6)));
}

// Billing

TEST_F(ReservationStates, ABilledStayIsLocked) {
    const int id = gespeichert();
    abgerechnet(id);
    frmReservierung form = öffnen(id);
    const auto gesperrte = [&] {
        return std::vector<const services::Control*>{&form.adresse.cboAdresse,
                                                     &form.cboAdrRechnung,
                                                     &form.fldZimmer,
                                                     &form.cboArt,
                                                     &form.fldVon,
                                                     &form.fldBis,
                                                     &form.txtWE,
                                                     &form.txtWG,
                                                     &form.fldAnzahlG_ste,
                                                     &form.txtResDatum,
                                                     &form.txtAnz_Kinder,
                                                     &form.chFix,
                                                     &form.chFr_hst_ck,
                                                     &form.chMittag,
                                                     &form.chAbendessen,
                                                     &form.txtBeNummer_eigen,
                                                     &form.fldW_sche1,
                                                     &form.fldW_sche2,
                                                     &form.fldInfo,
                                                     &form.fldK_rzel,
                                                     &form.cboTarif,
                                                     &form.fldPreis,
                                                     &form.cmdAuswahl,
                                                     &form.cmdReservieren,
                                                     &form.cmdZu,
                                                     &form.cmdL_schen,
                                                     &form.cmdSaisonpreis,
                                                     &form.chNichtAnlegen};
    };
    for (const auto* control : gesperrte())
        EXPECT_FALSE(control->Enabled);
    EXPECT_FALSE(form.cmdWarten.Enabled || form.cboArtikel.Enabled || form.cmdBestVorschau.Enabled);
    EXPECT_TRUE(form.cmdAbbrechen.Enabled && form.txtAlter_Kinder.Enabled && form.cmdAbgerechnet.Enabled);
    EXPECT_EQ(form.cmdAbgerechnet.Caption, "Abgerechnet");
    EXPECT_EQ(form.cmdAbgerechnet.BackColor, look::Aktiv);

    antworten({MsgResult::OK});
    form.cmdHeute_Click();
    EXPECT_THAT(gefragt(), ElementsAre("Diese Reservierung wurde bereits abgerechnet. Sie können das Datum nicht mehr "
                                       "ändern, ohne die Rechnung zu stornieren."));

    form.cmdAbgerechnet_Click(); // by hand back to open
    EXPECT_EQ(feld("Abgerechnet", id), Value(0));
    EXPECT_EQ(form.cmdAbgerechnet.Caption, "&Offen");
    for (const auto* control : gesperrte())
        EXPECT_TRUE(control->Enabled);
    EXPECT_FALSE(form.cmdWarten.Enabled); // stays as it was until a field changes
    form.Feld_Change();
    EXPECT_TRUE(form.cmdWarten.Enabled);
    form.cmdAbgerechnet_Click();
    EXPECT_EQ(feld("Abgerechnet", id), Value(1));
    EXPECT_FALSE(form.fldVon.Enabled || form.cmdWarten.Enabled);
}

TEST_F(ReservationStates, PaidIsWhatTheBillingSays) {
    const int id = gespeichert();
    for (const bool bezahlt : {true, false}) {
        Formulardienste d = dienste();
        d.bezahlt = [&](int gefragteID) { return gefragteID == id ? std::optional(bezahlt) : std::nullopt; };
        const frmReservierung form(s.g, d, {.IDs = {id}});
        EXPECT_EQ(form.cmdBezahlt.Caption, bezahlt ? "Bezahlt" : "Nicht Bezahlt");
        EXPECT_EQ(form.cmdBezahlt.BackColor.has_value(), bezahlt);
    }
}

// Block

TEST_F(ReservationStates, AMemberOfABlockNeitherWaitsNorGoesAndSharesItsRemark) {
    const int id = gespeichert();
    const int anderes = belegt(3, 20, 23);
    imBlock(id);
    imBlock(anderes);
    frmReservierung form = öffnen(id);
    EXPECT_TRUE(form.istBlock() && form.cmdBemBlock.Visible);
    EXPECT_EQ(form.cmdBlockbuchung.BackColor, look::Aktiv);
    EXPECT_FALSE(form.Menü.find("mnuVorhDatei")->Visible);
    form.Feld_Change();
    EXPECT_FALSE(form.cmdWarten.Enabled || form.cmdL_schen.Enabled);
    form.fldInfo.Text = "Bus um 18 Uhr";
    form.cmdBemBlock_Click();
    EXPECT_EQ(feld("Info", anderes), Value("Bus um 18 Uhr"));
    form.fldInfo.Text = "Anna's Gruppe"; // breaks the statement
    form.cmdBemBlock_Click();
    EXPECT_EQ(feld("Info", anderes), Value("Bus um 18 Uhr"));
    form.fldInfo.Text = "";
    form.cmdBemBlock_Click();
    EXPECT_TRUE(feld("Info", anderes).isNull());
}

// Deleting

TEST_F(ReservationStates, DeletingAsksAndTakesTheMemberOutOfItsBlock) {
    struct Case {
        bool block;
        std::vector<MsgResult> answers;
        bool gone;
        bool outOfBlock;
    };
    using enum MsgResult;
    for (const Case& c : {Case{false, {No}, false, true},
                          {true, {Cancel}, false, false},
                          {true, {OK, No}, false, true},
                          {true, {OK, Yes}, true, true},
                          {false, {Yes}, true, true}}) {
        house.db().Execute("DELETE * FROM tblBelegung");
        house.db().Execute("DELETE * FROM tbBlockbuchung");
        frmReservierung form = öffnen(gespeichert());
        if (c.block) imBlock(form.ID());
        form.Feld_Change();
        for (const MsgResult answer : c.answers)
            s.dialogs.press(answer);
        form.cmdL_schen_Click();
        EXPECT_EQ(gefragt().size(), c.answers.size());
        EXPECT_EQ(house.count("tblBelegung"), c.gone ? 0 : 1);
        EXPECT_EQ(house.count("tbBlockbuchung"), c.outOfBlock ? 0 : 1);
        EXPECT_EQ(form.Geschlossen(), c.gone);
        const Value benutzt = house.value("SELECT BenutztVon1 FROM Address WHERE ID = " + std::to_string(gast));
        EXPECT_EQ(benutzt.isNull(), c.gone);
    }
    frmReservierung neue = neu();
    neue.cmdL_schen_Click(); // nothing is there to go
    EXPECT_THAT(gefragt(), IsEmpty());
}

} // namespace
} // namespace reservations
