#include "app/forms/front_desk.h"
#include "start/start_main.h"
#include "store/first_run.h"
#include "store/rows.h"
#include "support/scripted_dialogs.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>

#include <filesystem>

namespace app {
namespace {

using services::MsgResult;
using start::Ladeergebnis;
using support::day;

constexpr int offer = 4;
constexpr int room = 1;

// From the start to the plan

class PlanOfAStart : public testing::Test {
protected:
    PlanOfAStart() {
        store::writeDefaults(house.db(), false);
        std::filesystem::remove(house.file("Beispiel.mdb")); // the start makes a filled one
    }

    int offered(int from, int to) {
        return static_cast<int>(house.stay({.Zimmernummer = room,
                                            .Von = day(from, 6),
                                            .Bis = day(to, 6),
                                            .Kürzel = "Anfrage",
                                            .Belegungsart = offer}));
    }
    void inBlock(int id) {
        auto rows = house.db().OpenRecordset("tbBlockbuchung");
        store::addRow(rows, {{"IDBlockbuchung", 1}, {"IDBelegung", id}});
    }
    /// A table of rooms from before guests and prices were kept in it.
    void oldRooms(std::initializer_list<const char*> fields) {
        jet::Database source = house.open("Herbergo.mdb");
        source.DeleteTableDef("tbZimmernummern");
        jet::TableDef rooms;
        rooms.Name = "tbZimmernummern";
        rooms.Fields = {jet::CreateField("Zimmernummer", jet::FieldType::Integer),
                        jet::CreateField("NeueNummer", jet::FieldType::Text, 50)};
        for (const char* field : fields)
            rooms.Fields.push_back(std::string_view(field).starts_with("Zusatz")
                                       ? jet::CreateField(field, jet::FieldType::Integer)
                                       : jet::CreateField(field, jet::FieldType::Text, 50));
        source.AppendTableDef(rooms);
        source.Execute("INSERT INTO tbZimmernummern (Zimmernummer, NeueNummer) VALUES (1, 'Turmzimmer')");
    }
    void load() {
        ASSERT_EQ(start::Main(desk.g), start::Weg::Plan);
        auto plan = loadPlan(desk.g);
        ASSERT_EQ(plan.result, Ladeergebnis::Fertig);
        ASSERT_NE(plan.window, nullptr) << plan.failure;
        desk.show(std::move(plan.window));
    }
    [[nodiscard]] int waitingLine() const { return desk.plan->grid().Wartezeile(); }
    [[nodiscard]] bool waits() { return house.value("SELECT Gelöscht FROM tblBelegung").boolOr(); }

    support::TestHouse house;
    support::ScriptedDialogs dialogs;
    FrontDesk desk{house, dialogs};
};

TEST_F(PlanOfAStart, OffersOfTomorrowStayWhereTheyAreUnasked) {
    const int id = offered(16, 18);
    load();
    EXPECT_EQ(desk.stay(room, 16), id);
    EXPECT_TRUE(dialogs.asked().empty());
}

TEST_F(PlanOfAStart, OffersPastDueStayWhenTheUserSeesToThem) {
    const int id = offered(14, 18);
    dialogs.press(MsgResult::No);
    load();
    EXPECT_EQ(desk.stay(room, 15), id);
    EXPECT_FALSE(waits());
}

TEST_F(PlanOfAStart, OffersPastDueComeUpInTheWaitingRow) {
    const int id = offered(14, 18);
    dialogs.press(MsgResult::Yes);
    load();
    EXPECT_EQ(dialogs.last().title, "Angebotskonflikte");
    EXPECT_TRUE(waits());
    EXPECT_EQ(desk.stay(room, 15), 0);
    EXPECT_EQ(desk.stay(waitingLine(), 15), id);
    const auto offered = desk.picture(waitingLine(), 16);
    const auto free = desk.picture(room, 16);
    house.db().Execute("DELETE * FROM tblBelegung");
    hand::click(find<QPushButton>(desk.plan->window(), "cmdAktualisieren"));
    EXPECT_NE(desk.picture(waitingLine(), 16), offered);
    EXPECT_EQ(desk.picture(room, 16), free);
}

TEST_F(PlanOfAStart, OffersPastDueOfABlockAreGoneFromPlanAndFiles) {
    inBlock(offered(14, 18));
    dialogs.press(MsgResult::Yes);
    dialogs.press(MsgResult::OK);
    load();
    EXPECT_EQ(house.count("tblBelegung"), 0);
    EXPECT_EQ(desk.stay(room, 15), 0);
    EXPECT_EQ(desk.stay(waitingLine(), 15), 0);
}

TEST_F(PlanOfAStart, MovedOfferIsOpenedFromTheWaitingRow) {
    offered(14, 18);
    dialogs.press(MsgResult::Yes);
    load();
    InWindow opened("frmReservierung", [](QWidget& window) {
        EXPECT_EQ(window.windowTitle(),
                  QStringLiteral("Warteposition für den 15.06.2026 (1 vorläufige Reservierungen)"));
        hand::key(window, Qt::Key_Escape);
    });
    desk.chooseOn(waitingLine(), 15, "&Reservierung öffnen");
    opened.wait();
}

TEST_F(PlanOfAStart, HouseWithoutTheFieldsOfItsRoomsShowsNoPlanAndSaysWhy) {
    oldRooms({});
    ASSERT_EQ(start::Main(desk.g), start::Weg::Plan);
    dialogs.acknowledge();
    EXPECT_EQ(runPlan(desk.g, desk.windows), Next::End);
    EXPECT_NE(dialogs.last().text.find("Zusatz1"), std::string::npos) << dialogs.last().text;
}

TEST_F(PlanOfAStart, OlderHouseShowsItsRoomsOnceTheirLaterFieldsAreAdded) {
    oldRooms({"Zusatz1", "Zusatz2", "Raucher", "Bemerkungen"});
    load();
    EXPECT_EQ(desk.plan->form().Fehler(), "");
    EXPECT_EQ(desk.plan->grid().Zimmername(room), "Turmzimmer");
}

// The run

TEST_F(PlanOfAStart, RunEndsWithItsWindow) {
    ASSERT_EQ(start::Main(desk.g), start::Weg::Plan);
    const InWindow working("frmMain", [](QWidget& window) { hand::chooseFromBar(window, "mnuBeenden"); });
    EXPECT_EQ(runPlan(desk.g, desk.windows), Next::End);
    EXPECT_FALSE(desk.g.FormularGeladen);
}

TEST_F(PlanOfAStart, RunGoesOnWithTheSampleDataAndComesBack) {
    ASSERT_EQ(start::Main(desk.g), start::Weg::Plan);
    for (const bool sample : {false, true}) {
        const InWindow working("frmMain", [&](QWidget& window) {
            EXPECT_EQ(find<QLabel>(window, "lblBeispieldaten").isVisible(), sample);
            hand::chooseFromBar(window, "mnuBeispieldaten");
        });
        EXPECT_EQ(runPlan(desk.g, desk.windows), Next::LoadAgain);
    }
    const InWindow working("frmMain", [](QWidget& window) {
        EXPECT_FALSE(find<QLabel>(window, "lblBeispieldaten").isVisible());
        window.close();
    });
    EXPECT_EQ(runPlan(desk.g, desk.windows), Next::End);
}

} // namespace
} // namespace app
