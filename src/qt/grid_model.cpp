#include "qt/grid_model.h"

#include <string>
#include <utility>

#include "qt/text.h"

namespace tessaplot::qt {

namespace {

/// The grid can be made larger than its store; what lies beyond shows nothing.
bool isStored(const QModelIndex& index) {
    return index.isValid() && index.row() < data::DataPanel::maximumRows && index.column() < data::DataPanel::columns;
}

}  // namespace

GridModel::GridModel(data::DataPanel& panel, Guard guard, QObject* parent)
    : QAbstractTableModel(parent), panel_(panel), guard_(std::move(guard)) {
    sync();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    std::string text;
    if (!isStored(index) || !panel_.GetCellText(index.row() + 1, index.column() + 1, text)) return {};
    return QString::fromStdString(text);
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole) return false;
    bool stored = false;
    guard_([&] { stored = panel_.SetCellText(index.row() + 1, index.column() + 1, value.toString().toStdString()); });
    if (stored) emit dataChanged(index, index);
    return stored;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role == Qt::TextAlignmentRole) return Qt::AlignCenter;
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return QString::fromStdString(panel_.indexText(section + 1));
    const auto headers = data::headersOf(panel_.kind());
    if (section < 0 || section >= static_cast<int>(headers.size())) return {};
    const std::string_view header = headers[static_cast<std::size_t>(section)];
    return qString(header);
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags plain = QAbstractTableModel::flags(index);
    return isStored(index) ? plain | Qt::ItemIsEditable : plain;
}

void GridModel::sync() {
    setRows(panel_.gridRows() - 1);
    setColumns(panel_.gridColumns() - 1);
    if (rows_ == 0 || columns_ == 0) return;
    emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
    emit headerDataChanged(Qt::Vertical, 0, rows_ - 1);
}

/// The grid grows and shrinks at its end, so that the views keep what is selected.
void GridModel::setRows(int rows) {
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
}

void GridModel::setColumns(int columns) {
    if (columns > columns_) {
        beginInsertColumns({}, columns_, columns - 1);
        columns_ = columns;
        endInsertColumns();
    } else if (columns < columns_) {
        beginRemoveColumns({}, columns, columns_ - 1);
        columns_ = columns;
        endRemoveColumns();
    }
}

}  // namespace tessaplot::qt
