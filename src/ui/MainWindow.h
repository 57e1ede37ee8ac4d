// The program's window: two modes over one layout, and the platform that the operations ask.
#pragma once

#include "ui/GeneratorDialog.h"
#include "ui/HtmlView.h"
#include "ui/ItemEditorPane.h"
#include "ui/Session.h"

#include <QPointer>

#include <filesystem>

namespace emporium::ui {

class MainWindow : public QWidget {
    Q_OBJECT

public:
    /// Builds the window and starts the program on the folders in `programFolder`.
    explicit MainWindow(const std::filesystem::path& programFolder);
    ~MainWindow() override;

    /// False if the user does not want to go on beside another running copy of the program.
    bool Started() const { return started_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void ConnectPlatform(const std::filesystem::path& programFolder);
    void BuildBackgrounds();
    void BuildControls();
    void BuildModes();
    void MirrorWindow();
    void SetBusy(bool busy);

    Session session_;
    Dice dice_;
    bool started_ = false;
    bool closed_ = false;
    bool framed_ = false; // placed with the frame that the desktop gave it

    Picture *itemBackground_ = nullptr, *shopBackground_ = nullptr;
    QWidget* controls_ = nullptr; // everything that takes input
    QPointer<QWidget> focused_;   // before they were disabled
    HtmlView* browser_ = nullptr;
    ItemEditorPane* itemEditor_ = nullptr;
    GeneratorDialog* generator_ = nullptr;
    Mode backgroundMode_ = Mode::ItemEditor; // that was painted last
};

} // namespace emporium::ui
