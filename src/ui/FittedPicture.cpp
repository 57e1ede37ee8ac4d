#include "ui/FittedPicture.h"

#include <QBuffer>
#include <QImageReader>

#include <utility>

namespace emporium::ui {

namespace {

QImage Decode(QByteArray& bytes, QSize pixels) {
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize wanted = reader.size().scaled(pixels, Qt::KeepAspectRatioByExpanding);
    if (wanted.width() < reader.size().width() &&
        reader.supportsOption(QImageIOHandler::ScaledSize))
        reader.setScaledSize(wanted);
    QImage largest;
    constexpr int most = 16; // a film in an icon's place has thousands
    for (int i = 0; i < most && (i == 0 || reader.jumpToNextImage()); ++i) {
        const QImage image = reader.read();
        if (image.width() > largest.width())
            largest = image;
    }
    return largest;
}

QPixmap Fit(const QImage& image, QSize pixels) {
    QImage fitted = image.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    if (fitted.size() != pixels) // a copy takes memory of its own
        fitted =
            fitted.copy((fitted.width() - pixels.width()) / 2,
                        (fitted.height() - pixels.height()) / 2, pixels.width(), pixels.height());
    return QPixmap::fromImage(fitted);
}

} // namespace

void FittedPicture::SetSource(QByteArray bytes) {
    source_ = std::move(bytes);
    pixels_ = {};
}

const QPixmap& FittedPicture::For(const QWidget& widget, QSize place) {
    const qreal scale = widget.devicePixelRatioF();
    const QSize pixels = (QSizeF(place) * scale).toSize();
    if (pixels != pixels_) {
        const QImage image = Decode(source_, pixels);
        fitted_ = image.isNull() ? QPixmap() : Fit(image, pixels);
        fitted_.setDevicePixelRatio(scale);
        pixels_ = pixels;
    }
    return fitted_;
}

} // namespace emporium::ui
