#pragma once

#include "platform/qt/bind.h"

#include <QWidget>

class QCalendarWidget;
class QDate;
class QFrame;
class QLineEdit;
class QToolButton;

namespace qt {

/// A field for a day: a box that is typed into, and a calendar behind a small button or Alt+Down.
class DateBox : public QWidget {
public:
    /// The box carries the name, the button and the calendar names that begin with it.
    explicit DateBox(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QLineEdit& edit() { return *edit_; }
    /// Shows the calendar at the day that stands in the box, else at the one after the box that it comes after, else at
    /// today's.
    void openCalendar();
    void comesAfter(const DateBox& other) { before_ = other.edit_; }
    /// The day is told as the text "dd.mm.yyyy".
    void onPick(std::function<void(const QString&)> pick) { pick_ = std::move(pick); }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void pick(QDate day);
    [[nodiscard]] QDate dayToShow() const;

    QLineEdit* edit_;
    const QLineEdit* before_ = nullptr;
    QToolButton* button_;
    QFrame* popup_;
    QCalendarWidget* calendar_;
    std::function<void(const QString&)> pick_;
};

/// Ties a date box to its control. A day that is picked is typed: change and leave run after it.
void bindDate(Binding& binding, DateBox& box, services::TextBox& control, TextEvents events);

} // namespace qt
