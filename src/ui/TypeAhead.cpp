#include "ui/TypeAhead.h"

#include <QApplication>

namespace emporium::ui {

namespace {

enum class Match { Beginning, Anywhere };

int Search(const QString& text, Match match, int first, int rows, const TypeAhead::Name& name) {
    for (int i = 0; i < rows; ++i) {
        const int row = (first + i) % rows;
        const qsizetype place = name(row).indexOf(text, 0, Qt::CaseInsensitive);
        if (place == 0 || (place > 0 && match == Match::Anywhere))
            return row;
    }
    return -1;
}

} // namespace

int TypeAhead::Find(const QString& letters, int current, int rows, const Name& name) {
    const bool goesOn =
        since_.isValid() && since_.elapsed() < QApplication::keyboardInputInterval();
    const bool repeated = goesOn && typed_ == letters;
    if (!goesOn)
        typed_.clear();
    if (typed_.isEmpty() && letters.trimmed().isEmpty())
        return -1;
    since_.start();
    if (!repeated)
        typed_ += letters;
    // The first letter leaves the current row; the letters behind it may still mean that row.
    const int first = goesOn && !repeated ? std::max(current, 0) : current + 1;
    const int begins = Search(typed_, Match::Beginning, first, rows, name);
    return begins >= 0 ? begins : Search(typed_, Match::Anywhere, first, rows, name);
}

} // namespace emporium::ui
