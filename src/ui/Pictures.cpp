#include "ui/Pictures.h"

#include "ui/Text.h"

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

} // namespace emporium::ui
