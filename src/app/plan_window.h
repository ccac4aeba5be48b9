#pragma once

#include "masterdata/rooms.h"
#include "plan/forms/main_window.h"
#include "plan/grid.h"
#include "plan/plan_source.h"
#include "start/global_state.h"
#include "start/settings_reader.h"

#include <memory>
#include <string>

namespace app {

class QtWindows;

/// The plan window with what it stands on.
class PlanWindow {
public:
    /// Reads rooms and plan. A jet::Error when the rooms cannot be read; a plan that cannot be read is told on the
    /// window (`form().Fehler()`). The state must outlive it.
    explicit PlanWindow(start::GlobalState& g);
    PlanWindow(const PlanWindow&) = delete;
    PlanWindow& operator=(const PlanWindow&) = delete;
    ~PlanWindow();

    /// Shows the window. From now on it follows what the other windows store; they must outlive it.
    void open(QtWindows& windows);
    /// The same days again, after the stays have changed.
    void showAgain();

    [[nodiscard]] plan::frmMain& form() { return form_; }
    [[nodiscard]] const plan::Planraster& grid() const { return grid_; }
    [[nodiscard]] plan::MainWindow& window() { return window_; }

private:
    [[nodiscard]] plan::Umgebung surroundings(start::GlobalState& g);

    plan::PlanAusDatenbank source_;
    plan::Planraster grid_;
    plan::frmMain form_;
    plan::MainWindow window_;
    QtWindows* followed_ = nullptr;
};

/// What the load of the plan has come to.
struct LoadedPlan {
    start::Ladeergebnis result = start::Ladeergebnis::Ende;
    std::unique_ptr<PlanWindow> window = nullptr; ///< none: there is nothing to show
    std::string failure = {};                     ///< why there is no window though everything else is loaded
};

/// Reads the settings, builds the window and asks about the offers past due. The window shows what became of them.
[[nodiscard]] LoadedPlan loadPlan(start::GlobalState& g);

enum class Next { LoadAgain, End };

/// Loads the plan and works on it until its window is closed.
[[nodiscard]] Next runPlan(start::GlobalState& g, QtWindows& windows);

} // namespace app
