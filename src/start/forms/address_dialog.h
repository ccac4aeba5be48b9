#pragma once

#include "platform/qt/bind.h"
#include "start/address_form.h"

#include <QDialog>

namespace start {

/// The view of the address choice.
class AddressDialog : public QDialog {
public:
    explicit AddressDialog(frmAdressHilfe& form, QWidget* parent = nullptr);

    void reject() override;

private:
    frmAdressHilfe* form_;
    qt::Binding binding_;
};

} // namespace start
