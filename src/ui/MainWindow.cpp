#include "ui/MainWindow.h"

#include "frame/StartUp.h"
#include "ui/Build.h"
#include "ui/Pictures.h"
#include "ui/Printing.h"
#include "ui/QtPlatform.h"
#include "ui/ShopEditorPane.h"
#include "ui/Text.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QTimer>

#include <utility>

namespace emporium::ui {

namespace {

// The place at which the window stands in the middle of its screen together with its frame. The
// desktop adds that when the window is first shown; until then it is taken for a usual title bar.
QPoint CentredPlace(const QWidget& window) {
    QRect frame = window.frameGeometry();
    if (frame == window.geometry())
        frame.setTop(frame.top() - window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    frame.moveCenter(window.screen()->availableGeometry().center());
    return frame.topLeft();
}

} // namespace

MainWindow::MainWindow(const std::filesystem::path& programFolder)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      dice_(SecondsSinceMidnight) {
    setObjectName("frmEmporiumMain");
    setFixedSize(Px(9480), Px(6795));
    move(CentredPlace(*this));
    ConnectPlatform(programFolder);
    BuildBackgrounds();
    started_ = StartUp(session_.state, session_.platform);
    BuildControls();
    connect(browser_, &HtmlView::navigateComplete, this,
            [this] { session_.Do([this] { ReportPage(session_.state.print); }); });
    session_.mirror.Bind([this] { MirrorWindow(); });
    session_.mirror.Update();
    LoadButtonPictures(*this, session_.platform.disk);
    itemEditor_->FocusCategories();
}

void MainWindow::ConnectPlatform(const std::filesystem::path& programFolder) {
    auto& platform = session_.platform;
    platform = QtPlatform(*this, session_.mirror);
    platform.disk = {SystemFiles(), InitFolders(programFolder)};
    platform.RollDice = [this](std::int32_t n) { return dice_.RollDice(n); };
    platform.ProcessEvents = [this] {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        return !closed_;
    };
    platform.Browser.SetVisible = [this](bool visible) {
        browser_->setVisible(visible);
        session_.mirror.Update();
    };
    platform.Browser.Navigate = [this](const auto& file) {
        const FileText page = session_.platform.disk.files.read(file, LargestFile);
        if (page.IsWhole())
            browser_->Navigate(page.bytes);
        return page.IsWhole();
    };
    platform.Browser.Print = [this] {
        const Platform& services = session_.platform;
        return PrintPage({*this, services.disk.files, services.ShowMessage, services.ProcessEvents},
                         *browser_);
    };
    platform.ShowGeneratorDialog = [this] {
        session_.mirror.Update();
        generator_->move(CentredPlace(*generator_));
        generator_->findChild<QWidget*>("cmbShopBeruf")->setFocus(); // wherever it was last time
        findChild<QWidget*>("cmdShopGenerator")->setFocus();         // the shop's fields come next
        generator_->exec();
    };
    platform.FocusItemName = [this] { itemEditor_->FocusName(); };
    platform.FocusItemUnit = [this] { itemEditor_->FocusUnit(); };
}

// The controls show the session's state, so they go before it.
MainWindow::~MainWindow() {
    session_.mirror = Mirror();
    delete generator_;
    delete controls_;
}

// The one that is seen first is decoded while the data are read and the controls built.
void MainWindow::BuildBackgrounds() {
    const auto background = [this](const char* name) {
        auto* picture = Named(new Picture(this), name);
        picture->hide();
        LoadPicture(*picture, session_.platform.disk);
        return picture;
    };
    itemBackground_ = background("imgTempItemEditor");
    shopBackground_ = background("imgTempShopEditor");
    itemBackground_->Prepare(size());
}

void MainWindow::BuildControls() {
    controls_ = new QWidget(this);
    controls_->resize(size());
    browser_ = Place(Named(new HtmlView(controls_), "Browser"), 120, 600, 2775, 4815);
    browser_->hide();
    itemEditor_ = new ItemEditorPane(controls_, session_);
    new ShopEditorPane(controls_, session_);
    generator_ = new GeneratorDialog(this, session_);
    BuildModes();
}

void MainWindow::BuildModes() {
    auto& state = session_.state;
    BuildButton(session_, controls_, "cmdItemEditor", 0, 0, "ItemEditor", "I", [&state] {
        ShowItemEditor(state);
    })->setShortcut(Qt::Key_F2);
    BuildButton(session_, controls_, "cmdShopEditor", 360, 0, "ShopEditor", "S", [&state] {
        ShowShopEditor(state);
    })->setShortcut(Qt::Key_F3);
    BuildButton(session_, controls_, "cmdHelp", 9120, 0, "Hilfe", "?", [this] {
        OpenHelp(session_.platform);
    })->setShortcut(Qt::Key_F1);
}

void MainWindow::MirrorWindow() {
    setWindowTitle(ToQString(session_.state.caption));
    SetBusy(session_.state.print.busy);
    if (session_.state.mode != backgroundMode_)
        update();
}

// Disabled controls lose the focus, which has to be there again afterwards.
void MainWindow::SetBusy(bool busy) {
    if (busy != controls_->isEnabled())
        return;
    if (busy)
        focused_ = focusWidget();
    controls_->setEnabled(!busy);
    if (!busy && focused_)
        focused_->setFocus();
}

void MainWindow::paintEvent(QPaintEvent*) {
    if (!std::exchange(framed_, true) && frameGeometry() != geometry())
        QTimer::singleShot(0, this, [this] { move(CentredPlace(*this)); });
    const Mode mode = session_.state.mode;
    const QPixmap& background =
        (mode == Mode::ItemEditor ? itemBackground_ : shopBackground_)->FittedTo(size());
    QPainter painter(this);
    if (background.isNull())
        painter.fillRect(rect(), QColor(60, 45, 32));
    else
        painter.drawPixmap(0, 0, background);
    backgroundMode_ = mode;
}

void MainWindow::closeEvent(QCloseEvent* event) {
    closed_ = true;
    event->accept();
}

} // namespace emporium::ui
