#include "reservations/forms/reservation_dialog.h"

#include "platform/qt/text.h"
#include "support/forms/widgets.h"
#include "support/test_house.h"
#include "support/test_start.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace reservations {
namespace {

using services::MsgResult;
using support::day;
using support::find;

/// The form of one stay in a house of three rooms, whose guests are Meier, Möller and Schmidt.
class ReservationWindow : public testing::Test {
protected:
    ReservationWindow() {
        s.g.dbHaupt = house.open("Lokal.mdb");
        s.g.einstellungen.ResGroesse = "klein";
        house.rooms(3);
        meier = house.guest(
            {.LastName = "Meier", .FirstName = "Eva", .City = "Kiel", .PostalCode = "24103", .Country = "Deutschland"});
        house.guest({.LastName = "Möller", .FirstName = "Jan", .City = "Ulm"});
        house.guest({.LastName = "Schmidt", .FirstName = "Ute"});
    }

    void open(const start::ReservierungAnfrage& request) {
        form = std::make_unique<frmReservierung>(s.g, Formulardienste{.adressen = addresses}, request);
        dialog = std::make_unique<ReservationDialog>(*form);
        dialog->show();
        QApplication::setActiveWindow(dialog.get());
        QTest::qWait(0);
    }
    void openNew() { open({.Zimmernummer = 1, .Von = day(10, 7), .Bis = day(12, 7), .Art = 1}); }
    int openStay(const support::Stay& stay) {
        const int id = static_cast<int>(house.stay(stay));
        open({.IDs = {id}});
        return id;
    }

    [[nodiscard]] QLineEdit& edit(const char* name) { return find<QLineEdit>(*dialog, name); }
    [[nodiscard]] QPushButton& button(const char* name) { return find<QPushButton>(*dialog, name); }
    void press(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    void altKey(Qt::Key key) {
        QTest::keyClick(dialog.get(), key, Qt::AltModifier);
        QTest::qWait(150); // the button shows that it is pressed
    }
    [[nodiscard]] QAbstractItemView* guestList() const {
        for (auto* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == QStringLiteral("cboAdresseListe") && widget->isVisible())
                return qobject_cast<QAbstractItemView*>(widget);
        return nullptr;
    }

    support::TestHouse house;
    support::TestStart s;
    addresses::Adressliste addresses{s.g.dbHaupt};
    std::int64_t meier = 0;
    std::unique_ptr<frmReservierung> form;
    std::unique_ptr<ReservationDialog> dialog;
};

// Guest

TEST_F(ReservationWindow, FirstLettersOfAGuestLeadToHisAddress) {
    openNew();
    EXPECT_TRUE(edit("cboAdresse").hasFocus());
    QTest::keyClicks(&edit("cboAdresse"), QStringLiteral("me"));
    ASSERT_NE(guestList(), nullptr);
    ASSERT_EQ(guestList()->model()->rowCount(), 1);
    QTest::keyClick(guestList(), Qt::Key_Down);
    QTest::keyClick(guestList(), Qt::Key_Return);
    EXPECT_EQ(edit("cboAdresse").text(), QStringLiteral("Meier"));
    EXPECT_EQ(edit("txtVorname").text(), QStringLiteral("Eva"));
    EXPECT_EQ(edit("txtPLZ").text(), QStringLiteral("24103"));
    EXPECT_EQ(form->adresse.GastID(), meier);
    EXPECT_TRUE(s.dialogs.asked().empty());
}

TEST_F(ReservationWindow, KeyF2InTheGuestBoxAsksToDeleteTheAddress) {
    openStay({.Von = day(10, 7), .Bis = day(12, 7), .GastID = meier});
    s.dialogs.press(MsgResult::Cancel);
    QTest::keyClick(&edit("cboAdresse"), Qt::Key_F2);
    EXPECT_EQ(s.dialogs.last().text, "Soll die ausgewählte Adresse gelöscht werden?");
}

// Keys

TEST_F(ReservationWindow, ShortNameTakesNoSignThatWouldBreakIt) {
    openNew();
    auto& shortName = edit("fldK_rzel");
    QTest::keyClicks(&shortName, QStringLiteral(" A'l;t'"));
    EXPECT_EQ(form->fldK_rzel.Text, "Alt");
    shortName.setCursorPosition(0);
    QApplication::clipboard()->setText(QStringLiteral("\"Neu\" & "));
    QTest::keyClick(&shortName, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shortName.text(), QStringLiteral("Neu & Alt"));
    EXPECT_EQ(shortName.cursorPosition(), 6);
    QTest::keyClicks(&shortName, QStringLiteral("123456789"));
    EXPECT_EQ(form->fldK_rzel.Text, "Neu & 12345678Alt"); // seventeen
}

TEST_F(ReservationWindow, SignsMoveTheDayAndLettersDoNothing) {
    openNew();
    auto& arrival = edit("fldVon");
    arrival.setFocus();
    QTest::keyClicks(&arrival, QStringLiteral("x"));
    EXPECT_EQ(arrival.text(), QStringLiteral("10.07.2026"));
    QTest::keyClick(&arrival, '-');
    EXPECT_EQ(arrival.text(), QStringLiteral("09.07.2026"));
    EXPECT_EQ(edit("fldResTage").text(), QStringLiteral("3"));
    QTest::keyClick(&arrival, '+', Qt::KeypadModifier);
    EXPECT_EQ(arrival.text(), QStringLiteral("10.07.2026"));
}

TEST_F(ReservationWindow, DayPickedInTheCalendarChangesNightsAndPrice) {
    openNew();
    ASSERT_EQ(edit("fldPreis").text(), QStringLiteral("160,00"));
    QTest::keyClick(&edit("fldBis"), Qt::Key_Down, Qt::AltModifier);
    auto& calendar = find<QCalendarWidget>(*dialog, "fldBisKalender");
    ASSERT_TRUE(calendar.isVisible());
    auto& days = find<QWidget>(calendar, "qt_calendar_calendarview");
    QTest::keyClick(&days, Qt::Key_Down); // a week later
    QTest::keyClick(&days, Qt::Key_Return);
    EXPECT_EQ(edit("fldBis").text(), QStringLiteral("19.07.2026"));
    EXPECT_EQ(edit("fldResTage").text(), QStringLiteral("9"));
    EXPECT_EQ(edit("fldPreis").text(), QStringLiteral("720,00"));
}

TEST_F(ReservationWindow, ReturnKeepsTheTariffAndPressesNoButton) {
    openNew();
    auto& tariff = find<QComboBox>(*dialog, "cboTarif");
    tariff.setFocus();
    tariff.lineEdit()->selectAll();
    QTest::keyClicks(&tariff, QStringLiteral("77,5"));
    QTest::keyClick(&tariff, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(s.dialogs.asked().empty());
    EXPECT_EQ(house.value("SELECT Count(*) FROM tblTarife WHERE Tarif = '77,50'").longOr(), 1);
    edit("fldPreis").setFocus();
    EXPECT_EQ(edit("fldPreis").text(), QStringLiteral("155,00"));
    QTest::keyClicks(&edit("txtVorname"), QStringLiteral("Eva"));
    QTest::keyClick(&edit("txtVorname"), Qt::Key_Return);
    EXPECT_EQ(edit("txtVorname").text(), QStringLiteral("Eva"));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ReservationWindow, LeavingAnUnknownRoomAsksOnceAndStays) {
    openNew();
    auto& room = find<QComboBox>(*dialog, "fldZimmer");
    room.setFocus();
    room.lineEdit()->selectAll();
    QTest::keyClicks(&room, QStringLiteral("Saal"));
    s.dialogs.acknowledge();
    edit("txtVorname").setFocus();
    QTest::qWait(0);
    EXPECT_EQ(s.dialogs.last().text, "Bitte wählen Sie einen Eintrag aus der Liste.");
    EXPECT_TRUE(room.hasFocus());
}

// Sizes

TEST_F(ReservationWindow, TakesTheSizeOfItsTwoForms) {
    openNew();
    const QSize small = dialog->size();
    EXPECT_FALSE(find<QWidget>(*dialog, "frZusatz").isVisible());
    altKey(Qt::Key_G);
    EXPECT_TRUE(find<QWidget>(*dialog, "frZusatz").isVisible());
    EXPECT_GT(dialog->width(), small.width());
    EXPECT_LE(dialog->width(), 1270);
    EXPECT_LE(dialog->height(), 740);
    altKey(Qt::Key_K);
    EXPECT_FALSE(find<QWidget>(*dialog, "frZusatz").isVisible());
    EXPECT_EQ(dialog->size(), small);
    EXPECT_TRUE(edit("cboAdresse").hasFocus());
    EXPECT_LE(small.width(), 1014);
    EXPECT_LE(small.height(), 650);
}

TEST_F(ReservationWindow, NoTextIsCutOff) {
    s.g.einstellungen.ResGroesse = "gross";
    openNew();
    for (auto* widget : dialog->findChildren<QWidget*>()) {
        const auto* pressed = qobject_cast<QAbstractButton*>(widget);
        const bool telling =
            (pressed != nullptr && !pressed->text().isEmpty()) || qobject_cast<QLabel*>(widget) != nullptr;
        if (!telling || !widget->isVisible()) continue;
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << widget->objectName().toStdString();
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << widget->objectName().toStdString();
    }
}

TEST_F(ReservationWindow, AccessKeysLeadToOnePlaceEach) {
    s.g.einstellungen.ResGroesse = "gross";
    openStay({.Von = day(10, 7), .Bis = day(12, 7)});
    std::map<QKeySequence, std::string> places;
    for (auto* button : dialog->findChildren<QAbstractButton*>()) {
        const auto key = QKeySequence::mnemonic(button->text());
        if (key.isEmpty() || !button->isVisible()) continue;
        const auto name = button->objectName().toStdString();
        EXPECT_TRUE(places.emplace(key, name).second) << name << " and " << places[key];
    }
}

TEST_F(ReservationWindow, TabKeyGoesFromTheGuestToTheStayToTheButtons) {
    openNew();
    QStringList passed;
    for (int press = 0; press < 100 && !passed.contains(QStringLiteral("cmdAbbrechen")); ++press) {
        passed.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const char* expected[] = {
        "cboAdresse",     "txtVorname", "cmdAdresseSpeichern", "fldZimmer", "fldVon",    "fldBis",
        "cboTarif",       "fldPreis",   "fldK_rzel",           "fldInfo",   "lbChecked", "cmdWarten",
        "cmdReservieren", "cmdZu",      "cmdAbbrechen"};
    qsizetype last = -1;
    for (const auto* name : expected) {
        const auto place = passed.indexOf(QString::fromLatin1(name));
        EXPECT_GT(place, last) << name << " in " << passed.join(u' ').toStdString();
        last = place;
    }
    EXPECT_EQ(passed.first(), QStringLiteral("cboAdresse"));
}

// States

TEST_F(ReservationWindow, BilledStayIsLockedButCanBeClosed) {
    openStay({.Von = day(10, 7), .Bis = day(12, 7), .GastID = meier, .Abgerechnet = 1});
    for (const auto* name : {"cboAdresse", "fldVon", "fldPreis", "fldK_rzel"})
        EXPECT_FALSE(edit(name).isEnabled()) << name;
    EXPECT_FALSE(button("cmdReservieren").isEnabled());
    EXPECT_EQ(button("cmdAbgerechnet").text(), QStringLiteral("Abgerechnet"));
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(ReservationWindow, CheckInColoursItsButtonAndKeepsItReadable) {
    const int id = openStay({.Von = day(10, 7), .Bis = day(12, 7), .GastID = meier});
    const auto colours = [&] {
        const auto& in = button("lbChecked");
        return std::pair(in.palette().color(QPalette::Button), in.palette().color(QPalette::ButtonText));
    };
    EXPECT_EQ(colours().first, QColor(0xFF, 0xBB, 0xA4));
    press("lbChecked");
    EXPECT_EQ(button("lbChecked").text(), QStringLiteral("&Checked in"));
    EXPECT_EQ(colours().first, QColor(0x95, 0xFF, 0xAD));
    EXPECT_LT(colours().second.lightness(), 80);
    EXPECT_TRUE(house.value("SELECT Checked FROM tblBelegung WHERE ID = " + std::to_string(id)).boolOr());
}

TEST_F(ReservationWindow, WarnsOfAnOverlapWhileTyping) {
    house.stay({.Zimmernummer = 1, .Von = day(12, 7), .Bis = day(15, 7)});
    openNew();
    auto& warning = find<QLabel>(*dialog, "lbWarnung");
    auto& writing = find<QLabel>(*dialog, "lbWarnungSchrift");
    EXPECT_FALSE(warning.isVisible());
    QTest::keyClick(&edit("fldBis"), '+');
    EXPECT_TRUE(warning.isVisible());
    EXPECT_EQ(warning.palette().color(QPalette::Window), QColor(Qt::red));
    EXPECT_EQ(warning.geometry(), writing.geometry());
    EXPECT_EQ(writing.text(), QStringLiteral(" Ü b e r s c h n e i d u n g "));
    QTest::keyClick(&edit("fldBis"), '-');
    EXPECT_FALSE(writing.isVisible());
}

TEST_F(ReservationWindow, OnlyTheWaitingRowIsWalkedThrough) {
    const int first =
        static_cast<int>(house.stay({.Von = day(10, 7), .Bis = day(12, 7), .Kürzel = "Eins", .Gelöscht = true}));
    const int second =
        static_cast<int>(house.stay({.Von = day(10, 7), .Bis = day(12, 7), .Kürzel = "Zwei", .Gelöscht = true}));
    openNew();
    EXPECT_FALSE(button("cmdN_chster").isVisible());
    open({.IDs = {first, second}, .Wartetag = day(10, 7)});
    EXPECT_FALSE(button("cmdGroesser").isVisible());
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Warteposition für den 10.07.2026 (2 vorläufige Reservierungen)"));
    press("cmdN_chster");
    EXPECT_EQ(edit("fldK_rzel").text(), QStringLiteral("Zwei"));
    press("cmdErster");
    EXPECT_EQ(edit("fldK_rzel").text(), QStringLiteral("Eins"));
}

// Closing

TEST_F(ReservationWindow, EscapeWithChangesAsksBeforeItCloses) {
    openStay({.Von = day(10, 7), .Bis = day(12, 7), .GastID = meier, .Kürzel = "Alt"});
    QTest::keyClicks(&find<QPlainTextEdit>(*dialog, "fldInfo"), QStringLiteral("ruhig"));
    s.dialogs.press(MsgResult::Cancel);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(s.dialogs.last().text, "Änderungen der Reservierung speichern?");
    EXPECT_TRUE(dialog->isVisible());
    s.dialogs.press(MsgResult::Yes);
    dialog->close(); // by its frame
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(house.value("SELECT Info FROM tblBelegung WHERE Kürzel = 'Alt'").textOr(), "ruhig");
}

TEST_F(ReservationWindow, UnchangedAndGivenUpFormsCloseAtOnce) {
    openNew();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    openNew();
    QTest::keyClicks(&edit("cboAdresse"), QStringLiteral("Neumann"));
    press("cmdAbbrechen");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(house.count("tblBelegung"), 0);
}

TEST_F(ReservationWindow, StoresANewStayWithItsGuestAndCloses) {
    openNew();
    QTest::keyClicks(&edit("cboAdresse"), QStringLiteral("Neumann"));
    s.dialogs.press(MsgResult::OK); // a new address
    press("cmdZu");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(house.value("SELECT Kürzel FROM tblBelegung").textOr(), "Neuman10_07-12_07");
    EXPECT_EQ(
        house.value("SELECT LastName FROM Address INNER JOIN tblBelegung ON Address.ID = tblBelegung.GastID").textOr(),
        "Neumann");
}

} // namespace
} // namespace reservations
