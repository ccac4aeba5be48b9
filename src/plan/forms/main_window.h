#pragma once

#include "plan/main_form.h"

#include <QWidget>

#include <functional>
#include <memory>

class QBoxLayout;
class QLabel;
class QLayout;
class QPushButton;
class QScrollBar;

namespace qt {
class MenuView;
}

namespace plan {

struct PlanHit;
class PlanWidget;
class StatusLine;
class TypeFrame;

/// The main window on the plan. Holds no rule: every press goes to the form model, and refresh() shows what it says.
class MainWindow : public QWidget {
public:
    /// The model must outlive the window.
    explicit MainWindow(frmMain& form);
    ~MainWindow() override;

    void refresh();

private:
    /// Runs an event procedure and shows what it did.
    void run(const std::function<void()>& event);
    void refreshStatus();
    [[nodiscard]] QLayout* periodRow();
    [[nodiscard]] QLayout* typeRow();
    [[nodiscard]] QBoxLayout* planWithScrollBar();
    [[nodiscard]] QBoxLayout* scrollColumn();
    [[nodiscard]] QWidget* navigation(std::size_t first, std::size_t end);
    [[nodiscard]] QPushButton* navigationButton(const Navigation& button);
    void connectPlan();
    void connectMouse();
    void connectFrame();
    void startTimer();
    /// Shows what an event of the mouse has changed, and no more.
    void apply(Wirkung wirkung);
    void openContextMenuAt(QPoint global);
    void rightButton(const PlanHit& hit, QPoint global);
    [[nodiscard]] bool key(Plantaste key, Umschalt shift);

    frmMain& form_;
    QLabel* period_;
    QLabel* sample_;
    QLabel* error_;
    QPushButton* new_;
    TypeFrame* types_;
    StatusLine* status_;
    PlanWidget* plan_;
    QWidget* scrollColumn_;
    QScrollBar* scrollBar_;
    std::unique_ptr<qt::MenuView> menu_;
};

} // namespace plan
