#pragma once

#include "platform/qt/bind.h"
#include "reservations/season_prices_form.h"

#include <QDialog>

class QGridLayout;

namespace reservations {

/// The view of a room's season prices.
class SeasonPricesDialog : public QDialog {
public:
    explicit SeasonPricesDialog(frmSaisonpreise& form, QWidget* parent = nullptr);

    /// Closing the window by its frame or by Escape is the button "Schließen".
    void reject() override;

private:
    void addPrice(QGridLayout& grid, const char* name, services::Label& label, services::TextBox& box);
    void addButtons(QGridLayout& grid);

    frmSaisonpreise* form_;
    qt::Binding binding_;
};

} // namespace reservations
