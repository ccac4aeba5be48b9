#include "plan/forms/plan_geometry.h"

#include <algorithm>

namespace plan {

PlanGeometry::PlanGeometry(const Planraster& grid, QSize size, Spaltenmasse widths)
    : columns_(grid.AnzahlTage()), lines_(grid.Wartezeile()), widths_(widths) {
    const int left = widths.room + 2 * widths.extras;
    const int width = std::max(size.width() - left - 1, columns_);
    const int height = std::max(size.height() - headerHeight - lowerDayHeight, lines_);
    cells_ = QRect(left, headerHeight, width, height);
}

int PlanGeometry::x(int column) const { return cells_.left() + cells_.width() * (column - 1) / columns_; }

int PlanGeometry::y(int line) const { return cells_.top() + cells_.height() * (line - 1) / lines_; }

QRect PlanGeometry::cell(int line, int column) const { return span(line, column, column); }

QRect PlanGeometry::span(int line, int first, int last) const {
    return {x(first), y(line), x(last + 1) - x(first), y(line + 1) - y(line)};
}

int PlanGeometry::columnAt(int x) const {
    if (x < cells_.left()) return 0;
    const int column = std::min((x - cells_.left()) * columns_ / cells_.width() + 1, columns_ + 1);
    return column <= columns_ && x >= this->x(column + 1) ? column + 1 : column;
}

int PlanGeometry::lineAt(int y) const {
    if (y < cells_.top()) return 0;
    const int line = std::min((y - cells_.top()) * lines_ / cells_.height() + 1, lines_ + 1);
    return line <= lines_ && y >= this->y(line + 1) ? line + 1 : line;
}

QRect PlanGeometry::monthNames() const { return {cells_.left(), 0, cells_.width(), monthHeight}; }

QRect PlanGeometry::monthBand(int column) const {
    return {x(column), monthHeight, x(column + 1) - x(column), bandHeight};
}

QRect PlanGeometry::upperDay(int column) const {
    return {x(column), monthHeight + bandHeight, x(column + 1) - x(column), dayHeight};
}

QRect PlanGeometry::lowerDay(int column) const {
    return {x(column), y(lines_ + 1), x(column + 1) - x(column), lowerDayHeight};
}

QRect PlanGeometry::roomHeading() const { return {0, 0, cells_.left(), headerHeight}; }

QRect PlanGeometry::roomHeadingWord() const { return {0, monthHeight, cells_.left(), headerHeight - monthHeight}; }

PlanHit PlanGeometry::hit(QPoint point) const {
    using Part = PlanHit::Part;
    const int line = lineAt(point.y());
    const int column = columnAt(point.x());
    const bool inLine = line >= 1 && line <= lines_;
    if (column >= 1 && column <= columns_) return {inLine ? Part::Cell : Part::Days, line, column};
    if (column != 0) return {};
    if (roomHeadingWord().contains(point)) return {Part::RoomHeading};
    if (!inLine) return {line == 0 ? Part::RoomColumn : Part::None};
    return {point.x() < widths_.room ? Part::Room : Part::Extras, line};
}

QRect PlanGeometry::room(int line) const { return {0, y(line), widths_.room, y(line + 1) - y(line)}; }

QRect PlanGeometry::extra(int line, int which) const {
    return {widths_.room + (which - 1) * widths_.extras, y(line), widths_.extras, y(line + 1) - y(line)};
}

} // namespace plan
