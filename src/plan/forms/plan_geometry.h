#pragma once

#include "plan/grid.h"

#include <QRect>
#include <QSize>

namespace plan {

/// Widths that follow from the texts, in pixels.
struct Spaltenmasse {
    int room = 80;
    int extras = 0; ///< of each of the two extras columns; 0: not shown
};

/// The part of the plan at a point.
struct PlanHit {
    enum class Part { None, Cell, Room, RoomHeading, RoomColumn, Extras, Days };

    Part part = Part::None;
    int line = 0; ///< of cells, rooms and extras
    int column = 0;
};

/// Places the parts of the plan in the space of the widget: cells share what the headers leave over, in proportion to
/// their size in twips. All edges are whole pixels, so that lines stay sharp.
class PlanGeometry {
public:
    PlanGeometry() = default;
    PlanGeometry(const Planraster& grid, QSize size, Spaltenmasse widths);

    [[nodiscard]] QRect cells() const { return cells_; }
    /// Left edge of a column; columns + 1 gives the right edge of the last.
    [[nodiscard]] int x(int column) const;
    /// Top of a line; lines + 1 gives the bottom of the last.
    [[nodiscard]] int y(int line) const;
    [[nodiscard]] QRect cell(int line, int column) const;
    /// From the first to the last column of a line, both included.
    [[nodiscard]] QRect span(int line, int first, int last) const;

    /// 0 left of the first and columns + 1 right of the last.
    [[nodiscard]] int columnAt(int x) const;
    /// 0 above the first and lines + 1 below the last.
    [[nodiscard]] int lineAt(int y) const;

    [[nodiscard]] PlanHit hit(QPoint point) const;

    [[nodiscard]] QRect monthNames() const;
    [[nodiscard]] QRect monthBand(int column) const;
    [[nodiscard]] QRect upperDay(int column) const;
    [[nodiscard]] QRect lowerDay(int column) const;
    [[nodiscard]] QRect roomHeading() const;
    /// The part of it that carries the heading's word.
    [[nodiscard]] QRect roomHeadingWord() const;
    [[nodiscard]] QRect room(int line) const;
    /// Extras cell 1 or 2 of a line.
    [[nodiscard]] QRect extra(int line, int which) const;

    [[nodiscard]] int columns() const { return columns_; }
    [[nodiscard]] int lines() const { return lines_; }
    [[nodiscard]] const Spaltenmasse& widths() const { return widths_; }

    static constexpr int monthHeight = 24;
    static constexpr int bandHeight = 4;
    static constexpr int dayHeight = 30;
    static constexpr int lowerDayHeight = 22;
    static constexpr int headerHeight = monthHeight + bandHeight + dayHeight;

private:
    int columns_ = 1;
    int lines_ = 1;
    Spaltenmasse widths_;
    QRect cells_;
};

} // namespace plan
