#pragma once

#include <QWidget>
#include <array>

#include "data/data_panel.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tessaplot::qt {

class GridModel;
class GridView;

/// The data panel: the kind of data, the boxes that belong to it, the button that lays the grid out, and the grid.
class DataPanelView : public QWidget {
    Q_OBJECT

 public:
    DataPanelView(GridModel* model, QWidget* parent);

    /// Shows what the panel holds; boxes without a label are hidden.
    void sync(const data::DataPanel& panel);

    GridView* grid() const { return grid_; }

 signals:
    void kindChosen(int kind);
    void boxEdited(int box, const QString& text);
    void applied();

 private:
    struct Box {
        QLabel* label;
        QLineEdit* text;
    };

    void fillKinds();
    void makeBoxes(QGridLayout* form);
    void placeBox(QGridLayout* form, int box, int row, int column);
    void orderTabs();

    QComboBox* combo_;
    std::array<Box, 10> boxes_;
    QPushButton* apply_;
    GridView* grid_;
};

}  // namespace tessaplot::qt
