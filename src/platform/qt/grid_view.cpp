#include "platform/qt/grid_view.h"

#include "platform/qt/show.h"
#include "platform/qt/text.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace qt {

namespace {

/// Twips are the twentieth part of a point; the screen counts 96 pixels to 72 points.
constexpr int kTwipsPerPixel = 15;
constexpr int kRowHeight = 26;

constexpr int kPadding = 6;

// No rule for items: it would hide the colours that cells have of their own.
constexpr auto kStyle = R"(
QTableView { border: 1px solid #D3DAE3; }
QHeaderView::section { background: #F3F5F8; padding: 5px 9px; border: 0; border-bottom: 1px solid #D3DAE3; }
QHeaderView::section:hover { color: #1F6FB5; }
)";

/// Leaves some room on the left, and no frame around the one cell that the widget holds for current: here rows are.
class CellPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QVariant back = index.data(Qt::BackgroundRole);
        if ((option.state & QStyle::State_Selected) != 0)
            painter->fillRect(option.rect, option.palette.highlight());
        else if (back.isValid())
            painter->fillRect(option.rect, back.value<QColor>());
        QStyleOptionViewItem cell(option);
        cell.state &= ~QStyle::State_HasFocus;
        cell.rect.adjust(kPadding, 0, 0, 0);
        QStyledItemDelegate::paint(painter, cell, index);
    }
};

} // namespace

void GridModel::read(const services::Grid& grid) {
    beginResetModel();
    grid_ = &grid;
    rows_ = grid.Rows == nullptr ? 0 : grid.Rows->RowCount();
    columns_ = static_cast<int>(grid.Columns.size());
    endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

QVariant GridModel::data(const QModelIndex& index, int role) const {
    // A message box may repaint the rows between a change of the model and the refresh that tells of it.
    if (!index.isValid() || grid_->Rows == nullptr || index.row() >= grid_->Rows->RowCount()) return {};
    if (role == Qt::DisplayRole) return text(grid_->Rows->TextMatrix(index.row(), index.column()));
    if (role != Qt::BackgroundRole) return {};
    const auto back = grid_->Rows->CellBackColor(index.row(), index.column());
    return back ? QVariant(colour(*back)) : QVariant();
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= columns_) return {};
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    if (role != Qt::DisplayRole) return {};
    return text(grid_->Columns[static_cast<std::size_t>(section)].Heading);
}

GridView::GridView(QWidget* parent) : QTableView(parent) {
    setModel(&model_);
    setStyleSheet(text(kStyle));
    setItemDelegate(new CellPainter(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { rowChosen(current.row()); });
}

void GridView::serve(Binding& binding, services::Grid& grid, GridEvents events) {
    binding_ = &binding;
    grid_ = &grid;
    events_ = std::move(events);
    horizontalHeader()->setSectionsClickable(static_cast<bool>(events_.headerClick));
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        if (events_.headerClick) binding_->run([&] { events_.headerClick(column); });
    });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (events_.activate) binding_->run([&] { events_.activate(index.row()); });
    });
    binding.onRefresh([this] { showState(); });
}

void GridView::showState() {
    const QScopedValueRollback showing(showing_, true);
    if (!read_ || version_ != grid_->version) {
        model_.read(*grid_);
        showColumns();
        version_ = grid_->version;
        read_ = true;
    }
    showRow(grid_->Row);
    showControl(*this, *grid_);
}

void GridView::showColumns() {
    std::vector<int> widths;
    for (const services::GridColumn& column : grid_->Columns)
        widths.push_back(column.Width);
    if (widths == widths_) return;
    widths_ = std::move(widths);
    for (int column = 0; column < static_cast<int>(widths_.size()); ++column) {
        const int width = widths_[static_cast<std::size_t>(column)];
        setColumnHidden(column, width == 0);
        if (width > 0) setColumnWidth(column, width / kTwipsPerPixel);
    }
}

void GridView::showRow(int row) {
    if (currentIndex().row() == row) return;
    if (row < 0 || row >= model_.rowCount({})) return clearSelection(), selectionModel()->clearCurrentIndex();
    const int first = horizontalHeader()->logicalIndexAt(0);
    selectionModel()->setCurrentIndex(model_.index(row, std::max(first, 0)),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(currentIndex());
}

void GridView::rowChosen(int row) {
    if (showing_ || grid_ == nullptr || row < 0) return;
    grid_->Row = row;
    if (!events_.rowChange || rowPending_) return;
    rowPending_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            rowPending_ = false;
            binding_->run(events_.rowChange);
        },
        Qt::QueuedConnection);
}

void GridView::focusInEvent(QFocusEvent* event) {
    // Of itself the widget goes to the first row when it has none.
    const QScopedValueRollback showing(showing_, true);
    QTableView::focusInEvent(event);
    if (grid_ != nullptr && grid_->Row < 0) selectionModel()->clearCurrentIndex();
}

void GridView::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !events_.activate || !currentIndex().isValid()) return QTableView::keyPressEvent(event);
    binding_->run([this] { events_.activate(currentIndex().row()); });
}

} // namespace qt
