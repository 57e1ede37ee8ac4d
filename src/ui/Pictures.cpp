#include "ui/Pictures.h"

#include <QHash>

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
    return QByteArray::fromStdString(
        disk.files.read(disk.folders.GfxFolder / file, LargestList).bytes);
}

} // namespace

void LoadButtonPictures(const QWidget& window, const Disk& disk) {
    QHash<QByteArray, QByteArray> read;
    for (const Shown& shown : ButtonPictures) {
        auto known = read.find(shown.file);
        if (known == read.end())
            known = read.insert(shown.file, BytesOf(disk, shown.file));
        window.findChild<PictureButton*>(shown.control)->SetPicture(*known);
    }
}

void LoadPicture(Picture& picture, const Disk& disk) {
    for (const Shown& shown : LargePictures)
        if (picture.objectName() == shown.control)
            picture.SetPicture(BytesOf(disk, shown.file));
}

} // namespace emporium::ui
