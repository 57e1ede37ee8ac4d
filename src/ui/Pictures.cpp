#include "ui/Pictures.h"

#include "ui/Text.h"

#include <QGuiApplication>
#include <QImageReader>

namespace emporium::ui {

QImage LoadPicture(const std::filesystem::path& file) {
    QImageReader reader(PathText(file));
    QImage largest;
    do {
        const QImage image = reader.read();
        if (image.width() > largest.width())
            largest = image;
    } while (reader.jumpToNextImage());
    return largest;
}

QImage LoadPictureFor(const std::filesystem::path& file, QSize place) {
    QImageReader reader(PathText(file));
    const QSize pixels = (QSizeF(place) * qGuiApp->devicePixelRatio()).toSize();
    const QSize wanted = reader.size().scaled(pixels, Qt::KeepAspectRatioByExpanding);
    if (wanted.width() < reader.size().width())
        reader.setScaledSize(wanted);
    return reader.read();
}

} // namespace emporium::ui
