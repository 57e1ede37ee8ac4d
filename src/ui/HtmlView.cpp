#include "ui/HtmlView.h"

#include "ui/Text.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <vector>

namespace emporium::ui {

namespace {

// Text and pictures are measured at this resolution, on the screen and, scaled, on paper.
constexpr double LayoutDpi = 96;
constexpr double PointsPerInch = 72;
constexpr double MarginInches = 2 / 2.54;
constexpr int NumberPixels = 14;

// Qt's rich text drops "</BR>" and lets a line end join a heading with what follows; a browser
// reads the first as a break and the second as nothing.
QString AsBrowserReads(const std::string& bytes) {
    QString page = ToQString(bytes);
    page.remove('\r').remove('\n');
    return page.replace("</BR>", "<br>");
}

// A document that fetches nothing that its text names. It is laid out for paper at once: a second
// layout for the screen would take as long as the print.
class PageDocument : public QTextDocument {
public:
    explicit PageDocument(QObject* parent) : QTextDocument(parent) {
        setUndoRedoEnabled(false);
        setUseDesignMetrics(true);
        setDefaultFont(QFont({"Times New Roman", "Liberation Serif", "Serif"}, 12));
        setDocumentMargin(MarginInches * LayoutDpi);
        setPageSize(QPageSize(QPageSize::A4).size(QPageSize::Point) * LayoutDpi / PointsPerInch);
    }

protected:
    // An empty answer would have the address opened as a path.
    QVariant loadResource(int, const QUrl&) override { return QImage(1, 1, QImage::Format_Mono); }
};

// Lays the page out anew if the printer's paper is another than A4.
void FitToPaper(QTextDocument& page, const QPrinter& printer) {
    const QSizeF paper =
        QSizeF(printer.width(), printer.height()) * LayoutDpi / printer.logicalDpiX();
    const QSizeF difference = paper - page.pageSize();
    if (std::abs(difference.width()) >= 1 || std::abs(difference.height()) >= 1)
        page.setPageSize(paper);
}

void DrawPage(QPainter& painter, const QTextDocument& document, int number) {
    const QSizeF size = document.pageSize();
    const QRectF page(0, (number - 1) * size.height(), size.width(), size.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = page;
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.save();
    painter.translate(0, -page.top());
    painter.setClipRect(page);
    document.documentLayout()->draw(&painter, context);
    QFont font = document.defaultFont();
    font.setPixelSize(NumberPixels); // points would be scaled twice
    painter.setFont(font);
    const double margin = document.documentMargin();
    painter.drawText(page.adjusted(margin, 0, -margin, -margin / 2),
                     Qt::AlignRight | Qt::AlignBottom, QString::number(number));
    painter.restore();
}

// The numbers of the pages that were asked for in the dialog, in the order of printing.
std::vector<int> PagesToPrint(const QPrinter& printer, int count) {
    const int last = printer.toPage() > 0 ? std::min(printer.toPage(), count) : count;
    std::vector<int> pages;
    for (int number = std::clamp(printer.fromPage(), 1, last); number <= last; ++number)
        pages.push_back(number);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(pages.begin(), pages.end());
    return pages;
}

} // namespace

HtmlView::HtmlView(QWidget* parent) : QWidget(parent), page_(new PageDocument(this)) {}

void HtmlView::Navigate(const std::string& bytes) {
    page_->setHtml(AsBrowserReads(bytes));
    update();
    QTimer::singleShot(0, this, &HtmlView::navigateComplete);
}

bool HtmlView::PrintTo(QPrinter& printer) {
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const double scale = printer.logicalDpiX() / LayoutDpi;
    painter.scale(scale, scale);
    FitToPaper(*page_, printer);
    const auto numbers = PagesToPrint(printer, page_->pageCount());
    for (const int number : numbers) {
        DrawPage(painter, *page_, number);
        if (number != numbers.back() && !printer.newPage())
            return false;
    }
    const auto state = printer.printerState();
    return painter.end() && state != QPrinter::Error && state != QPrinter::Aborted;
}

void HtmlView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    page_->drawContents(&painter, rect());
}

} // namespace emporium::ui
