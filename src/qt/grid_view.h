#pragma once

#include <QList>
#include <QTableView>

#include "data/grid_editing.h"

class QAction;

namespace tessaplot::qt {

class GridModel;

/// The spread sheet of the data panel, worked by the keyboard: typing begins an edit, Enter, Tab and the arrows up and
/// down end it and move on.
class GridView : public QTableView {
    Q_OBJECT

 public:
    GridView(GridModel* model, QWidget* parent);

    /// Stores the text of an edit that is still open, as a command is to see what was typed.
    void commitEdit();

    /// Commands whose shortcuts hold here while the grid has the focus, before those of the window.
    void setCommands(const QList<QAction*>& commands) { commands_ = commands; }

    /// What is selected, rows and columns from 1; empty for nothing.
    data::CellRange selectedCells() const;

 signals:
    void cellsSelected();
    /// A menu is wanted on a cell, rows and columns from 1.
    void menuWanted(int row, int column, QPoint globalPosition);

 protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
    void layOutHeaders();
    void nameIndexColumn();
    void widenIndexColumn();
    void keepCurrentCell();
    void move(CursorAction action);
    QAction* commandOf(const QKeyEvent& event) const;

    QList<QAction*> commands_;
};

}  // namespace tessaplot::qt
