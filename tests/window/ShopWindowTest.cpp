#include "window/WindowFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QPrintDialog>
#include <QPrinter>
#include <QTest>

#include <fstream>
#include <iterator>

namespace emporium::test {
namespace {

class ShopWindowTest : public WindowTest {
protected:
    void OpenShop() {
        Open();
        driver->Pick("cmbKategorien", "Werkzeug");
        driver->Click("cmdShopEditor");
    }

    void AddWares() {
        for (const int row : {0, 2}) {
            driver->ClickRow("lvGegenstände", row);
            driver->Click("cmdItemHin");
        }
    }

    QString Output(const char* name) const {
        return QString::fromStdString((program.root / name).string());
    }
};

TEST_F(ShopWindowTest, WaresArePricedByHandAndByLevel) {
    OpenShop();
    AddWares();
    driver->ClickRow("lvLaden", 1);
    EXPECT_EQ(driver->Find("lvLaden")->toolTip(), "Zange");
    Enter("Bitte gebt eine Zahl an, wie oft der Gegenstand im Shop vorhanden sein soll.", "3");
    driver->Click("cmdShopAnzahl");
    EXPECT_EQ(driver->Cell("lvLaden", 1, 0), "Zange (x3)");
    Enter("Bitte gebt den neuen Preis ein.", "1,5");
    driver->DoubleClickRow("lvLaden", 1);
    EXPECT_EQ(driver->Cell("lvLaden", 1, 1), "1,5S");
    driver->Pick("cmbShopPreise", "Sehr billig");
    EXPECT_EQ(driver->Cell("lvLaden", 1, 1), "10,5S");
    // The same entry once more is a choice too: it prices what was added since.
    driver->ClickRow("lvGegenstände", 1);
    driver->Click("cmdItemHin");
    EXPECT_EQ(driver->Cell("lvLaden", 1, 1), "3P");
    driver->Pick("cmbShopPreise", "Sehr billig");
    EXPECT_EQ(driver->Cell("lvLaden", 1, 1), "2,1P");
}

TEST_F(ShopWindowTest, DeleteWorksInTheListOnly) {
    OpenShop();
    AddWares();
    const auto* list = driver->Find<ui::ListTable>("lvLaden");
    driver->ClickRow("lvLaden", 0);
    QTest::keyClick(driver->Find("cmbShopPreise"), Qt::Key_Delete);
    EXPECT_EQ(list->model()->rowCount(), 2);
    QTest::keyClick(driver->Find("lvLaden"), Qt::Key_Delete);
    EXPECT_EQ(driver->Cell("lvLaden", 0, 0), "Zange");
    EXPECT_EQ(list->currentIndex().row(), 0);
    QTest::keyClick(driver->Find("lvLaden"), Qt::Key_Delete);
    EXPECT_FALSE(driver->Find("cmbShopPreise")->isEnabled());
}

TEST_F(ShopWindowTest, NothingIsRemovedThatWasNotPicked) {
    OpenShop();
    AddWares();
    auto* list = driver->Find<ui::ListTable>("lvLaden");
    list->setFocus(Qt::TabFocusReason);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(list->model()->rowCount(), 2);
    const QRect second = list->visualRect(list->model()->index(1, 0));
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, second.center());
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(driver->Cell("lvLaden", 0, 0), "Ahle");
    EXPECT_EQ(list->model()->rowCount(), 1);
}

TEST_F(ShopWindowTest, TheGeneratorFillsTheShopAndHandsItsChoicesOver) {
    OpenShop();
    AddWares();
    const QString question =
        "Ihr arbeitet momentan an einem Shop, beim Start des Generators werden "
        "sämtliche Werte verworfen ! Wollt ihr den Generator wirklich starten ?";
    Answer(question, "Ja");
    driver->Expect([](QWidget& dialog) {
        WindowDriver::Find(&dialog, "cmbShopQualität")->setFocus();
        dialog.close();
    });
    driver->Click("cmdShopGenerator");
    QTest::qWait(50);
    driver->Expect([this](QWidget& dialog) {
        const auto pick = [&dialog](const char* name, const QString& entry) {
            WindowDriver::Pick(WindowDriver::Find<QComboBox>(&dialog, name), entry);
        };
        EXPECT_EQ(driver->Find<ui::ListTable>("lvLaden")->model()->rowCount(), 0);
        EXPECT_EQ(dialog.focusWidget(), WindowDriver::Find(&dialog, "cmbShopBeruf"));
        pick("cmbShopBeruf", "Schmied");
        pick("cmbShopPreise", "Teuer");
        auto* start = WindowDriver::Find(&dialog, "cmdStart");
        EXPECT_FALSE(start->isEnabled());
        pick("cmbShopQualität", "5 - Spezialist");
        EXPECT_TRUE(start->isEnabled());
        WindowDriver::Click(start);
    });
    driver->Click("cmdShopGenerator");
    EXPECT_EQ(driver->Find<ui::ListTable>("lvLaden")->model()->rowCount(), 3);
    EXPECT_EQ(driver->Cell("lvLaden", 2, 1), "18S");
    EXPECT_EQ(driver->Find<QLineEdit>("txtShopart")->text(), "Schmied");
    EXPECT_EQ(driver->Find<QComboBox>("cmbShopQualität")->currentText(), "Spezialist");
    EXPECT_EQ(driver->Find<QComboBox>("cmbShopPreise")->currentText(), "Teuer");
}

TEST_F(ShopWindowTest, AnOwnerIsDrawnForARace) {
    OpenShop();
    EXPECT_FALSE(driver->Find("cmdGenName")->isEnabled());
    driver->Pick("cmbRasse", "Gareth");
    driver->Click("cmdGenName");
    EXPECT_EQ(driver->Find<QLineEdit>("txtBesitzerName")->text(), "Ada Mek");
    driver->Pick("cmbRasse", "Elfen");
    Dismiss("Es konnte kein Name gezogen werden");
    driver->Click("cmdGenName");
    EXPECT_EQ(driver->Find<QLineEdit>("txtBesitzerName")->text(), "Ada Mek");
}

TEST_F(ShopWindowTest, AnExportThatFailsLeavesTheFile) {
    OpenShop();
    std::filesystem::create_directory(program.root / "ordner.html");
    const QString target = Output("ordner.html/drin/shop.html");
    driver->Expect([target](QWidget& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
        name->setText(target);
        dynamic_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    Dismiss("Der Shop konnte nicht gespeichert werden.");
    driver->Click("cmdShopExport");
}

class PrintTest : public ShopWindowTest {
protected:
    void SetUp() override {
        if (QApplication::platformName() == "windows")
            GTEST_SKIP() << "the print dialog is the system's own, which only its user can answer";
    }

    // The dialog comes first; `fault` begins the box that follows it, if there is one. Prints one
    // page, or all for 0.
    void PrintTo(const QString& file, const QString& fault = {}, int page = 0) {
        driver->Expect([file, page](QWidget& widget) {
            auto& dialog = dynamic_cast<QPrintDialog&>(widget);
            dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
            dialog.printer()->setOutputFileName(file);
            dialog.printer()->setFromTo(page, page);
            dialog.done(QDialog::Accepted);
        });
        if (!fault.isEmpty())
            Dismiss(fault);
        driver->Click("cmdShopDrucken");
    }

    std::string Pdf(const char* name) const {
        std::ifstream in(program.root / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
};

TEST_F(PrintTest, OnePageCanBePrintedAloneAndTheKeyboardStaysWhereItWas) {
    OpenShop();
    QApplication::clipboard()->setText(QString("Laden ").repeated(1000));
    driver->Find<QLineEdit>("txtName")->paste();
    const auto pages = [this](int page) {
        PrintTo(Output("shop.pdf"), {}, page);
        EXPECT_EQ(window->focusWidget(), driver->Find("cmdShopDrucken"));
        const std::string pdf = Pdf("shop.pdf");
        const QByteArray bytes(pdf.data(), static_cast<qsizetype>(pdf.size()));
        return bytes.count("/Parent ");
    };
    EXPECT_GE(pages(0), 3);
    EXPECT_EQ(pages(2), 1);
}

// Names are written as they are; what looks like HTML must not reach for files or the network.
TEST_F(PrintTest, APrintIsTextAndLoadsNothing) {
    OpenShop();
    AddWares();
    ASSERT_TRUE(QImage(1234, 9, QImage::Format_RGB32).save(Output("bild.png")));
    QApplication::clipboard()->setText("<img src='file://" + Output("bild.png") + "'>" +
                                       QString("<b>").repeated(50'000) + QString(1'000'000, 'x'));
    driver->Find<QLineEdit>("txtName")->paste();
    PrintTo(Output("shop.pdf"));
    const std::string pdf = Pdf("shop.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF"));
    EXPECT_NE(pdf.find("/ToUnicode"), pdf.npos) << "no text that can be selected";
    EXPECT_EQ(pdf.find("/Width 1234"), pdf.npos) << "the picture was loaded";
    EXPECT_FALSE(driver->Find("Browser")->isVisible());
    EXPECT_TRUE(driver->Find("cmdShopDrucken")->isEnabled());
}

TEST_F(PrintTest, AFailingPrinterIsToldAndPrintingAgainWorks) {
    OpenShop();
    PrintTo(Output("kein/ordner/shop.pdf"), "Die PDF-Datei konnte nicht geschrieben werden.");
    PrintTo(Output("shop.pdf"));
    EXPECT_TRUE(std::filesystem::exists(program.root / "shop.pdf"));
}

TEST_F(PrintTest, ClosingTheWindowDuringThePrintEndsIt) {
    OpenShop();
    QTimer::singleShot(0, &*window, [this] { window->close(); });
    driver->Click("cmdShopDrucken");
    EXPECT_FALSE(window->isVisible());
}

} // namespace
} // namespace emporium::test
