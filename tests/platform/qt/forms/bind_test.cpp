#include "platform/qt/bind.h"

#include "platform/qt/forms/bound_window.h"
#include "platform/qt/typed_text.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QWheelEvent>

namespace qt {
namespace {

using services::Key;
using services::Leave;

void paste(QWidget& widget, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

void wheelOver(QWidget& widget) {
    const QPointF centre = widget.rect().center();
    QWheelEvent event(centre, widget.mapToGlobal(centre), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

// Typing

TEST(TypedText, OnlyWhatCameInIsRefused) {
    const services::KeyFilter name{.Never = "/'", .NoLeadingBlank = true};
    struct Case {
        const char* before;
        const char* after;
        int cursor;
        services::KeyFilter keys;
        int maxLength;
        const char* text;
        int cursorAfter;
    };
    const Case cases[] = {
        {"ab", "a'b", 2, name, 0, "ab", 1},           // typed in the middle
        {"ab", "ax/'yb", 5, name, 0, "axyb", 3},      // pasted
        {"a/1", "a/1b", 4, name, 0, "a/1b", 4},       // what is stored stays
        {"", "  a b", 5, name, 0, "a b", 3},          // a leading blank
        {"x", "x b", 3, name, 0, "x b", 3},           // no leading one
        {"aab", "aaab", 2, {}, 0, "aaab", 2},         // the same letter once more
        {"abc", "abcdef", 6, {}, 4, "abcd", 4},       // only what fits
        {"abcdef", "abcdxef", 5, {}, 4, "abcdef", 4}, // stored longer than allowed: nothing fits, nothing is lost
        {"abcdef", "abdef", 2, {}, 4, "abdef", 2},    // but can be deleted from
        {"ab", "aüb", 2, {}, 3, "aüb", 2},
        {"", "😀😁😂", 6, {}, 2, "😀😁", 4}, // characters, not their halves
        {"😀", "😁😀", 2, {}, 2, "😁😀", 2},
        {"12", "1a2", 2, {.Only = "0123456789"}, 0, "12", 1},
        {"abc", "x", 1, {}, 0, "x", 1}, // typed over a selection
        {"abc", "", 0, name, 0, "", 0},
    };
    for (const Case& c : cases) {
        const auto taken =
            acceptTyped(QString::fromUtf8(c.before), QString::fromUtf8(c.after), c.cursor, c.keys, c.maxLength);
        EXPECT_EQ(taken.text.toStdString(), c.text) << c.before << " -> " << c.after;
        EXPECT_EQ(taken.cursor, c.cursorAfter) << c.before << " -> " << c.after;
    }
}

struct TwoBoxes : Window {
    services::TextBox first;
    services::TextBox second;
    QLineEdit& firstEdit = add<QLineEdit>();
    QLineEdit& secondEdit = add<QLineEdit>();
    QPushButton& button = add<QPushButton>(QStringLiteral("&Los"));
    services::Button go{"&Los"};
    int changes = 0;
    int leaves = 0;
    int clicks = 0;
    std::vector<Key> keys;

    TwoBoxes() {
        first.Keys = {.Never = "';"};
        binding.bind(firstEdit, first,
                     {.change = [this] { ++changes; },
                      .leave =
                          [this] {
                              ++leaves;
                              secondEdit.setFocus(); // as a message box takes the focus, and gives it back
                              firstEdit.setFocus();
                              return first.Text == "voll" ? Leave::Go : Leave::Stay;
                          },
                      .key =
                          [this](Key key) {
                              keys.push_back(key);
                              return key == Key::Plus;
                          }});
        binding.bind(secondEdit, second);
        binding.bind(button, go, [this] { ++clicks; });
        open(firstEdit);
    }
};

TEST(Binding, AssigningFiresNothingAndTypingFiresOnce) {
    TwoBoxes f;
    f.first.Text = "abc";
    f.binding.refresh();
    EXPECT_EQ(f.firstEdit.text(), QStringLiteral("abc"));
    EXPECT_EQ(f.changes, 0);
    f.firstEdit.setCursorPosition(1);
    QTest::keyClick(&f.firstEdit, Qt::Key_X);
    EXPECT_EQ(f.first.Text, "axbc");
    EXPECT_EQ(f.changes, 1);
    EXPECT_EQ(f.firstEdit.cursorPosition(), 2); // a refresh leaves the cursor where it is
}

TEST(Binding, RefusedSignsNeitherShowNorTell) {
    TwoBoxes f;
    f.first.Text = "a'b"; // stored by another way
    f.binding.refresh();
    f.firstEdit.setCursorPosition(1);
    QTest::keyClicks(&f.firstEdit, QStringLiteral(";"));
    EXPECT_EQ(f.firstEdit.text(), QStringLiteral("a'b"));
    EXPECT_EQ(f.firstEdit.cursorPosition(), 1);
    EXPECT_EQ(f.changes, 0);
    paste(f.firstEdit, QStringLiteral("1';2"));
    EXPECT_EQ(f.first.Text, "a12'b");
    EXPECT_EQ(f.firstEdit.text(), QStringLiteral("a12'b"));
    EXPECT_EQ(f.firstEdit.cursorPosition(), 3);
    EXPECT_EQ(f.changes, 1);
}

TEST(Binding, KeysReachTheModelByTheirMeaning) {
    TwoBoxes f;
    QTest::keyClick(&f.firstEdit, Qt::Key_F2);
    QTest::keyClick(&f.firstEdit, Qt::Key_F2, Qt::ControlModifier); // another key
    QTest::keyClick(&f.firstEdit, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(&f.firstEdit, '+');
    QTest::keyClick(&f.firstEdit, '-');
    EXPECT_EQ(f.keys, (std::vector{Key::F2, Key::Return, Key::Plus, Key::Minus}));
    EXPECT_EQ(f.first.Text, "-"); // plus was taken
}

TEST(Binding, LeavingCallsOnceAndMayKeepTheFocus) {
    TwoBoxes f;
    f.secondEdit.setFocus();
    QTest::qWait(0);
    EXPECT_EQ(f.leaves, 1);
    EXPECT_TRUE(f.firstEdit.hasFocus());
    f.first.Text = "voll";
    f.binding.refresh();
    f.secondEdit.setFocus();
    EXPECT_EQ(f.leaves, 2);
}

TEST(Binding, AccessKeyLeavesTheBoxBeforeItPressesTheButton) {
    TwoBoxes f;
    QTest::keyClick(&f, Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return f.leaves == 1; }));
    QTest::qWait(150);      // the press is shown for a moment
    EXPECT_EQ(f.clicks, 0); // the box has kept the focus
    f.firstEdit.setFocus();
    f.button.click(); // however it is pressed
    EXPECT_EQ(f.clicks, 0);
    EXPECT_EQ(f.leaves, 2);
    QTest::qWait(0);
    f.first.Text = "voll";
    f.binding.refresh();
    QTest::keyClick(&f, Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return f.clicks == 1; }));
    EXPECT_EQ(f.leaves, 3);
    QTest::keyClick(&f.button, Qt::Key_Return);
    EXPECT_EQ(f.clicks, 2);
}

TEST(Binding, WindowShowsBehindABoxWhatTheBoxTellsOf) {
    TwoBoxes f;
    QString behind;
    f.binding.run([&] {
        f.second.Text = "neu";
        QMessageBox box(&f);
        QTimer::singleShot(0, &box, [&] {
            behind = f.secondEdit.text();
            box.accept();
        });
        box.exec();
    });
    EXPECT_EQ(behind, QStringLiteral("neu"));
    EXPECT_EQ(f.leaves, 0);
}

TEST(Binding, FocusMovedByTheModelLeavesNothing) {
    TwoBoxes f;
    f.second.SetFocus();
    f.binding.refresh();
    EXPECT_TRUE(f.secondEdit.hasFocus());
    f.secondEdit.setFocus();
    f.firstEdit.setFocus();
    f.first.Enabled = false; // a disabled box loses the focus
    f.binding.refresh();
    EXPECT_EQ(f.leaves, 0);
}

TEST(Binding, ColouredTextStaysReadable) {
    TwoBoxes f;
    f.first.BackColor = 0x000080; // dark red
    f.first.Bold = true;
    f.second.BackColor = 0xADFF95;
    f.second.ForeColor = 0xFF0000;
    f.binding.refresh();
    EXPECT_EQ(f.firstEdit.palette().color(QPalette::Base), QColor(0x80, 0, 0));
    EXPECT_GT(f.firstEdit.palette().color(QPalette::Text).lightness(), 200);
    EXPECT_TRUE(f.firstEdit.font().bold());
    EXPECT_EQ(f.secondEdit.palette().color(QPalette::Text), QColor(0, 0, 0xFF));
    f.first = {};
    f.binding.refresh();
    EXPECT_EQ(f.firstEdit.palette().color(QPalette::Base), QColor(Qt::white));
}

TEST(Binding, SeveralLinesKeepTheCursorAlthoughStoredWithCarriageReturns) {
    Window w;
    services::TextBox box;
    box.Text = "eins\r\nzwei";
    auto& edit = w.add<QPlainTextEdit>();
    w.binding.bind(edit, box);
    w.open(edit);
    auto cursor = edit.textCursor();
    cursor.setPosition(6);
    edit.setTextCursor(cursor);
    w.binding.refresh();
    EXPECT_EQ(edit.textCursor().position(), 6);
    QTest::keyClicks(&edit, QStringLiteral("x"));
    EXPECT_EQ(box.Text, "eins\nzxwei");
}

// Lists

struct ListWindow : Window {
    services::ComboBox fixed;
    services::ComboBox open;
    QComboBox& fixedBox = add<QComboBox>();
    QComboBox& openBox = add<QComboBox>();
    QLineEdit& other = add<QLineEdit>();
    services::TextBox otherText;
    std::vector<std::string> events;

    ListWindow() {
        for (auto* control : {&fixed, &open})
            for (const auto* entry : {"Apfel", "Birne", "Kirsche"})
                control->Items.AddItem(entry);
        open.Editable = true;
        open.Keys = {.Never = ";"};
        open.MaxLength = 8;
        binding.bind(fixedBox, fixed, {.click = [this] { events.push_back("click " + fixed.Text); }});
        binding.bind(openBox, open,
                     {.change = [this] { events.push_back("change " + open.Text); },
                      .click = [this] { events.push_back("click " + open.Text); },
                      .leave =
                          [this] {
                              events.emplace_back("leave");
                              return Leave::Go;
                          }});
        binding.bind(other, otherText);
        Window::open(other);
    }
};

TEST(BoundList, TypingAndChoosingAreTwoEvents) {
    ListWindow w;
    w.openBox.setFocus();
    QTest::keyClicks(&w.openBox, QStringLiteral("Bi;r"));
    EXPECT_EQ(w.events, (std::vector<std::string>{"change B", "change Bi", "change Bir"}));
    EXPECT_EQ(w.openBox.currentText(), QStringLiteral("Bir")); // nothing is completed behind the model's back
    EXPECT_EQ(w.open.ListIndex, -1);
    w.openBox.lineEdit()->setCursorPosition(1);
    QTest::keyClicks(&w.openBox, QStringLiteral("x"));
    EXPECT_EQ(w.openBox.lineEdit()->cursorPosition(), 2);
    w.events.clear();
    QTest::keyClick(&w.openBox, Qt::Key_Down);
    EXPECT_EQ(w.events, std::vector<std::string>{"click Apfel"});
    EXPECT_EQ(w.open.ListIndex, 0);
}

TEST(BoundList, LeavingChoosesNothingAndReturnAddsNothing) {
    ListWindow w;
    w.openBox.setFocus();
    QTest::keyClicks(&w.openBox, QStringLiteral("birne"));
    QTest::keyClick(&w.openBox, Qt::Key_Return);
    QTest::keyClicks(&w.openBox, QStringLiteral("nkuchen")); // eight characters fit
    w.events.clear();
    w.other.setFocus();
    EXPECT_EQ(w.events, std::vector<std::string>{"leave"});
    EXPECT_EQ(w.open.Text, "birnenku");
    EXPECT_EQ(w.openBox.currentText(), QStringLiteral("birnenku"));
    EXPECT_EQ(w.openBox.count(), 3);
}

TEST(BoundList, WheelTurnsOnlyTheListThatHasTheFocus) {
    ListWindow w;
    w.fixed.choose(0);
    w.open.choose(0);
    w.binding.refresh();
    wheelOver(w.fixedBox);
    wheelOver(w.openBox);
    EXPECT_EQ(w.events, std::vector<std::string>());
    EXPECT_EQ(w.fixedBox.currentIndex(), 0);
    EXPECT_EQ(w.openBox.currentIndex(), 0);
    w.fixedBox.setFocus();
    wheelOver(w.fixedBox);
    EXPECT_EQ(w.events, std::vector<std::string>{"click Birne"});
}

TEST(BoundList, OpensAndRefillsAtTheModelsWish) {
    ListWindow w;
    w.open.Items.Clear();
    w.open.Items.AddItem("Quitte");
    w.open.Text = "frei";
    w.open.DropDownRequested = true;
    w.binding.refresh();
    EXPECT_EQ(w.openBox.currentText(), QStringLiteral("frei"));
    QTest::qWait(0);
    EXPECT_TRUE(w.openBox.view()->isVisible());
    EXPECT_EQ(w.openBox.count(), 1);
    EXPECT_TRUE(w.events.empty());
    w.openBox.hidePopup();
}

TEST(BoundOptions, TellTheirKeysAndTheirChoice) {
    Window w;
    services::OptionGroup rooms;
    rooms.Buttons.resize(2);
    rooms.Value = 0;
    auto& all = w.add<QPushButton>();
    auto& free = w.add<QPushButton>();
    QButtonGroup group;
    for (auto* button : {&all, &free}) {
        button->setCheckable(true);
        group.addButton(button, button == &all ? 0 : 1);
    }
    int keys = 0;
    w.binding.bind(
        group, rooms, [&](int index) { rooms.Value = index; }, [&](Key key) { return key == Key::F2 && ++keys > 0; });
    w.open(all);
    QTest::keyClick(&free, Qt::Key_F2);
    QTest::mouseClick(&free, Qt::LeftButton);
    EXPECT_EQ(keys, 1);
    EXPECT_EQ(rooms.Value, 1);
}

TEST(BoundCheckBox, TellsItsKeyWithoutChangingItself) {
    Window w;
    services::CheckBox regular("Stammkunde");
    auto& box = w.add<QCheckBox>();
    int asked = 0;
    w.binding.bind(box, regular, {}, [&](Key key) { return key == Key::F2 && ++asked > 0; });
    w.open(box);
    QTest::keyClick(&box, Qt::Key_F2);
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(regular.Value);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_TRUE(regular.Value);
}

} // namespace
} // namespace qt
