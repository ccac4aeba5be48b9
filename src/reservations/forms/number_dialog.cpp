#include "reservations/forms/number_dialog.h"

#include "platform/qt/form_parts.h"
#include "platform/qt/text.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace reservations {

NumberDialog::NumberDialog(frmBeNummer& form, QWidget* parent) : QDialog(parent), form_(&form), binding_(*this) {
    setObjectName(QStringLiteral("frmBeNummer"));
    setWindowTitle(qt::text(frmBeNummer::Caption));
    setMinimumWidth(480);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(14);
    auto* fields = new QFormLayout;
    fields->setHorizontalSpacing(20);
    fields->setVerticalSpacing(8);
    addFields(*fields);
    column->addLayout(fields);
    column->addWidget(addOptions());
    column->addStretch();
    column->addLayout(addButtons());
    binding_.refresh();
}

void NumberDialog::reject() {
    bool closes = false;
    binding_.run([&] { closes = form_->canClose(); });
    if (closes) QDialog::reject();
}

void NumberDialog::addFields(QFormLayout& fields) {
    const auto add = [&](services::Label& control, QWidget* field, const char* name) {
        auto* label = new QLabel(this);
        field->setObjectName(qt::text(name));
        label->setBuddy(field);
        binding_.bind(*label, control);
        fields.addRow(label, field);
    };
    auto* before = new QLineEdit(this);
    auto* number = new QLineEdit(this);
    auto* date = new QComboBox(this);
    auto* example = new QLineEdit(this);
    add(form_->lblVor, before, "txtVor");
    add(form_->lblBeNummer, number, "txtBeNummer");
    add(form_->lblDatum, date, "cboDatum");
    add(form_->lblBeispiel, example, "txtBeNummerBeispiel");
    example->setFocusPolicy(Qt::ClickFocus);
    QPalette quiet = example->palette();
    quiet.setColor(QPalette::Base, quiet.color(QPalette::Window));
    example->setPalette(quiet);
    binding_.bind(
        *before, form_->txtVor,
        {.change = [this] { form_->txtVor_Change(); }, .leave = [this] { return form_->txtVor_LostFocus(); }});
    binding_.bind(*number, form_->txtBeNummer, {.change = [this] { form_->txtBeNummer_Change(); }});
    binding_.bind(*date, form_->cboDatum, {.click = [this] { form_->cboDatum_Click(); }});
    binding_.bind(*example, form_->txtBeNummerBeispiel);
}

QWidget* NumberDialog::addOptions() {
    auto* frame = new QGroupBox(qt::text(form_->opFreie.Caption), this);
    auto* line = new QHBoxLayout(frame);
    auto* group = new QButtonGroup(this);
    for (int index = 0; index < static_cast<int>(form_->opFreie.Buttons.size()); ++index) {
        auto* option = new QRadioButton(frame);
        option->setObjectName(QStringLiteral("opFreie%1").arg(index));
        group->addButton(option, index);
        line->addWidget(option);
    }
    line->addStretch();
    binding_.bind(*group, form_->opFreie, [this](int index) { form_->opFreie_Click(index); });
    return frame;
}

QLayout* NumberDialog::addButtons() {
    auto* line = new QHBoxLayout;
    line->setSpacing(10);
    line->addStretch();
    qt::FormParts parts(*this, binding_);
    parts.button(*line, "cmdSpeichern", form_->cmdSpeichern, [this] { form_->cmdSpeichern_Click(); })->setDefault(true);
    parts.button(*line, "cmdZu", form_->cmdZu, [this] { reject(); });
    return line;
}

} // namespace reservations
