#include "plan/forms/main_window.h"

#include "plan/forms/plan_painter.h"
#include "plan/forms/plan_widget.h"
#include "plan/imagined_source.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

namespace plan {
namespace {

constexpr Farbe Gelb = 0x00F0F0;
constexpr Farbe Nachtblau = 0x501000;

PlanEinstellungen Belegfarben() {
    PlanEinstellungen e;
    e.Farben[1] = Gelb;
    e.Farben[2] = Nachtblau;
    return e;
}

struct Window {
    explicit Window(Hausgröße größe = {}, std::vector<Markierung> rows = {}, Umgebung umgebung = {})
        : plan(größe, Belegfarben()), form(plan.raster, plan.clock, std::move(umgebung)) {
        plan.quelle.rows = std::move(rows);
        form.Form_Load();
        window.resize(900, 480);
        window.show();
        QTest::qWait(0);
        window.refresh();
    }

    template <typename T>
    [[nodiscard]] T& find(const char* name) {
        auto* widget = window.findChild<T*>(QString::fromUtf8(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    void press(const char* name) { QTest::mouseClick(&find<QPushButton>(name), Qt::LeftButton); }
    [[nodiscard]] PlanWidget& widget() { return *static_cast<PlanWidget*>(&find<QWidget>("plan")); }
    [[nodiscard]] QColor pixel(QPoint point) { return widget().grab().toImage().pixelColor(point); }
    void hover(QPoint point) { QTest::mouseMove(&widget(), point); }
    [[nodiscard]] QPoint centre(int line, int column) { return widget().places().cell(line, column).center(); }

    GedachterPlan plan;
    frmMain form;
    MainWindow window{form};
};

TEST(MainWindow, ButtonsMoveThePlan) {
    Window w;
    EXPECT_EQ(w.plan.raster.PlanStart(), tag(30, 5));
    EXPECT_EQ(w.window.windowTitle(), QStringLiteral("Herbergo Version 4.10"));
    w.press("cmdNextWeek");
    EXPECT_EQ(w.plan.raster.PlanStart(), tag(6));
    EXPECT_EQ(w.find<QLabel>("lblZeitraum").text(), QStringLiteral("6. Juni – 15. Juni 2026"));
    w.press("cmdPrev3Months");
    EXPECT_EQ(w.plan.raster.PlanStart(), tag(6, 3));
    w.press("cmdHeute");
    EXPECT_EQ(w.plan.raster.PlanStart(), tag(30, 5));
}

TEST(MainWindow, ReloadShowsWhatAnotherStationWrote) {
    Window w;
    const auto before = w.pixel(w.centre(2, 5));
    w.plan.quelle.rows = {{.Von = tag(2), .Bis = tag(5), .Zimmernummer = 2, .BelegungsID = 1, .ID = 1}};
    w.press("cmdAktualisieren");
    EXPECT_NE(w.pixel(w.centre(2, 5)), before);
    EXPECT_EQ(w.pixel(w.centre(2, 5)), colour(Gelb));
}

TEST(MainWindow, BarHasItsColoursAtTheCentreOfItsCells) {
    Window w({}, {{.Von = tag(1), .Bis = tag(4), .Zimmernummer = 1, .BelegungsID = 1, .ID = 1},
                  {.Von = tag(2), .Bis = tag(4), .Zimmernummer = 3, .BelegungsID = 2, .Gelöscht = true, .ID = 2}});
    EXPECT_EQ(w.pixel(w.centre(1, 3)), colour(aufgehellt(Gelb, 60)));
    EXPECT_EQ(w.pixel(w.centre(1, 4)), colour(Gelb));
    EXPECT_EQ(w.pixel(w.centre(1, 5)), colour(Gelb));
    EXPECT_EQ(w.pixel(w.centre(1, 6)), colour(w.plan.raster.FreieFarbe(6)));
    EXPECT_EQ(w.pixel(w.centre(4, 5)), colour(Nachtblau));
    for (const QSize size : {QSize(700, 320), QSize(1900, 1000)}) {
        w.window.resize(size);
        QTest::qWait(0);
        EXPECT_EQ(w.pixel(w.centre(1, 4)), colour(Gelb)) << size.width();
        EXPECT_EQ(w.pixel(w.centre(1, 6)), colour(w.plan.raster.FreieFarbe(6))) << size.width();
    }
}

TEST(MainWindow, GuestInTheHouseIsFramedAllAround) {
    Window w({}, {{.Von = tag(1), .Bis = tag(4), .Zimmernummer = 1, .BelegungsID = 1, .Checked = true, .ID = 1}});
    const auto image = w.widget().grab().toImage();
    const auto row = w.widget().places().span(1, 3, 5);
    const auto dark = [&](QPoint point) { return image.pixelColor(point).lightness() < 40; };
    const auto anyDark = [&](QPoint from, QPoint step) {
        for (int i = 0; i < 10; ++i, from += step)
            if (dark(from)) return true;
        return false;
    };
    EXPECT_TRUE(anyDark({row.left(), row.center().y()}, {1, 0}));
    EXPECT_TRUE(anyDark({row.right(), row.center().y()}, {-1, 0}));
    for (const int column : {3, 4, 5}) {
        const int x = w.centre(1, column).x();
        EXPECT_TRUE(anyDark({x, row.top()}, {0, 1})) << column;
        EXPECT_TRUE(anyDark({x, row.bottom()}, {0, -1})) << column;
    }
    const int inner = w.widget().places().x(4); // no frame between the cells of one bar
    EXPECT_FALSE(dark({inner, row.center().y()}));
}

TEST(MainWindow, ScrollingKeepsTheWaitingRowInSight) {
    std::vector<Markierung> rows;
    for (int zimmer = 1; zimmer <= 20; ++zimmer)
        rows.push_back({.Von = tag(2), .Bis = tag(5), .Zimmernummer = zimmer, .BelegungsID = 2, .ID = zimmer});
    rows.push_back({.Von = tag(2), .Bis = tag(5), .Zimmernummer = 3, .BelegungsID = 1, .Gelöscht = true, .ID = 99});
    Window w({.zimmer = 20, .tage = 10, .sichtbar = 5}, rows);
    auto& bar = w.find<QScrollBar>("scrollBar");
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.maximum(), 15);
    for (const auto& [name, row] : {std::pair{"cmdLetzter", 16}, std::pair{"cmdErster", 1}}) {
        QTest::mouseClick(&w.find<QToolButton>(name), Qt::LeftButton);
        EXPECT_EQ(w.plan.raster.ErsteZeile(), row);
        EXPECT_EQ(bar.value(), row - 1);
        EXPECT_EQ(w.plan.raster.Tage(w.plan.raster.Zelle(1, 5)).ID, row);
        EXPECT_EQ(w.pixel(w.centre(6, 6)), colour(Gelb));
    }
    bar.setValue(7);
    EXPECT_EQ(w.plan.raster.ErsteZeile(), 8);
}

TEST(MainWindow, NothingToScrollShowsNoBar) {
    Window w;
    EXPECT_FALSE(w.find<QScrollBar>("scrollBar").isVisible());
}

TEST(MainWindow, LockedFileIsToldAndThePlanStays) {
    Window w({}, {{.Von = tag(1), .Bis = tag(4), .Zimmernummer = 1, .BelegungsID = 1, .ID = 1}});
    w.plan.quelle.kaputt = true;
    w.press("cmdNextMonth");
    EXPECT_EQ(w.plan.raster.PlanStart(), tag(30, 5));
    EXPECT_EQ(w.pixel(w.centre(1, 4)), colour(Gelb));
    EXPECT_TRUE(w.find<QLabel>("lblFehler").isVisible());
    w.plan.quelle.kaputt = false;
    w.press("cmdNextDay");
    EXPECT_FALSE(w.find<QLabel>("lblFehler").isVisible());
}

TEST(MainWindow, RoomsAndWeeksExplainThemselves) {
    Window w;
    const auto toolTip = [&](QPoint at) {
        QHelpEvent help(QEvent::ToolTip, at, w.widget().mapToGlobal(at));
        QApplication::sendEvent(&w.widget(), &help);
        return QToolTip::text();
    };
    EXPECT_EQ(toolTip(w.widget().places().room(4).center()),
              QStringLiteral("In dieser Zeile finden Sie alle noch nicht endgültigen Reservierungen."));
    EXPECT_EQ(toolTip(w.widget().places().upperDay(3).center()), QStringLiteral("Mo, 01.Jun.26"));
}

TEST(MainWindow, PointerOnABarShowsItsNameAndItsDay) {
    Window w({}, {{.Von = tag(1),
                   .Bis = tag(4),
                   .Zimmernummer = 2,
                   .BelegungsID = 1,
                   .ID = 1,
                   .AnzahlGäste = 2,
                   .Kürzel = "Wübben & <b>"}});
    w.hover(w.centre(2, 5));
    const auto& name = w.find<QLabel>("lblKürzel");
    EXPECT_TRUE(name.isVisible());
    EXPECT_EQ(name.text(), QStringLiteral("Wübben & <b>/2"));
    EXPECT_EQ(name.geometry().topLeft(), w.widget().places().cell(2, 3).topLeft());
    EXPECT_EQ(name.height(), w.widget().places().cell(2, 3).height());
    EXPECT_EQ(w.find<QLabel>("fldDatum").text(), QStringLiteral("03.06.26"));
    w.hover(w.centre(2, 8));
    EXPECT_FALSE(name.isVisible());
    w.hover(w.widget().places().room(2).center());
    EXPECT_EQ(w.find<QLabel>("fldDatum").text(), QString());
}

TEST(MainWindow, MenuShowsWhatCanBeChosen) {
    int toggled = 0;
    Window w({}, {}, {.Beispieldaten = [&] { ++toggled; }, .BeispielAktiv = true});
    auto& sample = w.find<QAction>("mnuBeispieldaten");
    EXPECT_TRUE(sample.isEnabled() && sample.isChecked());
    EXPECT_FALSE(w.find<QAction>("mnuFeiertage").isEnabled());
    EXPECT_FALSE(w.find<QPushButton>("cmdNeu").isEnabled());
    EXPECT_TRUE(w.find<QLabel>("lblBeispieldaten").isVisible());
    sample.trigger();
    EXPECT_EQ(toggled, 1);
    w.find<QAction>("mnuBeenden").trigger();
    EXPECT_FALSE(w.window.isVisible());
}

TEST(MainWindow, FrameOfTypesIsChosenByMouseAndKeys) {
    Window w;
    QTest::mouseClick(&w.find<QRadioButton>("optBelArt2"), Qt::LeftButton);
    EXPECT_EQ(w.form.AuswahlArt, 2);
    EXPECT_TRUE(w.find<QRadioButton>("optBelArt2").isChecked());
    QTest::keyClick(&w.find<QRadioButton>("optBelArt2"), Qt::Key_Right);
    EXPECT_EQ(w.form.AuswahlArt, 3);
    EXPECT_FALSE(w.find<QLabel>("lblBeispieldaten").isVisible());
}

TEST(MainWindow, TabFollowsTheWindowFromTopToBottom) {
    Window w({.zimmer = 20, .tage = 10, .sichtbar = 5});
    w.find<QWidget>("cmdPrev3Months").setFocus();
    QStringList visited;
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(w.window.focusWidget(), Qt::Key_Tab);
        visited.append(w.window.focusWidget()->objectName());
    }
    const auto place = [&](const char* name) { return visited.indexOf(QString::fromLatin1(name)); };
    EXPECT_EQ(place("cmdPrevMonth"), 0);
    EXPECT_LT(place("cmdNextMonth"), place("cmdAktualisieren"));
    EXPECT_LT(place("cmdAktualisieren"), place("optBelArt1"));
    EXPECT_LT(place("optBelArt1"), place("plan"));
    EXPECT_LT(place("plan"), place("scrollBar"));
}

TEST(MainWindow, KeysReachTheScrollBar) {
    Window w({.zimmer = 20, .tage = 10, .sichtbar = 5});
    w.window.activateWindow();
    QTest::keyClick(&w.window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(w.window.focusWidget(), &w.find<QScrollBar>("scrollBar"));
    QTest::keyClick(w.window.focusWidget(), Qt::Key_Down);
    EXPECT_EQ(w.plan.raster.ErsteZeile(), 2);
}

TEST(MainWindow, NarrowWindowWrapsItsButtonsAndKeepsTheWholePlan) {
    Window w({.zimmer = 9, .tage = 35});
    const auto below = [&](const char* name, const char* other) {
        const auto bottom = [&](const char* of) {
            const auto& widget = w.find<QWidget>(of);
            return widget.mapTo(&w.window, QPoint(0, widget.height())).y();
        };
        return bottom(name) > bottom(other) + 5;
    };
    // Where the rows break depends on the machine's fonts.
    const auto group = [&](const char* button) { return w.find<QWidget>(button).parentWidget()->sizeHint().width(); };
    const int margins = 2 * 14;
    const int both = group("cmdPrevMonth") + group("cmdNextMonth") + margins + 6;
    const int all = both + w.find<QLabel>("lblZeitraum").sizeHint().width() + 6;
    for (const auto& [width, rows] : {std::pair{all + 20, 1}, {both + 10, 2}, {both - 10, 3}}) {
        w.window.resize(width, 600);
        QTest::qWait(0);
        EXPECT_EQ(w.window.width(), width);
        EXPECT_EQ(below("cmdPrevMonth", "lblZeitraum"), rows > 1) << width;
        EXPECT_EQ(below("cmdNextMonth", "cmdPrevMonth"), rows > 2) << width;
        const auto& places = w.widget().places();
        EXPECT_EQ(places.lines(), 10);
        EXPECT_LE(places.y(11), w.widget().height());
        EXPECT_LE(places.x(36), w.widget().width());
    }
}

TEST(MainWindow, DarkDesktopChangesNoColour) {
    Window w({}, {{.Von = tag(1), .Bis = tag(4), .Zimmernummer = 1, .BelegungsID = 1, .ID = 1}});
    const auto light = w.widget().grab().toImage();
    w.window.setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
    EXPECT_EQ(w.widget().grab().toImage(), light);
}

TEST(MainWindow, EveryPointBelongsToTheCellThatIsPaintedThere) {
    Window w({.zimmer = 7, .tage = 33, .sichtbar = 10});
    const auto& places = w.widget().places();
    for (int x = places.cells().left(); x <= places.cells().right(); ++x) {
        const int column = places.columnAt(x);
        EXPECT_TRUE(places.x(column) <= x && x < places.x(column + 1)) << x;
    }
    for (int y = places.cells().top(); y <= places.cells().bottom(); ++y) {
        const int line = places.lineAt(y);
        EXPECT_TRUE(places.y(line) <= y && y < places.y(line + 1)) << y;
    }
    EXPECT_EQ(places.columnAt(places.cells().left() - 1), 0);
    EXPECT_EQ(places.columnAt(places.cells().right() + 1), 34);
    EXPECT_EQ(places.lineAt(places.cells().bottom() + 1), 9);
}

} // namespace
} // namespace plan
