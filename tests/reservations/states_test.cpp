#include "reservations/states.h"

#include "store/rows.h"
#include "support/scripted_dialogs.h"
#include "support/test_house.h"

#include <gmock/gmock.h>

namespace reservations {
namespace {

using basic::Value;
using services::MsgResult;
using support::day;
using support::TestHouse;
using testing::ElementsAre;

constexpr int kAngebot = 4;

/// A house whose fourth type is the offer. Today is 15.06.2026.
class States : public testing::Test {
protected:
    States() {
        house.rooms(4);
        benennen(kAngebot, "Angebot");
    }

    void benennen(int art, const Value& name) {
        house.db().Execute("UPDATE tbBelegArten SET BelegungsArt = " + jet::sqlValue(name) +
                           " WHERE BelegungsID = " + std::to_string(art));
    }
    int angebot(basic::Date von, bool wartet = false) {
        return static_cast<int>(house.stay({.Von = von, .Bis = von + 3, .Belegungsart = kAngebot, .Gelöscht = wartet}));
    }
    int blockangebot(basic::Date von) {
        const int id = angebot(von);
        imBlock(id, 1);
        return id;
    }
    void imBlock(int id, int block) {
        auto rows = house.db().OpenRecordset("tbBlockbuchung");
        store::addRow(rows, {{"IDBlockbuchung", block}, {"IDBelegung", id}});
    }
    Value feld(const char* name, int id) {
        return house.value("SELECT " + std::string(name) + " FROM tblBelegung WHERE ID = " + std::to_string(id));
    }
    void schreiben(const char* name, int id, const Value& wert) {
        house.db().Execute("UPDATE tblBelegung SET " + std::string(name) + " = " + jet::sqlValue(wert) +
                           " WHERE ID = " + std::to_string(id));
    }

    TestHouse house;
};

TEST_F(States, TypesWithoutANameAreNotOffered) {
    for (int art = 1; art <= 8; ++art)
        benennen(art, Value());
    benennen(3, "Stammgast");
    benennen(7, "");
    benennen(8, "zwei");
    std::vector<std::pair<int, std::string>> arten;
    for (const Belegart& art : BelegartenLesen(house.db()))
        arten.emplace_back(art.BelegungsID, art.Name);
    EXPECT_THAT(arten, ElementsAre(std::pair(3, std::string("Stammgast")), std::pair(8, std::string("zwei"))));
}

TEST(Types, WordsMeanSomethingInAnyCaseAndOnlyAsAWhole) {
    EXPECT_TRUE(istAngebot("ANGEBOT"));
    EXPECT_FALSE(istAngebot("Angebote"));
    EXPECT_FALSE(istAngebot(" Angebot"));
    EXPECT_FALSE(istAngebot(""));
    const std::pair<const char*, int> gäste[] = {{"eine", 1},   {"EINS", 1}, {"Fünf", 5},       {"FÜNF", 5},
                                                 {"Zwölf", 12}, {"13", 13},  {"20", 20},        {"21", 0},
                                                 {"1", 0},      {"12", 0},   {"drei Gäste", 0}, {"", 0}};
    for (const auto& [name, erwartet] : gäste)
        EXPECT_EQ(GästeDerBelegart(name), erwartet) << name;
}

TEST_F(States, NobodyIsCheckedInWhoseStayIsNotFirm) {
    const int fest = static_cast<int>(house.stay({.Von = day(10, 6), .Bis = day(15, 6)}));
    const int wartend = static_cast<int>(house.stay({.Von = day(10, 6), .Bis = day(15, 6), .Gelöscht = true}));
    const int offeriert = angebot(day(20, 6));
    EXPECT_FALSE(istAngebotOderWartet(house.db(), fest));
    EXPECT_TRUE(istAngebotOderWartet(house.db(), wartend));
    EXPECT_TRUE(istAngebotOderWartet(house.db(), offeriert));
    benennen(kAngebot, "ANGEBOT");
    EXPECT_TRUE(istAngebotOderWartet(house.db(), offeriert));
    EXPECT_FALSE(istAngebotOderWartet(house.db(), 4711));
}

TEST_F(States, CheckInTouchesOneStay) {
    const int einer = static_cast<int>(house.stay({.Von = day(10, 6), .Bis = day(15, 6)}));
    const int anderer = static_cast<int>(house.stay({.Von = day(15, 6), .Bis = day(16, 6), .Checked = true}));
    CheckedSetzen(house.db(), einer, true);
    EXPECT_EQ(feld("Checked", einer), Value(true));
    CheckedSetzen(house.db(), einer, false);
    EXPECT_EQ(feld("Checked", einer), Value(false));
    EXPECT_EQ(feld("Checked", anderer), Value(true));
}

TEST_F(States, SettledIsBilledOrDivided) {
    const int id = static_cast<int>(house.stay({.Von = day(10, 6), .Bis = day(15, 6)}));
    const std::tuple<Value, Value, bool> cases[] = {
        {Value(), Value(), false}, {0, "N", false}, {2, Value(), false},
        {1, Value(), true},        {0, "Y", true},  {Value(), "Y", true},
    };
    for (const auto& [abgerechnet, geteilt, erwartet] : cases) {
        schreiben("Abgerechnet", id, abgerechnet);
        schreiben("IST_Geteilt", id, geteilt);
        EXPECT_EQ(istAbgerechnet(house.db(), id), erwartet);
    }
    EXPECT_FALSE(istAbgerechnet(house.db(), 4711));
}

TEST_F(States, ToggleMakesHeldBackAndUnknownBilled) {
    const int id = static_cast<int>(house.stay({.Von = day(10, 6), .Bis = day(15, 6)}));
    for (const Value& vorher : {Value(), Value(0), Value(2)}) {
        schreiben("Abgerechnet", id, vorher);
        EXPECT_TRUE(AbrechnenUmschalten(house.db(), id));
        EXPECT_EQ(feld("Abgerechnet", id), Value(1));
    }
    EXPECT_FALSE(AbrechnenUmschalten(house.db(), id));
    EXPECT_EQ(feld("Abgerechnet", id), Value(0));
    EXPECT_FALSE(AbrechnenUmschalten(house.db(), 4711));
}

// Offers past due

class PastDue : public States {
protected:
    Angebotsprüfung prüfen() {
        return AngebotePrüfen(house.db(), dialogs, house.today(), "Haus am See", [this] { ++geladen; });
    }
    [[nodiscard]] std::vector<std::string> titel() const {
        std::vector<std::string> titel;
        for (const auto& frage : dialogs.asked())
            titel.push_back(frage.title);
        return titel;
    }

    support::ScriptedDialogs dialogs;
    int geladen = 0;
};

TEST_F(PastDue, NothingIsAskedAboutComingWaitingOrFirmStays) {
    angebot(day(16, 6));
    angebot(day(1, 6), true);
    house.stay({.Von = day(1, 6), .Bis = day(10, 6)});
    EXPECT_EQ(prüfen(), Angebotsprüfung::Weiter);
    EXPECT_EQ(geladen, 0);
}

TEST_F(PastDue, YesMovesThemToTheWaitingRowFromTodayOn) {
    const int heute = angebot(day(15, 6));
    const int alt = angebot(day(1, 5));
    const int morgen = angebot(day(16, 6));
    dialogs.press(MsgResult::Yes);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Weiter);
    EXPECT_EQ(dialogs.last().text,
              "Es gibt noch Angebote, deren Anfangsdatum vor dem 16.06.2026 beginnen. Wählen Sie 'Ja', wenn diese "
              "Angebote in die Warteposition geschoben werden sollen, wählen Sie 'Nein', wenn die Angebote per Hand "
              "bearbeitet werden sollen.");
    EXPECT_EQ(dialogs.last().title, "Angebotskonflikte");
    EXPECT_EQ(dialogs.last().style.buttons, services::MsgButtons::YesNo);
    EXPECT_EQ(feld("Gelöscht", heute), Value(true));
    EXPECT_EQ(feld("Gelöscht", alt), Value(true));
    EXPECT_EQ(feld("Gelöscht", morgen), Value(false));
    EXPECT_EQ(geladen, 1);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Weiter) << "nothing is left to ask about";
}

TEST_F(PastDue, NoStopsAndLeavesThem) {
    const int alt = angebot(day(1, 5));
    dialogs.press(MsgResult::No);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Halt);
    EXPECT_EQ(feld("Gelöscht", alt), Value(false));
    EXPECT_EQ(geladen, 0);
}

TEST_F(PastDue, MembersOfABlockAreDeletedAfterTwoQuestions) {
    const int alt = blockangebot(day(1, 5));
    const int heute = blockangebot(day(15, 6));
    const int morgen = blockangebot(day(16, 6));
    dialogs.press(MsgResult::Yes);
    dialogs.press(MsgResult::OK);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Weiter);
    ASSERT_THAT(titel(), ElementsAre("Haus am See", "Haus am See"));
    EXPECT_EQ(
        dialogs.asked()[0].text,
        "Es gibt noch Angebote, deren Anfangsdatum vor dem 16.06.2026 beginnen und zu einer Blockbuchung gehören. "
        "Wählen Sie 'Ja', wenn diese Angebote endgültig gelöscht werden sollen, wählen Sie 'Nein', wenn die "
        "Angebote per Hand bearbeitet werden sollen.");
    EXPECT_EQ(dialogs.asked()[0].style.icon, services::MsgIcon::Critical);
    EXPECT_EQ(dialogs.asked()[1].text, "Achtung. Dieser Vorgang löscht 2 Angebote, die zu einer Blockbuchung gehören. "
                                       "Möchten Sie fortfahren?");
    EXPECT_EQ(dialogs.asked()[1].style.buttons, services::MsgButtons::OKCancel);
    EXPECT_EQ(house.count("tblBelegung"), 1);
    EXPECT_EQ(feld("ID", morgen), Value(morgen));
    EXPECT_TRUE(feld("ID", alt).isNull() && feld("ID", heute).isNull());
    EXPECT_EQ(geladen, 1);
}

TEST_F(PastDue, BlockMembersStayAfterNoAndAfterCancel) {
    blockangebot(day(1, 5));
    dialogs.press(MsgResult::No);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Halt);
    dialogs.press(MsgResult::Yes);
    dialogs.press(MsgResult::Cancel);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Weiter);
    EXPECT_EQ(house.count("tblBelegung"), 1);
    EXPECT_EQ(geladen, 0);
}

TEST_F(PastDue, BothKindsAreAskedAboutAndOneNoIsEnoughToStop) {
    const int einzeln = angebot(day(1, 5));
    const int imBlock = blockangebot(day(2, 5));
    dialogs.press(MsgResult::No);
    dialogs.press(MsgResult::Yes);
    dialogs.press(MsgResult::OK);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Halt);
    EXPECT_EQ(feld("Gelöscht", einzeln), Value(false));
    EXPECT_TRUE(feld("ID", imBlock).isNull());
}

TEST_F(PastDue, AStayInTwoBlocksIsDeletedOnceAndTheOthersToo) {
    const int doppelt = blockangebot(day(1, 5));
    imBlock(doppelt, 2);
    blockangebot(day(2, 5));
    dialogs.press(MsgResult::Yes);
    dialogs.press(MsgResult::OK);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Weiter);
    EXPECT_EQ(house.count("tblBelegung"), 0);
}

TEST_F(PastDue, AnOfferGoneMeanwhileDoesNotKeepTheOthersBack) {
    const int erstes = angebot(day(1, 5));
    const int zweites = angebot(day(2, 5));
    dialogs.meanwhile(
        [&] { house.open("Lokal.mdb").Execute("DELETE * FROM tblBelegung WHERE ID = " + std::to_string(erstes)); });
    dialogs.press(MsgResult::Yes);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Weiter);
    EXPECT_EQ(feld("Gelöscht", zweites), Value(true));

    const int imBlock = blockangebot(day(3, 5));
    blockangebot(day(4, 5));
    dialogs.meanwhile(
        [&] { house.open("Lokal.mdb").Execute("DELETE * FROM tblBelegung WHERE ID = " + std::to_string(imBlock)); });
    dialogs.press(MsgResult::Yes);
    dialogs.press(MsgResult::OK);
    EXPECT_EQ(prüfen(), Angebotsprüfung::Weiter);
    EXPECT_EQ(house.count("tblBelegung"), 1);
}

} // namespace
} // namespace reservations
