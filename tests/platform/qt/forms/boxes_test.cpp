#include "platform/qt/forms/bound_window.h"

#include "platform/qt/date_box.h"
#include "platform/qt/menu_view.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QToolButton>

namespace qt {
namespace {

using services::Key;
using services::Leave;

// Completion

struct ManyGuests : services::MatchSource {
    mutable std::size_t greatestLimit = 0;
    std::vector<services::Match> matches(std::string_view typed, std::size_t limit) const override {
        greatestLimit = std::max(greatestLimit, limit);
        std::vector<services::Match> found;
        for (std::int64_t id = 1; id <= 50'000 && found.size() < limit; ++id)
            if (const auto name = "Gast " + std::to_string(id); name.starts_with(typed)) found.push_back({id, name});
        return found;
    }
};

struct MatchWindow : Window {
    ManyGuests guests;
    services::MatchBox guest;
    QLineEdit& edit = add<QLineEdit>();
    QLineEdit& other = add<QLineEdit>();
    services::TextBox otherText;
    std::vector<std::string> events;

    MatchWindow() {
        guest.Source = &guests;
        edit.setObjectName(QStringLiteral("cboGast"));
        binding.bind(edit, guest,
                     {.change = [this] { events.push_back("change " + guest.Text); },
                      .choose =
                          [this](std::int64_t id) {
                              events.push_back("choose " + std::to_string(id));
                              guest.Text = "Nummer " + std::to_string(id);
                          },
                      .leave =
                          [this] {
                              events.emplace_back("leave");
                              return Leave::Go;
                          }});
        binding.bind(other, otherText);
        open(edit);
    }
    [[nodiscard]] QAbstractItemView* list() const {
        for (auto* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == QStringLiteral("cboGastListe") && widget->isVisible())
                return qobject_cast<QAbstractItemView*>(widget);
        return nullptr;
    }
};

TEST(BoundMatches, AreFewHoweverLongTheListIs) {
    MatchWindow w;
    QTest::keyClicks(&w.edit, QStringLiteral("Gast 4"));
    ASSERT_NE(w.list(), nullptr);
    EXPECT_EQ(w.list()->model()->rowCount(), 30);
    EXPECT_LE(w.guests.greatestLimit, 30U);
    QTest::keyClicks(&w.edit, QStringLiteral("711"));
    ASSERT_NE(w.list(), nullptr);
    EXPECT_EQ(w.list()->model()->rowCount(), 11); // 4711 and 47110 to 47119
    QTest::keyClicks(&w.edit, QStringLiteral("x"));
    EXPECT_EQ(w.list(), nullptr);
    EXPECT_EQ(w.guest.Text, "Gast 4711x");
}

TEST(BoundMatches, OnlyAChoiceChoosesAndTypingTakesItBack) {
    MatchWindow w;
    QTest::keyClicks(&w.edit, QStringLiteral("Gast 4711"));
    w.events.clear();
    ASSERT_NE(w.list(), nullptr);
    QTest::keyClick(w.list(), Qt::Key_Down);
    QTest::keyClick(w.list(), Qt::Key_Down);
    EXPECT_EQ(w.edit.text(), QStringLiteral("Gast 4711")); // passing an entry is no choice
    QTest::keyClick(w.list(), Qt::Key_Escape);
    EXPECT_TRUE(w.events.empty());
    EXPECT_TRUE(w.isVisible());

    QTest::keyClick(&w.edit, Qt::Key_Down);
    ASSERT_NE(w.list(), nullptr);
    QTest::keyClick(w.list(), Qt::Key_Down);
    QTest::keyClick(w.list(), Qt::Key_Down);
    QTest::keyClick(w.list(), Qt::Key_Return);
    EXPECT_EQ(w.events, std::vector<std::string>{"choose 47110"});
    EXPECT_EQ(w.edit.text(), QStringLiteral("Nummer 47110"));
    EXPECT_EQ(w.guest.Chosen, 47110);
    EXPECT_EQ(w.list(), nullptr);
    QTest::keyClick(&w.edit, Qt::Key_Backspace);
    EXPECT_EQ(w.guest.Chosen, 0);
    w.other.setFocus();
    EXPECT_EQ(w.events.back(), "leave");
}

TEST(BoundMatches, GoingOnChoosesNothingThatTheUserHasNotMarked) {
    for (const auto key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        MatchWindow w;
        QTest::keyClicks(&w.edit, QStringLiteral("Gast 4711"));
        ASSERT_NE(w.list(), nullptr);
        QTest::keyClick(w.list(), key);
        EXPECT_EQ(w.list(), nullptr);
        EXPECT_EQ(w.guest.Chosen, 0);
        EXPECT_EQ(w.guest.Text, "Gast 4711");
    }
}

TEST(BoundMatches, WithoutAListItIsAPlainBox) {
    MatchWindow w;
    w.guest.Source = nullptr;
    QTest::keyClicks(&w.edit, QStringLiteral("Gast"));
    EXPECT_EQ(w.list(), nullptr);
    QTest::keyClick(&w.edit, Qt::Key_Down);
    EXPECT_EQ(w.list(), nullptr);
    EXPECT_EQ(w.guest.Text, "Gast");
}

// Dates

struct DateWindow : Window {
    services::TextBox day;
    DateBox& box = add<DateBox>(QStringLiteral("fldVon"));
    std::vector<std::string> events;

    DateWindow() {
        day.Text = "14.6.26";
        bindDate(binding, box, day,
                 {.change = [this] { events.push_back("change " + day.Text); },
                  .leave =
                      [this] {
                          events.emplace_back("leave");
                          return Leave::Stay;
                      },
                  .key =
                      [this](Key key) {
                          events.emplace_back(key == Key::Plus ? "plus" : "other");
                          return key == Key::Plus;
                      }});
        open(box);
    }
    QCalendarWidget& calendar() { return *box.findChild<QCalendarWidget*>(QStringLiteral("fldVonKalender")); }
};

TEST(DateBox, PickingADayTypesItAndLeaves) {
    DateWindow w;
    QTest::keyClick(&w.box.edit(), Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(w.calendar().isVisible());
    EXPECT_EQ(w.calendar().selectedDate(), QDate(2026, 6, 14));
    EXPECT_EQ(w.calendar().firstDayOfWeek(), Qt::Monday);
    EXPECT_TRUE(w.events.empty()); // the calendar is part of the field
    auto* days = w.calendar().findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview"));
    ASSERT_NE(days, nullptr);
    QTest::keyClick(days, Qt::Key_Right);
    QTest::keyClick(days, Qt::Key_Return);
    EXPECT_FALSE(w.calendar().isVisible());
    EXPECT_EQ(w.events, (std::vector<std::string>{"change 15.06.2026", "leave"}));
    EXPECT_EQ(w.box.edit().text(), QStringLiteral("15.06.2026"));
    EXPECT_TRUE(w.box.edit().hasFocus());
}

TEST(DateBox, EmptyOneOpensItsCalendarBehindTheDayBefore) {
    DateWindow w;
    services::TextBox departure;
    auto& later = w.add<DateBox>(QStringLiteral("fldBis"));
    bindDate(w.binding, later, departure, {});
    later.comesAfter(w.box);
    w.binding.refresh();
    const auto* calendar = later.findChild<QCalendarWidget*>();
    for (const auto& [stands, shown] : {std::pair("", QDate(2026, 6, 15)), {"20.6.26", QDate(2026, 6, 20)}}) {
        departure.Text = stands;
        w.binding.refresh();
        QTest::keyClick(&later.edit(), Qt::Key_Down, Qt::AltModifier);
        EXPECT_EQ(calendar->selectedDate(), shown);
        QTest::keyClick(later.findChild<QCalendarWidget*>(), Qt::Key_Escape);
    }
}

TEST(DateBox, EscapeInTheCalendarChangesNothing) {
    DateWindow w;
    for (const auto* nonsense : {"", "31.02.2026", "abc"}) {
        w.day.Text = nonsense;
        w.binding.refresh();
        QTest::mouseClick(w.box.findChild<QToolButton*>(), Qt::LeftButton);
        ASSERT_TRUE(w.calendar().isVisible()) << nonsense;
        EXPECT_EQ(w.calendar().selectedDate(), QDate::currentDate());
        QTest::keyClick(&w.calendar(), Qt::Key_Escape);
        EXPECT_FALSE(w.calendar().isVisible());
    }
    EXPECT_TRUE(w.events.empty());
    EXPECT_EQ(w.day.Text, "abc");
}

TEST(DateBox, SignsMoveTheDayAndALockedDayHasNoCalendar) {
    DateWindow w;
    QTest::keyClick(&w.box.edit(), '+');
    EXPECT_EQ(w.events, std::vector<std::string>{"plus"});
    EXPECT_EQ(w.day.Text, "14.6.26");
    w.day.Enabled = false;
    w.binding.refresh();
    EXPECT_FALSE(w.box.findChild<QToolButton*>()->isEnabled());
}

// Menus

TEST(MenuView, ShowsSubmenusAndTheirStates) {
    using services::MenuEntry;
    services::Menu menu;
    menu.Entries = {
        {.Name = "mnuDatei",
         .Caption = "&Datei",
         .Entries = {{.Name = "mnuMehr",
                      .Caption = "&Mehr",
                      .Entries = {{.Name = "mnuEins", .Caption = "&Eins"}, {.Name = "mnuZwei", .Caption = "&Zwei"}}},
                     {.Name = "mnuEnde", .Caption = "&Ende"}}}};
    std::vector<std::string> chosen;
    MenuView view(menu, [&](const std::string& name) { chosen.push_back(name); });
    QWidget owner;
    view.bar()->setParent(&owner);
    const auto action = [&](const char* name) { return view.bar()->findChild<QAction*>(QString::fromLatin1(name)); };
    action("mnuZwei")->trigger();
    action("mnuEnde")->trigger();
    EXPECT_EQ(chosen, (std::vector<std::string>{"mnuZwei", "mnuEnde"}));
    menu.find("mnuZwei")->Checked = true;
    menu.find("mnuEnde")->Enabled = false;
    menu.find("mnuEins")->Caption = "&Brief";
    view.refresh(menu);
    EXPECT_TRUE(action("mnuZwei")->isChecked());
    EXPECT_FALSE(action("mnuEnde")->isEnabled());
    EXPECT_EQ(action("mnuEins")->text(), QStringLiteral("&Brief"));
}

} // namespace
} // namespace qt
