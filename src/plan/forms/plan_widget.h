#pragma once

#include "plan/forms/plan_geometry.h"
#include "plan/grid.h"

#include <QPoint>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;

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
    /// Called with line and column of the cell that the pointer has come to; 0 or beyond the last one: beside the
    /// cells.
    std::function<void(int line, int column)> onMouse;

    /// The label over the bar that begins in this cell.
    void showShortName(const QString& text, int line, int column);
    void hideShortName();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] Spaltenmasse measure() const;
    [[nodiscard]] QString toolTipAt(const QPoint& point) const;
    void moveTo(QPoint cell);

    const Planraster& grid_;
    PlanGeometry places_;
    std::vector<Zimmerbeschriftung> rooms_;
    QLabel* shortName_;
    QPoint cell_; ///< column and line under the pointer
    int wheelRest_ = 0;
};

} // namespace plan
