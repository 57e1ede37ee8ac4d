// A list view in report layout over rows that the program holds; nothing is copied into the widget.
#pragma once

#include "base/Controls.h"
#include "ui/OnePick.h"
#include "ui/TypeAhead.h"

#include <QAbstractTableModel>
#include <QTreeView>

#include <functional>
#include <string_view>

namespace emporium::ui {

/// A visible column.
struct TableColumn {
    QString caption;
    int column; // the program's number of it
    int width;  // in pixels
    Qt::Alignment alignment;
};

/// What a table shows. The functions read the program's state at every call.
struct TableSource {
    std::function<int()> rowCount;
    std::function<std::string_view(int row, int column)> cell;
};

class ListTable : public OnePick<QTreeView> {
    Q_OBJECT

public:
    ListTable(QWidget* parent, QList<TableColumn> columns, TableSource source);

    /// Shows the rows anew if the revision is another than at the last call, and the chosen row
    /// (-1 for none) and the sort in any case. Scrolls if there is a new row to be shown.
    void Mirror(unsigned revision, int chosenRow, const ListSort& sort, const ListReveal& reveal);

    /// Puts all rows on the clipboard, a line for each, its columns parted by tabs.
    void CopyAll() const;

    /// Goes to the row whose name, the first column, begins with what is typed or contains it.
    void keyboardSearch(const QString& letters) override;

signals:
    /// The user picks a row, also the one that is chosen already.
    void rowChosen(int row);
    void headerClicked(int column);
    void deletePressed();
    void rowDoubleClicked();

    /// The user asks for the list's menu at that place of the screen.
    void menuRequested(const QPoint& place);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    class Model;

    void SetUpHeader();
    void Scroll(const ListReveal& reveal);

    QList<TableColumn> columns_;
    Model* model_;
    TypeAhead typeAhead_;
    unsigned revision_ = 0;
    unsigned revealed_ = 0;
    bool mirroring_ = false;
};

} // namespace emporium::ui
