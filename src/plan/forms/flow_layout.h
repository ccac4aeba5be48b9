#pragma once

#include <QLayout>
#include <QList>

#include <memory>
#include <vector>

namespace plan {

/// Puts widgets side by side and goes on in a new row where the width is used up. Those added to the right stand at
/// the right edge behind the others if there is room for all of them, else they begin a row of their own.
class FlowLayout : public QLayout {
public:
    explicit FlowLayout(int spacing);

    void addRight(QWidget* widget);

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return arrange({0, 0, width, 0}, false); }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    struct Row {
        std::vector<QLayoutItem*> items;
        int width = 0;
        int height = 0;
    };
    [[nodiscard]] std::vector<Row> rows(int width) const;
    [[nodiscard]] int widthOfRight() const;
    [[nodiscard]] bool isRight(QLayoutItem* item) const;
    void place(const Row& row, const QRect& rect) const;
    /// Height of all rows.
    int arrange(const QRect& rect, bool move) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
    QList<QWidget*> right_;
};

} // namespace plan
