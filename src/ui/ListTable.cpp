#include "ui/ListTable.h"

#include "ui/Text.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

namespace emporium::ui {

class ListTable::Model : public QAbstractTableModel {
public:
    Model(ListTable& table, TableSource source)
        : QAbstractTableModel(&table), columns_(table.columns_), source_(std::move(source)) {}

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : source_.rowCount();
    }

    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(columns_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        // While an operation runs, the view may ask for rows that are gone already.
        if (!index.isValid() || index.row() >= source_.rowCount())
            return {};
        const TableColumn& column = columns_[index.column()];
        if (role == Qt::DisplayRole)
            return ToQString(source_.cell(index.row(), column.column));
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
        return {};
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal)
            return {};
        if (role == Qt::DisplayRole)
            return columns_[section].caption;
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(columns_[section].alignment | Qt::AlignVCenter);
        return {};
    }

    void Reset() {
        beginResetModel();
        endResetModel();
    }

private:
    const QList<TableColumn>& columns_;
    TableSource source_;
};

ListTable::ListTable(QWidget* parent, QList<TableColumn> columns, TableSource source)
    : QTreeView(parent), columns_(std::move(columns)), model_(new Model(*this, std::move(source))) {
    setModel(model_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setAllColumnsShowFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setMinimumSectionSize(10);
    for (int i = 0; i < columns_.size(); ++i)
        header()->resizeSection(i, columns_[i].width);
    connect(header(), &QHeaderView::sectionClicked, this,
            [this](int section) { emit headerClicked(columns_[section].column); });
    connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { emit rowChosen(index.row()); });
}

void ListTable::Mirror(unsigned revision, int chosenRow, int sortColumn, bool descending) {
    mirroring_ = true;
    const bool changed = revision != revision_;
    if (changed) {
        const int scrolled = verticalScrollBar()->value();
        model_->Reset();
        revision_ = revision;
        verticalScrollBar()->setValue(scrolled);
    }
    const QModelIndex chosen = model_->index(chosenRow, 0);
    if (chosen.row() != currentIndex().row() ||
        chosen.isValid() != selectionModel()->hasSelection()) {
        setCurrentIndex(chosen);
        if (!chosen.isValid())
            clearSelection();
    }
    if (changed && chosen.isValid())
        scrollTo(chosen);
    for (int i = 0; i < columns_.size(); ++i)
        if (columns_[i].column == sortColumn)
            header()->setSortIndicator(i, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    mirroring_ = false;
}

void ListTable::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Delete) {
        emit deletePressed();
        return;
    }
    QTreeView::keyPressEvent(event);
    const bool picks = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (picks && currentIndex().isValid())
        emit rowChosen(currentIndex().row());
}

void ListTable::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit rowDoubleClicked();
}

// Not with the current row, which the focus moves as well, without picking anything.
void ListTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (!mirroring_ && !selected.isEmpty())
        emit rowChosen(selected.first().top());
}

} // namespace emporium::ui
