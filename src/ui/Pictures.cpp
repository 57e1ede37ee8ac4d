#include "ui/Pictures.h"

#include "ui/Text.h"
#include "ui/Widgets.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>

namespace emporium::ui {

namespace {

struct Shown {
    const char* control;
    const char* file;
};

constexpr Shown ButtonPictures[] = {
    {"cmdItemEditor", "OrvanEmporium3Klein.bmp"},
    {"cmdKategorieNeu", "new.bmp"},
    {"cmdKategorieDelete", "delete.bmp"},
    {"cmdItemNeu", "new.bmp"},
    {"cmdItemDelete", "delete.bmp"},
    {"cmdItemSave", "save.bmp"},
    {"cmdListeDrucken", "Printfld.bmp"},
    {"cmdShopEditor", "shop.bmp"},
    {"cmdShopDrucken", "print.bmp"},
    {"cmdShopExport", "html.bmp"},
    {"cmdShopGenerator", "shop.bmp"},
    {"cmdShopDelete", "delete.bmp"},
    {"cmdShopAnzahl", "zahl.ico"},
    {"cmdHelp", "helpklein.bmp"},
};

constexpr Shown LargePictures[] = {
    {"imgItem", "shop.jpg"},
    {"imgTempItemEditor", "OrvanEmporium3ItemEditor.jpg"},
    {"imgTempShopEditor", "OrvanEmporium3ShopEditor.jpg"},
};

QByteArray BytesOf(const Disk& disk, const char* file) {
    return QByteArray::fromStdString(disk.files.read(disk.folders.GfxFolder / file).bytes);
}

} // namespace

void LoadPictures(const QWidget& window, const Disk& disk) {
    QHash<QByteArray, QImage> read;
    for (const Shown& shown : ButtonPictures) {
        auto known = read.find(shown.file);
        if (known == read.end())
            known = read.insert(shown.file, Decode(BytesOf(disk, shown.file)));
        window.findChild<PictureButton*>(shown.control)->SetPicture(*known);
    }
    for (const Shown& shown : LargePictures)
        window.findChild<Picture*>(shown.control)->SetSource(BytesOf(disk, shown.file));
}

QImage Decode(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    QImage largest;
    do {
        const QImage image = reader.read();
        if (image.width() > largest.width())
            largest = image;
    } while (reader.jumpToNextImage());
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
