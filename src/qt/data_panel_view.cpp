#include "qt/data_panel_view.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <string_view>

#include "data/data_kind.h"
#include "qt/grid_model.h"
#include "qt/grid_view.h"
#include "qt/text.h"

namespace tessaplot::qt {

namespace {

/// The label that names each box; there is no `Label5`.
constexpr std::array labelNumbers{1, 2, 3, 4, 6, 7, 8, 9, 10, 11};

struct Place {
    int box;
    int row;
    int column;
};

/// Where each box stands, in tab order: a line an axis, each with least, greatest and rows, then the points.
constexpr std::array<Place, 10> places{
    {{1, 0, 0}, {2, 0, 1}, {4, 0, 2}, {5, 1, 0}, {6, 1, 1}, {7, 1, 2}, {8, 2, 0}, {9, 2, 1}, {10, 2, 2}, {3, 3, 0}}};
constexpr int boxColumns = 3;
constexpr int applyRow = 3;
/// Wide enough for a count of rows; longer numbers scroll.
constexpr int narrowestBoxInDigits = 6;
constexpr int smallestGridRows = 3;

QString hintFor(const QString& label) {
    if (label == "Points") return QObject::tr("How many scattered points the grid lists");
    const QString axis = label.section(' ', 1);
    if (label.startsWith("Rows")) return QObject::tr("How many grid nodes along %1").arg(axis);
    if (label.startsWith("Min")) return QObject::tr("Where the regular grid begins along %1").arg(axis);
    return QObject::tr("Where the regular grid ends along %1").arg(axis);
}

}  // namespace

DataPanelView::DataPanelView(GridModel* model, QWidget* parent)
    : QWidget(parent),
      combo_(new QComboBox(this)),
      boxes_(),
      apply_(new QPushButton(tr("Apply"), this)),
      grid_(new GridView(model, this)) {
    setObjectName("Data");
    fillKinds();

    auto* form = new QGridLayout;
    form->setHorizontalSpacing(6);
    makeBoxes(form);

    apply_->setObjectName("Command1");
    apply_->setToolTip(tr("Lay the grid out for these counts"));
    form->addWidget(apply_, applyRow, 2 * boxColumns - 2, 1, 2);
    connect(apply_, &QPushButton::clicked, this, &DataPanelView::applied);

    grid_->setObjectName("fgdGrid");
    grid_->setAccessibleName(tr("Data grid"));
    grid_->setMinimumHeight(smallestGridRows * grid_->fontMetrics().lineSpacing() * 2);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 0);
    column->addWidget(combo_);
    column->addLayout(form);
    column->addWidget(grid_, 1);
    orderTabs();
}

void DataPanelView::fillKinds() {
    combo_->setObjectName("Combo1");
    combo_->setAccessibleName(tr("Kind of data"));
    combo_->setToolTip(tr("Kind of data"));
    // A narrow panel shortens the caption instead of growing with it.
    combo_->setMinimumContentsLength(8);
    combo_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (int kind = 0; kind < data::dataKindCount; ++kind)
        combo_->addItem(qString(data::captionOf(static_cast<data::DataKind>(kind))));
    connect(combo_, &QComboBox::activated, this, &DataPanelView::kindChosen);
}

void DataPanelView::makeBoxes(QGridLayout* form) {
    for (int column = 0; column < boxColumns; ++column)
        form->setColumnStretch(2 * column + 1, 1);
    for (const Place& place : places)
        placeBox(form, place.box, place.row, place.column);
}

void DataPanelView::placeBox(QGridLayout* form, int box, int row, int column) {
    const auto index = static_cast<std::size_t>(box - 1);
    auto* text = new QLineEdit(this);
    text->setObjectName(QString("Text%1").arg(box));
    text->setMinimumWidth(text->fontMetrics().horizontalAdvance('0') * narrowestBoxInDigits);
    auto* label = new QLabel(this);
    label->setObjectName(QString("Label%1").arg(labelNumbers[index]));
    label->setBuddy(text);
    boxes_[index] = {label, text};
    form->addWidget(label, row, 2 * column);
    form->addWidget(text, row, 2 * column + 1);
    connect(text, &QLineEdit::textEdited, this, [this, box](const QString& entered) { emit boxEdited(box, entered); });
}

void DataPanelView::orderTabs() {
    QWidget* previous = combo_;
    const auto follow = [&](QWidget* next) {
        setTabOrder(previous, next);
        previous = next;
    };
    for (const Place& place : places)
        follow(boxes_[static_cast<std::size_t>(place.box - 1)].text);
    follow(apply_);
    follow(grid_);
}

void DataPanelView::sync(const data::DataPanel& panel) {
    combo_->setCurrentIndex(static_cast<int>(panel.kind()));
    const auto labels = data::boxLabelsOf(panel.kind());
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const QString label = qString(labels[i]);
        const auto [caption, text] = boxes_[i];
        caption->setText(label);
        caption->setVisible(!label.isEmpty());
        text->setVisible(!label.isEmpty());
        text->setAccessibleName(label);
        text->setToolTip(hintFor(label));
        const QString content = QString::fromStdString(panel.Text(static_cast<int>(i) + 1));
        if (text->text() != content) text->setText(content);
    }
}

}  // namespace tessaplot::qt
