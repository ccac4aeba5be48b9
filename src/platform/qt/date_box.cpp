#include "platform/qt/date_box.h"

#include "platform/basic/convert.h"
#include "platform/qt/look.h"

#include <QCalendarWidget>
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

QDate dayIn(const QString& text) {
    const basic::Value typed(text.trimmed().toStdString());
    if (!basic::IsDate(typed)) return QDate::currentDate();
    const auto parts = basic::partsOf(basic::CDate(typed));
    return {parts.year, parts.month, parts.day};
}

QCalendarWidget* calendarIn(QWidget& popup) {
    auto* calendar = new QCalendarWidget(&popup);
    calendar->setLocale(QLocale(QLocale::German, QLocale::Germany));
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    auto weekend = calendar->weekdayTextFormat(Qt::Sunday);
    weekend.setForeground(look::weekend);
    for (const auto day : {Qt::Saturday, Qt::Sunday})
        calendar->setWeekdayTextFormat(day, weekend);
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
    : QWidget(parent), edit_(new QLineEdit(this)), button_(new QToolButton(this)), popup_(new QWidget(this, Qt::Popup)),
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
    auto* frame = new QVBoxLayout(popup_);
    frame->setContentsMargins(1, 1, 1, 1);
    frame->addWidget(calendar_);
    setFocusProxy(edit_);
    edit_->installEventFilter(this);
    connect(button_, &QToolButton::clicked, this, [this] { openCalendar(); });
    connect(calendar_, &QCalendarWidget::clicked, this, [this](QDate day) { pick(day); });
    connect(calendar_, &QCalendarWidget::activated, this, [this](QDate day) { pick(day); });
}

void DateBox::openCalendar() {
    edit_->setFocus(Qt::MouseFocusReason);
    calendar_->setSelectedDate(dayIn(edit_->text()));
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
