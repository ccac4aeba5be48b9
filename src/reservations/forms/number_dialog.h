#pragma once

#include "platform/qt/bind.h"
#include "reservations/number_form.h"

#include <QDialog>

class QFormLayout;
class QLayout;

namespace reservations {

/// The view of the pattern of the reservation numbers.
class NumberDialog : public QDialog {
public:
    explicit NumberDialog(frmBeNummer& form, QWidget* parent = nullptr);

    /// Closing the window by its frame or by Escape is the button "Schließen".
    void reject() override;

private:
    void addFields(QFormLayout& fields);
    [[nodiscard]] QWidget* addOptions();
    [[nodiscard]] QLayout* addButtons();

    frmBeNummer* form_;
    qt::Binding binding_;
};

} // namespace reservations
