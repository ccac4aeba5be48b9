#include "plan/desk.h"
#include "plan/forms/main_window.h"
#include "plan/forms/plan_painter.h"
#include "plan/forms/plan_widget.h"
#include "plan/forms/room_choice_dialog.h"
#include "platform/qt/look.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>

namespace plan {
namespace {

using support::day;

/// The main window on a house with data files.
struct Front {
    explicit Front(Tisch::Größe größe = {}, const std::function<void(Tisch&)>& prepare = {}) : tisch(größe) {
        if (prepare) prepare(tisch);
        window = std::make_unique<MainWindow>(tisch.form());
        window->resize(900, 480);
        window->show();
        window->activateWindow();
        QTest::qWait(0);
    }
    template <typename T>
    [[nodiscard]] T& find(const char* name) {
        auto* widget = window->findChild<T*>(QString::fromUtf8(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    [[nodiscard]] PlanWidget& plan() { return *static_cast<PlanWidget*>(&find<QWidget>("plan")); }
    [[nodiscard]] QPoint at(int zeile, int spalte) { return plan().places().cell(zeile, spalte).center(); }
    [[nodiscard]] QColor pixel(int zeile, int spalte) { return plan().grab().toImage().pixelColor(at(zeile, spalte)); }

    void press(QPoint point, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&plan(), button, Qt::NoModifier, point);
    }
    /// The pointer goes there with the left button held.
    void drag(QPoint point, Qt::MouseButtons held = Qt::LeftButton) {
        QMouseEvent move(QEvent::MouseMove, point, plan().mapToGlobal(point), Qt::NoButton, held, {});
        QApplication::sendEvent(&plan(), &move);
    }
    void release(QPoint point) { QTest::mouseRelease(&plan(), Qt::LeftButton, Qt::NoModifier, point); }
    void key(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) { QTest::keyClick(&plan(), key, with); }

    /// The context menu that is open.
    [[nodiscard]] QMenu* menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    void choose(const char* name) {
        auto* list = menu();
        ASSERT_NE(list, nullptr);
        auto* entry = list->findChild<QAction*>(QString::fromUtf8(name));
        ASSERT_NE(entry, nullptr) << name;
        list->setActiveAction(entry);
        QTest::keyClick(list, Qt::Key_Return);
        QTest::qWait(0);
    }

    Tisch tisch;
    std::unique_ptr<MainWindow> window;
};

void einAufenthalt(Tisch& t) {
    t.house.stay({.Zimmernummer = 2,
                  .Von = day(15, 6),
                  .Bis = day(18, 6),
                  .GastID = t.house.guest({.LastName = "Wübben <b>", .FirstName = "Hanna", .City = "Emden"}),
                  .Belegungsart = 2});
}

TEST(PlanMouse, DrawnStayIsPaintedAndHandedToItsForm) {
    Front w;
    QTest::mouseClick(&w.find<QRadioButton>("optBelArt2"), Qt::LeftButton);
    const auto free = w.pixel(1, 8);
    w.press(w.at(1, 5));
    w.drag(w.at(1, 6));
    w.drag(w.at(1, 8));
    EXPECT_EQ(w.pixel(1, 5), colour(Auswahlgelb));
    EXPECT_EQ(w.pixel(1, 8), colour(Auswahlgelb));
    w.drag(w.at(1, 7));
    EXPECT_EQ(w.pixel(1, 8), free);
    EXPECT_EQ(w.find<QLabel>("fldDatum").text(), QStringLiteral("19.06.26"));
    w.tisch.imFormular = [&] { w.tisch.house.stay({.Von = day(17, 6), .Bis = day(19, 6), .Belegungsart = 2}); };
    w.release(w.at(1, 7));
    ASSERT_EQ(w.tisch.anfragen.size(), 1U);
    EXPECT_EQ(w.tisch.anfragen[0].Von, day(17, 6));
    EXPECT_EQ(w.tisch.anfragen[0].Bis, day(19, 6));
    EXPECT_EQ(w.tisch.anfragen[0].Zimmernummer, 1);
    EXPECT_NE(w.pixel(1, 6), free) << "the bar of what was stored";
    EXPECT_EQ(w.pixel(1, 7), colour(w.tisch.raster().FreieFarbe(7))) << "the departure day";
}

TEST(PlanMouse, OnlyTheDrawnCellsArePaintedAnew) {
    Front w;
    QTest::mouseClick(&w.find<QRadioButton>("optBelArt2"), Qt::LeftButton);
    w.press(w.at(1, 5));
    w.drag(w.at(1, 6));
    QTest::qWait(0);
    struct Spy : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
        QRegion region;
    } spy;
    w.plan().installEventFilter(&spy);
    w.drag(w.at(1, 9));
    QTest::qWait(20);
    EXPECT_TRUE(spy.region.contains(w.at(1, 9)));
    EXPECT_FALSE(spy.region.contains(w.at(3, 9)));
    w.plan().removeEventFilter(&spy);
}

TEST(PlanMouse, EscapeAndBusyCellsLeaveThePlanAsItWas) {
    Front w({}, einAufenthalt);
    QTest::mouseClick(&w.find<QRadioButton>("optBelArt2"), Qt::LeftButton);
    const auto before = w.plan().grab().toImage();
    w.press(w.at(1, 5));
    w.drag(w.at(1, 8));
    w.key(Qt::Key_Escape);
    w.release(w.at(1, 8));
    w.tisch.dialogs.acknowledge();
    w.press(w.at(2, 4));
    w.release(w.at(2, 4));
    EXPECT_TRUE(w.tisch.anfragen.empty());
    w.drag(w.plan().places().room(2).center());
    EXPECT_EQ(w.plan().grab().toImage(), before);
}

TEST(PlanMouse, HeldAtTheEdgeThePlanGoesOn) {
    Front w;
    QTest::mouseClick(&w.find<QRadioButton>("optBelArt2"), Qt::LeftButton);
    const auto start = w.tisch.raster().PlanStart();
    w.press(w.at(1, 12));
    w.drag(w.at(1, 14));
    EXPECT_TRUE(QTest::qWaitFor([&] { return w.tisch.raster().PlanStart() >= start + 3; }, 5000));
    w.release(w.at(1, 14));
    ASSERT_EQ(w.tisch.anfragen.size(), 1U);
    EXPECT_EQ(w.tisch.anfragen[0].Von, start + 11);
    EXPECT_GE(w.tisch.anfragen[0].Bis, start + 15);
    const auto after = w.tisch.raster().PlanStart();
    QTest::qWait(300);
    EXPECT_EQ(w.tisch.raster().PlanStart(), after);
}

TEST(PlanMouse, ReleaseThatGoesElsewhereGivesTheDrawnStayUp) {
    for (const bool menuOpens : {true, false}) {
        Front w;
        QTest::mouseClick(&w.find<QRadioButton>("optBelArt2"), Qt::LeftButton);
        const auto free = w.pixel(1, 6);
        w.press(w.at(1, 5));
        w.drag(w.at(1, 8));
        if (menuOpens)
            QTest::keyClick(w.window.get(), Qt::Key_D, Qt::AltModifier);
        else
            w.drag(w.at(2, 9), Qt::NoButton);
        EXPECT_EQ(w.pixel(1, 6), free) << menuOpens;
        EXPECT_EQ(w.menu() != nullptr, menuOpens);
        if (menuOpens) w.menu()->close();
        w.release(w.at(1, 8));
        EXPECT_TRUE(w.tisch.anfragen.empty());
    }
}

TEST(PlanMouse, RightButtonOpensTheStayThroughItsMenu) {
    Front w({}, einAufenthalt);
    w.press(w.at(2, 4), Qt::RightButton);
    ASSERT_NE(w.menu(), nullptr);
    EXPECT_FALSE(w.menu()->findChild<QAction*>(QStringLiteral("mnuCheckOut"))->isVisible());
    EXPECT_FALSE(w.menu()->findChild<QAction*>(QStringLiteral("mnuZahlungen"))->isEnabled());
    w.choose("mnuReservierungÖffnen");
    ASSERT_EQ(w.tisch.anfragen.size(), 1U);
    EXPECT_EQ(w.tisch.anfragen[0].IDs, std::vector<int>{1});
}

TEST(PlanMouse, CheckInWidensTheFrameOfTheBar) {
    Front w({}, einAufenthalt);
    const auto bar = w.plan().places().span(2, 3, 5);
    const auto edge = [&] { return w.plan().grab().toImage().pixelColor(bar.center().x(), bar.top() + 7); };
    const auto before = edge();
    w.press(w.at(2, 4), Qt::RightButton);
    w.choose("mnuCheckIn");
    EXPECT_NE(edge(), before);
    EXPECT_TRUE(w.tisch.house.value("SELECT Checked FROM tblBelegung").boolOr());
}

TEST(PlanMouse, EveryPartHasItsMenu) {
    Front w;
    const auto& places = w.plan().places();
    const auto first = [&](QPoint point) {
        w.press(point, Qt::RightButton);
        auto* list = w.menu();
        const auto name = list == nullptr ? QString() : list->actions().front()->objectName();
        if (list != nullptr) list->close();
        return name;
    };
    EXPECT_EQ(first(w.at(1, 5)), QStringLiteral("mnuSuchen"));
    EXPECT_EQ(first(places.upperDay(3).center()), QStringLiteral("mnuKontextDatenAb"));
    EXPECT_EQ(first(places.lowerDay(3).center()), QStringLiteral("mnuKontextDatenAb"));
    EXPECT_EQ(first(places.room(2).center()), QString::fromUtf8("mnuZimmerÄndern"));
    EXPECT_EQ(first({5, 5}), QString::fromUtf8("mnuZimmerÄndern"));
    auto& frame = w.find<QWidget>("frmBelegungsart");
    QContextMenuEvent event(QContextMenuEvent::Mouse, {frame.width() - 2, 2}, frame.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&frame, &event);
    ASSERT_NE(w.menu(), nullptr);
    EXPECT_EQ(w.menu()->actions().front()->objectName(), QString::fromUtf8("mnuBelArtÄndern"));
    w.menu()->close();
}

TEST(PlanMouse, HeadingsAreRenamedWhereTheyStand) {
    Front w;
    w.tisch.dialogs.type("Gebucht von");
    auto& heading = w.find<QLabel>("lblBelegungsart");
    QContextMenuEvent event(QContextMenuEvent::Mouse, {2, 2}, heading.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&heading, &event);
    EXPECT_EQ(heading.text(), QStringLiteral("Gebucht von"));
    w.tisch.dialogs.type("Wohnung");
    w.press(w.plan().places().roomHeadingWord().center(), Qt::RightButton);
    EXPECT_EQ(w.tisch.raster().Einstellungen().Zimmerspalte, "Wohnung");
}

TEST(PlanMouse, RoomNameOpensItsStayAndWheelsTurnRoomsAndDays) {
    Front w({.zimmer = 8, .sichtbar = 4}, einAufenthalt);
    QTest::mouseClick(&w.plan(), Qt::LeftButton, Qt::NoModifier, w.plan().places().room(2).center());
    EXPECT_EQ(w.tisch.anfragen.size(), 1U);
    const auto turn = [&](Qt::KeyboardModifiers with) {
        QWheelEvent wheel(w.at(2, 2), w.plan().mapToGlobal(w.at(2, 2)), {}, {0, -120}, Qt::NoButton, with,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&w.plan(), &wheel);
    };
    turn(Qt::NoModifier);
    EXPECT_EQ(w.tisch.raster().ErsteZeile(), 2);
    EXPECT_EQ(w.tisch.raster().PlanStart(), day(13, 6));
    turn(Qt::ShiftModifier);
    EXPECT_EQ(w.tisch.raster().ErsteZeile(), 2);
    EXPECT_EQ(w.tisch.raster().PlanStart(), day(14, 6));
}

TEST(PlanMouse, ToolTipOfABarShowsTheGuestsNameAsItIs) {
    Front w({}, einAufenthalt);
    QHelpEvent help(QEvent::ToolTip, w.at(2, 4), w.plan().mapToGlobal(w.at(2, 4)));
    QApplication::sendEvent(&w.plan(), &help);
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&lt;b&gt;, Hanna"))) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

TEST(PlanMouse, PaidStateComesWhenThePointerRests) {
    int asked = 0;
    Front w({}, [&](Tisch& t) {
        einAufenthalt(t);
        t.mehr.istBezahlt = [&](int) {
            ++asked;
            return true;
        };
    });
    QTest::mouseMove(&w.plan(), w.at(2, 4));
    QTest::mouseMove(&w.plan(), w.at(2, 5));
    EXPECT_EQ(asked, 0);
    auto& paid = w.find<QLabel>("cmdBezahlt");
    EXPECT_EQ(paid.text(), QStringLiteral("inaktiv"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return paid.text() == QStringLiteral("Bezahlt"); }, 3000));
    EXPECT_EQ(asked, 1);
}

TEST(PlanMouse, TimerReadsWhatOtherStationsWroteAndKeepsTheScrollBar) {
    Front w({.zimmer = 8, .sichtbar = 4});
    w.find<QScrollBar>("scrollBar").setValue(1);
    const auto free = w.pixel(1, 4);
    einAufenthalt(w.tisch);
    auto& timer = w.find<QTimer>("TimerAktualisieren");
    EXPECT_EQ(timer.interval(), 60000);
    EXPECT_TRUE(timer.isActive());
    timer.setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return w.pixel(1, 4) != free; }, 3000));
    EXPECT_EQ(w.find<QScrollBar>("scrollBar").value(), 1);
}

TEST(PlanKeys, CursorIsSeenAndReachesEverything) {
    Front w({}, einAufenthalt);
    QTest::mouseClick(&w.find<QRadioButton>("optBelArt2"), Qt::LeftButton);
    const auto before = w.plan().grab().toImage();
    w.plan().setFocus();
    w.key(Qt::Key_Right);
    w.key(Qt::Key_Return);
    EXPECT_EQ(w.plan().grab().toImage(), before) << "plain keys do nothing";
    w.find<QScrollBar>("scrollBar").setFocus();
    QTest::keyClick(w.window.get(), Qt::Key_F6);
    EXPECT_EQ(w.window->focusWidget(), &w.plan());
    EXPECT_NE(w.plan().grab().toImage(), before);
    EXPECT_EQ(w.pixel(1, 1), before.pixelColor(w.at(1, 1))) << "only a frame around the cell";
    w.key(Qt::Key_Right);
    w.key(Qt::Key_Right, Qt::ShiftModifier);
    w.key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(w.pixel(1, 3), colour(Auswahlgelb));
    QTest::mouseClick(&w.plan(), Qt::LeftButton, Qt::NoModifier, w.plan().places().upperDay(9).center());
    EXPECT_TRUE(w.tisch.anfragen.empty()) << "a click beside the cells ends no stay that the keys draw";
    w.key(Qt::Key_Return);
    ASSERT_EQ(w.tisch.anfragen.size(), 1U);
    EXPECT_EQ(w.tisch.anfragen[0].Bis, day(16, 6));
    w.key(Qt::Key_Down);
    ASSERT_TRUE(w.find<QLabel>("lblKürzel").isVisible());
    const auto image = w.plan().grab().toImage();
    const auto frame = w.plan().cursorRect();
    EXPECT_EQ(image.pixelColor(frame.left() + 1, frame.center().y()), qt::look::alert) << "not below the short name";
    w.key(Qt::Key_F10, Qt::ShiftModifier);
    w.choose("mnuReservierungÖffnen");
    ASSERT_EQ(w.tisch.anfragen.size(), 2U);
    EXPECT_EQ(w.tisch.anfragen[1].IDs, std::vector<int>{1});
    w.key(Qt::Key_Escape);
    w.find<QWidget>("cmdHeute").setFocus();
    EXPECT_FALSE(w.tisch.form().Cursor().has_value());
}

TEST(RoomChoice, ChosenStayIsTheResultAndEscapeIsNone) {
    const std::vector<Aufenthalt> stays = {{.ID = 7, .Kürzel = "Eins"}, {.ID = 9, .Kürzel = "Zwei"}};
    for (const bool choose : {true, false}) {
        frmZimmerauswahl form(stays, [](int) { return std::string("101"); });
        RoomChoiceDialog dialog(form, QStringLiteral("Herbergo"), nullptr);
        dialog.show();
        auto& list = *dialog.findChild<QListWidget*>(QStringLiteral("lstReservierungen"));
        ASSERT_EQ(list.count(), 2);
        list.setCurrentRow(1);
        if (choose)
            QTest::mouseClick(dialog.findChild<QPushButton*>(QString::fromUtf8("cmdAuswählen")), Qt::LeftButton);
        else
            QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_EQ(form.Ergebnis(), choose ? std::optional(9) : std::nullopt);
        EXPECT_FALSE(dialog.isVisible());
    }
}

} // namespace
} // namespace plan
