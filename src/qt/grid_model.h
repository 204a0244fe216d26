#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "data/data_panel.h"

namespace tessaplot::qt {

/// The grid of the data panel as Qt's views ask for it. It holds no text: every cell is read from and written to the
/// panel. Row and column 0 here are row and column 1 of the panel, whose headers stand beside the cells.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

 public:
    /// Runs an edit as an action of the user, so that its failure is shown; true if it did not fail.
    using Guard = std::function<bool(const std::function<void()>& edit)>;

    GridModel(data::DataPanel& panel, Guard guard, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Tells the views what the logic has changed in the panel.
    void sync();

 private:
    void setRows(int rows);
    void setColumns(int columns);

    data::DataPanel& panel_;
    Guard guard_;
    int rows_ = 0;  ///< The shape that the views know, without the headers.
    int columns_ = 0;
};

}  // namespace tessaplot::qt
