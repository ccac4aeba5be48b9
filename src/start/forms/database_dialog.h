#pragma once

#include "platform/qt/bind.h"
#include "start/database_form.h"

#include <QDialog>

class QGridLayout;

namespace start {

/// The view of the path form.
class DatabaseDialog : public QDialog {
public:
    explicit DatabaseDialog(frmDatenbank& form, QWidget* parent = nullptr);

    /// Closing the window by its frame or by Escape is the button "Abbrechen".
    void reject() override;

private:
    void addPath(QGridLayout& grid, services::Label& label, services::TextBox& box, services::Button& button,
                 const char* name, qt::Procedure click);
    void addButtons(QGridLayout& grid);

    frmDatenbank* form_;
    qt::Binding binding_;
};

} // namespace start
