// Starts the window, or an empty one of the same size, paints its first frame, tells how much
// memory it took at most and ends: processes whose times and sizes can be compared.
//
//   start_bench empty
//   start_bench PROGRAM_FOLDER

#include "ui/Application.h"
#include "ui/MainWindow.h"
#include "ui/Text.h"

#include <QFile>

#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

namespace {

using emporium::ui::MainWindow;

std::unique_ptr<QWidget> ProgramWindow(const char* folder) {
    return std::make_unique<MainWindow>(emporium::ui::PathFrom(QFile::decodeName(folder)));
}

std::unique_ptr<QWidget> EmptyWindow() {
    auto window = std::make_unique<QWidget>();
    window->setFixedSize(632, 453);
    return window;
}

// The most that the process took, in kB.
std::string PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return line.substr(line.find_first_of("123456789"));
    return {};
}

} // namespace

int main(int argc, char** argv) {
    emporium::ui::PrepareApplication();
    QApplication application(argc, argv);
    if (argc < 2)
        return 2;
    const bool empty = std::strcmp(argv[1], "empty") == 0;
    const auto fonts = empty ? std::future<void>() : emporium::ui::ListFonts();
    emporium::ui::SetUpApplication(application);
    const auto window = empty ? EmptyWindow() : ProgramWindow(argv[1]);
    window->show();
    window->repaint();
    QApplication::processEvents();
    std::cout << PeakMemory() << '\n';
    return 0;
}
