#include "ui/ImageFiles.h"

#include <QBuffer>
#include <QImageReader>

namespace emporium::ui {

QImage Decode(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    QImage largest;
    constexpr int most = 16; // a film in an icon's place has thousands
    for (int i = 0; i < most && (i == 0 || reader.jumpToNextImage()); ++i) {
        const QImage image = reader.read();
        if (image.width() > largest.width())
            largest = image;
    }
    return largest;
}

QImage DecodeFor(const QByteArray& bytes, QSize pixels) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    const QSize wanted = reader.size().scaled(pixels, Qt::KeepAspectRatioByExpanding);
    if (wanted.width() < reader.size().width())
        reader.setScaledSize(wanted);
    return reader.read();
}

} // namespace emporium::ui
