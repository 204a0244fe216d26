#include "qt/grid_view.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QStyledItemDelegate>
#include <algorithm>
#include <functional>
#include <utility>

#include "qt/grid_model.h"

namespace tessaplot::qt {

namespace {

constexpr int indexColumnTwips = 800;
constexpr int dataColumnTwips = 960;
constexpr int twipsPerInch = 1440;
constexpr int headerMargin = 12;

bool isEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Ends an edit also by the arrows up and down, and by Enter at once, so that typing ahead loses nothing.
class CellDelegate : public QStyledItemDelegate {
 public:
    using MoveBy = std::function<void(int rows)>;

    CellDelegate(MoveBy moveBy, QObject* parent) : QStyledItemDelegate(parent), moveBy_(std::move(moveBy)) {}

 protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* editor = qobject_cast<QWidget*>(object);
        const int rows = editor != nullptr && event->type() == QEvent::KeyPress ? rowsToMove(event) : 0;
        if (rows == 0) return QStyledItemDelegate::eventFilter(object, event);
        emit commitData(editor);
        emit closeEditor(editor);
        moveBy_(rows);
        return true;
    }

 private:
    static int rowsToMove(const QEvent* event) {
        const auto* press = static_cast<const QKeyEvent*>(event);
        if (press->key() == Qt::Key_Up) return -1;
        if (press->key() == Qt::Key_Down) return 1;
        if (!isEnter(press->key())) return 0;
        return press->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1;
    }

    MoveBy moveBy_;
};

}  // namespace

GridView::GridView(GridModel* model, QWidget* parent) : QTableView(parent) {
    setModel(model);
    setItemDelegate(new CellDelegate([this](int rows) { move(rows < 0 ? MoveUp : MoveDown); }, this));
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
    setTabKeyNavigation(true);
    setSelectionMode(ContiguousSelection);
    setWordWrap(false);
    setAlternatingRowColors(true);
    layOutHeaders();
    nameIndexColumn();
    keepCurrentCell();
    connect(model, &GridModel::rowsInserted, this, &GridView::keepCurrentCell);
    connect(model, &GridModel::columnsInserted, this, &GridView::keepCurrentCell);
    connect(model, &GridModel::headerDataChanged, this, &GridView::widenIndexColumn);
}

void GridView::layOutHeaders() {
    const int dataWidth = dataColumnTwips * logicalDpiX() / twipsPerInch;
    QHeaderView* columns = horizontalHeader();
    columns->setMinimumSectionSize(dataWidth);
    columns->setSectionResizeMode(QHeaderView::Stretch);
    columns->setHighlightSections(true);

    QHeaderView* rows = verticalHeader();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(fontMetrics().height() + 6);
    widenIndexColumn();
}

/// The last row bears the longest index.
void GridView::widenIndexColumn() {
    QFont heavy = verticalHeader()->font();
    heavy.setBold(true);
    const QString last = model()->headerData(model()->rowCount() - 1, Qt::Vertical).toString();
    const int needed = QFontMetrics(heavy).horizontalAdvance(last) + headerMargin;
    verticalHeader()->setFixedWidth(std::max(indexColumnTwips * logicalDpiX() / twipsPerInch, needed));
}

/// The corner above the index column has no text of its own.
void GridView::nameIndexColumn() {
    auto* corner = findChild<QAbstractButton*>();
    if (corner == nullptr) return;
    auto* layout = new QHBoxLayout(corner);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(tr("Index"), corner);
    label->setAlignment(Qt::AlignCenter);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    layout->addWidget(label);
}

void GridView::keepCurrentCell() {
    if (!currentIndex().isValid()) setCurrentIndex(model()->index(0, 0));
}

void GridView::move(CursorAction action) {
    const QModelIndex next = moveCursor(action, Qt::NoModifier);
    if (next.isValid()) setCurrentIndex(next);
}

/// The selection is one block, though it may be kept in pieces.
data::CellRange GridView::selectedCells() const {
    QRect cells;
    for (const QItemSelectionRange& piece : selectionModel()->selection())
        cells |= QRect(QPoint(piece.left(), piece.top()), QPoint(piece.right(), piece.bottom()));
    if (cells.isEmpty()) return {};
    return {cells.top() + 1, cells.left() + 1, cells.bottom() + 1, cells.right() + 1};
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    emit cellsSelected();
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex cell = byMouse ? indexAt(event->pos()) : currentIndex();
    if (!cell.isValid()) return;
    const QPoint at = byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(cell).center());
    emit menuWanted(cell.row() + 1, cell.column() + 1, at);
}

QAction* GridView::commandOf(const QKeyEvent& event) const {
    // The keys of the number pad count as those beside it.
    const QKeySequence keys(
        QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event.key())));
    const auto found = std::ranges::find_if(commands_, [&](const QAction* command) {
        return !command->shortcut().isEmpty() && command->shortcut() == keys;
    });
    return found == commands_.end() ? nullptr : *found;
}

bool GridView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && commandOf(*static_cast<QKeyEvent*>(event)) != nullptr) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    // Tab stays in the grid, so something else must lead out of it.
    if (event->key() == Qt::Key_Tab && event->modifiers().testFlag(Qt::ControlModifier)) {
        setTabKeyNavigation(false);
        focusNextChild();
        setTabKeyNavigation(true);
        return;
    }
    if (QAction* command = commandOf(*event)) return command->trigger();
    if (!isEnter(event->key())) return QTableView::keyPressEvent(event);
    move(event->modifiers().testFlag(Qt::ShiftModifier) ? MoveUp : MoveDown);
}

void GridView::commitEdit() {
    QWidget* editor = state() == EditingState ? QApplication::focusWidget() : nullptr;
    if (editor == nullptr || !viewport()->isAncestorOf(editor)) return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    switch (hint) {
        case QAbstractItemDelegate::EditNextItem:
            return move(MoveNext);
        case QAbstractItemDelegate::EditPreviousItem:
            return move(MovePrevious);
        default:
            return;
    }
}

}  // namespace tessaplot::qt
