#include "window/WindowFixture.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QTest>

namespace emporium::test {
namespace {

// The named controls in the parent, in the order of the Tab key: left, top, width and height.
QStringList Places(const QWidget& parent) {
    QStringList places;
    QWidget* control = parent.window();
    while ((control = control->nextInFocusChain()) != parent.window()) {
        QString name = control->objectName();
        if (!parent.isAncestorOf(control) || name.isEmpty() || name.startsWith("qt_") ||
            control->inherits("QToolButton"))
            continue;
        const QRect at = control->geometry();
        name += QString(" %1 %2 %3 %4").arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height());
        places += name;
        if (control->focusPolicy() & Qt::TabFocus && !control->focusProxy()) {
            const auto* reader = QAccessible::queryAccessibleInterface(control);
            const QString said = reader->text(QAccessible::Name);
            EXPECT_TRUE(said.size() > 1 && said[0].isLetter()) << qPrintable(name);
        }
    }
    return places;
}

TEST_F(WindowTest, EveryControlHasItsPlaceInTheOrderOfTheTabKey) {
    QImage wide(120, 40, QImage::Format_RGB32);
    wide.fill(Qt::green);
    QPainter(&wide).fillRect(38, 0, 44, 40, Qt::red);
    const QString gfx = QString::fromStdString((program.root / "GFX/").string());
    EXPECT_TRUE(wide.save(gfx + "new.bmp"));
    EXPECT_TRUE(wide.transformed(QTransform().rotate(90)).save(gfx + "shop.bmp"));
    Open();
    for (const auto* button : {"cmdKategorieNeu", "cmdShopEditor"})
        for (const int place : {4, 12, 20})
            EXPECT_EQ(Find(button)->grab().toImage().pixelColor(place, place), Qt::red) << button;
    EXPECT_EQ(window->windowTitle(), "Orvan-Emporium 3 v1.00 - Die Velmar Tuchhalle");
    const QString prescribed = QString(R"(
Browser 8 40 185 321; frmGegenstände 0 32 209 393; Frame5 8 24 193 73;
cmbKategorien 8 16 177 21; cmdKategorieNeu 8 40 25 25; cmdKategorieDelete 32 40 25 25;
cmdListeDrucken 56 40 25 25; lvGegenstände 8 112 193 241; cmdItemNeu 8 360 25 25;
cmdItemDelete 32 360 25 25; cmdItemSave 56 360 25 25; cmdItemHin 216 144 33 241;
ItemTab 216 24 417 417; Frame1 7 8 397 41; txtItem0 8 14 381 21; Frame6 7 54 397 41;
cmbItemKategorien 8 14 381 21; Frame7 7 100 120 41; txtItem1 8 14 104 21;
Frame8 134 100 270 41; txtItem2 8 14 104 21; cmbItemPreis 120 14 142 21;
Frame9 7 146 397 41; cmbItemWert 8 14 381 21; Frame2 7 192 397 41; txtItem3 8 14 381 21;
imgItem 7 242 397 142; Frame3 7 8 160 376; lstRegionen 8 18 144 283; cmdHin 174 90 63 25;
cmdZurück 174 120 63 25; cmdAlleHin 174 180 63 25; cmdAlleZurück 174 210 63 25;
Frame4 244 8 160 376; lstVerfügbar 8 18 144 348; lblRegionen 8 304 144 64;
frmShop0 256 32 209 393; lvLaden 8 24 193 329; cmdShopAnzahl 8 360 25 25;
cmdShopDelete 32 360 25 25; cmdShopDrucken 128 360 25 25; cmdShopExport 152 360 25 25;
cmdShopGenerator 176 360 25 25; frmShop1 472 24 161 41; txtName 8 16 145 21;
frmShop2 472 88 161 41; txtShopart 8 16 145 21; frmShop3 472 152 161 73;
txtBesitzerName 8 16 119 21; cmdGenName 131 16 22 22; cmbRasse 8 44 145 21;
frmShop4 472 240 161 57; cmbShopRegion 8 22 145 21; frmShop5 472 320 161 41;
cmbShopPreise 8 16 145 21; frmShop6 472 384 161 41; cmbShopQualität 8 16 145 21;
cmdItemEditor 0 0 25 25; cmdShopEditor 24 0 25 25; cmdHelp 608 0 25 25;
Frame1 8 8 265 41; cmbShopBeruf 8 16 249 21; Frame3 8 64 265 41; cmbShopPreise 8 16 249 21;
Frame2 8 120 265 41; cmbShopQualität 8 16 249 21; Frame4 8 176 265 105;
chkShopRegion 8 16 249 17; cmbShopRegion 8 40 249 21; lblRegionen 8 64 249 33;
cmdStart 0 296 281 33)")
                                   .simplified()
                                   .replace("; ", "\n");
    EXPECT_EQ(Find("ItemTab")->parentWidget()->geometry(), QRect(0, 0, 632, 453));
    const auto places =
        Places(*Find("ItemTab")->parentWidget()) + Places(*Find("frmEmporiumGenerator"));
    EXPECT_EQ(places.join("\n").toStdString(), prescribed.toStdString());
}

// How wide the text of a control is, and how wide its place for it.
void ExpectFits(const QWidget& widget, const QString& text, int room) {
    EXPECT_LE(widget.fontMetrics().horizontalAdvance(text), room)
        << qPrintable(widget.objectName()) << ": " << qPrintable(text);
}

TEST_F(WindowTest, NoCaptionOrEntryIsCutOff) {
    Open();
    for (const auto* frame : window->findChildren<ui::CaptionFrame*>())
        ExpectFits(*frame, frame->accessibleName(), frame->width() - 16);
    for (const auto* list : window->findChildren<QComboBox*>())
        for (int i = 0; i < list->count(); ++i)
            ExpectFits(*list, list->itemText(i), list->width() - 28); // the arrow
    for (const auto* button : window->findChildren<QPushButton*>())
        ExpectFits(*button, button->text(), button->width() - 4);
    for (const auto* box : window->findChildren<QCheckBox*>())
        EXPECT_LE(box->sizeHint().width(), box->width());
    for (const auto* list : window->findChildren<ui::ListTable*>()) {
        const QHeaderView* header = list->header();
        for (int i = 0; i < header->count(); ++i)
            ExpectFits(*header, list->model()->headerData(i, Qt::Horizontal).toString(),
                       header->sectionSize(i) - 8);
        ExpectFits(*list, "9999D", header->sectionSize(1) - 6);
        EXPECT_LE(header->length(), list->viewport()->width());
    }
    for (const auto* label : window->findChildren<QLabel*>())
        EXPECT_TRUE(!label->wordWrap() || label->heightForWidth(label->width()) <= label->height());
}

} // namespace
} // namespace emporium::test
