#pragma once

#include "plan/forms/plan_geometry.h"
#include "plan/grid.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace plan {

/// The plan on the screen: room column, day headers and cells in one custom-painted widget.
class PlanWidget : public QWidget {
public:
    /// The grid must outlive the widget.
    explicit PlanWidget(const Planraster& grid, QWidget* parent = nullptr);

    /// Takes over what the grid holds now.
    void refresh();
    [[nodiscard]] const PlanGeometry& places() const { return places_; }

    /// Called with the rows by which the wheel wants to go down.
    std::function<void(int)> onWheel;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] Spaltenmasse measure() const;
    [[nodiscard]] QString toolTipAt(const QPoint& point) const;

    const Planraster& grid_;
    PlanGeometry places_;
    std::vector<Zimmerbeschriftung> rooms_;
    int wheelRest_ = 0;
};

} // namespace plan
