// Starts the window, or an empty one of the same size, paints its first frame and ends: two
// processes whose times can be compared.
//
//   start_bench empty
//   start_bench PROGRAM_FOLDER

#include "ui/Application.h"
#include "ui/MainWindow.h"
#include "ui/Text.h"

#include <QFile>

#include <cstring>
#include <memory>

namespace {

using emporium::ui::MainWindow;

std::unique_ptr<QWidget> MakeWindow(const char* what) {
    if (std::strcmp(what, "empty") != 0)
        return std::make_unique<MainWindow>(emporium::ui::PathFrom(QFile::decodeName(what)));
    auto window = std::make_unique<QWidget>();
    window->setFixedSize(632, 453);
    return window;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2)
        return 2;
    emporium::ui::SetUpApplication(application);
    const auto window = MakeWindow(argv[1]);
    window->show();
    window->repaint();
    QApplication::processEvents();
    return 0;
}
