#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

#include <functional>

class QAction;
class QMenu;
class QTimer;
class QWidget;

/// The user's hand. What it does goes to the window as the window system would send it: the widget below the pointer
/// gets it, unless a menu or a modal window is in front.
namespace hand {

void press(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
void moveTo(QWidget& widget, QPoint at);
void release(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
void click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
/// In the middle of it.
void click(QWidget& widget);
void click(QMenu& menu, QAction& entry);
/// A key to the widget that has the focus in the window.
void key(QWidget& window, Qt::Key key);
/// Signs of the plain alphabet.
void type(QWidget& window, const char* text);
/// Opens the menu of the window's bar in which the entry stands, and chooses it.
void chooseFromBar(QWidget& window, const char* entry);

/// Lets a timer come due this often, now.
void runTimer(QTimer& timer, int times);

} // namespace hand

/// Acts in the next window of this name (the class of one without a name) as soon as it is open, while the code that
/// opened it waits. A modal window may be of any kind, another only a main one. A window that the act leaves open is
/// closed; that fails the test, and so does a window that never opens.
class InWindow {
public:
    InWindow(const char* name, std::function<void(QWidget&)> act);
    InWindow(const InWindow&) = delete;
    InWindow& operator=(const InWindow&) = delete;
    ~InWindow();

    /// Until the act is done and its window has closed.
    void wait();

private:
    void look();
    void giveUp();
    [[nodiscard]] QWidget* window() const;

    QString name_;
    std::function<void(QWidget&)> act_;
    QTimer* timer_;
    int looks_ = 0;
    bool acting_ = false;
    bool done_ = false;
};
