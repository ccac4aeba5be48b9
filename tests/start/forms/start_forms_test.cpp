#include "start/forms/address_dialog.h"
#include "start/forms/database_dialog.h"
#include "start/forms/progress_window.h"
#include "support/forms/widgets.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace start {
namespace {

using support::find;
using support::press;
using support::TestStart;

TEST(DatabaseDialog, ChoosesSavesAndCloses) {
    TestStart s;
    s.house("netz");
    s.house();
    frmDatenbank form(s.g, {.beimStart = true});
    DatabaseDialog dialog(form);
    dialog.show();
    EXPECT_EQ(find<QLabel>(dialog, "lblPfad").text(), QStringLiteral("Quelldaten (Herbergo.mdb)"));
    s.dialogs.type(s.file("netz/Herbergo.mdb"));
    s.dialogs.type(s.file("netz/Zentral.mdb"));
    press(dialog, "cmdPfad");
    press(dialog, "cmdZentral");
    EXPECT_EQ(find<QLineEdit>(dialog, "txtPfad").text().toStdString(), s.file("netz/Herbergo.mdb"));
    EXPECT_TRUE(dialog.isVisible());
    press(dialog, "cmdSpeichern");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(form.Ergebnis(), PfadeErgebnis::Weiter);
}

TEST(DatabaseDialog, ClosingTheWindowIsTheCancelButton) {
    TestStart s;
    frmDatenbank form(s.g, {.beimStart = true});
    DatabaseDialog dialog(form);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(form.Ergebnis(), PfadeErgebnis::ProgrammEnde);
}

TEST(AddressDialog, OffersSharedAddressesOnlyWhereThereAreAny) {
    support::ScriptedDialogs dialogs;
    frmAdressHilfe alone(dialogs, "Herbergo", {});
    AddressDialog dialog(alone);
    EXPECT_FALSE(find<QRadioButton>(dialog, "opAdressen1").isEnabled());
    EXPECT_TRUE(find<QRadioButton>(dialog, "opAdressen0").isChecked());

    frmAdressHilfe form(dialogs, "Herbergo", {.HauptprogrammErreichbar = true});
    AddressDialog both(form);
    both.show();
    dialogs.acknowledge();
    QTest::mouseClick(&find<QRadioButton>(both, "opAdressen1"), Qt::LeftButton, {}, QPoint(8, 8));
    press(both, "cmdOK");
    EXPECT_FALSE(both.isVisible());
    EXPECT_EQ(form.Ergebnis(), Adresswahl::AdrAusBel);
}

TEST(ProgressWindow, CannotBeClosedByHand) {
    const frmMaskeAufbauen form;
    ProgressWindow window(form);
    window.appear();
    EXPECT_EQ(find<QLabel>(window, "lblText").text(),
              QStringLiteral("Bitte haben Sie etwas Geduld. Die Daten werden gelesen."));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
}

} // namespace
} // namespace start
