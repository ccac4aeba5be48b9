#include "plan/forms/plan_widget.h"

#include "plan/forms/plan_painter.h"
#include "platform/qt/text.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace plan {

namespace {

/// Pixels of a screen at 100 %.
constexpr int twipsPerPixel = 15;
constexpr int wheelNotch = 120;

} // namespace

PlanWidget::PlanWidget(const Planraster& grid, QWidget* parent) : QWidget(parent), grid_(grid) {
    setObjectName(QStringLiteral("plan"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    refresh();
}

void PlanWidget::refresh() {
    rooms_ = grid_.SUBSetLabels(grid_.ErsteZeile());
    places_ = PlanGeometry(grid_, size(), measure());
    update();
}

Spaltenmasse PlanWidget::measure() const {
    auto bold = font();
    bold.setPixelSize(13);
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    int widest = metrics.horizontalAdvance(qt::text(grid_.Einstellungen().Zimmerspalte));
    for (const auto& room : rooms_)
        widest = std::max(widest, metrics.horizontalAdvance(qt::text(room.Caption)));
    return {.room = std::clamp(widest + 22, 64, 190), .extras = grid_.Einstellungen().Zusatzspalten ? 44 : 0};
}

QSize PlanWidget::sizeHint() const {
    const int left = places_.widths().room + 2 * places_.widths().extras + 1;
    const int right = Planraster::fktLinks(grid_.AnzahlTage() + 1) / twipsPerPixel;
    const int bottom = grid_.fktTop(grid_.Wartezeile() + 1) / twipsPerPixel;
    return {left + right * 3 / 2, PlanGeometry::headerHeight + bottom * 3 / 2 + PlanGeometry::lowerDayHeight};
}

QSize PlanWidget::minimumSizeHint() const { return {480, 220}; }

void PlanWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    PlanPainter(painter, grid_, places_, event->rect()).paint(rooms_);
}

void PlanWidget::resizeEvent(QResizeEvent* event) { places_ = PlanGeometry(grid_, event->size(), places_.widths()); }

void PlanWidget::wheelEvent(QWheelEvent* event) {
    wheelRest_ += event->angleDelta().y();
    const int notches = wheelRest_ / wheelNotch;
    wheelRest_ -= notches * wheelNotch;
    if (notches != 0 && onWheel) onWheel(-notches);
    event->accept();
}

bool PlanWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), toolTipAt(help->pos()), this);
    return true;
}

QString PlanWidget::toolTipAt(const QPoint& point) const {
    const int line = places_.lineAt(point.y());
    const int column = places_.columnAt(point.x());
    if (line == 0 && column >= 1 && column <= places_.columns())
        return qt::text(grid_.Kopf()[static_cast<std::size_t>(column - 1)].ToolTipText);
    if (column != 0 || line < 1 || line > static_cast<int>(rooms_.size())) return {};
    const auto& room = rooms_[static_cast<std::size_t>(line - 1)];
    if (room.Zimmer != nullptr && places_.extra(line, 1).contains(point)) return qt::text(room.Zimmer->Z1Bedeutung);
    if (room.Zimmer != nullptr && places_.extra(line, 2).contains(point)) return qt::text(room.Zimmer->Z2Bedeutung);
    return qt::text(room.ToolTipText);
}

} // namespace plan
