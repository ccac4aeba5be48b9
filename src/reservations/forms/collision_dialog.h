#pragma once

#include "platform/qt/bind.h"
#include "reservations/collision_form.h"

#include <QDialog>

class QBoxLayout;
class QGridLayout;
class QScrollBar;

namespace reservations {

/// The view of the dialog that solves collisions.
class CollisionDialog : public QDialog {
public:
    explicit CollisionDialog(frmCollision& form, QWidget* parent = nullptr);

    /// Closing the window by its frame or by Escape is the button "Neue Reservierung ändern".
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    /// The wheel moves the list wherever the pointer is, a row with each notch.
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] QWidget* newStay();
    [[nodiscard]] QWidget* oldStays();
    void addRow(QGridLayout& grid, int line);
    [[nodiscard]] QBoxLayout* buttons();
    void showScrollBar();

    frmCollision* form_;
    QScrollBar* scrollBar_;
    qt::Binding binding_;
    int wheel_ = 0; ///< turned, in eighths of a degree, and not yet shown
};

} // namespace reservations
