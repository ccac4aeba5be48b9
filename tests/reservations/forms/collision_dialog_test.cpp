#include "reservations/forms/collision_dialog.h"

#include "platform/qt/text.h"
#include "support/forms/widgets.h"
#include "support/test_house.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace reservations {
namespace {

using start::Kollisionsweg;
using support::day;
using support::find;
using support::press;

/// Six stays in room 1, a new one wants it for their whole time.
class CollisionWindow : public testing::Test {
protected:
    CollisionWindow() {
        s.g.dbHaupt = house.open("Lokal.mdb");
        house.rooms(4);
        for (int tag = 10; tag < 16; ++tag)
            ids.push_back(static_cast<int>(
                house.stay({.Von = day(tag, 6), .Bis = day(tag + 1, 6), .Kürzel = "R&B" + std::to_string(tag)})));
    }

    frmCollision form(int bis) {
        return {s.g,
                {.Kürzel = "Neu",
                 .Von = "09.06.2026",
                 .Bis = "20.06.2026",
                 .Zimmer = "Zimmer 1",
                 .Kollisionen = Kollisionen(house.db(), {.Zimmer = 1, .Von = day(9, 6), .Bis = day(bis, 6)})}};
    }
    std::int64_t zimmer(std::size_t platz) {
        return house.value("SELECT Zimmernummer FROM tblBelegung WHERE ID = " + std::to_string(ids[platz])).longOr();
    }

    support::TestHouse house;
    support::TestStart s;
    std::vector<int> ids;
};

TEST_F(CollisionWindow, ShowsOnlyTheRowsThatThereAre) {
    frmCollision model = form(12);
    CollisionDialog dialog(model);
    dialog.show();
    EXPECT_EQ(find<QLabel>(dialog, "lblKürzel1").text(), QStringLiteral("R&B11"));
    EXPECT_FALSE(find<QComboBox>(dialog, "cboBez2").isVisible());
    EXPECT_FALSE(find<QCheckBox>(dialog, "chkLöschen2").isVisible());
    EXPECT_FALSE(find<QScrollBar>(dialog, "scrColli").isVisible());
}

TEST_F(CollisionWindow, ScrollsAndBooksWhatWasChosen) {
    frmCollision model = form(20);
    CollisionDialog dialog(model);
    dialog.show();
    auto& bar = find<QScrollBar>(dialog, "scrColli");
    ASSERT_TRUE(bar.isVisible());
    auto& combo = find<QComboBox>(dialog, "cboBez0");
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(combo.currentText(), QStringLiteral("Zimmer 3"));
    bar.setValue(bar.maximum());
    EXPECT_EQ(find<QLabel>(dialog, "lblKürzel3").text(), QStringLiteral("R&B15"));
    EXPECT_EQ(combo.currentText(), QStringLiteral("Zimmer 2"));
    combo.lineEdit()->selectAll();
    QTest::keyClicks(combo.lineEdit(), QStringLiteral("zimmer 4"));
    EXPECT_EQ(combo.currentText(), QStringLiteral("zimmer 4"));
    press(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(model.Ergebnis()->gelöst);
    EXPECT_EQ(zimmer(0), 3);
    EXPECT_EQ(zimmer(1), 2);
    EXPECT_EQ(zimmer(2), 4);
}

void turnWheel(QWidget& over, int eighthsOfADegree) {
    const QPointF middle = over.rect().center();
    QWheelEvent event(middle, over.mapToGlobal(middle), {}, {0, eighthsOfADegree}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &event);
}

TEST_F(CollisionWindow, TheWheelScrollsARowWithEachNotch) {
    frmCollision model = form(20);
    CollisionDialog dialog(model);
    dialog.show();
    const auto& last = find<QLabel>(dialog, "lblKürzel3");
    turnWheel(dialog, -120);
    EXPECT_EQ(last.text(), QStringLiteral("R&B14"));
    turnWheel(dialog, -60);
    EXPECT_EQ(last.text(), QStringLiteral("R&B14"));
    turnWheel(dialog, -60);
    EXPECT_EQ(last.text(), QStringLiteral("R&B15"));
    turnWheel(dialog, -1200);
    EXPECT_EQ(last.text(), QStringLiteral("R&B15"));
    turnWheel(dialog, 240);
    EXPECT_EQ(last.text(), QStringLiteral("R&B13"));
}

TEST_F(CollisionWindow, EscapeGoesBackToTheNewStayAndReturnBooks) {
    frmCollision escaped = form(12);
    CollisionDialog first(escaped);
    first.show();
    QTest::keyClicks(&find<QLineEdit>(first, "txtBezeichnungNeu"), QStringLiteral(" West"));
    QTest::keyClick(&first, Qt::Key_Escape);
    EXPECT_FALSE(first.isVisible());
    ASSERT_TRUE(escaped.Ergebnis());
    EXPECT_EQ(escaped.Ergebnis()->Weg, Kollisionsweg::Ändern);
    EXPECT_EQ(escaped.Ergebnis()->Zimmer, "Zimmer 1 West");

    frmCollision booked = form(12);
    CollisionDialog second(booked);
    second.show();
    QTest::keyClick(&find<QLineEdit>(second, "txtKürzel"), Qt::Key_Return);
    ASSERT_TRUE(booked.Ergebnis());
    EXPECT_EQ(booked.Ergebnis()->Weg, Kollisionsweg::Verbuchen);
}

TEST_F(CollisionWindow, TheOtherButtonsCloseIt) {
    const std::pair<const char*, Kollisionsweg> cases[] = {{"cmdÄndern", Kollisionsweg::Ändern},
                                                           {"cmdAbbrechen", Kollisionsweg::Verwerfen},
                                                           {"cmdWarten", Kollisionsweg::Warten}};
    for (const auto& [name, weg] : cases) {
        frmCollision model = form(12);
        CollisionDialog dialog(model);
        dialog.show();
        press(dialog, name);
        EXPECT_FALSE(dialog.isVisible()) << name;
        EXPECT_EQ(model.Ergebnis()->Weg, weg) << name;
    }
}

TEST_F(CollisionWindow, WhatCannotBeSolvedClosesItselfAfterItsMessage) {
    house.db().Execute("INSERT INTO tbBlockbuchung (IDBlockbuchung, IDBelegung) VALUES (1, " + std::to_string(ids[0]) +
                       ")");
    for (int zimmer = 2; zimmer <= 4; ++zimmer)
        house.stay({.Zimmernummer = zimmer, .Von = day(1, 6), .Bis = day(20, 6)});
    frmCollision model = form(12);
    CollisionDialog dialog(model);
    s.dialogs.acknowledge();
    s.dialogs.meanwhile([&] { EXPECT_TRUE(dialog.isVisible()) << "the message needs its window"; });
    dialog.show();
    QTest::qWait(0);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(model.Ergebnis()->Weg, Kollisionsweg::Ändern);
}

} // namespace
} // namespace reservations
