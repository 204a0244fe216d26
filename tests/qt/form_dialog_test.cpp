#include "qt/form_dialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSlider>
#include <QTabWidget>
#include <functional>
#include <utility>

#include "base/failure.h"
#include "base/joined.h"
#include "data/text_table.h"
#include "qt/window_test.h"
#include "ui/control_makers.h"
#include "ui/graph_forms.h"

namespace tessaplot::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The window with dialogs above it, each worked by a hand that waits until it has opened.
class FormDialogTest : public WindowTest {
 protected:
    /// Does `work` with the modal dialog that opens next.
    void onNext(std::function<void(QDialog&)> work) {
        auto* poll = new QTimer(&window);
        QObject::connect(poll, &QTimer::timeout, &window, [this, poll, work = std::move(work)] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || !dialog->isActiveWindow() || dialog == worked) return;
            poll->stop();
            poll->deleteLater();
            ++dialogs;
            const QDialog* outer = std::exchange(worked, dialog);
            work(*dialog);
            worked = outer;
        });
        poll->start(10);
    }

    /// Names of the widgets that are too small for their captions. A size in physical pixels can round one off.
    static QStringList cutCaptions(QDialog& dialog) {
        QStringList cut;
        for (QWidget* widget : dialog.findChildren<QWidget*>()) {
            const bool hasCaption = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget);
            if (!hasCaption || !widget->isVisible()) continue;
            const QSize needed = widget->sizeHint() - QSize(1, 1);
            if (widget->width() < needed.width() || widget->height() < needed.height()) cut << widget->objectName();
        }
        return cut;
    }

    /// Looks at every tab, then presses the return key.
    static void lookAndAccept(QDialog& dialog) {
        auto* tabs = dialog.findChild<QTabWidget*>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs) tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            EXPECT_THAT(cutCaptions(dialog), IsEmpty()) << dialog.objectName().toStdString();
        }
        if (dialog.devicePixelRatioF() == 1) {
            EXPECT_LE(dialog.frameSize().width(), dialog.screen()->availableSize().width());
            EXPECT_LE(dialog.frameSize().height(), dialog.screen()->availableSize().height());
        }
        if (tabs) tabs->setCurrentIndex(0);
        QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, Qt::Key_Return);
    }

    /// Values at all nodes of a small lattice, as points that are to be gridded or as a grid.
    void fillPanel(const std::string& tag) {
        const bool volume = tag[1] == '4';
        std::string text = tag;
        for (int n = 0; n < (volume ? 64 : 16); ++n)
            text += (volume ? joined(n / 16, n / 4 % 4, n % 4) : joined(n / 4, n % 4)) + joined(n * n % 7);
        data::importText(state.panel, text);
        if (tag[0] == 'R') return;
        for (const auto& [box, limit] : {std::pair(1, "0"), {2, "3"}, {5, "0"}, {6, "3"}, {8, "0"}, {9, "3"}})
            state.panel.setText(box, limit);
        for (const int nodes : {4, 7, 10})
            state.panel.setText(nodes, "4");
    }

    const QDialog* worked = nullptr;
    int dialogs = 0;
};

TEST_F(FormDialogTest, everySettingDialogOpensWholeAndTakesTheReturnKey) {
    addGraph();
    tick(Qt::Checked);
    int closed = 0;
    for (const auto& [command, form_name, ok] : {std::tuple{"mnuDrawAxis", "frmF3", "Command1"},
                                                 {"mnuDrawLight", "frmF8", "cmdOK"},
                                                 {"mnuViewSet", "frmF14", "cmdOK"},
                                                 {"mnuGESet", "frmOption", "cmdOK"},
                                                 {"mnuHelpAbout", "frmF2", "cmdOK"}}) {
        onNext([form_name, ok](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), form_name);
            EXPECT_NE(dialog.findChild<QPushButton*>(ok), nullptr);
            lookAndAccept(dialog);
        });
        form.run(command);
        EXPECT_EQ(dialogs, ++closed) << command;
    }
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(FormDialogTest, everyGraphDialogOpensWholeAndAddsItsGraphByTheReturnKey) {
    const char* const regular = "R3 4 4";
    const char* const scattered = "I3 16";
    std::size_t added = 0;
    for (const auto& [type, tag, mode] : {std::tuple{6, scattered, 3},
                                          {6, regular, 3},
                                          {7, regular, 3},
                                          {13, regular, 7},
                                          {14, scattered, 7},
                                          {15, regular, 7},
                                          {16, regular, 3},
                                          {18, scattered, 3},
                                          {19, regular, 3},
                                          {24, scattered, 3},
                                          {41, "R4 4 4 4", 11},
                                          {42, "R4 4 4 4", 11},
                                          {43, "R4 4 4 4", 11},
                                          {44, "I4 64", 11}}) {
        state.scene.SceneMode = mode;
        fillPanel(tag);
        const auto dialog = ui::makeGraphForm(state, type);
        onNext(lookAndAccept);
        asked.clear();
        showForm(&window, *dialog);
        ASSERT_EQ(state.AllGraphs.Graphs.size(), ++added) << type << ": " << testing::PrintToString(asked);
        EXPECT_EQ(state.AllGraphs.Graphs.back()->GraphType, type);
    }
}

TEST_F(FormDialogTest, anAxisDialogIsFilledInByKeyboardAndMouse) {
    onNext([this](QDialog& dialog) {
        auto* intervals = dialog.findChild<QLineEdit*>("Text1");
        auto* material = dialog.findChild<QComboBox*>("Combo1");
        auto* show = dialog.findChild<QAbstractButton*>("Check2");
        EXPECT_FALSE(material->isEnabled());
        EXPECT_EQ(intervals->accessibleName(), "X Axis Intervals");
        intervals->setFocus();
        intervals->selectAll();
        QTest::keyClicks(intervals, "abc");
        QTest::keyClick(intervals, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "refused";
        intervals->selectAll();
        QTest::keyClicks(intervals, "7");
        dialog.findChild<QTabWidget*>()->setCurrentIndex(1);
        show->setFocus();
        QTest::keyClick(show, Qt::Key_Space);
        EXPECT_TRUE(material->isEnabled());
        QTest::keyClick(material, Qt::Key_Down);
        QTest::mouseClick(dialog.findChild<QAbstractButton*>("Picture1"), Qt::LeftButton);
        QTest::keyClick(material, Qt::Key_Return);
    });
    state.desktop.chooseColor = [](base::PackedColor) { return base::packColor(9, 8, 7); };
    choose("mnuDrawAxis");
    EXPECT_THAT(asked, ElementsAre("Illegal data exist."));
    EXPECT_EQ(state.TheAxis.LabelNumX, 7);
    EXPECT_TRUE(state.TheAxis.ShowXYPanel);
    EXPECT_EQ(state.TheAxis.XYPanelMaterial, 5);
    EXPECT_EQ(state.TheAxis.XYPanelColor, base::packColor(9, 8, 7));

    onNext([](QDialog& dialog) {
        auto* title = dialog.findChild<QLineEdit*>("Text4");
        QTest::keyClicks(title, "not kept");
        QTest::keyClick(title, Qt::Key_Escape);
    });
    choose("mnuDrawAxis");
    EXPECT_EQ(dialogs, 2);
    EXPECT_EQ(state.TheAxis.TitleX, "X");
}

/// A form whose controls depend on each other and whose OK fails, or lasts until it is stopped.
class Troubled : public ui::Form {
 public:
    explicit Troubled(const platform::Desktop& desktop) : Form("frmTroubled", "Troubled"), desktop_(desktop) {
        add(ui::optionButton("Option1", "Fail", true));
        add(ui::optionButton("Option2", "Last", false));
        add({ui::ControlKind::Slider, "Slider1", "Share"}).value = 0.25;
        ui::Control& list = add({ui::ControlKind::ListBox, "List1", "Entries"});
        list.visible = false;
        list.items = {{"one", {255}}, {"two", {}}};
        addPage({"", {{"Choice", {{"Option1", "Option2"}}}, {"Hidden", {{"List1"}}}, {"", {{"Slider1"}}}}});
    }

 protected:
    void changed(ui::Control&) override { control("List1").visible = control("Slider1").value > 0.5; }
    void ok() override {
        if (control("Option1").on) throw base::Failure(base::FailureCode::BadInput, "No <good>.");
        for (int i = 0; i < 1000; ++i) {
            desktop_.progress(i / 1000.0);
            QTest::qSleep(20);
        }
    }

 private:
    const platform::Desktop& desktop_;
};

TEST_F(FormDialogTest, failuresAndLongActionsLeaveTheDialogOpen) {
    Troubled troubled(state.desktop);
    std::string told;
    onNext([&](QDialog& dialog) {
        onNext([&](QDialog& box) {
            told = qobject_cast<QMessageBox*>(&box)->text().toStdString();
            QTest::keyClick(&box, Qt::Key_Return);
        });
        auto* first = dialog.findChild<QAbstractButton*>("Option1");
        QTest::keyClick(first, Qt::Key_Return);
        EXPECT_EQ(told, "No <good>.");
        EXPECT_TRUE(dialog.isVisible());

        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        first->setFocus();
        QTest::keyClick(first, Qt::Key_Right);
        EXPECT_TRUE(troubled.control("Option2").on);
        EXPECT_FALSE(troubled.control("Option1").on);
        QTimer::singleShot(1000, &dialog, [&] {
            EXPECT_FALSE(first->isEnabled()) << "nothing but Cancel works meanwhile";
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        EXPECT_TRUE(dialog.isVisible()) << "stopped, not closed";
        EXPECT_TRUE(first->isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    showForm(&window, troubled);
    EXPECT_FALSE(troubled.isOpen());
    EXPECT_EQ(dialogs, 2);
}

TEST_F(FormDialogTest, controlsShowAnewWhatTheFormHolds) {
    Troubled troubled(state.desktop);
    onNext([&](QDialog& dialog) {
        auto* list = dialog.findChild<QWidget*>("List1");
        auto* slider = dialog.findChild<QSlider*>("Slider1");
        EXPECT_FALSE(list->isVisible() || list->parentWidget()->isVisible());
        EXPECT_EQ(slider->accessibleName(), "Share");
        QTest::keyClick(slider, Qt::Key_End);
        EXPECT_EQ(troubled.control("Slider1").value, 1);
        EXPECT_TRUE(list->isVisible());
        QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(troubled.control("List1").selected, 0);
        QTest::keyClick(slider, Qt::Key_Home);
        EXPECT_FALSE(list->isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    showForm(&window, troubled);
    EXPECT_EQ(dialogs, 1);
}

}  // namespace
}  // namespace tessaplot::qt
