#include "reservations/reservation_form_house.h"

namespace reservations {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ReservationSave : public ReservationForm {};

TEST_F(ReservationSave, EveryRefusalIsToldAndNeitherWritesNorLosesAnything) {
    struct Case {
        const char* text;
        std::function<void(frmReservierung&)> stört;
    };
    belegt(4, 1, 2, "vergeben", true);
    house.guest({.LastName = "Ärmel", .FirstName = "Ute"});
    house.guest({.LastName = "Ärmel", .FirstName = "Max"});
    constexpr auto keinTag = "Bitte Anfang und Ende der Zimmerbelegung angeben.";
    const auto von = [](const char* text) { return [text](frmReservierung& f) { f.fldVon.Text = text; }; };
    const std::vector<Case> cases = {
        {"Bitte den Namen des Gastes eingeben oder aus der Liste auswählen. Der Name muss mindestens drei Zeichen lang "
         "sein.",
         [](frmReservierung& f) { f.adresse.cboAdresse.Text = " Ab  "; }},
        {"Bitte geben Sie eine eindeutige Kurzinfo ein.",
         [](frmReservierung& f) {
             f.fldK_rzel.Text = "VERGEBEN";
             f.fldK_rzel_Change();
         }},
        {"Bitte Zimmernummer eingeben.", [](frmReservierung& f) { f.fldZimmer.choose(-1); }},
        {"Bitte Zimmernummer eingeben.", [](frmReservierung& f) { f.fldZimmer.Text = "Vorläufig"; }},
        {keinTag, von("31.02.26")},
        {keinTag, von("29.02.2027")},
        {keinTag, von("01.01.1900")},
        {keinTag, von("")},
        {keinTag, [](frmReservierung& f) { f.fldBis.Text = "morgen"; }},
        {"Bitte wählen Sie ein Land aus.", [](frmReservierung& f) { f.adresse.cboLand.Text = ""; }},
        {"Ein Angebot kann nicht mit einem Anfangsdatum gespeichert werden, das in der Vergangenheit liegt.",
         [](frmReservierung& f) {
             f.cboArt.choose(f.cboArt.Items.indexOf("Angebot"));
             f.fldVon.Text = "14.06.2026";
         }},
        {"Bitte geben Sie im Feld 'Erwachsene' eine ganze Zahl von 0 bis 32767 ein.",
         [](frmReservierung& f) { f.fldAnzahlG_ste.Text = "32768"; }},
        {"Bitte geben Sie im Feld 'Kinder' eine ganze Zahl von 0 bis 32767 ein.",
         [](frmReservierung& f) { f.txtAnz_Kinder.Text = "-1"; }},
        {"Die Reservierung ist zu lang. Bitte überprüfen Sie das Anfangs- und Enddatum.", von("02.01.1930")},
        {"Bitte überprüfen Sie die Eingabe im Feld 'Einzelpreis'.",
         [](frmReservierung& f) { f.cboTarif.Text = "abc"; }},
        {"Bitte überprüfen Sie die Eingabe im Feld 'Gesamtpreis'.",
         [](frmReservierung& f) { f.fldPreis.Text = "12,5,3"; }},
        {"Bitte überprüfen Sie das Datum im Feld 'Reserviert am'.",
         [](frmReservierung& f) { f.txtResDatum.Text = "31.02.26"; }},
        {"Bitte wählen Sie einen Eintrag aus der Liste.",
         [](frmReservierung& f) {
             f.cboAdrRechnung.Text = "Ärmel";
             f.cboAdrRechnung_Change();
         }},
    };
    for (const Case& c : cases) {
        frmReservierung form = neu(20, 23);
        if (std::string_view(c.text).starts_with("Die Reservierung ist zu lang")) form.fldBis.Text = "02.01.2029";
        form.adresse.cboAdresse_Click(gast);
        form.fldInfo.Text = "bleibt stehen";
        c.stört(form);
        const std::string vonText = form.fldVon.Text;
        antworten({MsgResult::OK, MsgResult::OK});
        form.cmdReservieren_Click();
        EXPECT_THAT(gefragt(), ElementsAre(c.text, kNichtGespeichert));
        EXPECT_EQ(s.dialogs.last().title, "Speicherkontrolle");
        EXPECT_EQ(house.count("tblBelegung"), 1) << c.text;
        EXPECT_EQ(form.fldVon.Text, vonText) << c.text;
        EXPECT_EQ(form.fldInfo.Text, "bleibt stehen") << c.text;
        EXPECT_EQ(form.ID(), 0);
        EXPECT_FALSE(form.Geschlossen());
    }
    EXPECT_EQ(neuGeladen, 0);
}

TEST_F(ReservationSave, ATextTooLongForItsFieldIsToldByTheEngineAndIsKeptOnScreen) {
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    form.txtWE.Text = std::string(300, 'x');
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdZu_Click();
    EXPECT_THAT(gefragt(), ElementsAre(HasSubstr("WerErstellt"), std::string(kNichtGespeichert) + "."));
    EXPECT_EQ(house.count("tblBelegung"), 0);
    EXPECT_EQ(form.txtWE.Text.size(), 300U);
    EXPECT_FALSE(form.Geschlossen());
    form.txtWE.Text = "Tresen";
    form.cmdZu_Click();
    EXPECT_TRUE(form.Geschlossen());
    EXPECT_EQ(feld("WerErstellt", form.ID()), Value("Tresen"));
}

TEST_F(ReservationSave, ARoomThatWasRemovedOrRenamedMeanwhileIsNotBooked) {
    for (const auto* statement : {"UPDATE tbZimmernummern SET NeueNummer = 'Suite' WHERE Zimmernummer = 2",
                                  "DELETE * FROM tbZimmernummern WHERE Zimmernummer = 2"}) {
        house.db().Execute("UPDATE tbZimmernummern SET NeueNummer = 'Zimmer 2' WHERE Zimmernummer = 2");
        frmReservierung form = neu();
        form.adresse.cboAdresse_Click(gast);
        house.db().Execute(statement);
        antworten({MsgResult::OK, MsgResult::OK});
        form.cmdReservieren_Click();
        EXPECT_THAT(gefragt(), ElementsAre("Bitte Zimmernummer eingeben.", kNichtGespeichert)) << statement;
        EXPECT_EQ(house.count("tblBelegung"), 0);
    }
}

TEST_F(ReservationSave, ARowThatAnotherStationDeletedIsNotWrittenAgain) {
    const int id = gespeichert();
    frmReservierung form = öffnen(id);
    form.fldInfo.Text = "geändert";
    form.Feld_Change();
    house.db().Execute("DELETE * FROM tblBelegung");
    antworten({MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_THAT(gefragt(), ElementsAre(kNichtGespeichert));
    EXPECT_EQ(house.count("tblBelegung"), 0);
    EXPECT_TRUE(form.Änderung());
}

TEST_F(ReservationSave, TwoNewStaysThatGetOneShortNameAreToldApartAtTheWrite) {
    frmReservierung erste = neu(20, 23);
    frmReservierung zweite = neu(24, 26);
    for (auto* form : {&erste, &zweite}) {
        form->adresse.cboAdresse_Click(gast);
        form->fldK_rzel.Text = "Gruppe";
        form->fldK_rzel_Change();
    }
    erste.cmdReservieren_Click();
    antworten({MsgResult::OK, MsgResult::OK});
    zweite.cmdReservieren_Click();
    EXPECT_EQ(s.dialogs.asked()[0].title, "Neue Reservierung");
    EXPECT_THAT(gefragt(), ElementsAre("Die Kurzinfo existiert bereits! Bitte ändern Sie sie.", kNichtGespeichert));
    EXPECT_EQ(house.count("tblBelegung"), 1);
}

TEST_F(ReservationSave, TheVerySameStayOfAnotherStationIsFoundAfterTheWrite) {
    // The test before the write does not see a stay with the same days.
    belegt(2, 20, 23, "schneller");
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    form.fldInfo.Text = "bleibt";
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_EQ(gefragt()[0],
              "Es sind Konflikte im Netzwerkbetrieb aufgetreten: Folgende Reservierung konnte nicht angelegt "
              "werden.\nReservierung vom 20.06.2026bis 23.06.2026,Zimmer Nr.:Zimmer 2");
    EXPECT_EQ(house.count("tblBelegung"), 1);
    EXPECT_EQ(house.value("SELECT Kürzel FROM tblBelegung"), Value("schneller"));
    EXPECT_TRUE(form.Änderung());
    EXPECT_EQ(form.ID(), 0);

    // What is on screen can be stored in another room.
    form.fldZimmer.choose(form.fldZimmer.Items.indexOf("Zimmer 3"));
    form.fldZimmer_Click();
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("Zimmernummer", form.ID()), Value(3));
    EXPECT_EQ(feld("Info", form.ID()), Value("bleibt"));
}

TEST_F(ReservationSave, AChangedStayThatRunsIntoTheVerySameDaysIsGone) {
    const int id = gespeichert(24, 26);
    frmReservierung form = öffnen(id);
    belegt(2, 20, 23, "schneller");
    form.fldVon.Text = "20.06.2026";
    form.fldBis.Text = "23.06.2026";
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdZu_Click();
    EXPECT_THAT(gefragt()[0], HasSubstr("Konflikte im Netzwerkbetrieb"));
    EXPECT_TRUE(feld("ID", id).isNull());
    EXPECT_FALSE(form.Geschlossen());
}

TEST_F(ReservationSave, ASaveOnTheWayThatAnotherStationOvertakesLosesItsRow) {
    // Between the dialog and the write the other station books the days that had been made free.
    const int alt = belegt(2, 18, 21, "alt");
    s.windows.beiKollision = [&](const auto&) {
        house.db().Execute("UPDATE tblBelegung SET Zimmernummer = 3 WHERE ID = " + std::to_string(alt));
        belegt(2, 20, 22, "schneller");
        return start::KollisionErgebnis{.Weg = Kollisionsweg::Verbuchen, .gelöst = true, .Zimmer = {}};
    };
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_THAT(gefragt()[0], HasSubstr("Konflikte im Netzwerkbetrieb"));
    EXPECT_EQ(house.count("tblBelegung"), 2);
}

TEST_F(ReservationSave, TheGuestIsStoredFirstAndStaysWhenTheStayIsRefused) {
    struct Case {
        MsgResult antwort;
        std::vector<std::string> meldungen;
        int gäste;
    };
    const std::string frage = "Möchten Sie eine neue Adresse mit diesen Daten anlegen?";
    belegt(2, 20, 23, "schneller");
    const auto vorher = house.count("Address");
    for (const Case& c : {Case{MsgResult::Cancel, {frage, kNichtGespeichert}, 0},
                          {MsgResult::OK, {frage, "Konflikte", kNichtGespeichert}, 1}}) {
        frmReservierung form = neu();
        form.adresse.cboAdresse.Text = "Ōé'\";😀 \u05D0";
        form.adresse.cboAdresse_Change();
        s.dialogs.press(c.antwort);
        s.dialogs.acknowledge(static_cast<int>(c.meldungen.size()) - 1);
        form.cmdReservieren_Click();
        const auto texte = gefragt();
        ASSERT_EQ(texte.size(), c.meldungen.size());
        for (std::size_t i = 0; i < texte.size(); ++i)
            EXPECT_THAT(texte[i], HasSubstr(c.meldungen[i]));
        EXPECT_EQ(house.count("Address"), vorher + c.gäste);
        EXPECT_EQ(house.count("tblBelegung"), 1);
    }
}

TEST_F(ReservationSave, AFormThatWasNeverFilledStoresNothing) {
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    form.fldK_rzel.Text = "Text1";
    antworten({MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_EQ(house.count("tblBelegung"), 0);
}

// Collisions

TEST_F(ReservationSave, EachWayOutOfACollision) {
    struct Case {
        Kollisionsweg weg;
        bool gelöst;
        std::vector<std::string> meldungen;
        bool gespeichert;
        bool wartet;
        bool geschlossen;
    };
    const std::string überschneidung = "Es liegt eine Überschneidung mit anderer Reservierung vor. Bitte korrigieren "
                                       "Sie Zimmernummer oder Zeiten.";
    for (const Case& c : {Case{Kollisionsweg::Verbuchen, true, {}, true, false, false},
                          {Kollisionsweg::Verbuchen, false, {überschneidung, kNichtGespeichert}, false, false, false},
                          {Kollisionsweg::Ändern, false, {überschneidung, kNichtGespeichert}, false, false, false},
                          {Kollisionsweg::Verwerfen, false, {}, false, false, true},
                          {Kollisionsweg::Warten, false, {}, true, true, false}}) {
        house.db().Execute("DELETE * FROM tblBelegung");
        const int alt = belegt(2, 22, 25, "alt");
        start::KollisionAnfrage gezeigt;
        s.windows.beiKollision = [&](const start::KollisionAnfrage& anfrage) {
            gezeigt = anfrage;
            if (c.gelöst)
                house.db().Execute("UPDATE tblBelegung SET Zimmernummer = 4 WHERE ID = " + std::to_string(alt));
            return start::KollisionErgebnis{.Weg = c.weg, .gelöst = c.gelöst, .Zimmer = "Zimmer 2"};
        };
        frmReservierung form = neu();
        form.adresse.cboAdresse_Click(gast);
        s.dialogs.acknowledge(static_cast<int>(c.meldungen.size()));
        form.cmdReservieren_Click();
        EXPECT_EQ(gefragt(), c.meldungen);
        EXPECT_EQ(gezeigt.Zimmer, "Zimmer 2");
        EXPECT_EQ(gezeigt.Kollisionen.size(), 1U);
        EXPECT_EQ(form.ID() != 0, c.gespeichert);
        EXPECT_EQ(form.Geschlossen(), c.geschlossen);
        EXPECT_EQ(house.count("tblBelegung"), c.gespeichert ? 2 : 1);
        EXPECT_EQ(feld("Gelöscht", form.ID()).boolOr(), c.wartet);
        EXPECT_EQ(form.fldZimmer.Text.empty(), c.wartet);
        if (!c.meldungen.empty()) {
            EXPECT_TRUE(form.fldZimmer.FocusRequested);
            EXPECT_FALSE(form.cmdL_schen.Enabled);
            EXPECT_TRUE(form.cmdWarten.Enabled);
            EXPECT_EQ(form.fldInfo.Text, "");
        }
    }
}

TEST_F(ReservationSave, TheOverlapIsToldOnceInTheLifeOfTheFormAndThenNoDialogSolvesIt) {
    belegt(2, 22, 25, "alt");
    s.windows.beiKollision = [](const auto&) { return start::KollisionErgebnis{}; };
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdReservieren_Click();
    (void)gefragt();
    s.windows.beiKollision = [&](const auto&) {
        house.db().Execute("UPDATE tblBelegung SET Zimmernummer = 4 WHERE Kürzel = 'alt'");
        return start::KollisionErgebnis{.Weg = Kollisionsweg::Verbuchen, .gelöst = true, .Zimmer = {}};
    };
    antworten({MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_THAT(gefragt(), ElementsAre(kNichtGespeichert));
    EXPECT_FALSE(form.lbWarnung.Visible) << "the old stay has moved all the same";
    form.cmdReservieren_Click(); // nothing is in the way any more
    EXPECT_NE(form.ID(), 0);
}

TEST_F(ReservationSave, TheWarningGoesWithWhatWasInTheWay) {
    const int alt = belegt(2, 22, 25, "alt");
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    ASSERT_TRUE(form.lbWarnung.Visible);
    house.db().Execute("DELETE * FROM tblBelegung WHERE ID = " + std::to_string(alt)); // by another station
    form.cmdReservieren_Click();
    EXPECT_NE(form.ID(), 0);
    EXPECT_FALSE(form.lbWarnung.Visible || form.lbWarnungSchrift.Visible);
}

TEST_F(ReservationSave, AStayThatTheDialogSendsToTheWaitingRowWaitsOnceAndIsNobodyInTheHouse) {
    const int id = gespeichert(24, 26);
    house.db().Execute("UPDATE tblBelegung SET Checked = True");
    belegt(2, 22, 25, "alt");
    s.windows.beiKollision = [](const start::KollisionAnfrage& anfrage) {
        return start::KollisionErgebnis{.Weg = Kollisionsweg::Warten, .gelöst = false, .Zimmer = anfrage.Zimmer};
    };
    frmReservierung form = öffnen(id);
    form.cmdReservieren_Click();
    EXPECT_TRUE(feld("Gelöscht", id).boolOr());
    EXPECT_FALSE(feld("Checked", id).boolOr() || form.istEingecheckt());
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_THAT(gefragt(), ElementsAre("Bitte Zimmernummer eingeben.", kNichtGespeichert));
}

TEST_F(ReservationSave, ARoomChosenLaterTakesBackTheWishToWait) {
    belegt(2, 22, 25, "alt");
    auto weg = Kollisionsweg::Ändern;
    s.windows.beiKollision = [&](const auto&) {
        return start::KollisionErgebnis{.Weg = weg, .gelöst = false, .Zimmer = "Zimmer 2"};
    };
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    s.dialogs.acknowledge(3);
    form.cmdReservieren_Click();
    weg = Kollisionsweg::Warten;
    form.cmdReservieren_Click(); // the message was shown: no dialog solves it any more
    EXPECT_EQ(form.ID(), 0);
    form.fldZimmer.choose(form.fldZimmer.Items.indexOf("Zimmer 1"));
    form.fldZimmer_Click();
    form.cmdReservieren_Click();
    EXPECT_FALSE(feld("Gelöscht", form.ID()).boolOr(true));
    EXPECT_EQ(feld("Zimmernummer", form.ID()), Value(1));
}

TEST_F(ReservationSave, TheWaitingRowAsksNoRoomAndNobodyIsInTheWay) {
    belegt(2, 20, 23, "alt");
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    form.cmdWarten_Click();
    EXPECT_THAT(gefragt(), IsEmpty());
    const int id = form.ID();
    EXPECT_TRUE(feld("Gelöscht", id).boolOr());
    EXPECT_EQ(feld("Zimmernummer", id), Value(2));
    EXPECT_EQ(form.fldZimmer.Text, "");
    EXPECT_EQ(form.cmdBestVorschau.Caption, "Angebot (ein&f.)");

    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdReservieren_Click(); // waiting is over: a room is wanted again
    EXPECT_THAT(gefragt(), ElementsAre("Bitte Zimmernummer eingeben.", kNichtGespeichert));

    frmReservierung zurück = öffnen(id);
    EXPECT_EQ(zurück.fldZimmer.Text, "");
    zurück.fldZimmer.choose(zurück.fldZimmer.Items.indexOf("Zimmer 1"));
    zurück.fldZimmer_Click();
    zurück.cmdZu_Click();
    EXPECT_TRUE(zurück.Geschlossen());
    EXPECT_FALSE(feld("Gelöscht", id).boolOr());
    EXPECT_EQ(feld("Zimmernummer", id), Value(1));
}

TEST_F(ReservationSave, WhoIsInTheHouseOrBilledDoesNotWait) {
    const int id = gespeichert();
    house.db().Execute("UPDATE tblBelegung SET Checked = True");
    frmReservierung form = öffnen(id);
    antworten({MsgResult::OK});
    form.cmdWarten_Click();
    abgerechnet(id);
    frmReservierung zweite = öffnen(id);
    antworten({MsgResult::OK, MsgResult::OK, MsgResult::OK});
    zweite.cmdWarten_Click();
    zweite.cmdReservieren_Click();
    zweite.cmdL_schen_Click();
    EXPECT_THAT(
        gefragt(),
        ElementsAre("Der Gast ist bereits eingecheckt. Die Reservierung kann dewegen nicht in die Warteposition "
                    "verschoben werden.",
                    "Diese Reservierung wurde bereits abgerechnet.",
                    "Diese Reservierung wurde bereits abgerechnet. Wenn Sie trotzdem noch etwas ändern "
                    "möchten, stornieren Sie zunächst die Rechnung.",
                    "Diese Reservierung wurde bereits abgerechnet."));
    EXPECT_FALSE(feld("Gelöscht", id).boolOr());
}

// What is stored

TEST_F(ReservationSave, DaysInTheWrongOrderAreSwapped) {
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    form.fldVon.Text = "23.06.2026";
    form.fldBis.Text = "20.06.2026";
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("Von", form.ID()), Value(day(20, 6)));
    EXPECT_EQ(feld("Bis", form.ID()), Value(day(23, 6)));
    EXPECT_EQ(feld("AnzahlÜbernachtungen", form.ID()), Value(3));
    EXPECT_EQ(form.fldK_rzel.Text, "Müller20_06-23_06");
}

TEST_F(ReservationSave, OddDaysAreStoredAsTheyRead) {
    struct Case {
        const char* von;
        const char* bis;
        int nächte;
        basic::Date erster;
    };
    for (const Case& c : {Case{"20.06.2026", "20.06.2026", 0, day(20, 6)},
                          {"1.7.26", "2.7.26", 1, day(1, 7)},
                          {"1.1.1", "15.12.2011", 4000, day(1, 1, 2001)}}) {
        frmReservierung form = neu();
        form.adresse.cboAdresse_Click(gast);
        form.fldVon.Text = c.von;
        form.fldBis.Text = c.bis;
        form.cmdReservieren_Click();
        EXPECT_THAT(gefragt(), IsEmpty()) << c.von;
        EXPECT_EQ(feld("AnzahlÜbernachtungen", form.ID()), Value(c.nächte));
        EXPECT_EQ(feld("Von", form.ID()), Value(c.erster));
    }
}

TEST_F(ReservationSave, PricesAndCountsAreStoredAsTheirTextsRead) {
    struct Case {
        const char* text;
        double preis;
    };
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    form.fldAnzahlG_ste.Text = "0";
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("AnzahlGäste", form.ID()), Value(1));
    for (const Case& c : {Case{"1.234,56", 1234.56}, {"-5", -5}, {"1e9", 1e9}, {"", 0}, {"80,005", 80.01}}) {
        form.fldPreis.Text = c.text;
        form.cboTarif.Text = c.text;
        form.cmdReservieren_Click();
        EXPECT_EQ(feld("Preis", form.ID()), Value(c.preis)) << c.text;
        EXPECT_EQ(feld("PreisProNacht", form.ID()), Value(c.preis)) << c.text;
    }
    EXPECT_EQ(form.ID(), house.value("SELECT Max(ID) FROM tblBelegung").longOr());
}

TEST_F(ReservationSave, EveryFieldOfTheFormComesBack) {
    const auto zahler = house.guest({.LastName = "Firma"});
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    form.cboArt.choose(2);
    form.fldAnzahlG_ste.Text = "3";
    form.txtAnz_Kinder.Text = "2";
    form.txtAlter_Kinder.Text = "4 und 6";
    form.cboTarif.Text = "81,50";
    form.fldPreis.Text = "200,00";
    form.chFix.Value = true;
    form.fldK_rzel.Text = "Kurz";
    form.fldInfo.Text = "Kiste Äpfel; \U0001F34E";
    form.chFr_hst_ck.Value = form.chAbendessen.Value = form.chNichtAnlegen.Value = true;
    form.fldW_sche1.Text = "11";
    form.fldW_sche2.Text = "12";
    form.txtBeNummer_eigen.Text = "eigene 7";
    form.cboAdrRechnung_Click(zahler);
    form.txtResDatum.Text = "01.05.26";
    form.txtWE.Text = "Anna";
    form.txtWG.Text = "Bert";
    form.cmdReservieren_Click();

    frmReservierung wieder = öffnen(form.ID());
    for (const bool zweitesMal : {false, true}) {
        EXPECT_EQ(wieder.adresse.GastID(), gast) << zweitesMal;
        EXPECT_EQ(wieder.fldZimmer.Text, "Zimmer 2");
        EXPECT_EQ(wieder.fldVon.Text + "-" + wieder.fldBis.Text, "20.06.2026-23.06.2026");
        EXPECT_EQ(wieder.fldResTage.Text, "3");
        EXPECT_EQ(wieder.cboArt.ListIndex, 2);
        EXPECT_EQ(wieder.fldAnzahlG_ste.Text + wieder.txtAnz_Kinder.Text + wieder.txtAlter_Kinder.Text, "324 und 6");
        EXPECT_EQ(wieder.cboTarif.Text + "/" + wieder.fldPreis.Text, "81,50/200,00");
        EXPECT_TRUE(wieder.chFix.Value && wieder.fldPreis.Bold);
        EXPECT_EQ(wieder.fldK_rzel.Text + wieder.fldInfo.Text, "KurzKiste Äpfel; \U0001F34E");
        EXPECT_TRUE(wieder.chFr_hst_ck.Value && wieder.chAbendessen.Value && wieder.chNichtAnlegen.Value);
        EXPECT_FALSE(wieder.chMittag.Value);
        EXPECT_EQ(wieder.fldW_sche1.Text + wieder.fldW_sche2.Text, "1112");
        EXPECT_EQ(wieder.txtBeNummer_eigen.Text, "eigene 7");
        EXPECT_EQ(wieder.cboAdrRechnung.Chosen, zahler);
        EXPECT_EQ(wieder.cboAdrRechnung.Text, "Firma");
        EXPECT_EQ(wieder.txtResDatum.Text + wieder.txtWE.Text + wieder.txtWG.Text, "01.05.26AnnaBert");
        EXPECT_FALSE(wieder.Änderung());
        if (!zweitesMal) wieder.cmdReservieren_Click(); // storing what is shown changes nothing
        EXPECT_TRUE(zweitesMal || wieder.ID() == form.ID());
    }
    EXPECT_EQ(house.count("tblBelegung"), 1);
    EXPECT_EQ(feld("WannErstellt", form.ID()), Value(day(1, 5)));
}

TEST_F(ReservationSave, ADateOfTwoDigitsKeepsTheCenturyThatWasStored) {
    const int id = gespeichert();
    house.db().Execute("UPDATE tblBelegung SET WannErstellt = #01-02-2031#");
    frmReservierung form = öffnen(id);
    EXPECT_EQ(form.txtResDatum.Text, "02.01.31");
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("WannErstellt", id), Value(day(2, 1, 2031)));
    form.txtResDatum.Text = "";
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("WannErstellt", id), Value(day(2, 1, 2031)));
}

TEST_F(ReservationSave, AStoredStayMarksItsGuestReloadsThePlanAndPostsMeals) {
    struct Case {
        const char* option;
        int jahr;
        bool gebucht;
    };
    for (const Case& c :
         {Case{"true", 2026, true}, {"Wahr", 2010, true}, {"false", 2026, false}, {"true", 2009, false}}) {
        s.g.einstellungen.WäscheOptionen = {"", "", "", "", "", c.option};
        int gebucht = 0;
        Formulardienste d = dienste();
        d.verpflegungBuchen = [&](int id) { gebucht = id; };
        frmReservierung form(s.g, d, {.Zimmernummer = 2, .Von = day(30, 12, c.jahr), .Bis = day(31, 12, c.jahr)});
        form.adresse.cboAdresse_Click(gast);
        form.cmdReservieren_Click();
        EXPECT_NE(form.ID(), 0);
        EXPECT_EQ(gebucht, c.gebucht ? form.ID() : 0) << c.option << c.jahr;
        house.db().Execute("DELETE * FROM tblBelegung");
    }
    EXPECT_EQ(neuGeladen, 4);
    EXPECT_EQ(house.value("SELECT BenutztVon1 FROM Address WHERE ID = " + std::to_string(gast)), Value("Herbergo"));
}

TEST_F(ReservationSave, TheLastBillingAddressIsOfferedToANewStayAlone) {
    const auto zahler = house.guest({.LastName = "Firma"});
    house.stay({.Zimmernummer = 1, .Von = day(1, 6), .Bis = day(2, 6), .GastID = gast, .IDAdressRechnung = zahler});
    for (const MsgResult antwort : {MsgResult::No, MsgResult::Yes}) {
        frmReservierung form = antwort == MsgResult::No ? neu(16, 17) : neu();
        form.adresse.cboAdresse_Click(gast);
        antworten({antwort});
        form.cmdReservieren_Click();
        EXPECT_THAT(gefragt(), ElementsAre("Möchten Sie die Rechnungsadresse der letzten Reservierung benutzen?"));
        const Value erwartet = antwort == MsgResult::Yes ? Value(zahler) : Value();
        EXPECT_EQ(feld("IDAdressRechnung", form.ID()), erwartet);
        EXPECT_EQ(form.cboAdrRechnung.Text, antwort == MsgResult::Yes ? "Firma" : "");
        form.cmdReservieren_Click(); // stored already: no question
        EXPECT_THAT(gefragt(), IsEmpty());
    }
}

TEST_F(ReservationSave, AFixedPriceIsFixedForTheWholeBlock) {
    const int id = gespeichert();
    const int anderes = belegt(3, 20, 23);
    imBlock(id);
    imBlock(anderes);
    frmReservierung form = öffnen(id);
    for (const bool fix : {true, false}) {
        form.chFix.Value = fix;
        form.cmdReservieren_Click();
        EXPECT_EQ(feld("Fix", anderes).boolOr(), fix);
    }
}

TEST_F(ReservationSave, ANumberIsGivenOnceAndStaysWithItsStay) {
    s.g.einstellungen.BeNummer = {"R", "yy", "", "Alle", ""};
    const int erste = gespeichert(16, 17);
    const int zweite = gespeichert(18, 19);
    EXPECT_EQ(feld("BelegNummer_eigen", erste), Value("R 0001 26"));
    EXPECT_EQ(feld("BelegNummer", zweite), Value(2));

    frmReservierung form = öffnen(erste);
    form.txtBeNummer_eigen.Text = "r 0002 26"; // another stay has it
    form.txtBeNummer_eigen_Change();
    EXPECT_TRUE(form.txtBeNummer_eigen.BackColor);
    antworten({MsgResult::OK});
    EXPECT_EQ(form.txtBeNummer_eigen_LostFocus(), services::Leave::Go);
    EXPECT_THAT(gefragt(), ElementsAre(HasSubstr("Diese Belegnummer ist bereits vorhanden.")));
    EXPECT_EQ(form.txtBeNummer_eigen.Text, "");
    form.fldVon.Text = "01.01.2027"; // the number stays, the text follows the day
    form.fldBis.Text = "02.01.2027";
    form.cmdReservieren_Click();
    EXPECT_EQ(feld("BelegNummer", erste), Value(1));
    EXPECT_EQ(feld("BelegNummer_eigen", erste), Value("R 0001 27"));

    form.txtBeNummer_eigen.Text = "  ";
    EXPECT_EQ(form.txtBeNummer_eigen_LostFocus(), services::Leave::Go);
    EXPECT_EQ(form.txtBeNummer_eigen.Text, "");
    form.txtBeNummer_eigen.Text = "Bus \"Nord";
    form.txtBeNummer_eigen_LostFocus();
    EXPECT_EQ(form.txtBeNummer_eigen.Text, "Bus \"Nord\"");
    house.db().Execute("UPDATE tblBelegung SET BelegNummer = 1 WHERE ID = " + std::to_string(zweite));
    form.txtBeNummer_eigen_DblClick(); // a copy has its counter: the next one is taken
    EXPECT_EQ(form.txtBeNummer_eigen.Text, "R 0002 27");
}

} // namespace
} // namespace reservations
