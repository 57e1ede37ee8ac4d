#include "window/WindowFixture.h"

#include <QHeaderView>
#include <QLabel>
#include <QTest>

namespace emporium::test {
namespace {

// Neighbours may share an edge of one pixel.
void ExpectApart(const QWidget& parent) {
    const auto children = parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : children) {
        if (!child->isVisible() || child->isWindow())
            continue;
        const QString name = parent.objectName() + ": " + child->objectName();
        EXPECT_TRUE(parent.rect().adjusted(0, 0, 1, 1).contains(child->geometry()))
            << qPrintable(name);
        for (const QWidget* other : children) {
            const QRect common = child->geometry() & other->geometry();
            EXPECT_TRUE(other == child || !other->isVisible() || other->isWindow() ||
                        common.width() <= 1 || common.height() <= 1)
                << qPrintable(name + " covers " + other->objectName());
        }
        if (child->objectName().startsWith("frm", Qt::CaseInsensitive) ||
            child->objectName().startsWith("Frame"))
            ExpectApart(*child);
    }
}

TEST_F(WindowTest, NoControlCoversAnother) {
    Open();
    EXPECT_EQ(window->size(), QSize(632, 453));
    EXPECT_EQ(window->windowTitle(), "Orvan-Emporium 3 v1.00 - Die Velmar Tuchhalle");
    auto* controls = driver->Find("ItemTab")->parentWidget();
    ExpectApart(*controls);
    auto* tab = driver->Find<QTabWidget>("ItemTab");
    for (int page = 0; page < tab->count(); ++page) {
        tab->setCurrentIndex(page);
        ExpectApart(*tab->widget(page));
    }
    driver->Click("cmdShopEditor");
    ExpectApart(*controls);
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
        ExpectFits(*frame, frame->accessibleName(), frame->width() - 16);
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
