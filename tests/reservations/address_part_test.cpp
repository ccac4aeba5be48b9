#include "reservations/address_part.h"

#include "platform/jet/sql_values.h"
#include "start/parameters.h"
#include "store/database_files.h"
#include "store/postal_codes.h"
#include "support/jet_files.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace reservations {
namespace {

using services::Key;
using services::Leave;
using services::MsgButtons;
using services::MsgResult;
using support::oneValue;

struct Haus : support::TestStart {
    Haus() {
        house();
        g.dbHaupt = open(file("Lokal.mdb"));
        g.einstellungen.PLZSuche = true;
        g.einstellungen.Stammkunden = "Ja";
        jet::Database orte = open(file("Feiertag.mdb"));
        store::storePostalCodes(orte,
                                {{"28195", "Bremen"},
                                 {"17449", "Peenemünde"},
                                 {"17449", "Karlshagen"},
                                 {"17454", "Zinnowitz"},
                                 {"10115", "Berlin"},
                                 {"10117", "Berlin"}},
                                store::ExistingCodes::Replace);
    }
};

/// The address half over a house with a few places.
struct Rezeption : Haus {
    addresses::Adressliste liste{g.dbHaupt};
    Adressteil teil{g, liste};

    std::int64_t guest(const std::string& name, const std::string& ort = {}) {
        g.dbHaupt.Execute("INSERT INTO Address (LastName, Country, City, OwnerID, WerErstellt) VALUES (" +
                          jet::sqlText(name) + ", 'Irland', " + jet::sqlText(ort) + ", 1, 'früher')");
        return std::stoll(oneValue(g.dbHaupt, "SELECT Max(ID) FROM Address"));
    }
    [[nodiscard]] std::string stored(const std::string& spalte, std::int64_t id) {
        return oneValue(g.dbHaupt, "SELECT " + spalte + " FROM Address WHERE ID = " + std::to_string(id));
    }
    [[nodiscard]] std::string count() { return oneValue(g.dbHaupt, "SELECT Count(*) FROM Address"); }
    [[nodiscard]] std::string exported() const { return support::fileBytes(file("adresse.doc")); }

    void typeName(const std::string& name) {
        teil.cboAdresse.Text = name;
        teil.cboAdresse_Change();
    }
    void typePLZ(const std::string& plz) {
        teil.txtPLZ.Text = plz;
        teil.Feld_Change();
        EXPECT_EQ(teil.txtPLZ_LostFocus(), Leave::Go);
    }
    /// Leaves the country box with this text in it.
    void typeLand(const std::string& land) {
        teil.cboLand.Text = land;
        teil.Feld_Change();
        EXPECT_EQ(teil.cboLand_LostFocus(), Leave::Go);
    }
    [[nodiscard]] std::string places() const {
        std::string text;
        for (int i = 0; i < teil.cboOrt.Items.ListCount(); ++i)
            text += (i == 0 ? "" : "|") + teil.cboOrt.Items.List(i);
        return text;
    }
};

TEST(AddressPart, ANameBelowThreeCharactersIsRefused) {
    Rezeption r;
    for (const char* name : {"", "  ab  ", "Ab, Anna, 28195 Bremen", ", Anna", "ÄÖ"}) {
        r.typeName(name);
        r.dialogs.acknowledge();
        EXPECT_FALSE(r.teil.AdressSpeichern()) << name;
        EXPECT_EQ(r.dialogs.last().text,
                  "Bitte den Namen des Gastes eingeben. Der Name muss mindestens drei Zeichen lang sein.");
        EXPECT_EQ(r.dialogs.last().title, "Adresse speichern");
    }
    EXPECT_TRUE(r.teil.cboAdresse.FocusRequested);
    EXPECT_EQ(r.count(), "0");
    EXPECT_FALSE(std::filesystem::exists(r.file("adresse.doc")));
}

TEST(AddressPart, ACountryIsNeeded) {
    Rezeption r;
    r.typeName("Ärz");
    r.teil.cboLand.Text = "  ";
    r.dialogs.acknowledge();
    EXPECT_FALSE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.dialogs.last().text, "Bitte das Herkunftsland  des Gastes eingeben");
    EXPECT_EQ(r.dialogs.last().title, "Adresse speichern");
    EXPECT_TRUE(r.teil.cboLand.FocusRequested);
    EXPECT_EQ(r.count(), "0");
}

TEST(AddressPart, TooLongATextIsNamedAndStaysOnScreen) {
    Rezeption r;
    struct Case {
        std::string* text;
        const char* field;
        const char* most;
    };
    r.typeName("Gast");
    for (const Case& c : {Case{&r.teil.txtStrasse.Text, "'Straße'", "255"},
                          {&r.teil.txtVorname.Text, "'Vorname'", "80"},
                          {&r.teil.cboOrt.Text, "'Ort'", "80"},
                          {&r.teil.txtPLZ.Text, "'PLZ'", "20"}}) {
        *c.text = std::string(300, 'x');
        r.dialogs.acknowledge();
        EXPECT_FALSE(r.teil.AdressSpeichern());
        EXPECT_NE(r.dialogs.last().text.find(c.field), std::string::npos) << r.dialogs.last().text;
        EXPECT_NE(r.dialogs.last().text.find(c.most), std::string::npos) << r.dialogs.last().text;
        EXPECT_EQ(c.text->size(), 300U);
        c.text->clear();
    }
    EXPECT_EQ(r.count(), "0");
    r.teil.txtBemerkAdr.Text = std::string(3000, 'x'); // a remark has no end
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.teil.txtStrasse.MaxLength, 255);
    EXPECT_EQ(r.teil.txtBemerkAdr.MaxLength, 0);
}

TEST(AddressPart, ANewAddressIsStoredOnlyWhenWanted) {
    Rezeption r;
    r.typeName(" Müller ");
    r.teil.txtVorname.Text = "Anna";
    r.dialogs.press(MsgResult::Cancel);
    EXPECT_FALSE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.dialogs.last().text, "Möchten Sie eine neue Adresse mit diesen Daten anlegen?");
    EXPECT_EQ(r.dialogs.last().style.buttons, MsgButtons::OKCancel);
    EXPECT_EQ(r.count(), "0");
    EXPECT_TRUE(r.teil.Änderung());

    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    const auto id = r.teil.GastID();
    ASSERT_GT(id, 0);
    EXPECT_EQ(r.stored("LastName & '/' & FirstName & '/' & Country & '/' & OwnerID", id), "Müller/Anna/Deutschland/0");
    EXPECT_EQ(r.stored("IDLand", id), oneValue(r.g.dbHaupt, "SELECT ID FROM tbLänder WHERE Länder = 'Deutschland'"));
    EXPECT_EQ(r.stored("WerErstellt", id), "rezeption");
    EXPECT_EQ(r.stored("WannErstellt", id), "15.06.2026 10:30:00");
    EXPECT_EQ(r.stored("WerGeändert", id), "Null");
    EXPECT_EQ(r.teil.txtAdrWannErstellt.Text, "15.06.2026");
    EXPECT_FALSE(r.teil.Änderung());
    EXPECT_EQ(r.liste.matches("mü", 5).size(), 1U) << "the list reads it";

    r.clock.set(basic::Date::fromYmd(2026, 6, 20));
    EXPECT_TRUE(r.teil.AdressSpeichern()); // nothing pending: nothing asked, nothing written
    EXPECT_EQ(r.stored("WerGeändert", id), "Null");
}

TEST(AddressPart, WhoeverStandsInTheFieldHasMadeTheAddress) {
    Rezeption r;
    const auto alt = r.guest("Alt");
    r.typeName("Neu");
    r.teil.txtAdrWE.Text = "Chefin";
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("WerErstellt", r.teil.GastID()), "Chefin");

    r.teil.cboAdresse_Click(alt);
    EXPECT_EQ(r.teil.txtAdrWE.Text, "früher");
    EXPECT_TRUE(r.teil.txtAdrWE.Locked);
    r.typeName("Anders"); // over a known guest: somebody new, who was not made by who made the other
    r.dialogs.press(MsgResult::No);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("WerErstellt", r.teil.GastID()), "rezeption");
    EXPECT_EQ(r.stored("LastName", alt), "Alt");
}

TEST(AddressPart, ANameTypedOverAGuestCorrectsHimOnlyWhenToldSo) {
    Rezeption r;
    const auto id = r.guest("Maier");
    r.teil.cboAdresse_Click(id);
    r.typeName("Meier");
    r.dialogs.press(MsgResult::Cancel);
    EXPECT_FALSE(r.teil.AdressSpeichern());
    EXPECT_NE(r.dialogs.last().text.find("'Maier'"), std::string::npos) << r.dialogs.last().text;
    EXPECT_EQ(r.stored("LastName", id), "Maier");

    r.dialogs.press(MsgResult::Yes);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.teil.GastID(), id);
    EXPECT_EQ(r.stored("LastName & '/' & WerErstellt", id), "Meier/früher");
    EXPECT_EQ(r.count(), "1");
}

TEST(AddressPart, ALineOfTheListLeavesTheLastNameAlone) {
    Rezeption r;
    r.typeName("Müller, Anna, 28195 Bremen");
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("LastName & '/' & FirstName", r.teil.GastID()), "Müller/Anna");
    EXPECT_EQ(r.teil.cboAdresse.Text, "Müller");
    r.typeName("Oslo, 28195 Bremen");
    r.teil.txtVorname.Text = "";
    r.dialogs.press(MsgResult::No);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("LastName & '/' & FirstName", r.teil.GastID()), "Oslo/");

    const auto komma = r.guest("Berg, geb. Tal"); // as a sibling program has stored it
    r.teil.cboAdresse_Click(komma);
    r.teil.txtTelefon.Text = "1";
    r.teil.Feld_Change();
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("LastName", komma), "Berg, geb. Tal");
}

TEST(AddressPart, AKnownGuestIsChangedWithoutAQuestion) {
    Rezeption r;
    const auto id = r.guest("O'Neill", "Cork");
    r.teil.cboAdresse_Click(id);
    EXPECT_EQ(r.teil.GastID(), id);
    EXPECT_EQ(r.teil.cboLand.Text, "Irland");
    EXPECT_FALSE(r.teil.chStammkunde.Value);
    r.teil.txtStrasse.Text = "Weg 3 \"Hof";
    r.teil.cboRaucher.choose(r.teil.cboRaucher.Items.indexOf("Nichtraucher"));
    r.teil.Feld_Change();
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("Address & '/' & Raucher & '/' & OwnerID & '/' & WerGeändert", id),
              "Weg 3 \"Hof\"/Nichtraucher/1/rezeption");
    EXPECT_EQ(r.stored("WerErstellt", id), "früher");
    EXPECT_EQ(r.stored("WannGeändert", id), "15.06.2026 10:30:00");
    EXPECT_EQ(r.count(), "1");

    r.typeName("O'Neil");
    EXPECT_EQ(r.teil.GastID(), 0);
    r.typeName("O'Neill");
    EXPECT_EQ(r.teil.GastID(), id) << "the letter that was taken away is there again";
}

TEST(AddressPart, NamesOfAnyScriptComeBackAsTheyWere) {
    Rezeption r;
    for (const char* name : {"D'Arc \"J\"", "אברהם", "😀😀😀", "محمد علي", "Šćepanović"}) {
        r.teil.cmdNeuAdress_Click();
        r.typeName(name);
        r.teil.txtBemerkAdr.Text = "'; DELETE FROM Address; --";
        r.dialogs.press(MsgResult::OK);
        EXPECT_TRUE(r.teil.AdressSpeichern()) << name;
        EXPECT_EQ(r.stored("LastName", r.teil.GastID()), name);
        EXPECT_EQ(r.stored("BemerkAdr", r.teil.GastID()), "'; DELETE FROM Address; --");
    }
    EXPECT_EQ(r.teil.cboAdresse.Keys.filtered("a;b~c'd"), "abc'd");
    EXPECT_EQ(r.teil.txtBemerkAdr.Keys.filtered("a;b~c"), "abc");
}

TEST(AddressPart, OddQuotesAreClosedBeforeTheyAreStored) {
    Rezeption r;
    r.typeName("Gast");
    r.teil.txtName2.Text = "Gasthof \"Anker";
    r.teil.cboOrt.Text = "\"a\"";
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.teil.txtName2.Text, "Gasthof \"Anker\"");
    EXPECT_EQ(r.teil.cboOrt.Text, "\"a\"");
}

TEST(AddressPart, AnAddressDeletedElsewhereCanBeStoredAnew) {
    Rezeption r;
    const auto id = r.guest("Weg", "Bremen");
    r.teil.zeigen(id);
    r.g.dbHaupt.Execute("DELETE FROM Address");
    r.teil.txtStrasse.Text = "Neu 1";
    r.teil.Feld_Change();
    r.dialogs.acknowledge();
    EXPECT_FALSE(r.teil.AdressSpeichern());
    EXPECT_NE(r.dialogs.last().text.find("an einem anderen Arbeitsplatz gelöscht"), std::string::npos);
    EXPECT_EQ(r.teil.txtStrasse.Text, "Neu 1") << "what was typed is not lost";
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("LastName & Address", r.teil.GastID()), "WegNeu 1");

    r.teil.zeigen(9999);
    EXPECT_EQ(r.teil.GastID(), 0);
    EXPECT_EQ(r.teil.cboAdresse.Text, "");
    EXPECT_EQ(r.teil.cboLand.Text, "Deutschland");
}

TEST(AddressPart, AFailureOfTheDataIsTold) {
    Rezeption r;
    const auto id = r.guest("Gast");
    r.teil.zeigen(id);
    r.teil.txtFax.Text = "1";
    r.teil.Feld_Change();
    r.g.dbHaupt.Close();
    r.dialogs.acknowledge();
    EXPECT_FALSE(r.teil.AdressSpeichern());
    EXPECT_TRUE(r.teil.Änderung());
    r.dialogs.type("30");
    r.dialogs.acknowledge();
    r.teil.mnuStatus_Click();
    r.dialogs.acknowledge();
    EXPECT_TRUE(r.teil.cboAdresse_KeyDown(Key::F2));
}

TEST(AddressPart, EverySaveWritesTheMergeFile) {
    Rezeption r;
    r.typeName("Groß");
    r.teil.txtVorname.Text = "Jürgen";
    r.teil.txtTelefon.Text = "0551 4";
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.exported(), "Name;Vorname;Telefon;Fax;Strasse;PLZ;Ort;Land;Bemerkungen;Email;Anrede;Firma~\r\n"
                            "Gro\xDF;J\xFCrgen;0551 4;;;;;Deutschland;\"\";;;~\r\n");
    std::filesystem::remove(r.file("adresse.doc"));
    r.teil.cmdAdresseSpeichern_Click(); // its button exports what is already stored too
    EXPECT_NE(r.exported(), "");

    r.dialogs.acknowledge();
    r.teil.exportieren(true);
    EXPECT_EQ(r.dialogs.last().text, "Adressdaten wurden exportiert nach " + r.ordner.path().string() + ".");
    std::filesystem::remove(r.file("adresse.doc"));
    std::filesystem::create_directories(r.file("adresse.doc/im Weg"));
    r.dialogs.acknowledge();
    r.teil.exportieren(true);
    EXPECT_EQ(r.dialogs.last().text, "Datenexport gescheitert");
    r.teil.Feld_Change();
    r.dialogs.acknowledge();
    EXPECT_TRUE(r.teil.AdressSpeichern()) << "the address is stored all the same";
}

TEST(AddressPart, ANewPostalCodeBringsItsTown) {
    Rezeption r;
    r.typePLZ("28195");
    EXPECT_EQ(r.teil.cboOrt.Text, "Bremen");
    EXPECT_FALSE(r.teil.cboOrt.DropDownRequested);

    r.teil.cboOrt.Text = "Bremen-Mitte";
    r.typePLZ("28195");
    EXPECT_EQ(r.teil.cboOrt.Text, "Bremen-Mitte") << "the code is the one it was";
    for (const char* plz : {"99999", "", "2*", "'", "?8195", "#"}) {
        r.typePLZ(plz);
        EXPECT_EQ(r.teil.cboOrt.Text, "Bremen-Mitte") << plz;
        EXPECT_EQ(r.places(), "") << plz;
    }
    r.typePLZ("101");
    EXPECT_EQ(r.teil.cboOrt.Text, "Berlin") << "two codes of one town";

    r.typePLZ("17449");
    EXPECT_EQ(r.places(), "Karlshagen|Peenemünde");
    EXPECT_TRUE(r.teil.cboOrt.DropDownRequested);
    EXPECT_EQ(r.teil.cboOrt.Text, "Berlin");
    r.typePLZ("174");
    EXPECT_EQ(r.places(), "17449 Karlshagen|17449 Peenemünde|17454 Zinnowitz");
    r.teil.cboOrt.choose(2);
    r.teil.cboOrt_Click();
    EXPECT_EQ(r.teil.cboOrt.Text + r.teil.txtPLZ.Text, "Zinnowitz17454");
    r.teil.cboOrt.Text = "Zinnowitz (Bad)";
    r.typePLZ("17454");
    EXPECT_EQ(r.teil.cboOrt.Text, "Zinnowitz (Bad)");
}

TEST(AddressPart, NoTownWithoutTheFileAbroadOrForAGuestJustShown) {
    Rezeption r;
    r.teil.cboLand.Text = "Schweiz"; // 1011 Lausanne is not in Berlin
    r.typePLZ("1011");
    EXPECT_EQ(r.teil.cboOrt.Text, "");
    r.teil.cboLand.Text = "Deutschland";
    r.g.einstellungen.PLZSuche = false;
    r.typePLZ("28195");
    EXPECT_EQ(r.teil.cboOrt.Text, "");
    r.g.einstellungen.PLZSuche = true;
    std::filesystem::remove(r.file("Feiertag.mdb"));
    r.typePLZ("28195");
    EXPECT_EQ(r.teil.cboOrt.Text, "");
}

TEST(AddressPart, ATypedCountryGoesToTheListOnlyWhenWanted) {
    Rezeption r;
    const auto all = r.teil.cboLand.Items.ListCount();
    r.typeLand("ÖSTERREICH");
    EXPECT_EQ(r.teil.cboLand.Text, "Österreich");
    r.dialogs.press(MsgResult::No);
    r.typeLand("Phantasien");
    EXPECT_NE(r.dialogs.last().text.find("'Phantasien'"), std::string::npos);
    r.typeLand("Phantasien"); // asked once
    EXPECT_EQ(r.teil.cboLand.Items.ListCount(), all);
    r.typeName("Gast");
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("Country", r.teil.GastID()) + r.stored("IDLand", r.teil.GastID()), "PhantasienNull");
    EXPECT_EQ(r.teil.cboLand_LostFocus(), Leave::Go); // a stored one is not asked about

    r.dialogs.press(MsgResult::Yes);
    r.typeLand("Côte d'Ivoire");
    EXPECT_EQ(r.teil.cboLand.Items.ListCount(), all + 1);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("IDLand", r.teil.GastID()),
              oneValue(r.g.dbHaupt, "SELECT ID FROM tbLänder WHERE Länder = 'Côte d''Ivoire'"));
}

TEST(AddressPart, F2TakesACountryFromTheListAndLeavesItToItsGuests) {
    Rezeption r;
    const auto all = r.teil.cboLand.Items.ListCount();
    r.typeName("Gast");
    r.typeLand("Irland");
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.AdressSpeichern());
    const auto id = r.teil.GastID();
    EXPECT_FALSE(r.teil.cboLand_KeyDown(Key::F3));
    r.dialogs.press(MsgResult::No);
    EXPECT_TRUE(r.teil.cboLand_KeyDown(Key::F2));
    EXPECT_EQ(r.teil.cboLand.Items.ListCount(), all);
    r.dialogs.press(MsgResult::Yes);
    EXPECT_TRUE(r.teil.cboLand_KeyDown(Key::F2));
    EXPECT_EQ(r.teil.cboLand.Items.ListCount(), all - 1);
    EXPECT_EQ(r.teil.cboLand.Text, "Irland");
    EXPECT_TRUE(r.teil.cboLand_KeyDown(Key::F2)); // no longer in the list: nothing to ask
    r.teil.zeigen(id);
    EXPECT_EQ(r.teil.cboLand.Text, "Irland");
    r.teil.Feld_Change();
    EXPECT_TRUE(r.teil.AdressSpeichern());
    EXPECT_EQ(r.stored("Country", id) + r.stored("IDLand", id), "IrlandNull");
}

TEST(AddressPart, TheDefaultOfRegularGuestsIsAskedForWithF2) {
    Rezeption r;
    EXPECT_TRUE(r.teil.chStammkunde.Value);
    EXPECT_FALSE(r.teil.chStammkunde_KeyDown(Key::Return));
    r.dialogs.press(MsgResult::No);
    EXPECT_TRUE(r.teil.chStammkunde_KeyDown(Key::F2));
    EXPECT_EQ(r.dialogs.last().title, "Vorgabe beim Öffnen");
    EXPECT_TRUE(r.teil.chStammkunde.Value) << "of new addresses, not of this one";
    EXPECT_EQ(start::JaNeinLesen(r.g.dbHaupt, "Stammkunden"), "Nein");
    r.teil.txtStrasse.Text = "alt";
    r.teil.cmdNeuAdress_Click();
    EXPECT_FALSE(r.teil.chStammkunde.Value);
    EXPECT_EQ(r.teil.txtStrasse.Text + r.teil.cboLand.Text, "Deutschland");
    EXPECT_TRUE(r.teil.cboAdresse.FocusRequested);
    r.dialogs.press(MsgResult::Yes);
    EXPECT_TRUE(r.teil.chStammkunde_KeyDown(Key::F2));
    EXPECT_EQ(r.g.einstellungen.Stammkunden, "Ja");
}

TEST(AddressPart, F2DeletesTheGuestThatIsShown) {
    Rezeption r;
    EXPECT_FALSE(r.teil.cboAdresse_KeyDown(Key::F3));
    EXPECT_TRUE(r.teil.cboAdresse_KeyDown(Key::F2)); // nobody is shown: nothing is asked
    const auto id = r.guest("Geht", "Bremen");
    EXPECT_EQ(r.liste.Anzahl(), 1U);
    r.teil.zeigen(id);
    r.dialogs.press(MsgResult::Cancel);
    EXPECT_TRUE(r.teil.cboAdresse_KeyDown(Key::F2));
    EXPECT_EQ(r.teil.GastID(), id);
    r.dialogs.press(MsgResult::OK);
    EXPECT_TRUE(r.teil.cboAdresse_KeyDown(Key::F2));
    EXPECT_EQ(r.teil.GastID(), 0);
    EXPECT_EQ(r.teil.cboAdresse.Text + r.teil.cboOrt.Text + r.teil.cboLand.Text, "Deutschland");
    EXPECT_EQ(r.liste.Anzahl(), 0U);
}

TEST(AddressPart, OldStaysNeedAGuest) {
    Rezeption r;
    r.dialogs.acknowledge();
    r.teil.mnuStatus_Click();
    EXPECT_EQ(r.dialogs.last().text, "Wählen Sie zunächst eine Adresse aus.");
}

} // namespace
} // namespace reservations
