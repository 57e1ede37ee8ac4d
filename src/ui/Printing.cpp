#include "ui/Printing.h"

#include "base/Variablen.h"
#include "files/FileWriting.h"
#include "ui/Text.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>

#include <algorithm>
#include <memory>

namespace emporium::ui {

namespace {

// Lets events run while a print is at work, and shows a box with how far it is if that takes long.
class Course {
public:
    Course(const PrintDesk& desk, const QString& label) : desk_(desk), label_(label) {
        sinceStart_.start();
        sinceEvents_.start();
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~Course() {
        if (!box_)
            QApplication::restoreOverrideCursor();
    }
    Course(const Course&) = delete;
    Course& operator=(const Course&) = delete;

    bool GoOn(int done, int total) {
        if (sinceEvents_.elapsed() < MillisecondsBetweenEvents)
            return true;
        if (!box_ && sinceStart_.elapsed() > MillisecondsWithoutBox)
            ShowBox();
        if (box_) {
            box_->setLabelText(label_.arg(done + 1).arg(total));
            box_->setMaximum(total);
            box_->setValue(done);
        }
        ended_ = !desk_.ProcessEvents() || (box_ && box_->wasCanceled());
        sinceEvents_.restart();
        return !ended_;
    }

    bool Ended() const { return ended_; } // by the user

private:
    static constexpr int MillisecondsBetweenEvents = 15;
    static constexpr int MillisecondsWithoutBox = 900;

    void ShowBox() {
        QApplication::restoreOverrideCursor();
        box_ = std::make_unique<QProgressDialog>(&desk_.window);
        box_->setObjectName("PrintProgress");
        box_->setWindowTitle(ToQString(ProgramTitle));
        box_->setCancelButtonText("Abbrechen");
        box_->setWindowModality(Qt::WindowModal);
        box_->setAutoClose(false);
        box_->setAutoReset(false);
        box_->setMinimumWidth(300);
        box_->show();
    }

    const PrintDesk& desk_;
    QString label_;
    QElapsedTimer sinceStart_, sinceEvents_;
    std::unique_ptr<QProgressDialog> box_;
    bool ended_ = false;
};

// The numbers of the pages that were asked for in the dialog, in the order of printing.
std::vector<int> PagesToPrint(const QPrinter& printer, int count) {
    std::vector<int> pages;
    for (int number = 1; number <= count; ++number)
        if (printer.pageRanges().isEmpty() || printer.pageRanges().contains(number))
            pages.push_back(number);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(pages.begin(), pages.end());
    return pages;
}

QSizeF PaperInches(const QPrinter& printer) {
    return printer.pageLayout().fullRect(QPageLayout::Inch).size();
}

// Lays the page out for the printer's paper; false if the user ended it.
bool LayOutFor(const QPrinter& printer, const PrintDesk& desk, HtmlView& page) {
    Course course(desk, "Zeile %1 von %2 wird auf Seiten verteilt.");
    return page.LayOutFor(PaperInches(printer),
                          [&course](int done, int total) { return course.GoOn(done, total); });
}

bool PrintOnto(const PrintDesk& desk, HtmlView& page, QPagedPaintDevice& device,
               const QPrinter& settings, bool& ended) {
    Course course(desk, "Seite %1 von %2 wird gedruckt.");
    const bool printed = page.PrintTo(
        device, [&course](int done, int total) { return course.GoOn(done, total); },
        PagesToPrint(settings, page.PageCount()));
    ended = course.Ended();
    return printed;
}

// The file is made in memory and written as every other: complete or not at all.
bool PrintToFile(const PrintDesk& desk, HtmlView& page, const QPrinter& settings) {
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    bool ended = false;
    bool printed = false;
    {
        QPdfWriter writer(&pdf);
        QPageLayout layout = settings.pageLayout();
        layout.setMode(QPageLayout::FullPageMode);
        writer.setPageLayout(layout);
        writer.setResolution(settings.resolution());
        writer.setTitle(page.Title());
        printed = PrintOnto(desk, page, writer, settings, ended);
    }
    if (!printed)
        return ended;
    const auto failure =
        WriteDocument(desk.files, PathFrom(settings.outputFileName()), pdf.data().toStdString());
    if (failure)
        desk.ShowMessage(FailureText("Die PDF-Datei konnte nicht geschrieben werden.", *failure));
    return true;
}

bool PrintOnPaper(const PrintDesk& desk, HtmlView& page, QPrinter& printer) {
    printer.setFullPage(true);
    bool ended = false;
    const bool printed = PrintOnto(desk, page, printer, printer, ended);
    if (ended)
        printer.abort();
    const auto state = printer.printerState();
    return ended || (printed && state != QPrinter::Error && state != QPrinter::Aborted);
}

} // namespace

bool PrintPage(const PrintDesk& desk, HtmlView& page) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setDocName(page.Title());
    // The dialog of Windows knows printers only, and would not open without one.
    if (QApplication::platformName() == "windows" &&
        printer.outputFormat() != QPrinter::NativeFormat) {
        desk.ShowMessage("Auf diesem Rechner ist kein Drucker eingerichtet.");
        return true;
    }
    if (!LayOutFor(printer, desk, page))
        return true;
    QPrintDialog dialog(&printer, &desk.window);
    dialog.setObjectName("PrintDialog");
    dialog.setMinMax(1, page.PageCount());
    // Another paper takes more pages or fewer.
    if (dialog.exec() != QDialog::Accepted || !LayOutFor(printer, desk, page))
        return true;
    if (printer.fromPage() > page.PageCount()) {
        desk.ShowMessage(ToAnsi(QString("Auf diesem Papier gibt es die gewählten Seiten nicht. "
                                        "Seiten: %1.")
                                    .arg(page.PageCount())));
        return true;
    }
    const bool file = printer.outputFormat() == QPrinter::PdfFormat;
    return file && !printer.outputFileName().isEmpty() ? PrintToFile(desk, page, printer)
                                                       : PrintOnPaper(desk, page, printer);
}

} // namespace emporium::ui
