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

QImage Fit(const QImage& image, QSize pixels) {
    if (image.isNull())
        return image;
    QImage fitted = image.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    if (fitted.size() == pixels) // a copy takes memory of its own
        return fitted;
    return fitted.copy((fitted.width() - pixels.width()) / 2,
                       (fitted.height() - pixels.height()) / 2, pixels.width(), pixels.height());
}

QSize PixelsOf(const QWidget& widget, QSize place) {
    return (QSizeF(place) * widget.devicePixelRatioF()).toSize();
}

} // namespace

void FittedPicture::SetSource(QByteArray bytes) {
    source_ = std::move(bytes);
    pixels_ = {};
}

void FittedPicture::Prepare(const QWidget& widget, QSize place) {
    Begin(PixelsOf(widget, place), std::launch::async);
}

const QPixmap& FittedPicture::For(const QWidget& widget, QSize place) {
    Begin(PixelsOf(widget, place), std::launch::deferred);
    if (decoding_.valid()) {
        fitted_ = QPixmap::fromImage(decoding_.get());
        fitted_.setDevicePixelRatio(widget.devicePixelRatioF());
    }
    return fitted_;
}

void FittedPicture::Begin(QSize pixels, std::launch how) {
    if (pixels == pixels_)
        return;
    pixels_ = pixels;
    decoding_ = std::async(
        how, [source = source_, pixels]() mutable { return Fit(Decode(source, pixels), pixels); });
}

} // namespace emporium::ui
