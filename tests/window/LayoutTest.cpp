#include "window/WindowFixture.h"

#include <QHeaderView>
#include <QLabel>
#include <QTest>

namespace emporium::test {
namespace {

struct Place {
    const char* name;
    QRect twips; // in the parent
};

const Place Places[] = {
    {"cmdItemEditor", {0, 0, 375, 375}},
    {"cmdShopEditor", {360, 0, 375, 375}},
    {"cmdHelp", {9120, 0, 375, 375}},
    {"frmGegenstände", {0, 480, 3135, 5895}},
    {"Frame5", {120, 360, 2895, 1095}},
    {"cmdKategorieNeu", {120, 600, 375, 375}},
    {"cmdKategorieDelete", {480, 600, 375, 375}},
    {"cmdListeDrucken", {840, 600, 375, 375}},
    {"lvGegenstände", {120, 1680, 2895, 3615}},
    {"cmdItemNeu", {120, 5400, 375, 375}},
    {"cmdItemDelete", {480, 5400, 375, 375}},
    {"cmdItemSave", {840, 5400, 375, 375}},
    {"ItemTab", {3240, 360, 6255, 6255}},
    {"cmdItemHin", {3240, 2160, 495, 3615}},
    {"frmShop0", {3840, 480, 3135, 5895}},
    {"lvLaden", {120, 360, 2895, 4935}},
    {"cmdShopAnzahl", {120, 5400, 375, 375}},
    {"cmdShopDelete", {480, 5400, 375, 375}},
    {"cmdShopDrucken", {1920, 5400, 375, 375}},
    {"cmdShopExport", {2280, 5400, 375, 375}},
    {"cmdShopGenerator", {2640, 5400, 375, 375}},
    {"frmShop1", {7080, 360, 2415, 615}},
    {"frmShop2", {7080, 1320, 2415, 615}},
    {"frmShop3", {7080, 2280, 2415, 1095}},
    {"frmShop4", {7080, 3600, 2415, 855}},
    {"frmShop5", {7080, 4800, 2415, 615}},
    {"frmShop6", {7080, 5760, 2415, 615}},
    {"Browser", {120, 600, 2775, 4815}},
};

TEST_F(WindowTest, EveryControlStandsInItsPlace) {
    Open();
    EXPECT_EQ(window->size(), QSize(632, 453));
    EXPECT_EQ(window->windowTitle(), "Orvan-Emporium 3 v1.00 - Die Velmar Tuchhalle");
    for (const Place& place : Places) {
        const auto* widget = driver->Find(place.name);
        ASSERT_TRUE(widget) << place.name;
        const QRect& t = place.twips;
        EXPECT_EQ(widget->geometry(),
                  QRect(t.x() / 15, t.y() / 15, t.width() / 15, t.height() / 15))
            << place.name;
    }
    for (const char* name : {"Frame1",
                             "Frame2",
                             "Frame3",
                             "Frame4",
                             "Frame6",
                             "Frame7",
                             "Frame8",
                             "Frame9",
                             "txtItem0",
                             "txtItem1",
                             "txtItem2",
                             "txtItem3",
                             "cmbKategorien",
                             "cmbItemKategorien",
                             "cmbItemPreis",
                             "cmbItemWert",
                             "imgItem",
                             "lstRegionen",
                             "lstVerfügbar",
                             "lblRegionen",
                             "cmdHin",
                             "cmdZurück",
                             "cmdAlleHin",
                             "cmdAlleZurück",
                             "txtName",
                             "txtShopart",
                             "txtBesitzerName",
                             "cmdGenName",
                             "cmbRasse",
                             "cmbShopRegion",
                             "cmbShopPreise",
                             "cmbShopQualität",
                             "imgTempItemEditor",
                             "imgTempShopEditor",
                             "frmEmporiumGenerator",
                             "cmbShopBeruf",
                             "chkShopRegion",
                             "cmdStart"})
        EXPECT_TRUE(driver->Find(name)) << name;
}

// How wide the text of a control is, and how wide its place for it.
void ExpectFits(const QWidget& widget, const QString& text, int room) {
    EXPECT_LE(widget.fontMetrics().horizontalAdvance(text), room)
        << qPrintable(widget.objectName()) << ": " << qPrintable(text);
}

TEST_F(WindowTest, NoCaptionOrEntryIsCutOff) {
    Open();
    constexpr int arrowAndMargins = 28;
    for (const auto* frame : window->findChildren<ui::CaptionFrame*>())
        EXPECT_TRUE(frame->CaptionFits()) << qPrintable(frame->objectName());
    for (const auto* list : window->findChildren<QComboBox*>())
        for (int i = 0; i < list->count(); ++i)
            ExpectFits(*list, list->itemText(i), list->width() - arrowAndMargins);
    for (const auto* button : window->findChildren<QPushButton*>())
        ExpectFits(*button, button->text(), button->width() - 4);
    for (const auto* box : window->findChildren<QCheckBox*>())
        EXPECT_LE(box->sizeHint().width(), box->width());
    for (const auto* list : window->findChildren<ui::ListTable*>()) {
        const QHeaderView* header = list->header();
        for (int i = 0; i < header->count(); ++i)
            ExpectFits(*header, list->model()->headerData(i, Qt::Horizontal).toString(),
                       header->sectionSize(i) - 8);
        EXPECT_LE(header->length(), list->viewport()->width());
        ExpectFits(*list, "9999D", header->sectionSize(1) - 6);
    }
    for (const auto* label : window->findChildren<QLabel*>()) {
        if (label->wordWrap()) {
            EXPECT_LE(label->heightForWidth(label->width()), label->height());
        }
    }
}

TEST_F(WindowTest, PictureButtonsSayWhatTheyDo) {
    Open();
    for (const auto* button : window->findChildren<ui::PictureButton*>()) {
        EXPECT_FALSE(button->toolTip().isEmpty()) << qPrintable(button->objectName());
        EXPECT_EQ(button->accessibleName(), button->toolTip());
        EXPECT_FALSE(button->text().isEmpty()) << "nothing to see without a picture";
    }
}

TEST_F(WindowTest, TheModesShowTheirPartsOfTheWindow) {
    Open();
    const auto visible = [this](const char* name) { return driver->Find(name)->isVisible(); };
    EXPECT_TRUE(visible("ItemTab") && visible("frmGegenstände"));
    EXPECT_FALSE(visible("frmShop0") || visible("cmdItemHin") || visible("lvGegenstände"));
    driver->Click("cmdShopEditor");
    EXPECT_TRUE(visible("frmShop6") && visible("cmdItemHin") && visible("frmGegenstände"));
    EXPECT_FALSE(visible("ItemTab") || driver->Find("cmdItemHin")->isEnabled());
    driver->Click("cmdItemEditor");
    EXPECT_TRUE(visible("ItemTab"));
    EXPECT_FALSE(visible("cmdItemHin"));
}

TEST_F(WindowTest, TabGoesThroughTheFormInItsOrder) {
    Open();
    driver->Pick("cmbKategorien", "Werkzeug");
    driver->Find("txtItem0")->setFocus();
    for (const char* name :
         {"cmbItemKategorien", "txtItem1", "txtItem2", "cmbItemPreis", "cmbItemWert", "txtItem3"}) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window->focusWidget()->objectName(), name);
    }
}

} // namespace
} // namespace emporium::test
