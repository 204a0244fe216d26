#pragma once

#include <QSplitter>

namespace tessaplot::qt {

/// A splitter that follows the pointer as a line in the colour of button shadows, and gives the panes their new share
/// when it is released.
class PaneSplitter : public QSplitter {
    Q_OBJECT

 public:
    PaneSplitter(Qt::Orientation orientation, QWidget* parent);

 protected:
    QSplitterHandle* createHandle() override;
};

}  // namespace tessaplot::qt
