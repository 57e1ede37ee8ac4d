// Carries the main job through in the real window, as a game master would: composes a shop by dice,
// draws the owner's name, adjusts quantities and prices, exports and prints. Leaves the exported
// shop, the printed page and pictures of the windows in a folder.
//
//   walk PROGRAM_FOLDER OUTPUT_FOLDER

#include "ui/Application.h"
#include "ui/HtmlView.h"
#include "ui/MainWindow.h"
#include "ui/Text.h"
#include "window/WindowDriver.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QTest>

#include <array>
#include <cstdio>

namespace {

using emporium::test::WindowDriver;

constexpr std::array Results = {"shop.html", "shop.pdf", "gegenstaende.pdf"};

class Walk {
public:
    Walk(emporium::ui::MainWindow& window, const QString& output)
        : window_(window), driver_(window), output_(output) {}

    bool Run() {
        for (const char* file : Results)
            QFile::remove(Output(file)); // or the save dialog would ask about an earlier walk's
        ShowItems();
        ComputeShop();
        NameOwner();
        Adjust();
        Export();
        Print("cmdShopDrucken", "shop.pdf", "10-drucken.png");
        Print("cmdListeDrucken", "gegenstaende.pdf", "11-liste-drucken.png");
        return Succeeded();
    }

private:
    QString Output(const QString& name) const { return output_ + "/" + name; }

    void Picture(QWidget& widget, const QString& name) {
        QTest::qWait(150); // until what has changed is painted
        widget.grab().save(Output(name));
    }

    void ShowItems() {
        Picture(window_, "1-start.png");
        driver_.Pick("cmbKategorien", "Werkzeug");
        driver_.ClickRow("lvGegenstände", 3);
        Picture(window_, "2-gegenstand.png");
        driver_.Find<QTabWidget>("ItemTab")->setCurrentIndex(1);
        driver_.Find<QWidget>("lstRegionen")->setFocus();
        Picture(window_, "3-verfuegbarkeit.png");
        driver_.Find<QTabWidget>("ItemTab")->setCurrentIndex(0);
    }

    void ComputeShop() {
        driver_.Click("cmdShopEditor");
        driver_.Expect([this](QWidget& dialog) {
            const auto pick = [&dialog](const char* name, const QString& entry) {
                WindowDriver::Pick(WindowDriver::Find<QComboBox>(&dialog, name), entry);
            };
            pick("cmbShopBeruf", "Gemischtwarenhändler");
            pick("cmbShopPreise", "Teuer");
            pick("cmbShopQualität", "2 - Einfach");
            WindowDriver::Click(WindowDriver::Find<QWidget>(&dialog, "chkShopRegion"));
            pick("cmbShopRegion", "WE");
            Picture(dialog, "4-shopgenerator.png");
            WindowDriver::Click(WindowDriver::Find<QWidget>(&dialog, "cmdStart"));
        });
        driver_.Click("cmdShopGenerator");
    }

    void NameOwner() {
        driver_.Type("txtName", "Zum vollen Korb");
        driver_.Pick("cmbRasse", "Gareth");
        driver_.Click("cmdGenName");
    }

    void AnswerText(const QString& text, const QString& picture) {
        driver_.Expect([this, text, picture](QWidget& dialog) {
            WindowDriver::TypeInto(dialog.findChild<QLineEdit*>(), text);
            Picture(dialog, picture);
            WindowDriver::Press(dialog, "OK");
        });
    }

    void Adjust() {
        driver_.ClickRow("lvLaden", 2);
        AnswerText("3", "5-anzahl.png");
        driver_.Click("cmdShopAnzahl");
        AnswerText("7,5", "6-preis.png");
        driver_.DoubleClickRow("lvLaden", 4);
        driver_.Click("cmdItemHin"); // the tool chosen before
        Picture(window_, "7-shop.png");
    }

    void Export() {
        driver_.Expect([this](QWidget& dialog) {
            auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
            name->setText(QFileInfo(Output("shop.html")).absoluteFilePath());
            Picture(dialog, "8-speichern.png");
            QTest::keyClick(name, Qt::Key_Return);
        });
        driver_.Expect([this](QWidget& box) {
            Picture(box, "9-gespeichert.png");
            WindowDriver::Press(box, "Nein");
        });
        driver_.Click("cmdShopExport");
    }

    // Where the dialog is the system's own, which only its user can answer, the page is printed
    // past it; without a printer it does not open at all.
    void PrintPastDialog(const char* button, const QString& file, const QString& picture) {
        driver_.Expect([this, picture](QWidget& box) {
            Picture(box, picture);
            WindowDriver::Press(box, "OK");
        });
        driver_.Click(button);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(Output(file));
        printer.setFullPage(true);
        driver_.Find<emporium::ui::HtmlView>("Browser")->PrintTo(printer);
    }

    void Print(const char* button, const QString& file, const QString& picture) {
        if (QApplication::platformName() == "windows") {
            PrintPastDialog(button, file, picture);
            return;
        }
        driver_.Expect([this, file, picture](QWidget& widget) {
            auto& dialog = dynamic_cast<QPrintDialog&>(widget);
            Picture(dialog, picture);
            dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
            dialog.printer()->setOutputFileName(Output(file));
            dialog.done(QDialog::Accepted);
        });
        driver_.Click(button);
    }

    bool Succeeded() const {
        for (const QString& fault : driver_.unexpected)
            std::fprintf(stderr, "unexpected: %s\n", qUtf8Printable(fault));
        bool whole = driver_.unexpected.isEmpty() && driver_.Pending() == 0;
        for (const char* file : Results)
            whole = whole && QFileInfo(Output(file)).size() > 0;
        return whole;
    }

    emporium::ui::MainWindow& window_;
    WindowDriver driver_;
    QString output_;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: walk PROGRAM_FOLDER OUTPUT_FOLDER\n");
        return 2;
    }
    emporium::ui::SetUpApplication(application);
    // The system's own file dialog can be answered by its user only.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    emporium::ui::MainWindow window(emporium::ui::PathFrom(arguments[1]));
    window.show();
    QDir().mkpath(arguments[2]);
    return Walk(window, arguments[2]).Run() ? 0 : 1;
}
