#include "app/forms/front_desk.h"
#include "platform/qt/dialogs.h"
#include "support/scripted_dialogs.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace app {
namespace {

using services::MsgResult;
using support::day;

constexpr auto form = "frmReservierung";

void press(QWidget& window, const char* button) { hand::click(find<QPushButton>(window, button)); }

/// A house of three rooms with its plan open.
template <typename Dialogs>
struct OpenHouse {
    OpenHouse() {
        house.rooms(3);
        guest = house.guest({.LastName = "Meier", .FirstName = "Eva", .Country = "Deutschland"});
    }
    int stay(int room, int from, int to) {
        return static_cast<int>(
            house.stay({.Zimmernummer = room, .Von = day(from, 6), .Bis = day(to, 6), .GastID = guest}));
    }
    [[nodiscard]] basic::Value field(const std::string& name) {
        return house.value("SELECT " + name + " FROM tblBelegung");
    }

    support::TestHouse house;
    std::int64_t guest = 0;
    Dialogs dialogs;
    FrontDesk desk{house, dialogs};
};

using ScriptedHouse = OpenHouse<support::ScriptedDialogs>;
using RealHouse = OpenHouse<qt::QtDialogs>;

// With the mouse from an empty plan to an empty plan

TEST(StayOnThePlan, GivenUpFormLeavesNoTrace) {
    ScriptedHouse h;
    h.desk.open();
    const auto before = h.desk.picture(1, 18);
    h.desk.chooseType("optBelArt2");
    InWindow given(form, [&](QWidget& window) {
        EXPECT_NE(h.desk.picture(1, 18), before) << "the drawn stay stays in sight";
        hand::type(window, "Neumann");
        press(window, "cmdAbbrechen");
    });
    h.desk.draw(1, 17, 20);
    h.desk.release(1, 20);
    given.wait();
    EXPECT_EQ(h.desk.picture(1, 18), before);
    EXPECT_EQ(h.house.count("tblBelegung"), 0);
    EXPECT_EQ(h.house.count("Address"), 1);
}

TEST(StayOnThePlan, IsStoredWhileItsFormIsStillOpen) {
    ScriptedHouse h;
    h.desk.open();
    const auto before = h.desk.picture(1, 18);
    h.desk.chooseType("optBelArt2");
    InWindow stored(form, [&](QWidget& window) {
        hand::type(window, "Neumann");
        h.dialogs.press(MsgResult::OK); // a new address
        press(window, "cmdReservieren");
        EXPECT_TRUE(window.isVisible());
        EXPECT_GT(h.desk.stay(1, 17), 0);
        EXPECT_EQ(h.desk.stay(1, 19), 0) << "the departure day";
        hand::key(window, Qt::Key_Escape);
    });
    h.desk.draw(1, 17, 19);
    h.desk.release(1, 19);
    stored.wait();
    EXPECT_NE(h.desk.picture(1, 18), before);
    EXPECT_EQ(h.field("Von").dateOr(), day(17, 6));
    EXPECT_EQ(h.field("Bis").dateOr(), day(19, 6));
    EXPECT_EQ(h.field("Belegungsart").longOr(), 2);
    EXPECT_EQ(h.field("Kürzel").textOr(), "Neuman17_06-19_06");
}

TEST(StayOnThePlan, GoesInAndOutAndAwayByItsMenu) {
    ScriptedHouse h;
    h.desk.open();
    const auto before = h.desk.picture(2, 18);
    const int id = h.stay(2, 17, 20);
    press(h.desk.plan->window(), "cmdAktualisieren");
    ASSERT_EQ(h.desk.stay(2, 18), id);

    h.desk.chooseOn(2, 18, "Check &in");
    EXPECT_TRUE(QTest::qWaitFor([&] { return h.desk.look(2, 18).Rahmen == 3; }));
    EXPECT_TRUE(h.field("Checked").boolOr());
    h.desk.chooseOn(2, 18, "Check &out");
    EXPECT_TRUE(QTest::qWaitFor([&] { return h.desk.look(2, 18).Rahmen == 1; }));
    EXPECT_FALSE(h.field("Checked").boolOr(true));

    InWindow deleted(form, [&](QWidget& window) {
        EXPECT_EQ(find<QLineEdit>(window, "fldVon").text(), QStringLiteral("17.06.2026"));
        h.dialogs.press(MsgResult::Yes);
        press(window, "cmdL_schen");
    });
    h.desk.chooseOn(2, 18, "&Reservierung öffnen");
    deleted.wait();
    EXPECT_EQ(h.house.count("tblBelegung"), 0);
    EXPECT_EQ(h.desk.stay(2, 18), 0);
    EXPECT_EQ(h.desk.picture(2, 18), before);
}

TEST(StayOnThePlan, OneOfTwoInTheSameRoomIsChosenFirst) {
    ScriptedHouse h;
    h.stay(2, 17, 20);
    h.stay(2, 18, 21);
    h.desk.open();
    InWindow given("frmZimmerauswahl", [](QWidget& window) { hand::key(window, Qt::Key_Escape); });
    hand::click(h.desk.widget(), h.desk.at(2, 19), Qt::RightButton);
    given.wait();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);

    InWindow chosen("frmZimmerauswahl", [](QWidget& window) {
        auto& list = find<QListWidget>(window, "lstReservierungen");
        hand::click(*list.viewport(), list.visualItemRect(list.item(1)).center());
        press(window, "cmdAuswählen");
    });
    InWindow opened(form, [](QWidget& window) {
        EXPECT_EQ(find<QLineEdit>(window, "fldVon").text(), QStringLiteral("18.06.2026"));
        hand::key(window, Qt::Key_Escape);
    });
    h.desk.chooseOn(2, 19, "&Reservierung öffnen");
    chosen.wait();
    opened.wait();
}

TEST(StayOnThePlan, OnlyTheFrontWindowTakesTheMouse) {
    ScriptedHouse h;
    h.stay(2, 17, 20);
    h.desk.open();
    h.desk.chooseType("optBelArt2");
    InWindow opened(form, [&](QWidget& window) {
        h.desk.draw(1, 17, 19);
        h.desk.release(1, 19);
        hand::click(h.desk.widget(), h.desk.at(2, 18), Qt::RightButton);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_FALSE(h.desk.plan->form().AuswahlAktiv());
        hand::key(window, Qt::Key_Escape);
    });
    h.desk.chooseOn(2, 18, "&Reservierung öffnen");
    opened.wait();
}

// Boxes as the user sees them

TEST(BoxOnTheForm, ButtonThatIsPressedIsTheAnswer) {
    RealHouse h;
    h.stay(2, 17, 20);
    h.desk.open();
    const auto answer = [&](QWidget& window, QMessageBox::StandardButton button) {
        InWindow asked("QMessageBox", [&](QWidget& box) {
            auto& question = dynamic_cast<QMessageBox&>(box);
            EXPECT_EQ(question.text(), QStringLiteral("Soll die aktuelle Reservierung gelöscht werden?"));
            EXPECT_EQ(question.defaultButton(), question.button(QMessageBox::No));
            hand::click(*question.button(button));
        });
        press(window, "cmdL_schen");
        asked.wait();
    };
    InWindow opened(form, [&](QWidget& window) {
        answer(window, QMessageBox::No);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(h.house.count("tblBelegung"), 1);
        answer(window, QMessageBox::Yes);
    });
    h.desk.chooseOn(2, 18, "&Reservierung öffnen");
    opened.wait();
    EXPECT_EQ(h.house.count("tblBelegung"), 0);
    EXPECT_EQ(h.desk.stay(2, 18), 0);
}

TEST(BoxOnTheForm, ChangesThatAreNotStoredKeepTheFormOpen) {
    RealHouse h;
    h.stay(2, 17, 20);
    h.desk.open();
    const auto escape = [&](QWidget& window, QMessageBox::StandardButton button) {
        InWindow asked("QMessageBox",
                       [&](QWidget& box) { hand::click(*dynamic_cast<QMessageBox&>(box).button(button)); });
        hand::key(window, Qt::Key_Escape);
        asked.wait();
    };
    InWindow opened(form, [&](QWidget& window) {
        auto& children = find<QLineEdit>(window, "txtAnz_Kinder");
        hand::click(children);
        children.selectAll();
        hand::type(window, "3");
        escape(window, QMessageBox::Cancel);
        EXPECT_TRUE(window.isVisible());
        escape(window, QMessageBox::Yes);
    });
    h.desk.chooseOn(2, 18, "&Reservierung öffnen");
    opened.wait();
    EXPECT_EQ(h.field("Anz_Kinder").longOr(), 3);
}

} // namespace
} // namespace app
