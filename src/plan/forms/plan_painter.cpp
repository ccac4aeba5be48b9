#include "plan/forms/plan_painter.h"

#include "platform/basic/dates.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QFontMetrics>
#include <QPainterPath>

#include <algorithm>

namespace plan {

namespace look = qt::look;

namespace {

constexpr int roomHeading = 12;

/// A rectangle whose left and right corners are round where asked for.
QPainterPath roundedSides(const QRectF& rect, qreal radius, bool left, bool right) {
    const qreal l = left ? radius : 0;
    const qreal r = right ? radius : 0;
    QPainterPath path(QPointF(rect.left() + l, rect.top()));
    path.lineTo(rect.right() - r, rect.top());
    path.quadTo(rect.topRight(), QPointF(rect.right(), rect.top() + r));
    path.lineTo(rect.right(), rect.bottom() - r);
    path.quadTo(rect.bottomRight(), QPointF(rect.right() - r, rect.bottom()));
    path.lineTo(rect.left() + l, rect.bottom());
    path.quadTo(rect.bottomLeft(), QPointF(rect.left(), rect.bottom() - l));
    path.lineTo(rect.left(), rect.top() + l);
    path.quadTo(rect.topLeft(), QPointF(rect.left() + l, rect.top()));
    return path;
}

bool isWeekend(basic::Date date) {
    const int weekday = basic::Weekday(date);
    return weekday == 1 || weekday == 7;
}

} // namespace

QColor colour(Farbe bgr) { return QColor(Rot(bgr), Grün(bgr), Blau(bgr)); }

PlanPainter::PlanPainter(QPainter& painter, const Planraster& grid, const PlanGeometry& places, QRect exposed)
    : painter_(painter), grid_(grid), places_(places), exposed_(exposed),
      firstColumn_(std::max(places.columnAt(exposed.left()), 1)),
      lastColumn_(std::min(places.columnAt(exposed.right()), places.columns())),
      firstLine_(std::max(places.lineAt(exposed.top()), 1)),
      lastLine_(std::min(places.lineAt(exposed.bottom()), places.lines())),
      columnWidth_(places.cells().width() / places.columns()), lineHeight_(places.cells().height() / places.lines()) {}

void PlanPainter::paint(const std::vector<Zimmerbeschriftung>& rooms) {
    painter_.fillRect(exposed_, look::surface);
    paintMonths();
    paintDays();
    paintFreeCells();
    paintLines();
    paintBars();
    paintRooms(rooms);
}

void PlanPainter::paintFreeCells() {
    const int top = places_.y(firstLine_);
    const int height = places_.y(lastLine_ + 1) - top;
    for (int column = firstColumn_; column <= lastColumn_; ++column)
        painter_.fillRect(places_.x(column), top, places_.x(column + 1) - places_.x(column), height,
                          colour(grid_.FreieFarbe(column)));
}

void PlanPainter::paintLines() {
    const auto cells = places_.cells();
    const auto soft = colour(abgesetzt(grid_.Einstellungen().Farben[0], 14));
    for (int line = firstLine_; line <= lastLine_ + 1; ++line)
        painter_.fillRect(cells.left(), places_.y(line), cells.width(), 1, soft);
    const auto& lines = grid_.Linien();
    for (int k = firstColumn_ - 1; k <= lastColumn_; ++k) {
        const auto line = lines[static_cast<std::size_t>(k)];
        painter_.fillRect(places_.x(k + 1), cells.top(), 1, cells.height(), colour(line));
    }
    const auto& head = grid_.Kopf();
    for (int column = firstColumn_; column <= lastColumn_; ++column)
        if (head[static_cast<std::size_t>(column - 1)].Wochenlinie)
            painter_.fillRect(places_.x(column) + 1, cells.top(), 1, cells.height(),
                              colour(abgesetzt(grid_.Einstellungen().Farben[0], 55)));
    painter_.fillRect(cells.left(), places_.y(places_.lines()), cells.width(), 2,
                      colour(abgesetzt(grid_.Einstellungen().Farben[0], 60)));
}

void PlanPainter::paintBars() {
    for (int line = firstLine_; line <= lastLine_; ++line)
        for (const auto& bar : grid_.BalkenDerZeile(line))
            if (bar.BisSpalte >= firstColumn_ && bar.VonSpalte <= lastColumn_) paintBar(bar);
}

QRect PlanPainter::barRect(const Balken& bar) const {
    const int margin = std::clamp(lineHeight_ / 9, 1, 5);
    auto rect = places_.span(bar.Zeile, bar.VonSpalte, bar.BisSpalte).adjusted(0, margin, 0, 1 - margin);
    if (!bar.LinksOffen) rect.setLeft(rect.left() + 2);
    if (!bar.RechtsOffen) rect.setRight(rect.right() - 1);
    return rect;
}

QColor PlanPainter::fill(const Balken& bar, int column) const {
    return colour(grid_.Bild(grid_.Zelle(bar.Zeile, column)).Fuellung);
}

void PlanPainter::paintBar(const Balken& bar) {
    const auto rect = barRect(bar);
    paintBarShape(bar, rect);
    if (!bar.Überlauf) paintBarLabel(bar, rect);
}

void PlanPainter::paintBarShape(const Balken& bar, const QRect& rect) {
    const auto plain = fill(bar, bar.BisSpalte);
    const auto frame = bar.Rahmen > 1 ? colour(Schriftfarbe(grid_.Bild(grid_.Zelle(bar.Zeile, bar.BisSpalte)).Fuellung))
                                      : plain.darker(135);
    if (lineHeight_ < 10)
        paintFlatBar(bar, rect, frame);
    else
        paintRoundBar(bar, rect, frame);
}

QRect PlanPainter::firstDayOf(const Balken& bar, const QRect& rect) const {
    return {rect.left(), rect.top(), places_.x(bar.VonSpalte + 1) - rect.left(), rect.height()};
}

/// Thousands of small bars: corners would not be seen, and rectangles are filled far faster than paths.
void PlanPainter::paintFlatBar(const Balken& bar, const QRect& rect, const QColor& frame) {
    const int width = std::min(bar.Rahmen, rect.height() / 3);
    const auto inner = rect.adjusted(width, width, -width, -width);
    painter_.fillRect(rect, frame);
    painter_.fillRect(inner, fill(bar, bar.BisSpalte));
    if (const auto first = fill(bar, bar.VonSpalte); first != fill(bar, bar.BisSpalte))
        painter_.fillRect(inner.intersected(firstDayOf(bar, rect)), first);
}

void PlanPainter::paintRoundBar(const Balken& bar, const QRect& rect, const QColor& frame) {
    const auto plain = fill(bar, bar.BisSpalte);
    const auto first = fill(bar, bar.VonSpalte);
    const qreal radius = std::min(4.0, rect.height() / 4.0);
    const qreal half = bar.Rahmen / 2.0;
    const auto outline =
        roundedSides(QRectF(rect).adjusted(half, half, -half, -half), radius, !bar.LinksOffen, !bar.RechtsOffen);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.fillPath(outline, plain);
    if (first != plain) {
        painter_.save();
        painter_.setClipRect(firstDayOf(bar, rect), Qt::IntersectClip);
        painter_.fillPath(outline, first);
        painter_.restore();
    }
    painter_.strokePath(outline, QPen(frame, bar.Rahmen));
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

void PlanPainter::paintBarLabel(const Balken& bar, const QRect& rect) {
    if (lineHeight_ < 9 || bar.Kuerzel.empty()) return;
    const int inset = bar.Rahmen > 1 ? 5 : 4;
    const auto place = rect.adjusted(inset, 0, -inset + 1, 0);
    painter_.setFont(font(std::clamp(lineHeight_ * 45 / 100, 8, 13)));
    const auto whole = qt::text(bar.Kuerzel);
    const auto label = painter_.fontMetrics().elidedText(whole, Qt::ElideRight, place.width());
    if (label != whole && label.size() < 4) return; // one or two letters and dots tell nothing
    const auto writing = [&](int column) {
        return colour(Schriftfarbe(grid_.Bild(grid_.Zelle(bar.Zeile, column)).Fuellung));
    };
    const auto write = [&](const QColor& pen) {
        painter_.setPen(pen);
        painter_.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, label);
    };
    const auto first = writing(bar.VonSpalte);
    const auto others = writing(bar.BisSpalte);
    if (first == others) return write(others);
    // The first day is lighter: its part of the label has a colour of its own.
    const int edge = places_.x(bar.VonSpalte + 1);
    const auto writeWithin = [&](const QRect& part, const QColor& pen) {
        painter_.save();
        painter_.setClipRect(part, Qt::IntersectClip);
        write(pen);
        painter_.restore();
    };
    writeWithin(QRect(rect.left(), rect.top(), edge - rect.left(), rect.height()), first);
    writeWithin(QRect(edge, rect.top(), rect.right() - edge + 1, rect.height()), others);
}

QFont PlanPainter::font(int pixels, bool bold) const {
    QFont font = painter_.font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    font.setItalic(false);
    return font;
}

void PlanPainter::paintMonths() {
    if (exposed_.top() > PlanGeometry::monthHeight + PlanGeometry::bandHeight) return;
    const auto& head = grid_.Kopf();
    for (int column = firstColumn_; column <= lastColumn_; ++column)
        painter_.fillRect(places_.monthBand(column), colour(head[static_cast<std::size_t>(column - 1)].Monatsfarbe));
    painter_.setFont(font(13, true));
    painter_.setPen(look::text);
    for (const auto& month : grid_.Monate()) {
        const auto caption = qt::text(month.Caption);
        const int width = painter_.fontMetrics().horizontalAdvance(caption) + 4;
        if (!month.Visible || !passtInsRaster(month, double(width) / columnWidth_, places_.columns())) continue;
        const int left = places_.x(month.Spalte);
        const QRect place(left + 4, 0, std::max(places_.x(month.Spalte + month.Spalten) - left, width), 24);
        painter_.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, caption);
    }
}

void PlanPainter::paintDays() {
    for (int column = firstColumn_; column <= lastColumn_; ++column) {
        paintUpperDay(column);
        paintLowerDay(column);
    }
}

bool PlanPainter::showsDayNumber(int column) const {
    // Numbers that touch each other read as one: on narrow columns only the week's first day keeps its own.
    return columnWidth_ >= 11 || grid_.Kopf()[static_cast<std::size_t>(column - 1)].Wochenlinie;
}

void PlanPainter::paintDayNumber(const QRect& rect, int column) {
    if (!showsDayNumber(column)) return;
    const auto& head = grid_.Kopf()[static_cast<std::size_t>(column - 1)];
    const auto date = grid_.Datum(column);
    const bool today = date.dayNumber() == grid_.Heute().dayNumber();
    const int pixels = std::clamp(columnWidth_ * 55 / 100, 8, 12);
    painter_.setFont(font(pixels, today));
    if (today) {
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(look::accent);
        const int width = std::min(columnWidth_, 24);
        painter_.drawRoundedRect(QRect(rect.center().x() - width / 2 + 1, rect.center().y() - 8, width, 17), 4, 4);
        painter_.setRenderHint(QPainter::Antialiasing, false);
    }
    painter_.setPen(today ? look::onAccent : isWeekend(date) ? look::weekend : look::text);
    painter_.drawText(rect.adjusted(-4, 0, 4, 0), Qt::AlignCenter | Qt::TextSingleLine, qt::text(head.Tag));
}

void PlanPainter::paintUpperDay(int column) {
    const auto rect = places_.upperDay(column);
    if (!rect.intersects(exposed_.adjusted(-8, 0, 8, 0))) return;
    const auto& head = grid_.Kopf()[static_cast<std::size_t>(column - 1)];
    if (head.Wochenlinie) {
        painter_.fillRect(rect.left(), rect.top(), 1, rect.height(), look::borderStrong);
        painter_.setFont(font(9));
        painter_.setPen(look::textMuted);
        painter_.drawText(QRect(rect.left() + 3, rect.top(), 40, 12), Qt::AlignLeft | Qt::AlignVCenter,
                          qt::text(head.Wochentag));
    }
    paintDayNumber(rect.adjusted(1, 11, 0, 0), column);
}

void PlanPainter::paintLowerDay(int column) {
    const auto rect = places_.lowerDay(column);
    if (rect.intersects(exposed_.adjusted(-8, 0, 8, 0))) paintDayNumber(rect.adjusted(1, 1, 0, 0), column);
}

void PlanPainter::paintRooms(const std::vector<Zimmerbeschriftung>& rooms) {
    const auto heading = places_.roomHeading();
    if (exposed_.left() > heading.right()) return;
    painter_.setFont(font(roomHeading));
    painter_.setPen(look::textMuted);
    painter_.drawText(heading.adjusted(10, 0, 0, -6), Qt::AlignLeft | Qt::AlignBottom,
                      qt::text(grid_.Einstellungen().Zimmerspalte));
    for (int line = firstLine_; line <= lastLine_ && line <= static_cast<int>(rooms.size()); ++line)
        paintRoom(line, rooms[static_cast<std::size_t>(line - 1)]);
}

void PlanPainter::paintRoom(int line, const Zimmerbeschriftung& room) {
    const auto rect = places_.room(line);
    const bool waiting = line == grid_.Wartezeile();
    const auto background = waiting ? look::waiting : line % 2 == 0 ? look::surfaceAlternate : look::surface;
    painter_.fillRect(QRect(0, rect.top(), places_.cells().left(), rect.height()), background);
    painter_.fillRect(0, rect.top(), places_.cells().left(), waiting ? 2 : 1,
                      waiting ? look::borderStrong : look::border);
    painter_.setFont(font(std::clamp(lineHeight_ * 55 / 100, 7, 13), !waiting));
    painter_.setPen(look::text);
    const auto place = rect.adjusted(10, 0, -4, 0);
    painter_.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      painter_.fontMetrics().elidedText(qt::text(room.Caption), Qt::ElideRight, place.width()));
    if (places_.widths().extras == 0 || room.Zimmer == nullptr) return;
    paintExtra(places_.extra(line, 1), room.Zimmer->Z1Farbe, room.Zimmer->Z1Beschriftung);
    paintExtra(places_.extra(line, 2), room.Zimmer->Z2Farbe, room.Zimmer->Z2Beschriftung);
}

void PlanPainter::paintExtra(const QRect& rect, int background, const std::string& caption) {
    const auto cell = rect.adjusted(0, 1, -1, 0);
    painter_.fillRect(cell, colour(background));
    painter_.setPen(colour(Schriftfarbe(background)));
    painter_.setFont(font(std::clamp(lineHeight_ * 45 / 100, 7, 12)));
    painter_.drawText(cell, Qt::AlignCenter | Qt::TextSingleLine,
                      painter_.fontMetrics().elidedText(qt::text(caption), Qt::ElideRight, cell.width() - 4));
}

} // namespace plan
