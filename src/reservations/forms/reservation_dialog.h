#pragma once

#include "platform/qt/bind.h"
#include "reservations/reservation_form.h"

#include <QDialog>

#include <memory>

namespace qt {
class MenuView;
}

namespace reservations {

/// The view of the reservation form in its two sizes.
class ReservationDialog : public QDialog {
public:
    /// The model must outlive the window.
    explicit ReservationDialog(frmReservierung& form, QWidget* parent = nullptr);
    ~ReservationDialog() override;

    /// Escape and the frame of the window close it when the model has no objection.
    void reject() override;

private:
    void build();
    void refresh();
    /// The window takes the size that its small or large form wants.
    void fit();

    frmReservierung& form_;
    qt::Binding binding_;
    std::unique_ptr<qt::MenuView> menu_;
    QWidget* extras_ = nullptr;
    bool large_ = true;
};

} // namespace reservations
