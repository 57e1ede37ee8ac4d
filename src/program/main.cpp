#include "files/FileLayer.h"
#include "ui/Application.h"
#include "ui/MainWindow.h"

int main(int argc, char** argv) {
    emporium::ui::PrepareApplication();
    QApplication application(argc, argv);
    const auto fonts = emporium::ui::ListFonts();
    emporium::ui::SetUpApplication(application);
    emporium::ui::MainWindow window(emporium::RunningProgramFolder());
    if (!window.Started())
        return 0;
    window.show();
    return QApplication::exec();
}
