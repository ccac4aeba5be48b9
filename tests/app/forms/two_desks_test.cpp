#include "app/forms/front_desk.h"
#include "platform/qt/dialogs.h"
#include "reservations/reservation_form.h"
#include "support/scripted_dialogs.h"
#include "support/station.h"
#include "support/workstation.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <sstream>

namespace app {
namespace {

using services::MsgResult;
using support::day;

constexpr auto form = "frmReservierung";
constexpr auto guest = 1;

/// Ticks of the timer of which at least one refreshes.
constexpr int someMinutes = 6;

bool save(support::Workstation& station, addresses::Adressliste& guests, const std::string& line) {
    std::istringstream words(line);
    int room = 0;
    int from = 0;
    int to = 0;
    words >> room >> from >> to;
    reservations::frmReservierung stay(station.g, {.adressen = guests},
                                       {.Zimmernummer = room, .Von = day(from, 6), .Bis = day(to, 6), .Art = 1});
    stay.adresse.cboAdresse_Click(guest);
    return stay.Reserv();
}

constexpr auto deleteAll = "delete";

/// What the other desk does: a stay for each line that it hears, or the end of all of them.
void saveStays(const support::TempFolder& own, const std::string& linkFile, support::Channel& channel) {
    support::Workstation station(own, linkFile);
    addresses::Adressliste guests(station.g.dbHaupt);
    channel.say("ready");
    while (const auto line = channel.hear()) {
        if (*line == deleteAll) station.g.dbHaupt.Execute("DELETE * FROM tblBelegung");
        channel.say(*line == deleteAll ? "deleted" : save(station, guests, *line) ? "saved" : "refused");
    }
}

/// A house of eight rooms, four of them in sight, and two desks: this process with its windows, and another one.
class TwoDesks : public testing::Test {
protected:
    TwoDesks() {
        house.rooms(8);
        house.parameter("Räumlichkeiten", {"8", "4"});
        EXPECT_EQ(house.guest({.LastName = "Krause", .Country = "Deutschland"}), guest);
        house.db().Close(); // a process must not take over the files that another one has open
        other.emplace([this](support::Channel& channel) { saveStays(folder, house.file("Lokal.mdb"), channel); });
        EXPECT_EQ(other->channel().hear(), "ready");
        house.db() = house.open("Lokal.mdb");
        desk.open();
    }
    void otherSaves(int room, int from, int to) {
        other->channel().say(std::to_string(room) + " " + std::to_string(from) + " " + std::to_string(to));
        ASSERT_EQ(other->channel().hear(), "saved");
    }
    [[nodiscard]] QScrollBar& scrollBar() const { return find<QScrollBar>(desk.plan->window(), "scrollBar"); }

    support::TestHouse house;
    support::TempFolder folder{support::TempFolder::Place::Memory};
    std::optional<support::Station> other;
    support::ScriptedDialogs dialogs;
    FrontDesk desk{house, dialogs};
};

TEST_F(TwoDesks, StayOfTheOtherComesUnderAHalfDrawnOne) {
    scrollBar().setValue(2);
    desk.chooseType("optBelArt2");
    desk.draw(1, 20, 22);
    otherSaves(5, 17, 19);
    desk.minutes(someMinutes);
    EXPECT_GT(desk.stay(3, 17), 0);
    EXPECT_EQ(desk.plan->grid().ErsteZeile(), 3);
    EXPECT_EQ(scrollBar().value(), 2);
    ASSERT_TRUE(desk.plan->form().AuswahlAktiv());
    InWindow opened(form, [&](QWidget& window) {
        EXPECT_EQ(find<QLineEdit>(window, "fldVon").text(), QStringLiteral("20.06.2026"));
        EXPECT_EQ(find<QLineEdit>(window, "fldBis").text(), QStringLiteral("24.06.2026"));
        EXPECT_EQ(find<QComboBox>(window, "fldZimmer").currentText(), QStringLiteral("Zimmer 3"));
        hand::key(window, Qt::Key_Escape);
    });
    hand::moveTo(desk.widget(), desk.at(1, 23));
    hand::moveTo(desk.widget(), desk.at(1, 24));
    desk.release(1, 24);
    opened.wait();
}

TEST_F(TwoDesks, ButtonShowsWhatTheOtherWroteAndKeepsPlaceAndType) {
    scrollBar().setValue(1);
    desk.chooseType("optBelArt3");
    hand::click(find<QPushButton>(desk.plan->window(), "cmdNextDay"));
    otherSaves(4, 17, 19);
    EXPECT_EQ(desk.stay(3, 16), 0);
    hand::click(find<QPushButton>(desk.plan->window(), "cmdAktualisieren"));
    EXPECT_GT(desk.stay(3, 16), 0) << "the plan has moved on by a day";
    EXPECT_EQ(desk.plan->grid().PlanStart(), day(14, 6));
    EXPECT_EQ(scrollBar().value(), 1);
    EXPECT_EQ(desk.plan->form().AuswahlArt, 3);
}

TEST_F(TwoDesks, RoomThatTheOtherTookMeanwhileIsNotGivenTwice) {
    desk.chooseType("optBelArt2");
    InWindow opened(form, [&](QWidget& window) {
        hand::type(window, "Neumann");
        otherSaves(2, 18, 21);
        InWindow collision("frmCollision", [](QWidget& box) { hand::click(find<QPushButton>(box, "cmdÄndern")); });
        dialogs.press(MsgResult::OK); // a new address
        dialogs.acknowledge(2);       // the overlap, and that nothing was stored
        hand::click(find<QPushButton>(window, "cmdZu"));
        collision.wait();
        EXPECT_TRUE(window.isVisible());
        hand::click(find<QPushButton>(window, "cmdAbbrechen"));
    });
    desk.draw(2, 17, 20);
    desk.release(2, 20);
    opened.wait();
    EXPECT_EQ(house.count("tblBelegung"), 1);
    EXPECT_EQ(desk.stay(2, 17), 0);
    EXPECT_GT(desk.stay(2, 18), 0);
}

TEST_F(TwoDesks, StayThatTheOtherDeletedIsNotOpened) {
    otherSaves(2, 17, 20);
    desk.minutes(someMinutes);
    ASSERT_GT(desk.stay(2, 18), 0);
    other->channel().say(deleteAll);
    ASSERT_EQ(other->channel().hear(), "deleted");
    hand::click(desk.widget(), desk.at(2, 18), Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(desk.stay(2, 18), 0);
}

TEST_F(TwoDesks, TimedRefreshWaitsForTheFormAndComesAfterIt) {
    otherSaves(1, 14, 16);
    desk.minutes(someMinutes);
    const int first = desk.stay(1, 15);
    InWindow opened(form, [&](QWidget& window) {
        otherSaves(3, 17, 19);
        desk.minutes(someMinutes);
        EXPECT_EQ(desk.stay(3, 17), 0);
        EXPECT_EQ(desk.stay(1, 15), first);
        hand::key(window, Qt::Key_Escape);
    });
    desk.chooseOn(1, 15, "&Reservierung öffnen");
    opened.wait();
    EXPECT_GT(desk.stay(3, 17), 0);
}

TEST(TimedRefresh, WaitsForABoxAndFollowsAtItsEnd) {
    support::TestHouse house;
    house.rooms(3);
    qt::QtDialogs dialogs;
    FrontDesk desk(house, dialogs);
    desk.open();
    InWindow told("QMessageBox", [&](QWidget& box) {
        house.stay({.Zimmernummer = 2, .Von = day(17, 6), .Bis = day(19, 6)});
        desk.minutes(someMinutes);
        EXPECT_EQ(desk.stay(2, 17), 0);
        hand::click(*dynamic_cast<QMessageBox&>(box).button(QMessageBox::Ok));
    });
    hand::press(desk.widget(), desk.at(1, 15)); // no type is chosen
    told.wait();
    EXPECT_GT(desk.stay(2, 17), 0);
    desk.release(1, 15);
}

} // namespace
} // namespace app
