#include "platform/qt/form_parts.h"

#include "platform/qt/date_box.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace qt {

namespace {

/// An entry of a list may be longer than its box has room for.
constexpr int shownCharacters = 6;

} // namespace

QLineEdit* FormParts::text(const char* name, services::TextBox& control, TextEvents events) {
    auto* edit = new QLineEdit(&window_);
    edit->setObjectName(qt::text(name));
    binding_.bind(*edit, control, std::move(events));
    tabs_.append(edit);
    return edit;
}

QPlainTextEdit* FormParts::lines(const char* name, services::TextBox& control, TextEvents events) {
    auto* edit = new QPlainTextEdit(&window_);
    edit->setObjectName(qt::text(name));
    edit->setTabChangesFocus(true);
    edit->setMinimumHeight(2 * edit->fontMetrics().lineSpacing() + 14);
    edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    binding_.bind(*edit, control, std::move(events));
    tabs_.append(edit);
    return edit;
}

DateBox* FormParts::date(const char* name, services::TextBox& control, TextEvents events) {
    auto* box = new DateBox(qt::text(name), &window_);
    bindDate(binding_, *box, control, std::move(events));
    tabs_.append(&box->edit());
    return box;
}

QLineEdit* FormParts::matches(const char* name, services::MatchBox& control, MatchEvents events) {
    auto* edit = new QLineEdit(&window_);
    edit->setObjectName(qt::text(name));
    binding_.bind(*edit, control, std::move(events));
    tabs_.append(edit);
    return edit;
}

QComboBox* FormParts::combo(const char* name, services::ComboBox& control, ChoiceEvents events) {
    auto* box = new QComboBox(&window_);
    box->setObjectName(qt::text(name));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(shownCharacters);
    box->setMaxVisibleItems(20);
    binding_.bind(*box, control, std::move(events));
    tabs_.append(box);
    return box;
}

QCheckBox* FormParts::check(const char* name, services::CheckBox& control, Procedure click, KeyProcedure key) {
    auto* box = new QCheckBox(&window_);
    box->setObjectName(qt::text(name));
    binding_.bind(*box, control, std::move(click), std::move(key));
    tabs_.append(box);
    return box;
}

QPushButton* FormParts::button(const char* name, services::Button& control, Procedure click) {
    auto* button = new QPushButton(&window_);
    button->setObjectName(qt::text(name));
    button->setAutoDefault(false); // Return belongs to the field that has the focus
    binding_.bind(*button, control, std::move(click));
    tabs_.append(button);
    return button;
}

QPushButton* FormParts::button(QHBoxLayout& row, const char* name, services::Button& control, Procedure click) {
    auto* last = button(name, control, std::move(click));
    row.addWidget(last);
    return last;
}

QLabel* FormParts::label(const char* name, services::Label& control, QWidget* buddy) {
    auto* label = new QLabel(&window_);
    label->setObjectName(qt::text(name));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    binding_.bind(*label, control);
    return label;
}

QWidget* FormParts::options(const char* name, services::OptionGroup& control, std::function<void(int)> click,
                            const KeyProcedure& key) {
    auto* frame = new QWidget(&window_);
    frame->setObjectName(qt::text(name));
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(0, 0, 0, 0);
    auto* group = new QButtonGroup(frame);
    for (int index = 0; index < static_cast<int>(control.Buttons.size()); ++index) {
        auto* option = new QRadioButton(frame);
        option->setObjectName(qt::text(name) + QString::number(index));
        group->addButton(option, index);
        row->addWidget(option);
        tabs_.append(option);
    }
    binding_.bind(*group, control, std::move(click), key);
    return frame;
}

void FormParts::orderTabs() const {
    for (qsizetype index = 1; index < tabs_.size(); ++index)
        QWidget::setTabOrder(tabs_[index - 1], tabs_[index]);
}

Card makeCard(const QString& heading, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(QStringLiteral("karte"));
    frame->setStyleSheet(QStringLiteral("QFrame#karte { background: %1; border: 1px solid %2; border-radius: 6px; }")
                             .arg(look::surface.name(), look::border.name()));
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(12, 8, 12, 10);
    column->setSpacing(6);
    auto* title = new QLabel(heading, frame);
    title->setTextFormat(Qt::PlainText);
    auto font = title->font();
    font.setBold(true);
    title->setFont(font);
    column->addWidget(title);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    column->addLayout(grid);
    column->addStretch();
    return {frame, grid};
}

void addCaption(const Card& card, int row, int column, const QString& caption, QWidget* field) {
    auto* label = new QLabel(caption, card.frame);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(field);
    const bool several = qobject_cast<QPlainTextEdit*>(field) != nullptr;
    if (several) label->setContentsMargins(0, 4, 0, 0);
    card.grid->addWidget(label, row, column, several ? Qt::AlignTop : Qt::Alignment());
}

void letGrow(const Card& card) { static_cast<QVBoxLayout*>(card.frame->layout())->setStretchFactor(card.grid, 1); }

void addField(const Card& card, int row, int column, const QString& caption, QWidget* field, int columns) {
    addCaption(card, row, column, caption, field);
    card.grid->addWidget(field, row, column + 1, 1, columns);
}

QHBoxLayout* inRow(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (auto* widget : widgets) {
        if (widget == nullptr)
            row->addStretch();
        else
            row->addWidget(widget);
    }
    return row;
}

} // namespace qt
