#include "plan/forms/plan_widget.h"

#include "plan/forms/plan_painter.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace plan {

namespace {

/// Pixels of a screen at 100 %.
constexpr int twipsPerPixel = 15;
constexpr int wheelNotch = 120;
/// Milliseconds after which the pointer counts as resting, and of a day while a stay is drawn past the edge.
constexpr int restTime = 150;
constexpr int holdTime = 220;

std::optional<Plantaste> planKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
        return Plantaste::Links;
    case Qt::Key_Right:
        return Plantaste::Rechts;
    case Qt::Key_Up:
        return Plantaste::Auf;
    case Qt::Key_Down:
        return Plantaste::Ab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Plantaste::Return;
    case Qt::Key_Escape:
        return Plantaste::Esc;
    case Qt::Key_Menu:
        return Plantaste::Menü;
    case Qt::Key_F10:
        if (event.modifiers() == Qt::ShiftModifier) return Plantaste::Menü;
        break;
    default:
        break;
    }
    return std::nullopt;
}

/// The frame around the keyboard's cell, on top of all that lies there; seen on every colour.
class CursorFrame : public QWidget {
public:
    explicit CursorFrame(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(QPen(qt::look::surface, 4));
        painter.drawRect(rect().adjusted(2, 2, -2, -2));
        painter.setPen(QPen(qt::look::alert, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

/// A tool tip takes a guest's name for markup where it looks like it.
QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace

PlanWidget::PlanWidget(const Planraster& grid, QWidget* parent)
    : QWidget(parent), grid_(grid), shortName_(new QLabel(this)), cursorFrame_(new CursorFrame(this)) {
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
    rest_.setSingleShot(true);
    rest_.setInterval(restTime);
    hold_.setInterval(holdTime);
    connect(&rest_, &QTimer::timeout, this, [this] {
        if (onRest) onRest();
    });
    connect(&hold_, &QTimer::timeout, this, [this] {
        if (!onHold || !onHold()) hold_.stop();
    });
    refresh();
}

void PlanWidget::refresh() {
    rooms_ = grid_.SUBSetLabels(grid_.ErsteZeile());
    places_ = PlanGeometry(grid_, size(), measure());
    placeCursor();
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

void PlanWidget::resizeEvent(QResizeEvent* event) {
    places_ = PlanGeometry(grid_, event->size(), places_.widths());
    placeCursor();
}

void PlanWidget::mouseMoveEvent(QMouseEvent* event) {
    const auto point = event->position().toPoint();
    const bool held = event->buttons().testFlag(Qt::LeftButton);
    if (!held) loseButton();
    rest_.start();
    if (onMove)
        onMove(places_.lineAt(point.y()), places_.columnAt(point.x()), held ? Maustaste::Links : Maustaste::Keine);
}

void PlanWidget::loseButton() {
    if (!hold_.isActive()) return;
    hold_.stop();
    if (onLost) onLost();
}

void PlanWidget::mousePressEvent(QMouseEvent* event) {
    const auto hit = places_.hit(event->position().toPoint());
    if (event->button() == Qt::RightButton) {
        if (onContext) onContext(hit, event->globalPosition().toPoint());
        return;
    }
    if (event->button() != Qt::LeftButton) return;
    if (hit.part == PlanHit::Part::Cell && onPress) {
        hold_.start();
        onPress(hit.line, hit.column);
    }
    if (hit.part == PlanHit::Part::Room && onRoom) onRoom(hit.line);
}

void PlanWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !hold_.isActive()) return;
    hold_.stop();
    if (onRelease) onRelease();
}

void PlanWidget::keyPressEvent(QKeyEvent* event) {
    const auto key = planKey(*event);
    const auto shift = event->modifiers().testFlag(Qt::ShiftModifier) ? Umschalt::Gedrückt : Umschalt::Los;
    if (!key || !onKey || !onKey(*key, shift)) return QWidget::keyPressEvent(event);
    QToolTip::hideText(); // of the place where the pointer rests
}

/// The menu is opened by the press itself, of the button or of the key.
void PlanWidget::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

void PlanWidget::leaveEvent(QEvent*) {
    rest_.stop();
    if (onMove) onMove(0, 0, Maustaste::Keine);
}

/// A menu or another window opens over the drawn stay, and the button's release goes there.
void PlanWidget::focusOutEvent(QFocusEvent* event) {
    loseButton();
    QWidget::focusOutEvent(event);
}

QRect PlanWidget::rectOf(const Platz& place) const {
    if (place.Zeile == 0) return {};
    return places_.span(place.Zeile, place.VonSpalte, place.BisSpalte).adjusted(-2, 0, 2, 0);
}

void PlanWidget::refreshSelection(const Platz& place) {
    update(rectOf(selection_).united(rectOf(place)));
    selection_ = place;
}

QRect PlanWidget::cursorRect() const {
    if (!cursor_) return {};
    const auto [line, column] = *cursor_;
    if (line == 0 && column == 0) return places_.roomHeadingWord();
    if (column == 0) return places_.room(line);
    return line == 0 ? places_.upperDay(column) : places_.cell(line, column);
}

void PlanWidget::showCursor(const std::optional<Zellcursor>& cursor) {
    cursor_ = cursor;
    placeCursor();
}

void PlanWidget::placeCursor() {
    cursorFrame_->setGeometry(cursorRect());
    cursorFrame_->setVisible(cursor_.has_value());
    cursorFrame_->raise();
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
    const auto delta = event->angleDelta();
    wheelRest_ += delta.y() != 0 ? delta.y() : delta.x();
    const int notches = wheelRest_ / wheelNotch;
    wheelRest_ -= notches * wheelNotch;
    const auto& turned = event->modifiers().testFlag(Qt::ShiftModifier) ? onWheelDays : onWheel;
    if (notches != 0 && turned) turned(-notches);
    event->accept();
}

bool PlanWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), plainToolTip(toolTipAt(help->pos())), this);
    return true;
}

QString PlanWidget::toolTipAt(const QPoint& point) const {
    const auto hit = places_.hit(point);
    switch (hit.part) {
    case PlanHit::Part::Days:
        return hit.line == 0 ? qt::text(grid_.Kopf()[static_cast<std::size_t>(hit.column - 1)].ToolTipText) : QString();
    case PlanHit::Part::Cell:
        return onToolTip ? qt::text(onToolTip(hit.line, hit.column)) : QString();
    case PlanHit::Part::Room:
    case PlanHit::Part::Extras:
        return roomToolTip(hit, point);
    default:
        return {};
    }
}

QString PlanWidget::roomToolTip(const PlanHit& hit, const QPoint& point) const {
    if (hit.line > static_cast<int>(rooms_.size())) return {};
    const auto& room = rooms_[static_cast<std::size_t>(hit.line - 1)];
    if (room.Zimmer != nullptr && places_.extra(hit.line, 1).contains(point)) return qt::text(room.Zimmer->Z1Bedeutung);
    if (room.Zimmer != nullptr && places_.extra(hit.line, 2).contains(point)) return qt::text(room.Zimmer->Z2Bedeutung);
    return qt::text(room.ToolTipText);
}

} // namespace plan
