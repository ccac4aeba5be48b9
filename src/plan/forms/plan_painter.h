#pragma once

#include "plan/forms/plan_geometry.h"
#include "plan/grid.h"

#include <QColor>
#include <QPainter>
#include <QRect>

#include <vector>

namespace plan {

[[nodiscard]] QColor colour(Farbe bgr);

/// Paints those parts of the plan that touch the exposed rectangle. Knows no rule: colours, frames and texts are the
/// grid's.
class PlanPainter {
public:
    PlanPainter(QPainter& painter, const Planraster& grid, const PlanGeometry& places, QRect exposed);

    void paint(const std::vector<Zimmerbeschriftung>& rooms);

private:
    void paintFreeCells();
    void paintLines();
    void paintBars();
    void paintBar(const Balken& bar);
    void paintBarShape(const Balken& bar, const QRect& rect);
    void paintFlatBar(const Balken& bar, const QRect& rect, const QColor& frame);
    void paintRoundBar(const Balken& bar, const QRect& rect, const QColor& frame);
    void paintBarLabel(const Balken& bar, const QRect& rect);
    void paintMonths();
    void paintDays();
    void paintUpperDay(int column);
    void paintLowerDay(int column);
    void paintDayNumber(const QRect& rect, int column);
    void paintRooms(const std::vector<Zimmerbeschriftung>& rooms);
    void paintRoom(int line, const Zimmerbeschriftung& room);
    void paintExtra(const QRect& rect, int background, const std::string& caption);

    [[nodiscard]] QRect barRect(const Balken& bar) const;
    [[nodiscard]] QRect firstDayOf(const Balken& bar, const QRect& rect) const;
    [[nodiscard]] QColor fill(const Balken& bar, int column) const;
    [[nodiscard]] QFont font(int pixels, bool bold = false) const;
    [[nodiscard]] bool showsDayNumber(int column) const;

    QPainter& painter_;
    const Planraster& grid_;
    const PlanGeometry& places_;
    QRect exposed_;
    int firstColumn_;
    int lastColumn_;
    int firstLine_;
    int lastLine_;
    int columnWidth_;
    int lineHeight_;
};

} // namespace plan
