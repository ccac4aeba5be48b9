#pragma once

#include "start/progress_form.h"

#include <QDialog>

namespace start {

/// The view of the progress window. It stands while the load runs on the one thread, so it cannot be closed by hand.
class ProgressWindow : public QDialog {
public:
    explicit ProgressWindow(const frmMaskeAufbauen& form, QWidget* parent = nullptr);

    /// Shows the window and lets it paint itself before the load takes the thread.
    void appear();
    void reject() override {}
};

} // namespace start
