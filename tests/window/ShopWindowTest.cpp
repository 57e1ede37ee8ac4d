#include "ui/Printing.h"
#include "window/WindowFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QProgressDialog>
#include <QScrollBar>
#include <QTest>
#include <QThread>

namespace emporium::test {
namespace {

class ShopWindowTest : public WindowTest {
protected:
    // A shop with Ahle and Zange.
    void OpenShop() {
        Open();
        Pick("cmbKategorien", "Werkzeug");
        Click("cmdShopEditor");
        for (const int row : {0, 2}) {
            ClickRow("lvGegenstände", row);
            Click("cmdItemHin");
        }
    }

    QString Output(const char* name) const {
        return QString::fromStdString((program.root / name).string());
    }

    int Wares() const { return Find<ui::ListTable>("lvLaden")->model()->rowCount(); }
};

TEST_F(ShopWindowTest, ADoubleClickPricesAWareAndALevelCanBePickedAgain) {
    OpenShop();
    ClickRow("lvLaden", 1);
    Enter("Bitte gebt den neuen Preis ein.", "1,5");
    auto* list = Find<ui::ListTable>("lvLaden");
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                       list->visualRect(list->currentIndex()).center());
    EXPECT_EQ(Cell("lvLaden", 1, 1), "1,5S");
    Pick("cmbShopPreise", "Sehr billig");
    EXPECT_EQ(Cell("lvLaden", 1, 1), "10,5S");
    ClickRow("lvGegenstände", 1);
    Click("cmdItemHin");
    EXPECT_EQ(Cell("lvLaden", 1, 1), "3P");
    Pick("cmbShopPreise", "Sehr billig"); // for what was added since
    EXPECT_EQ(Cell("lvLaden", 1, 1), "2,1P");
}

TEST_F(ShopWindowTest, DeleteRemovesInTheListOnlyAndOnlyWhatWasPicked) {
    OpenShop();
    auto* list = Find<ui::ListTable>("lvLaden");
    list->setFocus(Qt::TabFocusReason);
    Answer("Bitte wählt zuerst eine Ware");
    QTest::keyClick(list, Qt::Key_Delete);
    const QRect second = list->visualRect(list->model()->index(1, 0));
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, second.center());
    QTest::keyClick(Find("cmbShopPreise"), Qt::Key_Delete);
    EXPECT_EQ(Wares(), 2);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(Cell("lvLaden", 0, 0), "Ahle");
    // No click takes the light from the row.
    const QRect first = list->visualRect(list->model()->index(0, 0));
    for (const QPoint place : {first.center(), first.center() + QPoint(0, 100)})
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, place);
    EXPECT_TRUE(list->selectionModel()->hasSelection());
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_FALSE(Find("cmbShopPreise")->isEnabled() || Find("cmdShopAnzahl")->isEnabled());
}

TEST_F(ShopWindowTest, MenusDoWhatTheyTellAndRecoverAsOftenAsSomethingWent) {
    OpenShop();
    auto* list = Find<ui::ListTable>("lvLaden");
    ClickRow("lvLaden", 1);
    Enter("Bitte gebt den neuen Preis ein.", "1,5");
    ChooseFromMenu("lvLaden", "Preis ändern …");
    Enter("Bitte gebt eine Zahl an, wie oft der Gegenstand im Shop vorhanden sein soll.", "3");
    Click("cmdShopAnzahl");
    ChooseFromMenu("lvLaden", "Aus dem Shop nehmen");
    auto* remove = Find("cmdShopDelete");
    remove->setFocus();
    QTest::keyClick(remove, Qt::Key_Return);
    EXPECT_EQ(Wares(), 0);
    EXPECT_EQ(window->focusWidget(), list) << "a further key must not open the print dialog";
    ChooseFromMenu("lvLaden", "Zurückholen: Ahle");
    ChooseFromMenu("lvLaden", "Zurückholen: Zange (x3)");
    QTest::keySequence(list, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "Ahle\t8H\nZange (x3)\t1,5S\n");
    ClickRow("lvGegenstände", 1);
    ChooseFromMenu("lvGegenstände", "In den Shop legen");
    EXPECT_EQ(Wares(), 3);
    list->resize(list->width(), list->header()->height() + 30); // one row
    list->verticalScrollBar()->setValue(1);
    QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {}, {10, 5});
    EXPECT_EQ(Cell("lvLaden", 0, 0), "Zange (x3)") << "turned round";
    EXPECT_EQ(list->verticalScrollBar()->value(), 1);
    Answer("Wollt ihr den gewählten Gegenstand wirklich löschen ?", "Ja");
    ChooseFromMenu("lvGegenstände", "Löschen …");
    ChooseFromMenu("lvGegenstände", "Liste kopieren");
    EXPECT_EQ(QApplication::clipboard()->text(), "Ahle\t8H\nZange\t15S\n");
}

TEST_F(ShopWindowTest, TheGeneratorFillsTheShopAndHandsItsChoicesOver) {
    OpenShop();
    Answer("Ihr arbeitet momentan an einem Shop,", "Ja");
    Expect([](QWidget& dialog) {
        Click(Find(&dialog, "chkShopRegion"));
        Pick(&dialog, "cmbShopRegion", "NO");
        EXPECT_EQ(Find<QLabel>(&dialog, "lblRegionen")->text(), "Hoher Norden");
        dialog.close();
    });
    Click("cmdShopGenerator");
    Expect([this](QWidget& dialog) {
        EXPECT_EQ(Wares(), 0);
        EXPECT_EQ(dialog.focusWidget(), Find(&dialog, "cmbShopBeruf"));
        EXPECT_FALSE(Find<QCheckBox>(&dialog, "chkShopRegion")->isChecked());
        Pick(&dialog, "cmbShopBeruf", "Schmied");
        Pick(&dialog, "cmbShopPreise", "Teuer");
        Pick(&dialog, "cmbShopQualität", "5 - Spezialist");
        Click(Find(&dialog, "cmdStart"));
    });
    Click("cmdShopGenerator");
    EXPECT_EQ(Wares(), 3);
    EXPECT_EQ(Cell("lvLaden", 2, 1), "18S");
    EXPECT_EQ(Find<QLineEdit>("txtShopart")->text(), "Schmied");
    EXPECT_EQ(Find<QComboBox>("cmbShopQualität")->currentText(), "Spezialist");
    EXPECT_EQ(Find<QComboBox>("cmbShopPreise")->currentText(), "Teuer");
}

TEST_F(ShopWindowTest, EveryFieldReachesTheExportThatIsLookedAt) {
    OpenShop();
    Type("txtName", QString(40, 'm'));
    QHelpEvent tip(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(Find("txtName"), &tip);
    EXPECT_EQ(Find("txtName")->toolTip(), FieldText("txtName")) << "what is cut is told whole";
    Type("txtName", "Esel");
    Type("txtShopart", "Kneipe");
    Pick("cmbRasse", "Gareth");
    Click("cmdGenName");
    Pick("cmbShopRegion", "NO");
    EXPECT_EQ(Find("cmbShopRegion")->toolTip(), "Hoher Norden");
    Pick("cmbShopPreise", "Teuer");
    Pick("cmbShopQualität", "Solide");
    SaveAs(Output("shop.html"));
    Answer("Der Shop wurde erfolgreich erstellt, wollt ihr euch diesen nun ansehen ?.", "Ja");
    Click("cmdShopExport");
    EXPECT_EQ(viewed, QUrl::fromLocalFile(Output("shop.html")));
    for (const char* text : {"Esel", "Kneipe", "Ada Mek", "NO", "Teuer", "Solide", "Zange"})
        EXPECT_NE(program.Read("../shop.html").find(text), std::string::npos) << text;
    Click("cmdHelp");
    EXPECT_EQ(viewed, QUrl::fromLocalFile(Output("Hilfe/Emporium.htm")));
}

class PrintTest : public ShopWindowTest {
protected:
    void SetUp() override {
        if (QApplication::platformName() == "windows")
            GTEST_SKIP() << "the print dialog is the system's own, which only its user can answer";
    }
};

TEST_F(PrintTest, APrintIsTextAndItsPagesComeAsChosen) {
    OpenShop();
    QApplication::clipboard()->setText(QString("<b>").repeated(50'000) + QString(1'000'000, 'x'));
    Find<QLineEdit>("txtName")->paste();
    const auto pages = [this](const std::function<void(QPrinter&)>& choose) {
        PrintTo(Output("shop.pdf"), choose);
        Click("cmdShopDrucken");
        EXPECT_FALSE(QApplication::overrideCursor()) << "the program seems to wait";
        EXPECT_EQ(window->focusWidget(), Find("cmdShopDrucken"));
        EXPECT_FALSE(Find("Browser")->isVisible());
        const auto pdf = QByteArray::fromStdString(program.Read("../shop.pdf"));
        EXPECT_TRUE(pdf.contains("/ToUnicode")) << "no text that can be selected";
        return pdf.count("/Parent ");
    };
    EXPECT_EQ(pages([](QPrinter& printer) { printer.setFromTo(2, 2); }), 1);
    EXPECT_GE(pages([](QPrinter& printer) { printer.setPageOrder(QPrinter::LastPageFirst); }), 3);
    const std::string pdf = program.Read("../shop.pdf");
    const auto fonts = [&pdf](std::size_t place) { return pdf.find(">>", place) - place; };
    EXPECT_GT(fonts(pdf.find("/Font <<")), fonts(pdf.rfind("/Font <<")))
        << "the wares have a font of their own";
}

TEST_F(PrintTest, APrintCanFailAndCanBeEndedByABoxAndByClosingTheWindow) {
    ui::HtmlView page(nullptr);
    page.Navigate(QByteArray("Zeile\r\n").repeated(100000).toStdString());
    QWidget desk;
    const auto wait = [&desk] {
        if (const auto* box = Find<QProgressDialog>(&desk, "PrintProgress")) {
            EXPECT_TRUE(box->labelText().contains(" von 100000 ") && box->maximum() == 100000);
            Press(*box, "Abbrechen");
        }
        QThread::msleep(1000);
        return true;
    };
    EXPECT_TRUE(ui::PrintPage({desk, SystemFiles(), {}, wait}, page)) << "it did not fail";
    EXPECT_FALSE(QApplication::overrideCursor());
    OpenShop();
    PrintTo(Output("kein/ordner/shop.pdf"));
    Answer("Die PDF-Datei konnte nicht geschrieben werden.");
    Click("cmdShopDrucken");
    PrintTo("", [this](QPrinter&) { // to a printer that isn't there
        look = [this](QWidget&) { EXPECT_TRUE(Find("cmdHelp")->isEnabled()) << "still printing"; };
    });
    Answer("Es wurde nichts oder nicht alles gedruckt.");
    Click("cmdShopDrucken");
    QTimer::singleShot(0, &*window, [this] { EXPECT_FALSE(Find("cmdHelp")->isEnabled()); });
    QTimer::singleShot(0, &*window, [this] { window->close(); });
    Click("cmdListeDrucken");
    EXPECT_FALSE(window->isVisible());
}

} // namespace
} // namespace emporium::test
