#pragma once

#include "plan/forms/plan_geometry.h"
#include "plan/main_form.h"

#include <QPoint>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>
#include <string>
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

    /// Called with the rows by which the wheel wants to go down, and with the days to go on.
    std::function<void(int)> onWheel;
    std::function<void(int)> onWheelDays;
    /// Called with line and column of the cell under the pointer for each of its moves; 0 or beyond the last one:
    /// beside the cells.
    std::function<void(int line, int column, Maustaste held)> onMove;
    std::function<void(int line, int column)> onPress;
    std::function<void()> onRelease;
    /// The left button was held, and something else has taken its release.
    std::function<void()> onLost;
    /// The left button is held, again and again. Answers whether that still matters.
    std::function<bool()> onHold;
    /// The pointer has rested for a moment.
    std::function<void()> onRest;
    std::function<void(int line)> onRoom;
    /// The right button, with the place on the screen.
    std::function<void(const PlanHit& hit, QPoint global)> onContext;
    /// Answers whether the plan takes the key.
    std::function<bool(Plantaste key, Umschalt shift)> onKey;
    /// What the bar in a cell tells.
    std::function<std::string(int line, int column)> onToolTip;

    /// The stay that is being drawn has changed: paints only the cells that it takes or took.
    void refreshSelection(const Platz& place);
    /// The keyboard's place on the plan; none: it is not shown.
    void showCursor(const std::optional<Zellcursor>& cursor);
    /// Where the cursor is on the widget.
    [[nodiscard]] QRect cursorRect() const;

    /// The label over the bar that begins in this cell.
    void showShortName(const QString& text, int line, int column);
    void hideShortName();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] Spaltenmasse measure() const;
    void loseButton();
    void placeCursor();
    [[nodiscard]] QString toolTipAt(const QPoint& point) const;
    [[nodiscard]] QString roomToolTip(const PlanHit& hit, const QPoint& point) const;
    [[nodiscard]] QRect rectOf(const Platz& place) const;

    const Planraster& grid_;
    PlanGeometry places_;
    std::vector<Zimmerbeschriftung> rooms_;
    QLabel* shortName_;
    QWidget* cursorFrame_;
    QTimer rest_;
    QTimer hold_;
    Platz selection_;
    std::optional<Zellcursor> cursor_;
    int wheelRest_ = 0;
};

} // namespace plan
