#include "start/forms/address_dialog.h"

#include "platform/qt/text.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace start {

AddressDialog::AddressDialog(frmAdressHilfe& form, QWidget* parent) : QDialog(parent), form_(&form), binding_(*this) {
    setObjectName(QStringLiteral("frmAdressHilfe"));
    setWindowTitle(qt::text(frmAdressHilfe::Caption));
    setMinimumWidth(520);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(10);

    auto* options = new QButtonGroup(this);
    for (int index = 0; index < static_cast<int>(form.opAdressen.Buttons.size()); ++index) {
        auto* option = new QRadioButton(this);
        option->setObjectName(QStringLiteral("opAdressen%1").arg(index));
        options->addButton(option, index);
        column->addWidget(option);
    }
    binding_.bind(*options, form.opAdressen, [&form](int index) { form.opAdressen_Click(index); });

    auto* help = new QPlainTextEdit(this);
    help->setObjectName(QStringLiteral("txtHilfe"));
    help->setMinimumHeight(140);
    help->setFocusPolicy(Qt::ClickFocus);
    binding_.bind(*help, form.txtHilfe);
    column->addWidget(help);

    auto* line = new QHBoxLayout;
    line->addStretch();
    auto* next = new QPushButton(this);
    next->setObjectName(QStringLiteral("cmdOK"));
    next->setDefault(true);
    binding_.bind(*next, form.cmdOK, [&form] { form.cmdOK_Click(); });
    line->addWidget(next);
    auto* cancel = new QPushButton(this);
    cancel->setObjectName(QStringLiteral("cmdAbbrechen"));
    binding_.bind(*cancel, form.cmdAbbrechen, [&form] { form.cmdAbbrechen_Click(); });
    line->addWidget(cancel);
    column->addLayout(line);

    binding_.onRefresh([this] {
        if (form_->Beendet()) accept();
    });
    binding_.refresh();
}

void AddressDialog::reject() {
    binding_.run([this] { form_->cmdAbbrechen_Click(); });
}

} // namespace start
