// A document of the program, read for paper: its title and what stands on it row by row. Reading
// looks at nothing but the text itself, whatever the names in it contain.
#pragma once

#include <QString>
#include <QStringView>
#include <QTextLayout>

#include <string>
#include <vector>

namespace emporium::ui {

enum class RowKind { Heading, Line, Captions, Ware };

/// One row of the page; a heading and a line are rows of a single cell.
struct PageRow {
    RowKind kind;
    std::vector<QStringView> cells; // as they are written, within PrintedPage::text
    std::vector<int> percents;      // the width of each cell, 0 if it tells none
};

struct PrintedPage {
    QString text; // what the rows are views of
    QString title;
    std::vector<PageRow> rows;

    PrintedPage() = default;
    PrintedPage(PrintedPage&&) = default;
    PrintedPage& operator=(PrintedPage&&) = default;
    PrintedPage(const PrintedPage&) = delete;
    PrintedPage& operator=(const PrintedPage&) = delete;
};

/// Reads a document in the code page of the program's files. Lines that the program's documents
/// don't have are taken for lines of text.
PrintedPage ReadPage(const std::string& bytes);

struct StyledText {
    QString text;
    QList<QTextLayout::FormatRange> styles;
};

/// What a browser shows for the text: blanks run together, tags for bold, italic, struck and
/// underlined letters and for breaks have effect, other tags vanish, and named characters are put
/// in. Takes a time in proportion to the text, however its tags are nested. A text of more than
/// 10,000 letters ends there with three dots.
StyledText ReadMarkup(QStringView markup);

} // namespace emporium::ui
