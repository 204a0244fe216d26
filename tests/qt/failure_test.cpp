#include "base/failure.h"

#include <QMessageBox>
#include <QStandardPaths>
#include <QTimer>

#include "core/document.h"
#include "qt/application.h"
#include "qt/last_resort.h"
#include "qt/program.h"
#include "qt/window_test.h"

namespace tessaplot::qt {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

Application& application() {
    return *static_cast<Application*>(QCoreApplication::instance());
}

void failFromTheEventLoop(QObject* receiver, const char* message) {
    QMetaObject::invokeMethod(
        receiver, [message] { throw base::Failure(base::FailureCode::Overflow, message); }, Qt::QueuedConnection);
}

class FailureTest : public WindowTest {
 protected:
    void TearDown() override {
        application().setLastResort({});
        WindowTest::TearDown();
    }
};

TEST_F(FailureTest, outsideACommandKeepsTheWorkTellsWhereAndEndsOnce) {
    addGraph();
    asked.clear();
    LastResort lastResort(form, folder / "kept");
    application().setLastResort([&](const char* message) { lastResort.take(message); });
    auto ask = state.desktop.ask;
    state.desktop.ask = [&](const platform::Message& message) {
        failFromTheEventLoop(&window, "again");
        QCoreApplication::processEvents();
        return ask(message);
    };
    failFromTheEventLoop(&window, "Number too large.");
    failFromTheEventLoop(&window, "And another.");
    EXPECT_EQ(QApplication::exec(), 1);

    ASSERT_EQ(asked.size(), 1U) << "failures of a program that ends are not told";
    EXPECT_THAT(asked[0], HasSubstr("Number too large."));
    ASSERT_EQ(std::distance(fs::directory_iterator(folder / "kept"), {}), 1);
    const fs::path kept = fs::directory_iterator(folder / "kept")->path();
    EXPECT_THAT(asked[0], HasSubstr(kept.string()));
    const auto document = core::readDocument(core::readDocumentFile(kept));
    ASSERT_TRUE(document);
    EXPECT_EQ(document->graphs.size(), 1U);
}

TEST_F(FailureTest, endsAlsoWhenNothingCanBeKeptOrTold) {
    put(folder / "file", "no folder");
    LastResort lastResort(form, folder / "file" / "kept");
    application().setLastResort([&](const char* message) { lastResort.take(message); });
    std::string told;
    state.desktop.ask = [&](const platform::Message& message) -> platform::Answer {
        told = message.text;
        throw base::Failure(base::FailureCode::OpenGl, "no box either");
    };
    failFromTheEventLoop(&window, "Number too large.");
    EXPECT_EQ(QApplication::exec(), 1);
    EXPECT_THAT(told, HasSubstr("could not be kept"));
}

/// Runs the whole program; every box is noted and closed, and a window that stays open is closed in the end.
class ProgramTest : public testing::Test {
 protected:
    int run(const fs::path& document) {
        QTimer hand;
        QObject::connect(&hand, &QTimer::timeout, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                boxes.push_back(box->text().toStdString());
                box->escapeButton() != nullptr ? box->escapeButton()->click() : box->reject();
            } else if (!boxes.empty() && --patience == 0) {
                // Not from within the timer, which stands still meanwhile: closing may open a box.
                QTimer::singleShot(0, qApp, [] { QApplication::closeAllWindows(); });
            }
        });
        hand.start(10);
        return runProgram(application(), document);
    }

    std::vector<std::string> boxes;
    int patience = 20;
};

TEST_F(ProgramTest, endsWithOneForAPathThatCannotBeReadAndWithZeroWhenItsWindowCloses) {
    EXPECT_EQ(run("/nowhere/with blank.tsp"), 1);
    ASSERT_EQ(boxes.size(), 2U) << "no OpenGL here, then no document";
    EXPECT_THAT(boxes[1], HasSubstr("with blank.tsp"));
    boxes.clear();
    EXPECT_EQ(run({}), 0);
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(ProgramTest, keepsADocumentOpenWhoseDataCannotBeDrawn) {
    const TemporaryFolder folder;
    const fs::path path = folder / "flat.tsp";
    core::AppState state;
    for (const int box : {1, 2})
        state.panel.setText(box, "2");
    state.panel.layOut();
    core::addGraph(state, graphs::graph_type::gridModel);
    core::writeDocumentFile(path, core::documentText(core::partsOf(state, state.AllGraphs)));

    EXPECT_EQ(run(path), 0);
    ASSERT_EQ(boxes.size(), 3U);
    EXPECT_THAT(boxes[1], HasSubstr("range"));
    EXPECT_EQ(boxes[2], "Do you want to save the graphs?");
}

}  // namespace
}  // namespace tessaplot::qt
