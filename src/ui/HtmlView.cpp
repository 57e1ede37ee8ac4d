#include "ui/HtmlView.h"

#include "base/FileLayer.h"
#include "ui/Text.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTextDocument>
#include <QTimer>

namespace emporium::ui {

namespace {

// Qt's rich text drops "</BR>" and lets a line end join a heading with what follows; a browser
// reads the first as a break and the second as nothing.
QString AsBrowserReads(const std::string& bytes) {
    QString page = ToQString(bytes);
    page.remove('\r').remove('\n');
    return page.replace("</BR>", "<br>");
}

bool FileWasPrinted(const QString& file, const QDateTime& since) {
    const QFileInfo info(file);
    return info.exists() && info.size() > 0 && info.lastModified() >= since;
}

} // namespace

HtmlView::HtmlView(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    document()->setDefaultFont(QFont({"Times New Roman", "Liberation Serif", "Serif"}, 12));
}

void HtmlView::Navigate(const std::filesystem::path& file) {
    const FileText text = SystemFiles().read(file);
    if (!text.IsWhole())
        return;
    setHtml(AsBrowserReads(text.bytes));
    QTimer::singleShot(0, this, &HtmlView::navigateComplete);
}

bool HtmlView::PrintTo(QPrinter& printer) {
    // File times may be coarser than the clock.
    const QDateTime start = QDateTime::currentDateTime().addSecs(-2);
    document()->print(&printer);
    const auto state = printer.printerState();
    if (state == QPrinter::Error || state == QPrinter::Aborted)
        return false;
    return printer.outputFileName().isEmpty() || FileWasPrinted(printer.outputFileName(), start);
}

QVariant HtmlView::loadResource(int, const QUrl&) {
    return {};
}

} // namespace emporium::ui
