#include "platform/qt/grid_view.h"
#include "reservations/forms/number_dialog.h"
#include "reservations/forms/season_dialog.h"
#include "reservations/forms/season_prices_dialog.h"
#include "support/forms/widgets.h"
#include "support/jet_files.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace reservations {
namespace {

using services::MsgResult;
using support::find;
using support::press;

void clickRow(qt::GridView& grid, int row) {
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(row, 1)).center());
    QCoreApplication::processEvents();
}

void clickHeading(qt::GridView& grid, int column) {
    QHeaderView& header = *grid.horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + 10, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
}

QString cell(const qt::GridView& grid, int row, int column) {
    return grid.model()->index(row, column).data().toString();
}

void appear(QDialog& dialog) {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QCoreApplication::processEvents();
}

struct Haus : support::TestStart {
    Haus() {
        house();
        g.dbHaupt = open(file("Lokal.mdb"));
        for (const auto* values :
             {"'Nebensaison', #09-01-2026#, #12-01-2026#", "'Hauptsaison', #06-01-2026#, #09-01-2026#"})
            g.dbHaupt.Execute("INSERT INTO tbSaisonzeiten (Saisonbezeichnung, Start, Ende) VALUES (" +
                              std::string(values) + ")");
        g.dbHaupt.Execute("INSERT INTO tbZimmernummern (Zimmernummer, NeueNummer, PreisDefault, PreisHauptsaison) "
                          "VALUES (1, '101', 80, 1234.5)");
    }
};

TEST(SeasonDialog, TypesASeasonAndSortsIt) {
    Haus h;
    frmSaison form(h.g);
    SeasonDialog dialog(form);
    appear(dialog);
    auto& grid = find<qt::GridView>(dialog, "grSaison");
    EXPECT_TRUE(grid.isColumnHidden(0));
    press(dialog, "cmdNeu");
    EXPECT_FALSE(grid.currentIndex().isValid());
    EXPECT_EQ(find<QLineEdit>(dialog, "txtVon").text(), QStringLiteral("01.12.2026"));
    auto& name = find<QComboBox>(dialog, "txtName");
    EXPECT_EQ(QApplication::focusWidget(), &name);
    QTest::keyClicks(&name, QStringLiteral("zwischensaison\t"));
    EXPECT_EQ(name.currentText(), QStringLiteral("Zwischensaison"));
    auto& to = find<QLineEdit>(dialog, "txtBis");
    to.setFocus();
    QTest::keyClicks(&to, QStringLiteral("1a.2.x27"));
    QTest::keyClick(&to, Qt::Key_Return);
    ASSERT_EQ(grid.model()->rowCount(), 3);
    EXPECT_EQ(to.text(), QStringLiteral("01.02.2027"));
    EXPECT_EQ(grid.currentIndex().row(), 2);
    clickHeading(grid, 1);
    EXPECT_EQ(cell(grid, 0, 1), QStringLiteral("01.06.2026"));
    clickHeading(grid, 1);
    EXPECT_EQ(cell(grid, 0, 3), QStringLiteral("Zwischensaison"));
    EXPECT_EQ(grid.currentIndex().row(), 0);
}

TEST(SeasonDialog, ARowIsLeftOnlyWithAnAnswer) {
    Haus h;
    frmSaison form(h.g);
    SeasonDialog dialog(form);
    appear(dialog);
    auto& grid = find<qt::GridView>(dialog, "grSaison");
    auto& from = find<QLineEdit>(dialog, "txtVon");
    from.setFocus();
    QTest::keyClick(&from, Qt::Key_Home);
    QTest::keyClick(&from, Qt::Key_Delete);
    h.dialogs.press(MsgResult::Cancel);
    clickRow(grid, 1);
    EXPECT_EQ(grid.currentIndex().row(), 0);
    EXPECT_EQ(from.text(), QStringLiteral("01.09.2026")); // put in order when it was left
    h.dialogs.press(MsgResult::No);
    clickRow(grid, 1);
    EXPECT_EQ(grid.currentIndex().row(), 1);
    EXPECT_EQ(find<QComboBox>(dialog, "txtName").currentText(), QStringLiteral("Hauptsaison"));
    QTest::keyClick(&grid, Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(from.text(), QStringLiteral("01.09.2026"));
}

TEST(SeasonDialog, EscapeAsksOnceEvenFromAFieldThatCannotBeLeft) {
    Haus h;
    frmSaison form(h.g);
    SeasonDialog dialog(form);
    appear(dialog);
    auto& from = find<QLineEdit>(dialog, "txtVon");
    from.setFocus();
    from.selectAll();
    QTest::keyClicks(&from, QStringLiteral("99.99"));
    h.dialogs.press(MsgResult::Cancel);
    QTest::keyClick(&from, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    h.dialogs.acknowledge();
    QTest::keyClick(&from, Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), &from);
    h.dialogs.press(MsgResult::No);
    QTest::keyClick(&from, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(h.dialogs.asked().size(), 3U);
}

TEST(SeasonDialog, AnEmptyCalendarBeginsWithANewSeason) {
    Haus h;
    h.g.dbHaupt.Execute("DELETE FROM tbSaisonzeiten");
    frmSaison form(h.g);
    SeasonDialog dialog(form);
    appear(dialog);
    EXPECT_EQ(find<QLineEdit>(dialog, "txtVon").text(), QStringLiteral("15.06.2026"));
    find<qt::GridView>(dialog, "grSaison").setFocus(Qt::TabFocusReason);
    h.dialogs.acknowledge();
    press(dialog, "cmdL_schen");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST(SeasonPricesDialog, TakesPricesOnlyAndClosesWithTheQuestion) {
    Haus h;
    frmSaisonpreise form(h.g, 1);
    SeasonPricesDialog dialog(form);
    appear(dialog);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Saisonpreise 101"));
    auto& haupt = find<QLineEdit>(dialog, "txtHaupt");
    haupt.setFocus();
    QTest::keyClick(&haupt, Qt::Key_End);
    QTest::keyClicks(&haupt, QStringLiteral(",x"));
    h.dialogs.acknowledge();
    QTest::keyClick(&haupt, Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), &haupt);
    haupt.selectAll();
    QTest::keyClicks(&haupt, QStringLiteral("99,5"));
    h.dialogs.press(MsgResult::Yes);
    QTest::keyClick(&haupt, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(support::oneValue(h.g.dbHaupt, "SELECT PreisHauptsaison FROM tbZimmernummern"), "99,5");
}

TEST(NumberDialog, ShowsTheExampleWhileTypingAndStores) {
    Haus h;
    frmBeNummer form(h.g);
    NumberDialog dialog(form);
    appear(dialog);
    auto& before = find<QLineEdit>(dialog, "txtVor");
    before.setFocus();
    QTest::keyClicks(&before, QStringLiteral("R;\""));
    QTest::keyClick(&before, Qt::Key_Tab);
    auto& date = find<QComboBox>(dialog, "cboDatum");
    date.setFocus();
    QTest::keyClick(&date, Qt::Key_Down);
    QTest::mouseClick(&find<QRadioButton>(dialog, "opFreie1"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(find<QLineEdit>(dialog, "txtBeNummerBeispiel").text(), QStringLiteral("R\"\" 0000 26"));
    h.dialogs.press(MsgResult::Cancel);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    press(dialog, "cmdSpeichern");
    press(dialog, "cmdZu");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(h.g.einstellungen.BeNummer.at(3), "Freilassen");
}

} // namespace
} // namespace reservations
