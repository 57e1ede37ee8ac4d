// The printed page laid out for a paper: which row stands where, the table's captions above every
// page of it, and the drawing of a page.
#pragma once

#include "ui/PrintedPage.h"

#include <QPainter>
#include <QSizeF>

#include <functional>
#include <vector>

namespace emporium::ui {

/// Pixels of the layout in an inch of paper.
constexpr double LayoutDpi = 96;

/// Told now and then how much of how much is done; false ends the work.
using Progress = std::function<bool(int done, int total)>;

/// A piece of a row on a page. Only a row that is taller than a page comes in several pieces.
struct Piece {
    std::size_t row;
    double top;    // on the page
    double skip;   // how much of the row stood on earlier pages
    double height; // of this piece
};

struct PageLayout {
    QSizeF paper;                          // in pixels of the layout
    std::vector<int> percents;             // the widths of the table's columns
    std::vector<std::vector<Piece>> pages; // at least one once laid out
};

/// Lays the page out. No page has a split row, unless the row is taller than a page, and every page
/// with wares begins their table with its captions. False if `progress` ended it; the layout is
/// incomplete then.
bool LayOut(const PrintedPage& page, QSizeF paper, PageLayout& layout, const Progress& progress);

/// Draws a page, counted from 0, with its number.
void DrawPage(QPainter& painter, const PrintedPage& page, const PageLayout& layout, int number);

} // namespace emporium::ui
