#include "plan/forms/plan_widget.h"

#include "plan/forms/plan_painter.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
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

PlanWidget::PlanWidget(const Planraster& grid, QWidget* parent)
    : QWidget(parent), grid_(grid), shortName_(new QLabel(this)) {
    setObjectName(QStringLiteral("plan"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    shortName_->setObjectName(QStringLiteral("lblKürzel"));
    shortName_->setTextFormat(Qt::PlainText);
    shortName_->setAttribute(Qt::WA_TransparentForMouseEvents);
    shortName_->setStyleSheet(QStringLiteral("background: %1; color: %2; border: 1px solid %3; padding: 0px 5px;")
                                  .arg(qt::look::surface.name(), qt::look::text.name(), qt::look::text.name()));
    shortName_->hide();
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

void PlanWidget::mouseMoveEvent(QMouseEvent* event) {
    const auto point = event->position().toPoint();
    moveTo({places_.columnAt(point.x()), places_.lineAt(point.y())});
}

void PlanWidget::leaveEvent(QEvent*) { moveTo({}); }

void PlanWidget::moveTo(QPoint cell) {
    if (cell == cell_) return;
    cell_ = cell;
    if (onMouse) onMouse(cell.y(), cell.x());
}

void PlanWidget::showShortName(const QString& text, int line, int column) {
    const auto cell = places_.cell(line, column);
    shortName_->setText(text);
    const int width = std::min(shortName_->sizeHint().width(), places_.cells().width());
    const int left = std::min(cell.left(), places_.cells().right() + 1 - width);
    shortName_->setGeometry(left, cell.top(), width, cell.height());
    shortName_->show();
}

void PlanWidget::hideShortName() { shortName_->hide(); }

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
