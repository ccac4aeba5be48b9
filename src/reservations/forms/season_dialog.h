#pragma once

#include "platform/qt/bind.h"
#include "reservations/season_form.h"

#include <QDialog>

class QLayout;

namespace reservations {

/// The view of the season calendar.
class SeasonDialog : public QDialog {
public:
    explicit SeasonDialog(frmSaison& form, QWidget* parent = nullptr);

    /// Closing the window by its frame or by Escape is the button "Schließen".
    void reject() override;

private:
    [[nodiscard]] QWidget* addGrid();
    [[nodiscard]] QLayout* addFields();
    [[nodiscard]] QLayout* addButtons();

    frmSaison* form_;
    qt::Binding binding_;
};

} // namespace reservations
