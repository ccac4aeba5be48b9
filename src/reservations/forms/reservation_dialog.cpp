#include "reservations/forms/reservation_dialog.h"

#include "platform/qt/form_parts.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/text.h"
#include "reservations/forms/reservation_groups.h"

#include <QHBoxLayout>
#include <QMenuBar>
#include <QVBoxLayout>

namespace reservations {

namespace {

constexpr int columnWidth = 415;

/// The last one takes the height that is left.
QBoxLayout* column(std::initializer_list<QWidget*> groups) {
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    for (auto* group : groups) {
        group->setMinimumWidth(columnWidth);
        column->addWidget(group);
    }
    column->setStretchFactor(column->itemAt(column->count() - 1)->widget(), 1);
    return column;
}

} // namespace

ReservationDialog::ReservationDialog(frmReservierung& form, QWidget* parent)
    : QDialog(parent), form_(form), binding_(*this),
      menu_(std::make_unique<qt::MenuView>(
          form.Menü, [this](const std::string& name) { binding_.run([&] { form_.Menü_Click(name); }); })) {
    setObjectName(QStringLiteral("frmReservierung"));
    build();
    binding_.onRefresh([this] { refresh(); });
    binding_.refresh();
    fit();
}

ReservationDialog::~ReservationDialog() = default;

void ReservationDialog::build() {
    qt::FormParts parts(*this, binding_);
    auto* guest = guestGroup(parts, form_);
    auto* stay = stayGroup(parts, form_);
    auto* price = priceGroup(parts, form_);
    auto* note = noteGroup(parts, form_);
    auto* state = stateGroup(parts, form_);
    extras_ = extrasFrame(parts, form_);

    auto* groups = new QHBoxLayout;
    groups->setSpacing(8);
    groups->addLayout(column({guest, note}), 1);
    groups->addLayout(column({stay, price, state}), 1);
    groups->addWidget(extras_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(12, 10, 12, 12);
    all->setSpacing(10);
    all->setMenuBar(menu_->bar());
    all->addLayout(groups, 1);
    all->addLayout(documentButtons(parts, form_));
    all->addLayout(closingButtons(parts, form_));
    parts.orderTabs();
}

void ReservationDialog::refresh() {
    setWindowTitle(qt::text(form_.Caption()));
    menu_->refresh(form_.Menü);
    extras_->setVisible(form_.frZusatz.Visible);
    extras_->setEnabled(form_.frZusatz.Enabled);
    if (large_ != form_.istGross()) fit();
    if (form_.Geschlossen()) done(Accepted);
}

void ReservationDialog::fit() {
    large_ = form_.istGross();
    layout()->activate();
    resize(minimumSizeHint());
}

void ReservationDialog::reject() {
    bool may = false;
    binding_.run([&] { may = form_.canClose(); });
    if (may) QDialog::reject();
}

} // namespace reservations
