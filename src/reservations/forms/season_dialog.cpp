#include "reservations/forms/season_dialog.h"

#include "platform/qt/date_box.h"
#include "platform/qt/form_parts.h"
#include "platform/qt/grid_view.h"
#include "platform/qt/text.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace reservations {

SeasonDialog::SeasonDialog(frmSaison& form, QWidget* parent) : QDialog(parent), form_(&form), binding_(*this) {
    setObjectName(QStringLiteral("frmSaison"));
    setWindowTitle(qt::text(frmSaison::Caption));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(16);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(20);
    halves->addWidget(addGrid(), 1);
    halves->addLayout(addFields());
    column->addLayout(halves, 1);
    column->addLayout(addButtons());
    resize(760, 420);
    binding_.refresh();
}

void SeasonDialog::reject() {
    bool closes = false;
    binding_.run([&] { closes = form_->canClose(); });
    if (closes) QDialog::reject();
}

QWidget* SeasonDialog::addGrid() {
    auto* grid = new qt::GridView(this);
    grid->setObjectName(QStringLiteral("grSaison"));
    grid->setMinimumWidth(400);
    grid->serve(binding_, form_->grSaison,
                {.headerClick = [this](int column) { form_->grSaison_HeaderClick(column); },
                 .rowChange = [this] { form_->grSaison_RowColChange(); }});
    return grid;
}

QLayout* SeasonDialog::addFields() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    const auto add = [&](const char* name, services::Label& control, QWidget* field) {
        auto* label = new QLabel(this);
        label->setObjectName(qt::text(name));
        label->setBuddy(field);
        binding_.bind(*label, control);
        column->addWidget(label);
        column->addWidget(field);
        column->addSpacing(8);
    };
    auto* name = new QComboBox(this);
    name->setObjectName(QStringLiteral("txtName"));
    name->setMinimumWidth(220);
    auto* from = new qt::DateBox(QStringLiteral("txtVon"), this);
    auto* to = new qt::DateBox(QStringLiteral("txtBis"), this);
    add("lblName", form_->lblName, name);
    add("lblVon", form_->lblVon, from);
    add("lblBis", form_->lblBis, to);
    column->addStretch();

    const qt::Procedure change = [this] { form_->Feld_Change(); };
    binding_.bind(*name, form_->txtName,
                  {.change = change, .click = change, .leave = [this] { return form_->txtName_LostFocus(); }});
    qt::bindDate(binding_, *from, form_->txtVon,
                 {.change = change, .leave = [this] { return form_->txtVon_LostFocus(); }});
    qt::bindDate(binding_, *to, form_->txtBis,
                 {.change = change, .leave = [this] { return form_->txtBis_LostFocus(); }});
    return column;
}

QLayout* SeasonDialog::addButtons() {
    auto* line = new QHBoxLayout;
    line->setSpacing(10);
    qt::FormParts parts(*this, binding_);
    parts.button(*line, "cmdNeu", form_->cmdNeu, [this] { form_->cmdNeu_Click(); });
    parts.button(*line, "cmdL_schen", form_->cmdL_schen, [this] { form_->cmdL_schen_Click(); });
    line->addStretch();
    parts.button(*line, "cmdSpeichern", form_->cmdSpeichern, [this] { form_->cmdSpeichern_Click(); })->setDefault(true);
    parts.button(*line, "cmdZu", form_->cmdZu, [this] { reject(); });
    return line;
}

} // namespace reservations
