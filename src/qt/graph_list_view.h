#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <functional>

#include "core/graph_list.h"

namespace tessaplot::qt {

/// The graph list as Qt's views ask for it; labels and ticks stay in the logic.
class GraphListModel : public QAbstractListModel {
    Q_OBJECT

 public:
    using Tick = std::function<void(int entry, bool ticked)>;

    GraphListModel(const core::GraphList& list, Tick tick, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    void sync();

 private:
    const core::GraphList::Entry* entryAt(const QModelIndex& index) const;

    const core::GraphList& list_;
    Tick tick_;
    int rows_ = 0;  ///< As the views know it.
};

/// The check-box list of graphs.
class GraphListView : public QListView {
    Q_OBJECT

 public:
    GraphListView(const core::GraphList& list, GraphListModel::Tick tick, QWidget* parent);

    void sync();

 signals:
    void entrySelected(int entry);
    void menuWanted(QPoint globalPosition);

 protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
    /// -1 for none.
    int selectedRow() const;

    const core::GraphList& list_;
    GraphListModel* model_;
    bool syncing_ = false;
};

}  // namespace tessaplot::qt
