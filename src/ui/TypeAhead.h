// Finds a row of a list by the letters that its user types.
#pragma once

#include <QElapsedTimer>
#include <QString>

#include <functional>

namespace emporium::ui {

class TypeAhead {
public:
    using Name = std::function<QString(int row)>;

    /// The row whose name begins with what was typed, or else contains it; -1 if none does. Looks
    /// from the current row (-1 for none) on, and from the top again. Letters that follow each
    /// other quickly belong together; a letter repeated goes on to the next row.
    int Find(const QString& letters, int current, int rows, const Name& name);

private:
    QString typed_;
    QElapsedTimer since_;
};

} // namespace emporium::ui
