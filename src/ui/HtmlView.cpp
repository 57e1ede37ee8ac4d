#include "ui/HtmlView.h"

#include <QPainter>
#include <QTimer>

#include <numeric>

namespace emporium::ui {

void HtmlView::Navigate(const std::string& bytes) {
    page_ = ReadPage(bytes);
    layout_ = {};
    QTimer::singleShot(0, this, &HtmlView::navigateComplete);
}

bool HtmlView::LayOutFor(QSizeF inches, const Progress& progress) {
    const QSizeF difference = inches * LayoutDpi - layout_.paper;
    if (PageCount() > 0 && qAbs(difference.width()) < 1 && qAbs(difference.height()) < 1)
        return true;
    const bool whole = LayOut(page_, inches * LayoutDpi, layout_, progress);
    if (!whole)
        layout_ = {};
    return whole;
}

bool HtmlView::PrintTo(QPagedPaintDevice& device, const Progress& progress,
                       std::vector<int> numbers) {
    const double dpi = device.logicalDpiX();
    if (!LayOutFor(QSizeF(device.width(), device.height()) / dpi, progress))
        return false;
    if (numbers.empty()) {
        numbers.resize(layout_.pages.size());
        std::iota(numbers.begin(), numbers.end(), 1);
    }
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    painter.scale(dpi / LayoutDpi, dpi / LayoutDpi);
    const int total = static_cast<int>(numbers.size());
    for (int done = 0; done < total; ++done) {
        if ((done > 0 && !device.newPage()) || (progress && !progress(done, total)))
            return false;
        DrawPage(painter, page_, layout_, numbers[static_cast<std::size_t>(done)] - 1);
    }
    return painter.end();
}

void HtmlView::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), Qt::white);
}

} // namespace emporium::ui
