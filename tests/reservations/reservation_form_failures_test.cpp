#include "reservations/reservation_form_house.h"
#include "support/station.h"
#include "support/workstation.h"

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace reservations {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// What other stations, a broken file or a full disk do to a form that is open.
class ReservationFailures : public ReservationForm {
protected:
    static void zimmer(frmReservierung& form, const std::string& name) {
        form.fldZimmer.choose(form.fldZimmer.Items.indexOf(name));
        form.fldZimmer_Click();
    }
};

constexpr auto kPlatte = "Auf dem Datenträger ist nicht genügend Platz.";

/// No file of the process grows beyond this size.
void begrenzen(rlim_t bytes) {
    const rlimit limit{bytes, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

/// A guest and his stay with a remark of many pages: what was told, what was stored, and a second try with room again.
void aufVollerPlatte(const std::string& linkFile, rlim_t bytes, support::Channel& channel) {
    const support::TempFolder own{support::TempFolder::Place::Memory};
    support::Workstation station(own, linkFile);
    addresses::Adressliste liste(station.g.dbHaupt);
    frmReservierung form(station.g, {.adressen = liste}, {.Zimmernummer = 3, .Von = day(20, 6), .Bis = day(22, 6)});
    form.adresse.cboAdresse.Text = "Vollmann";
    form.adresse.cboAdresse_Change();
    form.fldInfo.Text = std::string(30000, 'i');
    form.Feld_Change();
    ::signal(SIGXFSZ, SIG_IGN);
    begrenzen(bytes);
    form.cmdReservieren_Click();
    begrenzen(RLIM_INFINITY);
    channel.say(station.dialogs.told.size() > 1 ? station.dialogs.told[1] : std::string());
    channel.say(std::to_string(form.ID()) + (form.Änderung() ? " offen " : " fertig ") +
                std::to_string(form.fldInfo.Text.size()));
    form.cmdReservieren_Click();
    const auto infos = station.g.dbHaupt.OpenRecordset("SELECT Count(*), Max(Len(Info)) FROM tblBelegung");
    channel.say(std::to_string(infos.At(0).longOr()) + " " + std::to_string(infos.At(1).longOr()));
    form.cmdL_schen_Click();
}

TEST_F(ReservationFailures, AFullDiskIsToldAndTheNextTryStoresAll) {
    const auto size = std::filesystem::file_size(house.file("Zentral.mdb"));
    const std::string linkFile = house.file("Lokal.mdb");
    s.g.dbHaupt.Close();
    s.g.dbArbeitsplatz.Close();
    house.db().Close();
    for (const rlim_t bytes : {rlim_t(0), rlim_t(1024), rlim_t(size)}) { // before the guest, in his row, in the stay
        support::Station station([&](support::Channel& channel) { aufVollerPlatte(linkFile, bytes, channel); });
        EXPECT_EQ(station.channel().hear(), kPlatte) << bytes;
        EXPECT_EQ(station.channel().hear(), "0 offen 30000") << bytes;
        EXPECT_EQ(station.channel().hear(), "1 30000") << bytes;
        EXPECT_EQ(station.wait(), 0);
    }
}

TEST_F(ReservationFailures, AFailureBehindTheWriteLeavesTheChangeToBeStored) {
    const int id = gespeichert();
    frmReservierung form = öffnen(id);
    form.fldInfo.Text = "neu";
    form.Feld_Change();
    s.g.dbHaupt.DeleteTableDef("tbBlockbuchung");
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_THAT(gefragt(), ElementsAre(HasSubstr("tbBlockbuchung"), kNichtGespeichert));
    EXPECT_TRUE(form.Änderung());
    EXPECT_EQ(form.ID(), id);
}

TEST_F(ReservationFailures, AWalkThatFailsHalfwayClosesTheForm) {
    const int erste = belegt(2, 20, 23, "eins", true);
    const int zweite = belegt(3, 20, 23, "zwei", true);
    frmReservierung form = öffnen({.IDs = {erste, zweite}, .Wartetag = day(20, 6)});
    form.OptZiAuswahl1.Value = 1;
    s.g.dbHaupt.DeleteTableDef("tbZimmernummern");
    antworten({MsgResult::OK});
    form.cmdN_chster_Click();
    EXPECT_THAT(gefragt(), ElementsAre(HasSubstr("tbZimmernummern")));
    EXPECT_TRUE(form.Geschlossen()); // else one stay would be stored under the other's number
}

TEST_F(ReservationFailures, TheBillingAddressOfAnotherStationStays) {
    const int id = gespeichert();
    (void)adressen.Anzahl(); // read before the other station stores its address
    const auto firma = house.guest({.LastName = "Neue Firma"});
    house.db().Execute("INSERT INTO Address (Phone) VALUES ('0421')");
    const auto namenlos = house.value("SELECT Max(ID) FROM Address").longOr();
    for (const auto& [zahler, zeile] : {std::pair{firma, "Neue Firma"}, {namenlos, ""}}) {
        house.db().Execute("UPDATE tblBelegung SET IDAdressRechnung = " + std::to_string(zahler));
        frmReservierung form = öffnen(id);
        EXPECT_EQ(form.cboAdrRechnung.Text, zeile);
        form.cmdReservieren_Click();
        EXPECT_EQ(feld("IDAdressRechnung", id), Value(zahler));
    }
    frmReservierung form = öffnen(id);
    EXPECT_EQ(form.cboAdrRechnung.Source->matches("neue f", 5).size(), 1U);
    form.cboAdrRechnung_Change(); // emptied by hand
    form.cmdReservieren_Click();
    EXPECT_TRUE(feld("IDAdressRechnung", id).isNull());
}

TEST_F(ReservationFailures, AGuestWhoIsGoneIsNoChangeButMustBeChosenAnew) {
    const int id = gespeichert();
    house.db().Execute("DELETE * FROM Address WHERE ID = " + std::to_string(gast));
    frmReservierung form = öffnen(id);
    EXPECT_EQ(form.adresse.cboAdresse.Text, "");
    EXPECT_FALSE(form.Änderung());
    EXPECT_TRUE(form.canClose());
    EXPECT_THAT(gefragt(), IsEmpty());
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_THAT(gefragt()[0], testing::StartsWith("Bitte den Namen des Gastes eingeben"));
    EXPECT_EQ(feld("GastID", id), Value(gast));
}

TEST_F(ReservationFailures, TheDefaultsAreThoseOfTheRoomThoughAnotherWasRemoved) {
    house.db().Execute("UPDATE tbZimmernummern SET PreisDefault = Zimmernummer * 100, AnzahlGästeDefault = "
                       "Zimmernummer");
    frmReservierung form = neu(20, 21);
    house.db().Execute("DELETE * FROM tbZimmernummern WHERE Zimmernummer = 1");
    zimmer(form, "Zimmer 3");
    EXPECT_EQ(form.cboTarif.Text + " " + form.fldPreis.Text + " " + form.fldAnzahlG_ste.Text, "300,00 300,00 3");
}

TEST_F(ReservationFailures, ARowOfNullsOpensAndIsStoredOnceItIsFilled) {
    house.db().Execute("INSERT INTO tblBelegung (Zimmernummer) VALUES (2)");
    const auto id = static_cast<int>(house.value("SELECT Max(ID) FROM tblBelegung").longOr());
    frmReservierung form = öffnen(id);
    EXPECT_EQ(form.fldVon.Text + form.fldBis.Text + form.fldK_rzel.Text + form.txtResDatum.Text, "");
    EXPECT_EQ(form.cboTarif.Text + " " + form.fldPreis.Text, "0,00 0,00");
    EXPECT_TRUE(form.canClose());
    form.adresse.cboAdresse_Click(gast);
    form.fldVon.Text = "20.06.2026";
    form.fldBis.Text = "21.06.2026";
    form.cmdReservieren_Click();
    EXPECT_THAT(gefragt(), IsEmpty());
    EXPECT_EQ(feld("Kürzel", id), Value("Müller20_06-21_06"));
    EXPECT_EQ(feld("AnzahlGäste", id), Value(1));
    EXPECT_TRUE(feld("WannErstellt", id).isNull()); // an empty field leaves what the row has
}

TEST_F(ReservationFailures, OneFormStoresThroughCollisionsAndTheWaitingRow) {
    belegt(3, 21, 25, "alt");
    s.windows.beiKollision = [](const auto&) { return start::KollisionErgebnis{}; };
    frmReservierung form = neu();
    form.adresse.cboAdresse_Click(gast);
    form.cmdReservieren_Click();
    const int id = form.ID();
    zimmer(form, "Zimmer 3");
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdZu_Click();
    EXPECT_EQ(gefragt().size(), 2U);
    EXPECT_FALSE(form.Geschlossen());
    EXPECT_TRUE(form.cmdL_schen.Enabled); // the stay is there and may go
    EXPECT_EQ(feld("Zimmernummer", id), Value(2));
    form.cmdWarten_Click();
    EXPECT_TRUE(feld("Gelöscht", id).boolOr());
    EXPECT_EQ(feld("Zimmernummer", id), Value(3)); // as the field said when it was sent there
    zimmer(form, "Zimmer 4");
    form.cmdReservieren_Click();
    EXPECT_FALSE(feld("Gelöscht", id).boolOr(true));
    form.cmdWarten_Click();
    EXPECT_EQ(feld("Zimmernummer", id), Value(4)); // no room on the form keeps the row's
    EXPECT_EQ(form.ID(), id);
    EXPECT_EQ(house.count("tblBelegung"), 2);
    EXPECT_THAT(gefragt(), IsEmpty());
}

TEST_F(ReservationFailures, AMemberThatLostItsRowToAnotherStationMayWait) {
    const int id = gespeichert(24, 26);
    imBlock(id);
    frmReservierung form = öffnen(id);
    EXPECT_FALSE(form.cmdWarten.Enabled);
    belegt(2, 20, 23, "schneller");
    form.fldVon.Text = "20.06.2026";
    form.fldBis.Text = "23.06.2026";
    antworten({MsgResult::OK, MsgResult::OK});
    form.cmdReservieren_Click();
    EXPECT_FALSE(form.istBlock() || form.cmdAbgerechnet.Enabled || form.cmdL_schen.Enabled);
    form.cmdWarten_Click();
    EXPECT_TRUE(feld("Gelöscht", form.ID()).boolOr());
}

} // namespace
} // namespace reservations
