#pragma once

#include "plan/grid.h"
#include "plan/navigation.h"

#include <string>
#include <string_view>

namespace plan {

/// The main window: what its buttons do to the plan.
class frmMain {
public:
    frmMain(Planraster& raster, const services::Clock& clock) : raster_(&raster), clock_(&clock) {}

    /// Shows the plan from its standard date.
    void Form_Load();
    /// The date jump and every reload.
    void subZeigeDatum(basic::Date start);
    void Navigation_Click(const Navigation& button);
    /// The scroll bar has one position for each first row, from 0.
    void ScrollBar_Change(int position);
    void cmdErster_Click();
    void cmdLetzter_Click();

    /// Title of the window.
    [[nodiscard]] std::string Caption() const;
    /// The days shown: "29. Juni – 2. August 2026".
    [[nodiscard]] std::string Zeitraum() const;
    /// Why the last load failed, else empty: the plan then shows what it showed before.
    [[nodiscard]] const std::string& Fehler() const { return fehler_; }

    [[nodiscard]] const Planraster& Raster() const { return *raster_; }
    /// The vertical bar: only there when not all rooms are on screen.
    [[nodiscard]] bool ScrollBarVisible() const { return raster_->HöchsteErsteZeile() > 1; }
    [[nodiscard]] int ScrollBarMax() const { return raster_->HöchsteErsteZeile() - 1; }
    [[nodiscard]] int ScrollBarValue() const { return raster_->ErsteZeile() - 1; }

private:
    Planraster* raster_;
    const services::Clock* clock_;
    std::string fehler_;
};

} // namespace plan
