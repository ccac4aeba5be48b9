#pragma once

#include "plan/main_form.h"

#include <QWidget>

class QBoxLayout;
class QLabel;
class QScrollBar;

namespace plan {

class PlanWidget;

/// The main window on the plan. Holds no rule: every press goes to the form model, and refresh() shows what it says.
class MainWindow : public QWidget {
public:
    /// The model must outlive the window.
    explicit MainWindow(frmMain& form);

    void refresh();

private:
    [[nodiscard]] QBoxLayout* navigationBar();
    [[nodiscard]] QBoxLayout* scrollColumn();
    void addNavigation(QBoxLayout& bar, const Navigation& button);

    frmMain& form_;
    QLabel* period_;
    QLabel* error_;
    PlanWidget* plan_;
    QWidget* scrollColumn_;
    QScrollBar* scrollBar_;
};

} // namespace plan
