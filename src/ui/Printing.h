// The way of a loaded page to paper or into a PDF file.
#pragma once

#include "files/FileLayer.h"
#include "ui/HtmlView.h"

#include <QWidget>

#include <functional>

namespace emporium::ui {

/// What a print asks of the window around it.
struct PrintDesk {
    QWidget& window;
    FileLayer files;
    std::function<void(std::string_view text)> ShowMessage;
    std::function<bool()> ProcessEvents; // false once the window was closed
};

/// Opens the print dialog for the loaded page and prints it. What takes longer than a second shows
/// a box with the pages and a button that ends it; events run meanwhile. A PDF file is written only
/// once it is complete; if that fails, a box says why and an old file stays as it was. False if
/// printing failed without a box; ended by the user it did not fail.
bool PrintPage(const PrintDesk& desk, HtmlView& page);

} // namespace emporium::ui
