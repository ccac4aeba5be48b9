#include "plan/forms/flow_layout.h"

#include <QWidget>

#include <algorithm>

namespace plan {

FlowLayout::FlowLayout(int spacing) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

void FlowLayout::addRight(QWidget* widget) {
    right_.append(widget);
    addWidget(widget);
}

void FlowLayout::addItem(QLayoutItem* item) { items_.emplace_back(item); }

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    auto* item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
}

bool FlowLayout::isRight(QLayoutItem* item) const { return right_.contains(item->widget()); }

int FlowLayout::widthOfRight() const {
    int width = 0;
    for (const auto& item : items_)
        if (isRight(item.get()) && !item->isEmpty()) width += spacing() + item->sizeHint().width();
    return width;
}

std::vector<FlowLayout::Row> FlowLayout::rows(int width) const {
    std::vector<Row> rows;
    bool rightBegun = false;
    for (const auto& item : items_) {
        if (item->isEmpty()) continue;
        const auto size = item->sizeHint();
        const bool firstRight = !rightBegun && isRight(item.get());
        rightBegun = rightBegun || firstRight;
        const int needed = firstRight ? widthOfRight() : spacing() + size.width();
        if (rows.empty() || rows.back().width + needed > width)
            rows.emplace_back();
        else
            rows.back().width += spacing();
        auto& row = rows.back();
        row.items.push_back(item.get());
        row.width += size.width();
        row.height = std::max(row.height, size.height());
    }
    return rows;
}

void FlowLayout::place(const Row& row, const QRect& rect) const {
    int x = rect.left();
    bool pushed = isRight(row.items.front()); // a row without anything at its left would look lost at the right
    for (auto* item : row.items) {
        if (!pushed && isRight(item)) {
            pushed = true;
            x += std::max(rect.width() - row.width, 0);
        }
        const auto size = item->sizeHint();
        item->setGeometry({x, rect.top() + (row.height - size.height()) / 2, size.width(), size.height()});
        x += size.width() + spacing();
    }
}

int FlowLayout::arrange(const QRect& rect, bool move) const {
    int y = rect.top();
    for (const auto& row : rows(rect.width())) {
        if (y > rect.top()) y += spacing();
        if (move) place(row, {rect.left(), y, rect.width(), row.height});
        y += row.height;
    }
    return y - rect.top();
}

QSize FlowLayout::sizeHint() const {
    int width = 0;
    for (const auto& item : items_)
        if (!item->isEmpty()) width += item->sizeHint().width() + spacing();
    return {width, heightForWidth(width)};
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const auto& item : items_)
        if (!item->isEmpty()) size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

} // namespace plan
