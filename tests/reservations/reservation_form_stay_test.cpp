#include "reservations/reservation_form_house.h"

namespace reservations {
namespace {

using services::Key;
using services::Leave;
using testing::ElementsAre;
using testing::IsEmpty;

class ReservationStay : public ReservationForm {
protected:
    static void zimmer(frmReservierung& form, const std::string& text) {
        form.fldZimmer.choose(-1);
        form.fldZimmer.Text = text;
        form.fldZimmer_Click();
    }
    void preis(int nummer, double preis, int gäste) {
        house.db().Execute("UPDATE tbZimmernummern SET PreisDefault = " + jet::sqlNumber(preis) +
                           ", AnzahlGästeDefault = " + std::to_string(gäste) +
                           " WHERE Zimmernummer = " + std::to_string(nummer));
    }
};

// Days

TEST_F(ReservationStay, ADayThatThereIsNotStaysAsTyped) {
    frmReservierung form = neu();
    for (const auto* text : {"31.02.26", "29.02.2027", "5.25.2026", "06.2026", "01.01.1900", "99", ""}) {
        form.fldVon.Text = text;
        form.fldVon_Change();
        EXPECT_EQ(form.fldVon_LostFocus(), Leave::Go);
        EXPECT_EQ(form.fldVon.Text, text);
        EXPECT_EQ(form.fldResTage.Text, "") << text;
        EXPECT_TRUE(form.fldVon_KeyDown(Key::Plus)); // taken, without a day to move
        EXPECT_EQ(form.fldVon.Text, text);
    }
}

TEST_F(ReservationStay, PlusAndMinusMoveTheDayAndThePrice) {
    frmReservierung form = neu(20, 23);
    EXPECT_TRUE(form.fldBis_KeyDown(Key::Plus));
    EXPECT_EQ(form.fldBis.Text + " " + form.fldPreis.Text + " " + form.fldResTage.Text, "24.06.2026 320,00 4");
    EXPECT_TRUE(form.fldVon_KeyDown(Key::Minus));
    EXPECT_EQ(form.fldVon.Text + " " + form.fldPreis.Text, "19.06.2026 400,00");
    EXPECT_FALSE(form.fldVon_KeyDown(Key::F2));
    EXPECT_TRUE(form.Änderung());
    form.cboTarif.Text = "0,00"; // a flat price stays
    form.fldPreis.Text = "99,00";
    form.fldBis_KeyDown(Key::Plus);
    EXPECT_EQ(form.fldPreis.Text, "99,00");
    form.fldBis.Text = "31.12.9999";
    form.fldBis_KeyDown(Key::Plus);
    EXPECT_EQ(form.fldBis.Text, "31.12.9999");
}

TEST_F(ReservationStay, ATypedDayIsWrittenOutWhenItIsLeft) {
    frmReservierung form = neu(20, 23);
    form.fldBis.Text = "25.6.26";
    form.fldBis_Change();
    EXPECT_EQ(form.fldBis_LostFocus(), Leave::Go);
    EXPECT_EQ(form.fldBis.Text + " " + form.fldPreis.Text, "25.06.2026 400,00");
}

TEST_F(ReservationStay, EqualDaysAreToldWhenTheyAreTyped) {
    frmReservierung form = neu(20, 23);
    form.fldBis.Text = "20.06.2026";
    antworten({MsgResult::OK});
    form.fldBis_Change();
    EXPECT_THAT(gefragt(), ElementsAre("Das Anfangs- und Enddatum sind gleich. Bitte korrigiren Sie die Eingaben."));
    form.fldBis_LostFocus();
    EXPECT_THAT(gefragt(), IsEmpty());
}

// The live warning

TEST_F(ReservationStay, TheWarningFollowsRoomAndDays) {
    const int id = belegt(2, 20, 23);
    belegt(3, 10, 22);
    frmReservierung form = öffnen(id);
    EXPECT_FALSE(form.istÜberschneidung()); // it is not in its own way
    zimmer(form, "Zimmer 3");
    EXPECT_TRUE(form.lbWarnung.Visible && form.lbWarnungSchrift.Visible);
    EXPECT_EQ(form.lbWarnung.BackColor, look::Überschneidung);
    form.fldVon.Text = "22.06.2026"; // arrives when the other leaves
    form.fldVon_Change();
    EXPECT_FALSE(form.lbWarnung.Visible);
    form.fldVon.Text = "21.06.2026";
    form.fldVon_Change();
    EXPECT_TRUE(form.istÜberschneidung());
    zimmer(form, "");
    EXPECT_FALSE(form.istÜberschneidung());
}

// Room

TEST_F(ReservationStay, ARoomThatIsNotInTheListKeepsTheFocus) {
    frmReservierung form = neu();
    for (const auto* text : {"Zimmer 9", "Vorläufig", "(Raucher)"}) {
        zimmer(form, text);
        antworten({MsgResult::OK});
        EXPECT_EQ(form.fldZimmer_LostFocus(), Leave::Stay);
        EXPECT_THAT(gefragt(), ElementsAre("Bitte wählen Sie einen Eintrag aus der Liste."));
        EXPECT_EQ(form.fldZimmer.Text, text);
    }
    zimmer(form, "ZIMMER 4 (Nichtraucher)");
    EXPECT_EQ(form.fldZimmer_LostFocus(), Leave::Go);
    zimmer(form, " ");
    EXPECT_EQ(form.fldZimmer_LostFocus(), Leave::Go);
}

TEST_F(ReservationStay, AnotherRoomBringsItsPriceUnlessItIsFixed) {
    preis(3, 100, 4);
    preis(4, 50, 1);
    for (const bool neue : {true, false}) {
        frmReservierung form = neue ? neu(20, 23) : öffnen(belegt(1, 25, 27));
        const std::string nächte = form.fldResTage.Text;
        zimmer(form, "Zimmer 3");
        EXPECT_EQ(form.cboTarif.Text + form.fldAnzahlG_ste.Text, "100,004");
        EXPECT_EQ(form.fldPreis.Text, nächte + "00,00");
        form.chFix.Value = true;
        form.chFix_Click();
        EXPECT_TRUE(form.fldPreis.Bold);
        zimmer(form, "Zimmer 4");
        EXPECT_EQ(form.cboTarif.Text, "100,00");
        EXPECT_EQ(form.fldAnzahlG_ste.Text, neue ? "1" : "4");
        EXPECT_EQ(form.fldPreis.Text, nächte + "00,00");
    }
}

TEST_F(ReservationStay, TheTypeSaysTheGuestsUnlessFixedAndNamesTheButtons) {
    house.db().Execute("UPDATE tbBelegArten SET BelegungsArt = 'Zwölf' WHERE BelegungsID = 2");
    frmReservierung form = neu();
    form.cboArt.choose(1);
    form.cboArt_Click();
    EXPECT_EQ(form.fldAnzahlG_ste.Text, "12");
    form.fldAnzahlG_ste.Text = "1";
    form.chFix.Value = true;
    form.cboArt_Click();
    EXPECT_EQ(form.fldAnzahlG_ste.Text, "1");
    form.cboArt.choose(form.cboArt.Items.indexOf("angebot"));
    form.cboArt_Click();
    EXPECT_EQ(form.cmdBestVorschau.Caption + form.cmdRechnung.Caption, "Angebot (ein&f.)&Angebot");
    form.cboArt.choose(0);
    form.cboArt_Click();
    for (const auto& [name, caption] : {std::pair{"unbekannt", "Bestätigung/ &Rechnung"}, {"", "&Angebot"}}) {
        zimmer(form, name); // both are no room
        EXPECT_EQ(form.cmdRechnung.Caption, caption) << name;
    }
}

// Price

TEST_F(ReservationStay, APriceIsWrittenOutOrKeepsTheFocus) {
    struct Case {
        const char* text;
        const char* shown;
        Leave leave;
    };
    frmReservierung form = neu();
    for (const Case& c : {Case{"1.234,56", "1.234,56", Leave::Go},
                          {"1e9", "1.000.000.000,00", Leave::Go},
                          {"-5", "-5,00", Leave::Go},
                          {"", "0,00", Leave::Go},
                          {"abc", "abc", Leave::Stay}}) {
        form.fldPreis.Text = c.text;
        if (c.leave == Leave::Stay) antworten({MsgResult::OK});
        EXPECT_EQ(form.fldPreis_LostFocus(), c.leave) << c.text;
        EXPECT_EQ(form.fldPreis.Text, c.shown);
    }
    form.cboTarif.Text = "abc";
    antworten({MsgResult::OK});
    EXPECT_EQ(form.cboTarif_LostFocus(), Leave::Stay);
    form.cboTarif.Text = "70";
    EXPECT_EQ(form.cboTarif_LostFocus(), Leave::Go);
    EXPECT_EQ(form.cboTarif.Text + " " + form.fldPreis.Text, "70,00 210,00");
    form.cboTarif.Text = "33,335"; // the total is reckoned from the amount that is shown
    EXPECT_EQ(form.cboTarif_LostFocus(), Leave::Go);
    EXPECT_EQ(form.cboTarif.Text + " " + form.fldPreis.Text, "33,34 100,02");
    form.cboTarif.Text = "";
    form.subSetPreis();
    EXPECT_EQ(form.fldPreis.Text, "0,00");
}

TEST_F(ReservationStay, TheSeasonPriceIsSetRecognisedAndTakenBack) {
    house.db().Execute("UPDATE tbZimmernummern SET PreisHauptsaison = 120 WHERE Zimmernummer = 2");
    house.season({.Saisonbezeichnung = "Hauptsaison", .Start = day(1, 6), .Ende = day(22, 6)});
    frmReservierung form = neu(20, 23); // two nights of the season, one behind it
    form.adresse.cboAdresse_Click(gast);
    antworten({MsgResult::OK});
    form.cmdSaisonpreis_Click();
    EXPECT_THAT(gefragt()[0], testing::StartsWith("Folgende Saisonzeiten und Preise wurden gefunden:"));
    EXPECT_EQ(form.cboTarif.Text + "/" + form.fldPreis.Text, "/320,00");
    EXPECT_EQ(form.cmdSaisonpreis.BackColor, look::Aktiv);
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("PreisProNacht", form.ID()), Value(0.0));
    for (const auto& [key, gleich] : {std::pair{Key::Plus, false}, {Key::Minus, true}}) {
        form.fldBis_KeyDown(key); // the price belongs to its days
        EXPECT_EQ(form.istSaisonpreis(), gleich);
        EXPECT_EQ(form.fldPreis.Text, "320,00");
    }

    frmReservierung wieder = öffnen(form.ID());
    EXPECT_TRUE(wieder.istSaisonpreis());
    wieder.fldPreis.Text = "321";
    wieder.fldPreis_LostFocus();
    EXPECT_FALSE(wieder.istSaisonpreis());
    wieder.fldPreis.Text = "320";
    wieder.fldPreis_LostFocus();
    EXPECT_TRUE(wieder.istSaisonpreis());
    zimmer(wieder, "Zimmer 3"); // another room has its own price
    EXPECT_FALSE(wieder.istSaisonpreis());
    zimmer(wieder, "Zimmer 2");
    wieder.fldPreis.Text = "320";
    wieder.fldPreis_LostFocus();
    wieder.cmdSaisonpreis_Click(); // back to the room's own price
    EXPECT_EQ(wieder.cboTarif.Text + "/" + wieder.fldPreis.Text, "80,00/240,00");
    EXPECT_FALSE(wieder.istSaisonpreis() || wieder.cmdSaisonpreis.BackColor);

    wieder.fldBis.Text = " ";
    wieder.cmdSaisonpreis_Click(); // nothing to compute
    EXPECT_THAT(gefragt(), IsEmpty());
    zimmer(form, "");
    form.cmdSaisonpreis_Click();
    EXPECT_EQ(form.cboTarif.Text + "/" + form.fldPreis.Text, "0,00/0,00");
}

TEST_F(ReservationStay, NightPricesAreRememberedAndForgotten) {
    frmReservierung form = neu();
    for (const auto* text : {"95,5", "95,50", "abc", ""}) {
        form.cboTarif.Text = text;
        EXPECT_TRUE(form.cboTarif_KeyDown(Key::Return));
    }
    EXPECT_EQ(form.cboTarif.Items.ListCount(), 1);
    EXPECT_EQ(neu().cboTarif.Items.List(0), "95,50");
    form.cboTarif.Text = "95,5";
    antworten({MsgResult::No, MsgResult::Yes});
    EXPECT_TRUE(form.cboTarif_KeyDown(Key::F2));
    EXPECT_EQ(form.cboTarif.Items.ListCount(), 1);
    EXPECT_TRUE(form.cboTarif_KeyDown(Key::F2));
    EXPECT_EQ(s.dialogs.last().title, "Listeneinträge löschen");
    EXPECT_EQ(form.cboTarif.Items.ListCount(), 0);
    EXPECT_EQ(house.count("tblTarife"), 0);
    EXPECT_FALSE(form.cboTarif_KeyDown(Key::Plus));
}

// Fields

TEST_F(ReservationStay, AShortNameIsTestedWhileItIsTyped) {
    const int id = belegt(1, 1, 2, "O'Neill", true);
    frmReservierung form = neu();
    struct Case {
        const char* text;
        bool vergeben;
    };
    for (const Case& c : {Case{"o'neill", true}, {"O'Neill ", true}, {"O'Neil", false}, {" ", false}, {"", false}}) {
        form.fldK_rzel.Text = c.text;
        form.fldK_rzel_Change();
        EXPECT_EQ(form.istKürzelVergeben(), c.vergeben) << c.text;
        EXPECT_EQ(form.fldK_rzel.BackColor.has_value(), c.vergeben);
    }
    frmReservierung eigene = öffnen(id);
    eigene.fldK_rzel_Change();
    EXPECT_FALSE(eigene.istKürzelVergeben());
    EXPECT_EQ(form.fldK_rzel.Keys.filtered(" a':$;)@><(]}{[*^=~/!\\%.?,\"b c_-"), "ab c_-");
    EXPECT_EQ(form.fldK_rzel.MaxLength, 17);
    const std::string lang = "Müller20_06-23_06/12";
    EXPECT_EQ(öffnen(belegt(1, 3, 4, lang)).fldK_rzel.MaxLength, 20); // what is stored is not cut
}

TEST_F(ReservationStay, ATypedBillingAddressMustMeanOne) {
    const auto zahler = house.guest({.LastName = "Zahlmann", .City = "Ulm"});
    frmReservierung form = neu();
    form.cboAdrRechnung_Click(zahler);
    EXPECT_EQ(form.cboAdrRechnung.Text, "Zahlmann, Ulm");
    form.cboAdrRechnung.Text = "niemand";
    form.cboAdrRechnung_Change();
    antworten({MsgResult::OK});
    EXPECT_EQ(form.cboAdrRechnung_LostFocus(), Leave::Stay);
    form.cboAdrRechnung.Text = "zahl";
    form.cboAdrRechnung_Change();
    EXPECT_EQ(form.cboAdrRechnung_LostFocus(), Leave::Go);
    EXPECT_EQ(form.cboAdrRechnung.Chosen, zahler);
}

TEST_F(ReservationStay, QuotationMarksStandInPairsWhenATextIsLeft) {
    frmReservierung form = neu();
    for (const auto& [text, erwartet] : {std::pair{"sagt \"ja", "sagt \"ja\""}, {"\"ja\"", "\"ja\""}, {"", ""}}) {
        form.fldInfo.Text = text;
        EXPECT_EQ(form.Text_LostFocus(form.fldInfo), Leave::Go);
        EXPECT_EQ(form.fldInfo.Text, erwartet);
    }
}

} // namespace
} // namespace reservations
