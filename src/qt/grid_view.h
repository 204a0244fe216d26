#pragma once

#include <QTableView>

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

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
    void layOutHeaders();
    void nameIndexColumn();
    void widenIndexColumn();
    void keepCurrentCell();
    void move(CursorAction action);
};

}  // namespace tessaplot::qt
