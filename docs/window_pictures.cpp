// Takes the pictures of the window and of its dialogs that the guide shows. Needs a display with OpenGL.

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFont>
#include <QPixmap>
#include <QScreen>
#include <QTabWidget>
#include <QTimer>
#include <array>
#include <cstdio>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "core/app_state.h"
#include "qt/application.h"
#include "qt/desktop.h"
#include "qt/installation.h"
#include "qt/main_window.h"
#include "qt/opengl_format.h"
#include "ui/main_window.h"

namespace tessaplot {

namespace {

using qt::MainWindow;

constexpr QSize windowSize(1160, 700);
constexpr const char* fontFamily = "Liberation Sans";
constexpr int fontSize = 10;
constexpr int settleTime = 400;  ///< Milliseconds in which a window lays itself out and paints.

void settle() {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < settleTime)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

/// The window manager takes its time to give a window its frame.
void waitForFrame(const QWidget& widget) {
    for (int turn = 0; turn < 20 && widget.frameGeometry() == widget.geometry(); ++turn)
        settle();
}

/// The real window over the real logic, and a folder that its pictures go to.
class Photographer {
 public:
    explicit Photographer(QString folder) : folder_(std::move(folder)) {
        state_.desktop = makeDesktop(window_);
        state_.desktop.ask = [this](const platform::Message& message) {
            fail("A box came up: " + message.text);
            return platform::Answer::No;
        };
        state_.desktop.registerFileType = {};
        const qt::Installation installation = qt::findInstallation();
        state_.samplesFolder = installation.samples;
        form_.help = installation.help;
        window_.start({});
        window_.resize(windowSize);
        settle();
    }

    /// One action of the user.
    void choose(const char* command) {
        form_.run(command);
        window_.sync();
        settle();
    }

    void takeWindow(const char* name) { save(window_, name); }

    /// The dialog that a command opens, with one of its tabs to the front; it is cancelled then.
    void takeDialog(const char* command, int tab, const char* name) {
        QTimer::singleShot(settleTime, &window_, [=, this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return fail(std::string("No dialog for ") + name);
            if (auto* tabs = dialog->findChild<QTabWidget*>()) tabs->setCurrentIndex(tab);
            settle();
            waitForFrame(*dialog);
            save(*dialog, name);
            dialog->reject();
        });
        form_.run(command);
    }

    /// Types a regular surface: rows along X and along Y, then the numbers.
    void typeSurface(const char* rowsX, const char* rowsY, const std::vector<std::array<const char*, 4>>& rows) {
        state_.panel.setText(1, rowsX);
        state_.panel.setText(2, rowsY);
        form_.Command1_Click();
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (std::size_t column = 0; column < rows[row].size(); ++column)
                state_.panel.setCell(static_cast<int>(column) + 1, static_cast<int>(row) + 1, rows[row][column]);
        window_.sync();
    }

    /// Adds the graph of a command with what its dialog proposes.
    void addGraph(const char* command) {
        QTimer::singleShot(settleTime, &window_, [=, this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return fail(std::string("No dialog for ") + command);
            dialog->accept();
        });
        choose(command);
        if (state_.AllGraphs.empty()) fail(std::string("No graph by ") + command);
    }

    bool failed() const { return failed_; }

 private:
    /// As it stands on the screen, with the frame that the window manager gives it.
    void save(const QWidget& widget, const char* name) {
        const QRect frame = widget.frameGeometry();
        const QPixmap picture = widget.screen()->grabWindow(0, frame.x(), frame.y(), frame.width(), frame.height());
        const QString path = folder_ + '/' + name + ".png";
        if (!picture.save(path)) fail("Cannot write " + path.toStdString());
    }
    void fail(const std::string& reason) {
        std::fprintf(stderr, "%s\n", reason.c_str());
        failed_ = true;
    }

    QString folder_;
    core::AppState state_;
    ui::frmF1 form_{state_};
    MainWindow window_{form_};
    bool failed_ = false;
};

void takeFirstMinute(Photographer& camera) {
    camera.typeSurface("3", "3",
                       {{"0", "0", "1", "1"},
                        {"0", "1", "2", "2"},
                        {"0", "2", "1", "1"},
                        {"1", "0", "2", "2"},
                        {"1", "1", "4", "4"},
                        {"1", "2", "2", "2"},
                        {"2", "0", "1", "1"},
                        {"2", "1", "2", "2"},
                        {"2", "2", "1", "1"}});
    camera.addGraph("mnuDrawTab3D");
    camera.choose("mnuViewFit");
    camera.takeWindow("first");
}

void takeSpace(Photographer& camera) {
    camera.choose("mnuDemoSG");
    camera.takeWindow("window-3d");
    camera.takeDialog("mnuDrawTab3D", 0, "surface-fill");
    camera.takeDialog("mnuDrawTab3D", 1, "color-map");
    camera.takeDialog("mnuDrawTab3D", 2, "surface-plots");
    camera.takeDialog("mnuDrawVert", 0, "vertices");
    camera.takeDialog("mnuDrawCon3D", 0, "contours");
    camera.takeDialog("mnuDrawPoint", 0, "point");
    camera.takeDialog("mnuDrawAxis", 0, "axis");
    camera.takeDialog("mnuDrawAxis", 1, "axis-panels");
    camera.takeDialog("mnuDrawAxis", 3, "axis-scales");
    camera.takeDialog("mnuDrawLight", 0, "light");
    camera.takeDialog("mnuViewSet", 0, "view");
    camera.choose("mnuDemoDelaunay");
    camera.takeDialog("mnuDrawDelaunay", 0, "triangles");
}

void takePlane(Photographer& camera) {
    camera.choose("mnuDemoCC");
    camera.takeWindow("window-2d");
}

void takeVolumes(Photographer& camera) {
    camera.choose("mnuDemo4SV");
    camera.takeWindow("window-4d");
    camera.takeDialog("mnuDraw4DScat", 0, "spheres");
    camera.takeDialog("mnuDraw4DSlice", 0, "slices");
    camera.takeDialog("mnuDrawIsoSur", 0, "iso-surface");
}

int run(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: tessaplot-window-pictures FOLDER\n", stderr);
        return 2;
    }
    int nameOnly = 1;
    qt::requestOpenGl();
    qt::Application application(nameOnly, argv);
    QApplication::setFont(QFont(fontFamily, fontSize));
    Photographer camera(argv[1]);
    takeFirstMinute(camera);
    takeSpace(camera);
    takePlane(camera);
    takeVolumes(camera);
    return camera.failed() ? 1 : 0;
}

}  // namespace

}  // namespace tessaplot

int main(int argc, char** argv) {
    try {
        return tessaplot::run(argc, argv);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "tessaplot-window-pictures: %s\n", failure.what());
        return 1;
    }
}
