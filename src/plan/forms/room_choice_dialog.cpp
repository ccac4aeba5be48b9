#include "plan/forms/room_choice_dialog.h"

#include "platform/qt/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace plan {

namespace {

QPushButton* button(const char* name, const services::Button& control) {
    auto* widget = new QPushButton(qt::text(control.Caption));
    widget->setObjectName(QString::fromUtf8(name));
    return widget;
}

} // namespace

RoomChoiceDialog::RoomChoiceDialog(frmZimmerauswahl& form, const QString& title, QWidget* parent)
    : QDialog(parent), form_(form), list_(new QListWidget) {
    setObjectName(QStringLiteral("frmZimmerauswahl"));
    setWindowTitle(title);
    auto* question = new QLabel(qt::text(form.lblFrage.Caption));
    question->setTextFormat(Qt::PlainText);
    list_->setObjectName(QStringLiteral("lstReservierungen"));
    for (int i = 0; i < form.lstReservierungen.Items.ListCount(); ++i)
        list_->addItem(qt::text(form.lstReservierungen.Items.List(i)));
    list_->setCurrentRow(form.lstReservierungen.ListIndex);
    auto* choose = button("cmdAuswählen", form.cmdAuswählen);
    auto* cancel = button("cmdAbbrechen", form.cmdAbbrechen);
    choose->setDefault(true);
    connect(choose, &QPushButton::clicked, this, [this] { this->choose(); });
    connect(list_, &QListWidget::itemDoubleClicked, this, [this] { this->choose(); });
    connect(cancel, &QPushButton::clicked, this, [this] {
        form_.cmdAbbrechen_Click();
        reject();
    });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(choose);
    buttons->addWidget(cancel);
    auto* all = new QVBoxLayout(this);
    all->addWidget(question);
    all->addWidget(list_);
    all->addLayout(buttons);
    resize(460, 220);
    list_->setFocus();
}

void RoomChoiceDialog::choose() {
    form_.lstReservierungen.ListIndex = list_->currentRow();
    form_.cmdAuswählen_Click();
    if (form_.geschlossen()) accept();
}

} // namespace plan
