// The page that is printed; on the screen, a white sheet. It loads nothing else and runs nothing,
// whatever the names in it contain.
#pragma once

#include "ui/PageLayout.h"

#include <QPagedPaintDevice>
#include <QWidget>

#include <string>
#include <vector>

namespace emporium::ui {

class HtmlView : public QWidget {
    Q_OBJECT

public:
    explicit HtmlView(QWidget* parent) : QWidget(parent) {}

    /// Loads a document of the program; `navigateComplete` tells when it is there.
    void Navigate(const std::string& bytes);

    /// Lays the loaded page out for a paper, unless that is done. False if `progress` ended it.
    bool LayOutFor(QSizeF inches, const Progress& progress = {});

    /// How many pages there are; 0 before LayOutFor.
    int PageCount() const { return static_cast<int>(layout_.pages.size()); }

    /// Prints the whole page, or the pages of these numbers in that order, as text and with page
    /// numbers. The device's origin has to be the corner of the paper. False if the device failed
    /// or `progress` ended it.
    bool PrintTo(QPagedPaintDevice& device, const Progress& progress = {},
                 std::vector<int> numbers = {});

    QString Title() const { return page_.title; }

signals:
    void navigateComplete();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PrintedPage page_;
    PageLayout layout_;
};

} // namespace emporium::ui
