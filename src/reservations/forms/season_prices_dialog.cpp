#include "reservations/forms/season_prices_dialog.h"

#include "platform/qt/form_parts.h"
#include "platform/qt/text.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace reservations {

SeasonPricesDialog::SeasonPricesDialog(frmSaisonpreise& form, QWidget* parent)
    : QDialog(parent), form_(&form), binding_(*this) {
    setObjectName(QStringLiteral("frmSaisonpreise"));
    setWindowTitle(qt::text(form.Caption()));
    setMinimumWidth(360);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(20, 20, 20, 20);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(8);
    addPrice(*grid, "Haupt", form.lblHaupt, form.txtHaupt);
    addPrice(*grid, "Zwischen", form.lblZwischen, form.txtZwischen);
    addPrice(*grid, "Neben", form.lblNeben, form.txtNeben);
    addPrice(*grid, "Sonder", form.lblSonder, form.txtSonder);
    auto* standard = new QLabel(this);
    standard->setObjectName(QStringLiteral("lblStandard"));
    binding_.bind(*standard, form.lblStandard);
    grid->addWidget(standard, grid->rowCount(), 0, 1, 2);
    addButtons(*grid);
    binding_.refresh();
}

void SeasonPricesDialog::reject() {
    bool closes = false;
    binding_.run([&] { closes = form_->canClose(); });
    if (closes) QDialog::reject();
}

void SeasonPricesDialog::addPrice(QGridLayout& grid, const char* name, services::Label& label, services::TextBox& box) {
    auto* caption = new QLabel(this);
    auto* edit = new QLineEdit(this);
    caption->setObjectName(qt::text("lbl") + qt::text(name));
    edit->setObjectName(qt::text("txt") + qt::text(name));
    edit->setAlignment(Qt::AlignRight);
    edit->setMinimumWidth(140);
    caption->setBuddy(edit);
    const int row = grid.rowCount();
    grid.addWidget(caption, row, 0);
    grid.addWidget(edit, row, 1);
    binding_.bind(*caption, label);
    binding_.bind(
        *edit, box,
        {.change = [this] { form_->Preis_Change(); }, .leave = [this, &box] { return form_->Preis_LostFocus(box); }});
}

void SeasonPricesDialog::addButtons(QGridLayout& grid) {
    auto* line = new QHBoxLayout;
    line->setSpacing(10);
    line->addStretch();
    qt::FormParts parts(*this, binding_);
    parts.button(*line, "cmdSpeichern", form_->cmdSpeichern, [this] { form_->cmdSpeichern_Click(); })->setDefault(true);
    parts.button(*line, "cmdZu", form_->cmdZu, [this] { reject(); });
    grid.setRowMinimumHeight(grid.rowCount(), 8);
    grid.addLayout(line, grid.rowCount(), 0, 1, 2);
}

} // namespace reservations
