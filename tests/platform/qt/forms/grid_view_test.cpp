#include "platform/qt/grid_view.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include <optional>

namespace qt {
namespace {

struct Rows final : services::GridRows {
    int count = 200000;
    mutable int asked = 0;

    [[nodiscard]] int RowCount() const override { return count; }
    [[nodiscard]] std::string TextMatrix(int row, int column) const override {
        ++asked;
        return std::to_string(row) + "/" + std::to_string(column);
    }
    [[nodiscard]] std::optional<services::Colour> CellBackColor(int row, int column) const override {
        return row == 1 && column == 1 ? std::optional(0x00FF00) : std::nullopt;
    }
};

TEST(GridView, AsksOnlyForWhatIsVisibleAndShowsItsColours) {
    QWidget window;
    window.resize(400, 300);
    Binding binding(window);
    Rows rows;
    services::Grid grid;
    grid.Columns = {{"A", 1500}, {"B", 1500}};
    grid.Rows = &rows;
    GridView view(&window);
    view.resize(400, 300);
    view.serve(binding, grid, {});
    binding.refresh();
    window.show();
    QCoreApplication::processEvents();
    EXPECT_LT(rows.asked, 500);
    const QPoint coloured = view.visualRect(view.model()->index(1, 1)).bottomRight() - QPoint(2, 2);
    EXPECT_EQ(view.viewport()->grab().toImage().pixelColor(coloured), QColor(0, 255, 0));
    grid.Row = 150000;
    binding.refresh();
    EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex())));
    rows.count = 2; // before the version tells of it
    (void)window.grab();
    ++grid.version;
    grid.Row = 1;
    binding.refresh();
    EXPECT_EQ(view.model()->rowCount(), 2);
}

TEST(GridView, ARowIsActivatedByReturnAndDoubleClick) {
    QWidget window;
    Binding binding(window);
    Rows rows;
    services::Grid grid;
    grid.Columns = {{"A", 1500}};
    grid.Rows = &rows;
    std::vector<int> activated;
    GridView view(&window);
    view.resize(300, 200);
    view.serve(binding, grid, {.activate = [&](int row) { activated.push_back(row); }});
    binding.refresh();
    window.show();
    view.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Return); // no row yet
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(grid.Row, 0);
    QTest::keyClick(&view, Qt::Key_Return);
    const QPoint place = view.visualRect(view.model()->index(2, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(activated, (std::vector{0, 2}));
}

} // namespace
} // namespace qt
