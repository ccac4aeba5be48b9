#pragma once

#include "platform/qt/bind.h"

#include <QString>
#include <QWidgetList>

#include <initializer_list>

class QCheckBox;
class QComboBox;
class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QWidget;

namespace qt {

class DateBox;

/// Makes the widgets of a form: each carries the name of its control and is tied to it. The Tab key goes through them
/// in the order in which they were made.
class FormParts {
public:
    FormParts(QWidget& window, Binding& binding) : window_(window), binding_(binding) {}

    QLineEdit* text(const char* name, services::TextBox& control, TextEvents events);
    QPlainTextEdit* lines(const char* name, services::TextBox& control, TextEvents events);
    DateBox* date(const char* name, services::TextBox& control, TextEvents events);
    QLineEdit* matches(const char* name, services::MatchBox& control, MatchEvents events);
    QComboBox* combo(const char* name, services::ComboBox& control, ChoiceEvents events);
    QCheckBox* check(const char* name, services::CheckBox& control, Procedure click, KeyProcedure key = {});
    QPushButton* button(const char* name, services::Button& control, Procedure click);
    /// The same at the end of a row.
    QPushButton* button(QHBoxLayout& row, const char* name, services::Button& control, Procedure click);
    QLabel* label(const char* name, services::Label& control, QWidget* buddy = nullptr);
    /// A frame with an option button for each one of the control.
    QWidget* options(const char* name, services::OptionGroup& control, std::function<void(int)> click,
                     const KeyProcedure& key);

    /// Lets the Tab key follow the order of the making.
    void orderTabs() const;

    [[nodiscard]] Binding& binding() { return binding_; }
    [[nodiscard]] QWidget& window() { return window_; }

private:
    QWidget& window_;
    Binding& binding_;
    QWidgetList tabs_;
};

/// A group of fields under a heading.
struct Card {
    QFrame* frame;
    QGridLayout* grid; ///< below the heading; captions in the even columns, fields in the odd ones
};
[[nodiscard]] Card makeCard(const QString& heading, QWidget* parent);

/// A caption in front of its field.
void addCaption(const Card& card, int row, int column, const QString& caption, QWidget* field);
/// The fields take the height that is left, where one of them has use for it.
void letGrow(const Card& card);
/// Caption and field; the field reaches over `columns` columns of the grid.
void addField(const Card& card, int row, int column, const QString& caption, QWidget* field, int columns = 1);
/// Widgets side by side; a null stands for the space that stretches.
[[nodiscard]] QHBoxLayout* inRow(std::initializer_list<QWidget*> widgets);

} // namespace qt
