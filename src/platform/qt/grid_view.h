#pragma once

#include "platform/qt/bind.h"
#include "platform/services/controls.h"

#include <QAbstractTableModel>
#include <QTableView>

namespace qt {

/// The rows of a Grid for Qt: asks for what is visible, keeps no text.
class GridModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// To be called when the version of the grid has changed. The grid must outlive the model.
    void read(const services::Grid& grid);

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const services::Grid* grid_ = nullptr;
    int rows_ = 0;
    int columns_ = 0;
};

struct GridEvents {
    std::function<void(int column)> headerClick = {};
    Procedure rowChange = {};                   ///< the user has gone to another row; it stands in Grid::Row
    std::function<void(int row)> activate = {}; ///< double click or Return
};

/// Shows a Grid: whole rows, of which one may be the current one.
class GridView : public QTableView {
public:
    explicit GridView(QWidget* parent = nullptr);

    /// Ties the view to a grid, once. Columns and rows are read anew only when the grid's version has changed. Events
    /// go through the binding, that of a row after the mouse or key event that led there: a message box may open in it.
    void serve(Binding& binding, services::Grid& grid, GridEvents events);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showState();
    void showColumns();
    void showRow(int row);
    void rowChosen(int row);

    GridModel model_;
    Binding* binding_ = nullptr;
    services::Grid* grid_ = nullptr;
    GridEvents events_;
    std::vector<int> widths_; ///< as the grid gave them; the user may have changed them since
    unsigned version_ = 0;
    bool read_ = false;
    bool showing_ = false;
    bool rowPending_ = false;
};

} // namespace qt
