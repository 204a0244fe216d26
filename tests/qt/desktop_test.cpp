#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextBrowser>

#include "qt/window_test.h"

namespace tessaplot::qt {
namespace {

/// The window with its own desktop, worked by a hand that waits for dialogs.
class DesktopTest : public WindowTest {
 protected:
    void SetUp() override {
        WindowTest::SetUp();
        state.desktop = makeDesktop(window);
    }

    /// Does `work` with the next dialog of this type that opens.
    template <class Dialog, class Work>
    void onNext(Work work) {
        auto* poll = new QTimer(&window);
        QObject::connect(poll, &QTimer::timeout, &window, [poll, work] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            poll->deleteLater();
            poll->stop();
            work(dialog);
        });
        poll->start(10);
    }

    static void enterFile(QFileDialog* dialog, const std::filesystem::path& path) {
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        name->setText(QString::fromStdString(path.string()));
        QTest::keyClick(name, Qt::Key_Return);
    }
};

TEST_F(DesktopTest, messageBoxesBringEveryAnswerBack) {
    using platform::Answer;
    using platform::Buttons;
    const auto answerTo = [this](Buttons buttons, QMessageBox::StandardButton button) {
        onNext<QMessageBox>([button](QMessageBox* box) {
            EXPECT_EQ(box->text(), "50% <b>");
            QTest::mouseClick(box->button(button), Qt::LeftButton);
        });
        return state.desktop.askUser({"Note", "50% <b>", platform::Icon::Warning, buttons});
    };
    EXPECT_EQ(answerTo(Buttons::Ok, QMessageBox::Ok), Answer::Ok);
    EXPECT_EQ(answerTo(Buttons::YesNo, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(answerTo(Buttons::YesNoCancel, QMessageBox::No), Answer::No);
    EXPECT_EQ(answerTo(Buttons::YesNoCancel, QMessageBox::Cancel), Answer::Cancel);
    onNext<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
    EXPECT_EQ(state.desktop.askUser({"Note", "?", platform::Icon::None, Buttons::YesNoCancel}), Answer::Cancel);
}

TEST_F(DesktopTest, fileDialogsTakeTheFilterAddTheExtensionAndCanBeCancelled) {
    const platform::FileQuestion save{platform::FileQuestion::Mode::Save, "Save", "(*.tsp)|*.tsp|Pictures|*.bmp;*.png"};
    onNext<QFileDialog>([this](QFileDialog* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "Save");
        EXPECT_EQ(dialog->nameFilters(), (QStringList{"(*.tsp)", "Pictures (*.bmp *.png)"}));
        enterFile(dialog, folder / "document");
    });
    const auto document = state.desktop.chooseFileName(save);
    ASSERT_TRUE(document);
    EXPECT_EQ(document->path, (folder / "document.tsp").string());
    EXPECT_EQ(document->filterIndex, 1);

    onNext<QFileDialog>([this](QFileDialog* dialog) {
        dialog->selectNameFilter("Pictures (*.bmp *.png)");
        emit dialog->filterSelected("Pictures (*.bmp *.png)");
        enterFile(dialog, folder / "picture");
    });
    const auto picture = state.desktop.chooseFileName(save);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->path, (folder / "picture.bmp").string());
    EXPECT_EQ(picture->filterIndex, 2);

    onNext<QFileDialog>([](QFileDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_FALSE(state.desktop.chooseFileName({platform::FileQuestion::Mode::Open, "Open File", "(*.tsp)|*.tsp"}));
}

TEST_F(DesktopTest, helpPagesOfTheInstallationAreShownHereAndAnAddressThatNothingOpensIsTold) {
    state.desktop.openPage(put(folder / "guide.md", "# The guide\n\nText.\n").string());
    EXPECT_TRUE(find<QTextBrowser>("Help")->isVisible());
    EXPECT_THAT(find<QTextBrowser>("Help")->toPlainText().toStdString(), testing::HasSubstr("The guide"));
    qputenv("PATH", "");
    EXPECT_THROW(state.desktop.openPage("unknown-scheme:page"), base::Failure);
}

TEST_F(DesktopTest, coloursAndTypefacesComeBackFromTheirDialogs) {
    onNext<QColorDialog>([](QColorDialog* dialog) {
        EXPECT_EQ(dialog->currentColor(), QColor(1, 2, 3));
        dialog->setCurrentColor(QColor(200, 100, 50));
        dialog->accept();
    });
    EXPECT_EQ(state.desktop.pickColor(base::packColor(1, 2, 3)), base::packColor(200, 100, 50));
    onNext<QFontDialog>([](QFontDialog* dialog) {
        EXPECT_TRUE(dialog->currentFont().italic());
        QFont font = dialog->currentFont();
        font.setUnderline(true);
        dialog->setCurrentFont(font);
        dialog->accept();
    });
    const auto font = state.desktop.pickFont({.name = "Liberation Sans", .size = 11, .italic = true});
    ASSERT_TRUE(font);
    EXPECT_EQ(font->name, "Liberation Sans");
    EXPECT_EQ(font->size, 11);
    EXPECT_TRUE(font->italic && font->underline);
    EXPECT_FALSE(font->bold || font->strikeout);
    onNext<QColorDialog>([](QColorDialog* dialog) { dialog->reject(); });
    EXPECT_FALSE(state.desktop.pickColor(0));
}

}  // namespace
}  // namespace tessaplot::qt
