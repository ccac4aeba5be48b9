#include "start/forms/database_dialog.h"

#include "platform/qt/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace start {

DatabaseDialog::DatabaseDialog(frmDatenbank& form, QWidget* parent) : QDialog(parent), form_(&form), binding_(*this) {
    setObjectName(QStringLiteral("frmDatenbank"));
    setWindowTitle(qt::text(frmDatenbank::Caption));
    setMinimumWidth(720);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(20, 20, 20, 20);
    grid->setVerticalSpacing(6);
    addPath(*grid, form.lblPfad, form.txtPfad, form.cmdPfad, "Pfad", [&form] { form.cmdPfad_Click(); });
    addPath(*grid, form.lblZentral, form.txtZentral, form.cmdZentral, "Zentral", [&form] { form.cmdZentral_Click(); });
    addPath(*grid, form.lblSicherung, form.txtSicherung, form.cmdSicherung, "Sicherung",
            [&form] { form.cmdSicherung_Click(); });
    addButtons(*grid);
    binding_.onRefresh([this] {
        if (form_->Ergebnis()) accept();
    });
    binding_.refresh();
}

void DatabaseDialog::reject() {
    binding_.run([this] { form_->cmdAbbrechen_Click(); });
}

void DatabaseDialog::addPath(QGridLayout& grid, services::Label& label, services::TextBox& box,
                             services::Button& button, const char* name, qt::Procedure click) {
    auto* caption = new QLabel(this);
    auto* edit = new QLineEdit(this);
    auto* choose = new QPushButton(this);
    caption->setObjectName(qt::text("lbl") + qt::text(name));
    edit->setObjectName(qt::text("txt") + qt::text(name));
    choose->setObjectName(qt::text("cmd") + qt::text(name));
    choose->setAutoDefault(false);
    const int row = grid.rowCount();
    grid.addWidget(caption, row, 0, 1, 2);
    grid.addWidget(edit, row + 1, 0);
    grid.addWidget(choose, row + 1, 1);
    grid.setRowMinimumHeight(row + 2, 8);
    binding_.bind(*caption, label);
    binding_.bind(*edit, box);
    binding_.bind(*choose, button, std::move(click));
}

void DatabaseDialog::addButtons(QGridLayout& grid) {
    auto* sample = new QCheckBox(this);
    sample->setObjectName(QStringLiteral("chBeispiel"));
    binding_.bind(*sample, form_->chBeispiel);
    grid.addWidget(sample, grid.rowCount(), 0, 1, 2);
    grid.setRowMinimumHeight(grid.rowCount(), 12);

    auto* line = new QHBoxLayout;
    const auto add = [&](const char* name, services::Button& control, qt::Procedure click) {
        auto* button = new QPushButton(this);
        button->setObjectName(qt::text(name));
        binding_.bind(*button, control, std::move(click));
        line->addWidget(button);
        return button;
    };
    auto* save = add("cmdSpeichern", form_->cmdSpeichern, [this] { form_->cmdSpeichern_Click(); });
    add("cmdName", form_->cmdName, [this] { form_->cmdName_Click(); })->setAutoDefault(false);
    line->addStretch();
    add("cmdEnde", form_->cmdEnde, [this] { form_->cmdEnde_Click(); })->setAutoDefault(false);
    add("cmdAbbrechen", form_->cmdAbbrechen, [this] { form_->cmdAbbrechen_Click(); })->setAutoDefault(false);
    save->setDefault(true);
    grid.addLayout(line, grid.rowCount(), 0, 1, 2);
}

} // namespace start
