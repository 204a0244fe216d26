#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

#include "data/data_kind.h"
#include "qt/window_test.h"

namespace tessaplot::qt {
namespace {

class DataPanelViewTest : public WindowTest {
 protected:
    void type(const char* box, const char* text) {
        auto* edit = find<QLineEdit>(box);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    /// Presses a key where the focus is: in the grid, or in the editor of one of its cells.
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    static void typeHere(const char* text) {
        for (; *text != '\0'; ++text)
            QTest::keyClick(QApplication::focusWidget(), *text);
    }

    QTableView* gridOfTwoByTwo() {
        type("Text1", "2");
        type("Text2", "2");
        QTest::mouseClick(find<QPushButton>("Command1"), Qt::LeftButton);
        auto* grid = find<QTableView>("fgdGrid");
        grid->setFocus();
        grid->setCurrentIndex(grid->model()->index(0, 0));
        return grid;
    }
};

TEST_F(DataPanelViewTest, boxesAndHeadersFollowTheKindAndTextStays) {
    constexpr std::array labelOfBox{1, 2, 3, 4, 6, 7, 8, 9, 10, 11};
    auto* combo = find<QComboBox>("Combo1");
    auto* grid = find<QTableView>("fgdGrid");
    type("Text1", "17");
    combo->setFocus();
    for (int kind = 0; kind < data::dataKindCount; ++kind) {
        if (kind > 0) QTest::keyClick(combo, Qt::Key_Down);
        ASSERT_EQ(static_cast<int>(state.panel.kind()), kind);
        const auto labels = data::boxLabelsOf(state.panel.kind());
        for (std::size_t i = 0; i < labels.size(); ++i) {
            const auto* label = find<QLabel>(qPrintable(QString("Label%1").arg(labelOfBox[i])));
            const auto* box = find<QLineEdit>(qPrintable(QString("Text%1").arg(i + 1)));
            EXPECT_EQ(label->text().toStdString(), labels[i]);
            EXPECT_EQ(box->isVisible(), !labels[i].empty()) << kind << ' ' << i + 1;
            EXPECT_EQ(label->isVisible(), box->isVisible());
            EXPECT_EQ(label->buddy(), box);
        }
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(grid->model()->headerData(column, Qt::Horizontal).toString().toStdString(),
                      data::headersOf(state.panel.kind())[static_cast<std::size_t>(column)]);
        EXPECT_EQ(find<QLineEdit>("Text1")->text(), "17");
        EXPECT_EQ(find<QAction>("mnuFileNew4D")->isEnabled(), kind < 4);
    }
}

TEST_F(DataPanelViewTest, numbersAreTypedIntoTheGridByKeyboardAlone) {
    auto* grid = gridOfTwoByTwo();
    ASSERT_EQ(grid->model()->rowCount(), 4);
    EXPECT_EQ(grid->model()->headerData(3, Qt::Vertical).toString(), "1,1");

    typeHere("1.5");
    press(Qt::Key_Return);
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(1, 0)) << "Enter moves down";
    typeHere("-2");
    press(Qt::Key_Tab);
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(1, 1)) << "Tab moves to the right";
    typeHere("3,25");
    press(Qt::Key_Down);
    typeHere("9");
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(1, 0));
    typeHere("77");
    press(Qt::Key_Escape);
    press(Qt::Key_Enter);

    EXPECT_EQ(state.panel.cell(1, 1), "1.5");
    EXPECT_EQ(state.panel.cell(1, 2), "-2") << "Escape gives the old text back";
    EXPECT_EQ(state.panel.cell(2, 2), "3,25");
    EXPECT_EQ(state.panel.cell(2, 3), "9");
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(2, 0)) << "Enter moves down without an edit too";
    EXPECT_TRUE(grid->hasFocus());
    QTest::keyClick(grid, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_FALSE(grid->hasFocus());
}

TEST_F(DataPanelViewTest, aCommandSeesWhatIsStillBeingTyped) {
    gridOfTwoByTwo();
    typeHere("42");
    EXPECT_EQ(state.panel.cell(1, 1), "");
    choose("mnuViewFit");
    EXPECT_EQ(state.panel.cell(1, 1), "42");
}

TEST_F(DataPanelViewTest, theGridShowsTheStoreItselfAfterEveryChangeOfShape) {
    auto* grid = gridOfTwoByTwo();
    typeHere("5");
    press(Qt::Key_Return);
    for (const char* rows : {"1", "100", "2"}) {
        type("Text1", rows);
        QTest::mouseClick(find<QPushButton>("Command1"), Qt::LeftButton);
        EXPECT_EQ(grid->model()->rowCount(), state.panel.gridRows() - 1);
        EXPECT_EQ(grid->model()->index(0, 0).data().toString(), "5");
    }
    state.panel.setCell(1, 1, "6");
    EXPECT_EQ(grid->model()->index(0, 0).data().toString(), "6");
}

}  // namespace
}  // namespace tessaplot::qt
