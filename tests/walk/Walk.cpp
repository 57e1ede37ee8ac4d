// Carries the main job through in the real window, as a game master would: composes a shop by dice,
// draws the owner's name, adjusts quantities and prices, exports and prints. Leaves the exported
// shop, the printed pages and pictures of the windows in a folder.
//
//   walk PROGRAM_FOLDER OUTPUT_FOLDER

#include "ui/HtmlView.h"
#include "ui/Text.h"
#include "window/WindowFixture.h"

#include <QApplication>
#include <QDir>
#include <QTest>

namespace emporium::test {
namespace {

class Walk : public WindowTest {
protected:
    QStringList folders = QApplication::arguments().mid(1);

    QString Output(const QString& name) const {
        return QFileInfo(folders.value(1) + '/' + name).absoluteFilePath();
    }

    void Picture(QWidget& widget, const QString& name) const {
        QTest::qWait(150); // until what has changed is painted
        widget.grab().save(Output(name));
    }

    void Compose() {
        Expect([this](QWidget& dialog) {
            Pick(&dialog, "cmbShopBeruf", "Gemischtwarenhändler");
            Pick(&dialog, "cmbShopPreise", "Teuer");
            Pick(&dialog, "cmbShopQualität", "2 - Einfach");
            Click(Find(&dialog, "chkShopRegion"));
            Pick(&dialog, "cmbShopRegion", "WE");
            Picture(dialog, "shopgenerator.png");
            Click(Find(&dialog, "cmdStart"));
        });
        Click("cmdShopGenerator");
        Type("txtName", "Zum vollen Korb");
        Pick("cmbRasse", "Gareth");
        Click("cmdGenName");
    }

    void Adjust() {
        ClickRow("lvLaden", 2);
        Enter("Bitte gebt eine Zahl an, wie oft der Gegenstand im Shop vorhanden sein soll.", "3");
        Click("cmdShopAnzahl");
        ClickRow("lvLaden", 4);
        Enter("Bitte gebt den neuen Preis ein.", "7,5");
        ChooseFromMenu("lvLaden", "Preis ändern …");
        Click("cmdItemHin"); // the tool chosen before
    }

    // Where the dialog is the system's own, which only its user can answer, the page is printed
    // past it; without a printer it does not open at all.
    void Print(const char* button, const QString& file) {
        QFile::remove(Output(file));
        if (QApplication::platformName() == "windows") {
            Expect([](QWidget& box) { Press(box, "OK"); });
            Click(button);
            QPrinter printer(QPrinter::HighResolution);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(Output(file));
            printer.setFullPage(true);
            Find<ui::HtmlView>("Browser")->PrintTo(printer);
        } else {
            PrintTo(Output(file));
            Click(button);
        }
        EXPECT_TRUE(QFile(Output(file)).size() > 0) << file.toStdString();
    }
};

TEST_F(Walk, FromTheDiceToThePrintedPage) {
    ASSERT_EQ(folders.size(), 2) << "usage: walk PROGRAM_FOLDER OUTPUT_FOLDER";
    QDir().mkpath(Output(""));
    QFile::remove(Output("shop.html")); // or the save dialog would ask about an earlier walk's
    Open(ui::PathFrom(folders[0]));
    look = [this, shown = 0](QWidget& dialog) mutable {
        Picture(dialog, QString("dialog-%1.png").arg(++shown));
    };
    Pick("cmbKategorien", "Werkzeug");
    ClickRow("lvGegenstände", 3);
    Picture(*window, "gegenstand.png");
    Find<QTabWidget>("ItemTab")->setCurrentIndex(1);
    Find("lstRegionen")->setFocus();
    Picture(*window, "verfuegbarkeit.png");
    Click("cmdShopEditor");
    Compose();
    Adjust();
    Picture(*window, "shop.png");
    SaveAs(Output("shop.html"));
    Expect([](QWidget& box) { Press(box, "Nein"); });
    Click("cmdShopExport");
    EXPECT_TRUE(QFile(Output("shop.html")).size() > 0);
    Print("cmdShopDrucken", "shop.pdf");
    Print("cmdListeDrucken", "gegenstaende.pdf");
}

} // namespace
} // namespace emporium::test
