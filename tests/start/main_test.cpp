#include "start/start_main.h"

#include "start/database_form.h"
#include "store/database_files.h"
#include "store/path_test.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace start {
namespace {

namespace fs = std::filesystem;
using services::MsgResult;
using support::TestStart;

constexpr auto kFrage = "Die Datenbankpfade sind nicht korrekt oder die Verbindung des Netzwerkes steht nicht mehr zur "
                        "Verfügung. Möchten Sie die Datenbankpfade zu den Quelldatenbanken neu einrichten?";

TEST(Main, NewHouseStartsAndWritesAllFiveKeys) {
    TestStart s;
    s.house();
    EXPECT_EQ(Main(s.g), Weg::Plan);
    EXPECT_EQ(s.setting("Zentral"), s.file("Zentral.mdb"));
    EXPECT_EQ(s.setting("Pfad"), s.file("Herbergo.mdb"));
    EXPECT_EQ(s.setting("BeispielPfad"), s.file("Beispiel.mdb"));
    EXPECT_EQ(s.setting("LokalDB"), s.file("Lokal.mdb"));
    EXPECT_EQ(s.setting("Excel"), s.file("Sicherungen/Herbergo.mdb"));
}

TEST(Main, ThirdInstallationIsRefused) {
    for (const int nummer : {3, 12}) {
        TestStart s;
        s.g.instanz.Nummer = nummer;
        s.dialogs.acknowledge();
        EXPECT_EQ(Main(s.g), Weg::Ende);
        EXPECT_EQ(s.dialogs.last().text, "Unzulässiger Dateiname");
        EXPECT_TRUE(fs::is_empty(s.ordner.path()));
    }
}

TEST(Main, WithoutAHouseTheUserIsAskedAndNothingIsInvented) {
    TestStart s;
    s.dialogs.press(MsgResult::Cancel);
    EXPECT_EQ(Main(s.g), Weg::Ende);
    EXPECT_EQ(s.dialogs.last().text, kFrage);
    EXPECT_EQ(s.dialogs.last().style.flags(), 321);
    EXPECT_EQ(s.dialogs.last().title, "Herbergo");
    EXPECT_FALSE(fs::exists(s.file("Zentral.mdb")));
    EXPECT_FALSE(fs::exists(s.file("Herbergo.mdb")));
    EXPECT_EQ(s.setting("Zentral"), s.file("Zentral.mdb"));
}

TEST(Main, WorkstationGetsItsOwnFilesAndItsLinks) {
    TestStart s;
    s.house("netz");
    s.set("Zentral", s.file("netz/Zentral.mdb"));
    s.set("Pfad", s.file("netz/Herbergo.mdb"));
    EXPECT_EQ(Main(s.g), Weg::Plan);
    for (const auto* name : {"Lokal.mdb", "Beispiel.mdb", "Feiertag.mdb"})
        EXPECT_TRUE(fs::exists(s.file(name))) << name;
    EXPECT_TRUE(store::linksWork(s.workspace, s.file("Lokal.mdb")));
    jet::Database beispiel = s.open(s.file("Beispiel.mdb"));
    EXPECT_EQ(beispiel.OpenRecordset("SELECT F1 FROM tblParameter WHERE Satz = 'Zeitdarstellung'").Fields(0).Value(),
              "35");
    EXPECT_GT(beispiel.OpenRecordset("tblBelegung").RecordCount(), 30);
}

TEST(Main, StaleLinksAreHealedWhenBothPathsAreGood) {
    TestStart s;
    s.house("alt");
    fs::rename(s.file("alt/Lokal.mdb"), s.file("Lokal.mdb"));
    fs::rename(s.file("alt"), s.file("neu"));
    s.set("Zentral", s.file("neu/Zentral.mdb"));
    s.set("Pfad", s.file("neu/Herbergo.mdb"));
    s.set("Excel", s.file("anderswo"));
    ASSERT_FALSE(store::linksWork(s.workspace, s.file("Lokal.mdb")));
    EXPECT_EQ(Main(s.g), Weg::Plan);
    EXPECT_TRUE(store::linksWork(s.workspace, s.file("Lokal.mdb")));
    EXPECT_EQ(s.setting("Excel"), s.file("Sicherungen/Herbergo.mdb"));
}

TEST(Main, OneBadPathClearsOnlyThatPath) {
    struct Case {
        const char* key;
        const char* path;
        const char* other;
        const char* otherPath;
    };
    for (const Case& c :
         {Case{"Pfad", "Herbergo.mdb", "Zentral", "Zentral.mdb"}, {"Zentral", "Zentral.mdb", "Pfad", "Herbergo.mdb"}}) {
        TestStart s;
        s.house("netz");
        s.set(c.key, "/nirgends/gar/nicht.mdb");
        s.set(c.other, s.file("netz") + "/" + c.otherPath);
        s.dialogs.press(MsgResult::Cancel);
        EXPECT_EQ(Main(s.g), Weg::Ende);
        EXPECT_EQ(s.setting(c.key), s.file(c.path));
        EXPECT_EQ(s.setting(c.other), s.file("netz") + "/" + c.otherPath);
    }
}

TEST(Main, WrongFilesCountAsUnreachable) {
    TestStart s;
    s.house("netz");
    std::ofstream(s.file("fremd.mdb")) << "kein Datenbankformat";
    fs::create_directory(s.file("ordner.mdb"));
    for (const auto* wrong : {"netz/Herbergo.mdb", "fremd.mdb", "ordner.mdb", "fehlt.mdb"}) {
        s.set("Zentral", s.file(wrong));
        s.set("Pfad", s.file("netz/Herbergo.mdb"));
        s.dialogs.press(MsgResult::Cancel);
        EXPECT_EQ(Main(s.g), Weg::Ende) << wrong;
    }
    EXPECT_EQ(std::ifstream(s.file("fremd.mdb")).get(), 'k');
}

TEST(Main, PathFormStartsFromEmptySettings) {
    TestStart s;
    s.house("netz");
    s.set("Instanz2", "AdrEinzeln");
    s.set("Internet", "/opt/netzlader.exe");
    s.dialogs.press(MsgResult::OK);
    s.dialogs.type(s.file("netz/Herbergo.mdb"));
    s.dialogs.type(s.file("netz/Zentral.mdb"));
    s.windows.beiDatenbankpfade = [&](const PfadeAnfrage& anfrage) {
        EXPECT_TRUE(anfrage.beimStart);
        EXPECT_EQ(s.setting("Instanz2") + s.setting("Internet") + s.setting("Pfad"), "");
        EXPECT_EQ(s.setting("BeispielPfad"), s.file("Beispiel.mdb"));
        frmDatenbank form(s.g, anfrage);
        EXPECT_EQ(form.txtPfad.Text, "");
        form.cmdPfad_Click();
        form.cmdZentral_Click();
        form.cmdSpeichern_Click();
        return form.Ergebnis().value_or(PfadeErgebnis::ProgrammEnde);
    };
    EXPECT_EQ(Main(s.g), Weg::Plan);
    EXPECT_TRUE(store::linksWork(s.workspace, s.file("Lokal.mdb")));
    EXPECT_EQ(s.setting("Zentral"), s.file("netz/Zentral.mdb"));
    EXPECT_EQ(s.setting("LokalDB"), s.file("Lokal.mdb"));
}

TEST(Main, TidiesTheBackupsOnlyWhereOneIsKnown) {
    TestStart s;
    s.house();
    std::vector<std::string> folders;
    const Startschritte schritte{[&](const std::string& folder) { folders.push_back(folder); }};
    EXPECT_EQ(Main(s.g, schritte), Weg::Plan);
    EXPECT_TRUE(folders.empty());
    EXPECT_EQ(Main(s.g, schritte), Weg::Plan);
    EXPECT_EQ(folders, std::vector{s.file("Sicherungen/Herbergo.mdb")});
}

/// A main program and the data of a second installation in the same folder.
struct SecondInstallation : TestStart {
    SecondInstallation() {
        house();
        house("zweit");
        fs::rename(file("zweit/Zentral.mdb"), file("Zentra2.mdb"));
        fs::rename(file("zweit/Herbergo.mdb"), file("Herberg2.mdb"));
        set("Zentral", file("Zentral.mdb"));
        g.instanz.Nummer = 2;
    }
    [[nodiscard]] std::string addressHome() const {
        return store::linkedFileName(open(file("Loka2.mdb")).GetTableDef("Address").Connect);
    }
};

TEST(Main, SecondInstallationMayShareTheAddresses) {
    for (const auto& [wahl, gespeichert, datei] : {std::tuple{Adresswahl::AdrAusBel, "AdrAusBel", "Zentral.mdb"},
                                                   {Adresswahl::AdrEinzeln, "AdrEinzeln", "Zentra2.mdb"}}) {
        SecondInstallation s;
        s.windows.beiAdresshilfe = [&, wahl = wahl](const AdresshilfeAnfrage& anfrage) {
            EXPECT_TRUE(anfrage.HauptprogrammErreichbar);
            return wahl;
        };
        EXPECT_EQ(Main(s.g), Weg::Plan);
        EXPECT_EQ(s.setting("Instanz2"), gespeichert);
        EXPECT_EQ(s.addressHome(), datei);
        EXPECT_EQ(store::linkedFileName(s.open(s.file("Loka2.mdb")).GetTableDef("tblBelegung").Connect), "Zentra2.mdb");
        EXPECT_EQ(s.setting("lokalD2"), s.file("Loka2.mdb"));
        s.windows.beiAdresshilfe = nullptr; // asked once only
        EXPECT_EQ(Main(s.g), Weg::Plan);
    }
}

TEST(Main, AddressChoiceWithoutAMainHouse) {
    SecondInstallation s;
    s.set("Zentral", s.file("weg.mdb"));
    bool erreichbar = true;
    s.windows.beiAdresshilfe = [&](const AdresshilfeAnfrage& anfrage) {
        erreichbar = anfrage.HauptprogrammErreichbar;
        return Adresswahl::Keine;
    };
    EXPECT_EQ(Main(s.g), Weg::Ende);
    EXPECT_FALSE(erreichbar);
    EXPECT_EQ(s.setting("Instanz2"), "");
}

} // namespace
} // namespace start
