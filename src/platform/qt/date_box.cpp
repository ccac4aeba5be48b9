#include "platform/qt/date_box.h"

#include "platform/basic/convert.h"
#include "platform/qt/look.h"

#include <QCalendarWidget>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

namespace qt {

namespace {

/// A sheet of a calendar, in the house's own colours.
QIcon sheet() {
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(look::textMuted);
    painter.setBrush(look::surface);
    painter.drawRect(2, 3, 11, 11);
    painter.fillRect(2, 3, 12, 3, look::accent);
    for (const QPoint day : {QPoint(4, 8), {7, 8}, {10, 8}, {4, 11}, {7, 11}})
        painter.fillRect(QRect(day, QSize(2, 2)), look::textMuted);
    painter.end();
    return picture;
}

enum class Towards { Left, Right };

QIcon arrow(Towards where) {
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::onAccent, 2));
    const double tip = where == Towards::Left ? 5.5 : 10.5;
    painter.drawPolyline(QPolygonF{{16 - tip, 3.5}, {tip, 8}, {16 - tip, 12.5}});
    painter.end();
    return picture;
}

void dress(QCalendarWidget& calendar) {
    const std::pair<const char*, Towards> arrows[] = {{"qt_calendar_prevmonth", Towards::Left},
                                                      {"qt_calendar_nextmonth", Towards::Right}};
    for (const auto& [name, where] : arrows)
        if (auto* button = calendar.findChild<QToolButton*>(QString::fromLatin1(name))) button->setIcon(arrow(where));
    auto weekend = calendar.weekdayTextFormat(Qt::Sunday);
    weekend.setForeground(look::weekend);
    for (const auto day : {Qt::Saturday, Qt::Sunday})
        calendar.setWeekdayTextFormat(day, weekend);
}

/// Not valid where the text is no day.
QDate dayIn(const QString& text) {
    const basic::Value typed(text.trimmed().toStdString());
    if (!basic::IsDate(typed)) return {};
    const auto parts = basic::partsOf(basic::CDate(typed));
    return {parts.year, parts.month, parts.day};
}

QCalendarWidget* calendarIn(QWidget& popup) {
    auto* calendar = new QCalendarWidget(&popup);
    calendar->setLocale(QLocale(QLocale::German, QLocale::Germany));
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setMinimumSize(270, 210);
    dress(*calendar);
    return calendar;
}

/// Below the box, or above it where the screen ends.
QPoint placeOf(const QWidget& popup, const QWidget& box) {
    const QSize size = popup.sizeHint();
    const QRect screen = box.screen()->availableGeometry();
    QPoint place = box.mapToGlobal(QPoint(0, box.height()));
    if (place.y() + size.height() > screen.bottom()) place = box.mapToGlobal(QPoint(0, -size.height()));
    place.setX(std::max(screen.left(), std::min(place.x(), screen.right() - size.width())));
    return place;
}

} // namespace

DateBox::DateBox(const QString& name, QWidget* parent)
    : QWidget(parent), edit_(new QLineEdit(this)), button_(new QToolButton(this)), popup_(new QFrame(this, Qt::Popup)),
      calendar_(calendarIn(*popup_)) {
    edit_->setObjectName(name);
    button_->setObjectName(name + QStringLiteral("Auswahl"));
    calendar_->setObjectName(name + QStringLiteral("Kalender"));
    button_->setIcon(sheet());
    button_->setAutoRaise(true);
    button_->setFocusPolicy(Qt::NoFocus);
    button_->setToolTip(QStringLiteral("Kalender (Alt + Pfeil nach unten)"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(edit_, 1);
    row->addWidget(button_);
    popup_->setFrameShape(QFrame::Box);
    auto* frame = new QVBoxLayout(popup_);
    frame->setContentsMargins(1, 1, 1, 1);
    frame->addWidget(calendar_);
    setFocusProxy(edit_);
    edit_->installEventFilter(this);
    connect(button_, &QToolButton::clicked, this, [this] { openCalendar(); });
    connect(calendar_, &QCalendarWidget::clicked, this, [this](QDate day) { pick(day); });
    connect(calendar_, &QCalendarWidget::activated, this, [this](QDate day) { pick(day); });
}

QDate DateBox::dayToShow() const {
    if (const QDate own = dayIn(edit_->text()); own.isValid()) return own;
    const QDate before = before_ == nullptr ? QDate() : dayIn(before_->text());
    return before.isValid() ? before.addDays(1) : QDate::currentDate();
}

void DateBox::openCalendar() {
    edit_->setFocus(Qt::MouseFocusReason);
    calendar_->setSelectedDate(dayToShow());
    popup_->move(placeOf(*popup_, *edit_));
    popup_->show();
    calendar_->setFocus(Qt::PopupFocusReason);
}

void DateBox::pick(QDate day) {
    if (!popup_->isVisible()) return; // a double click tells the day twice
    popup_->hide();
    edit_->setFocus(Qt::PopupFocusReason);
    if (pick_) pick_(day.toString(QStringLiteral("dd.MM.yyyy")));
}

bool DateBox::eventFilter(QObject* object, QEvent* event) {
    if (object == edit_ && event->type() == QEvent::EnabledChange) button_->setEnabled(edit_->isEnabled());
    if (object == edit_ && event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.key() == Qt::Key_Down && (key.modifiers() & Qt::AltModifier) != 0) {
            openCalendar();
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

void bindDate(Binding& binding, DateBox& box, services::TextBox& control, TextEvents events) {
    box.onPick([&binding, &control, change = events.change, leave = events.leave](const QString& day) {
        control.Text = day.toStdString();
        binding.run([&] {
            if (change) change();
            if (leave) static_cast<void>(leave()); // the focus stays in the box anyway
        });
    });
    binding.bind(box.edit(), control, std::move(events));
}

} // namespace qt
