#include "platform/qt/match_box.h"

#include "platform/qt/text.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>
#include <QStringListModel>

namespace qt {

namespace {

constexpr int rowsAtOnce = 12;

/// A small arrow, as a box has that drops down.
QIcon arrow() {
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x66, 0x73, 0x85), 1.6));
    painter.drawPolyline(QPolygonF{{4.5, 6.5}, {8, 10}, {11.5, 6.5}});
    painter.end();
    return picture;
}

bool opens(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    return event.key() == Qt::Key_Down && (modifiers == Qt::NoModifier || modifiers == Qt::AltModifier);
}

} // namespace

MatchPopup::MatchPopup(QLineEdit& box, const services::MatchBox& control, Choose choose)
    : QObject(&box), box_(box), control_(control), choose_(std::move(choose)), lines_(new QStringListModel(this)),
      completer_(new QCompleter(lines_, this)) {
    // Not set on the box, which would then show every line that the user passes on the way down the list.
    completer_->setWidget(&box);
    completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer_->setMaxVisibleItems(rowsAtOnce);
    completer_->popup()->setObjectName(box.objectName() + QStringLiteral("Liste"));
    completer_->popup()->setStyleSheet(QStringLiteral("QAbstractItemView::item { padding: 3px 2px; }"));
    connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this, [this](const QModelIndex& index) {
        const auto row = static_cast<std::size_t>(index.row());
        if (row < offered_.size()) choose_(services::Match(offered_[row]));
    });
    auto* open = box.addAction(arrow(), QLineEdit::TrailingPosition);
    connect(open, &QAction::triggered, this, [this] {
        box_.setFocus(Qt::MouseFocusReason);
        offer();
    });
    box.installEventFilter(this);
}

void MatchPopup::offer() {
    offered_ = control_.Source == nullptr ? std::vector<services::Match>()
                                          : control_.Source->matches(control_.Text, offeredAtOnce);
    QStringList lines;
    for (const auto& match : offered_)
        lines.append(text(match.Text));
    lines_->setStringList(lines);
    if (lines.isEmpty()) return close();
    auto* list = completer_->popup();
    const int wanted = list->sizeHintForColumn(0) + list->verticalScrollBar()->sizeHint().width() + 8;
    completer_->complete(QRect(0, 0, std::max(box_.width(), wanted), box_.height()));
    // Return chooses what is current, and the first line would be: who types a new name wants none.
    list->setCurrentIndex({});
}

void MatchPopup::close() { completer_->popup()->hide(); }

bool MatchPopup::eventFilter(QObject* object, QEvent* event) {
    if (object == &box_ && event->type() == QEvent::KeyPress && opens(*static_cast<QKeyEvent*>(event)) &&
        !box_.isReadOnly()) {
        offer();
        return true;
    }
    return QObject::eventFilter(object, event);
}

} // namespace qt
