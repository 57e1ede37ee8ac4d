// The page that is printed. It shows one local file as a browser shows it, loads nothing else and
// runs nothing, whatever the names in it contain.
#pragma once

#include <QPrinter>
#include <QTextDocument>
#include <QWidget>

#include <string>

namespace emporium::ui {

class HtmlView : public QWidget {
    Q_OBJECT

public:
    explicit HtmlView(QWidget* parent);

    /// Loads a document of the program; `navigateComplete` tells when it is there.
    void Navigate(const std::string& bytes);

    /// Prints the pages that the printer was told, as text and with page numbers. False if the
    /// printer, or the file that it prints to, failed.
    bool PrintTo(QPrinter& printer);

    /// How many pages it takes on A4.
    int PageCount() const { return page_->pageCount(); }

    QString Title() const { return page_->metaInformation(QTextDocument::DocumentTitle); }

signals:
    void navigateComplete();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTextDocument* page_;
};

} // namespace emporium::ui
