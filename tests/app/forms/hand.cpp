#include "app/forms/hand.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <memory>
#include <string_view>

namespace hand {

namespace {

QWindow* handleOf(const QWidget& widget) {
    auto* handle = widget.window()->windowHandle();
    EXPECT_NE(handle, nullptr) << widget.objectName().toStdString() << " is on no window that was shown";
    return handle;
}

QPoint inWindow(const QWidget& widget, QPoint at) { return widget.mapTo(widget.window(), at); }

} // namespace

void press(QWidget& widget, QPoint at, Qt::MouseButton button) {
    QTest::mousePress(handleOf(widget), button, Qt::NoModifier, inWindow(widget, at));
}

void moveTo(QWidget& widget, QPoint at) { QTest::mouseMove(handleOf(widget), inWindow(widget, at)); }

void release(QWidget& widget, QPoint at, Qt::MouseButton button) {
    QTest::mouseRelease(handleOf(widget), button, Qt::NoModifier, inWindow(widget, at));
}

void click(QWidget& widget, QPoint at, Qt::MouseButton button) {
    EXPECT_TRUE(widget.isVisible() && widget.isEnabled()) << widget.objectName().toStdString();
    press(widget, at, button);
    // What the press has opened may have seen the button go up.
    if (QGuiApplication::mouseButtons().testFlag(button)) release(widget, at, button);
}

void click(QWidget& widget) { click(widget, widget.rect().center()); }

void click(QMenu& menu, QAction& entry) {
    EXPECT_TRUE(entry.isVisible() && entry.isEnabled()) << entry.objectName().toStdString();
    const auto place = menu.actionGeometry(&entry).center();
    moveTo(menu, place);
    click(menu, place);
}

void key(QWidget& window, Qt::Key key) { QTest::keyClick(handleOf(window), key); }

void type(QWidget& window, const char* text) {
    for (const char sign : std::string_view(text))
        QTest::keyClick(handleOf(window), sign);
}

void chooseFromBar(QWidget& window, const char* entry) {
    auto* bar = window.findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    for (auto* head : bar->actions()) {
        auto* action = head->menu() == nullptr ? nullptr : head->menu()->findChild<QAction*>(QString::fromUtf8(entry));
        if (action == nullptr) continue;
        click(*bar, bar->actionGeometry(head).center());
        ASSERT_TRUE(head->menu()->isVisible());
        return click(*head->menu(), *action);
    }
    ADD_FAILURE() << entry << " is in no menu of the bar";
}

void runTimer(QTimer& timer, int times) {
    int due = 0;
    const auto counting = QObject::connect(&timer, &QTimer::timeout, [&due] { ++due; });
    const int usual = timer.interval();
    timer.setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return due >= times; }));
    timer.setInterval(usual);
    QObject::disconnect(counting);
}

} // namespace hand

namespace {

/// A window is looked for once in a millisecond at most, so that this is enough for any machine.
constexpr int patience = 10'000;

/// A button that opened the window by its press is up before the user has seen it.
void letGo(QWidget& window) {
    for (const auto button : {Qt::LeftButton, Qt::RightButton})
        if (QGuiApplication::mouseButtons().testFlag(button)) hand::release(window, {1, 1}, button);
}

void closeLeftOpen(QWidget& window) {
    if (auto* dialog = qobject_cast<QDialog*>(&window))
        dialog->done(QDialog::Rejected);
    else
        window.close();
}

} // namespace

InWindow::InWindow(const char* name, std::function<void(QWidget&)> act)
    : name_(QString::fromUtf8(name)), act_(std::move(act)), timer_(new QTimer(qApp)) {
    QObject::connect(timer_, &QTimer::timeout, [this] { look(); });
    timer_->start(1);
}

InWindow::~InWindow() {
    EXPECT_TRUE(done_) << name_.toStdString() << " never opened";
    delete timer_;
}

void InWindow::wait() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return done_; })) << name_.toStdString();
}

QWidget* InWindow::window() const {
    const auto named = [this](const QWidget& widget) {
        const auto own = widget.objectName();
        return (own.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : own) == name_;
    };
    auto* modal = QApplication::activeModalWidget();
    if (modal != nullptr) return named(*modal) ? modal : nullptr;
    for (auto* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && !widget->isModal() && named(*widget)) return widget;
    return nullptr;
}

void InWindow::look() {
    if (++looks_ > patience) return giveUp();
    if (acting_ || done_) return;
    const QPointer<QWidget> found = window();
    if (found == nullptr) return;
    acting_ = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == found; })) << name_.toStdString();
    letGo(*found);
    act_(*found);
    done_ = true;
    if (found == nullptr || !found->isVisible()) return;
    ADD_FAILURE() << name_.toStdString() << " is left open";
    closeLeftOpen(*found);
}

/// Somewhere a window waits for a user whom there is not.
void InWindow::giveUp() {
    auto* waiting = QApplication::activeModalWidget();
    if (waiting == nullptr) return;
    const auto* box = qobject_cast<QMessageBox*>(waiting);
    ADD_FAILURE() << "nobody closes " << (box == nullptr ? waiting->objectName() : box->text()).toStdString();
    closeLeftOpen(*waiting);
}
