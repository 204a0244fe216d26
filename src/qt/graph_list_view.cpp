#include "qt/graph_list_view.h"

#include <QContextMenuEvent>
#include <QScopedValueRollback>
#include <utility>

namespace tessaplot::qt {

GraphListModel::GraphListModel(const core::GraphList& list, Tick tick, QObject* parent)
    : QAbstractListModel(parent), list_(list), tick_(std::move(tick)) {}

int GraphListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

/// The views may paint while a command has already shortened the list.
const core::GraphList::Entry* GraphListModel::entryAt(const QModelIndex& index) const {
    const auto row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < list_.entries.size() ? &list_.entries[row] : nullptr;
}

QVariant GraphListModel::data(const QModelIndex& index, int role) const {
    const core::GraphList::Entry* entry = entryAt(index);
    if (entry == nullptr) return {};
    if (role == Qt::DisplayRole) return QString::fromStdString(entry->label);
    if (role == Qt::CheckStateRole) return entry->ticked ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool GraphListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || entryAt(index) == nullptr) return false;
    tick_(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags GraphListModel::flags(const QModelIndex& index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable;
}

void GraphListModel::sync() {
    const int rows = static_cast<int>(list_.entries.size());
    if (rows != rows_) {
        beginResetModel();
        rows_ = rows;
        endResetModel();
    } else if (rows > 0) {
        emit dataChanged(index(0), index(rows - 1));
    }
}

GraphListView::GraphListView(const core::GraphList& list, GraphListModel::Tick tick, QWidget* parent)
    : QListView(parent), list_(list), model_(new GraphListModel(list, std::move(tick), this)) {
    setModel(model_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
}

void GraphListView::sync() {
    const QScopedValueRollback guard(syncing_, true);
    model_->sync();
    if (selectedRow() == list_.selected) return;
    if (list_.selected < 0)
        clearSelection();
    else
        setCurrentIndex(model_->index(list_.selected));
}

void GraphListView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    emit menuWanted(byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(currentIndex()).center()));
}

void GraphListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (!syncing_) emit entrySelected(selectedRow());
}

int GraphListView::selectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

}  // namespace tessaplot::qt
