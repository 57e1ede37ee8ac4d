#include "ui/ListTable.h"

#include "ui/Text.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
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

namespace {

// Two quick clicks are two clicks. As high as its captions need, without asking, as Qt does, how
// high they would be in bold: that would be one more font to find and read at the start.
class Header : public QHeaderView {
public:
    using QHeaderView::QHeaderView;

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

    QSize sectionSizeFromContents(int /*section*/) const override {
        QStyleOptionHeader option;
        initStyleOption(&option);
        option.text = "P";
        return style()->sizeFromContents(QStyle::CT_HeaderSection, &option, {}, this);
    }
};

} // namespace

ListTable::ListTable(QWidget* parent, QList<TableColumn> columns, TableSource source)
    : OnePick(parent), columns_(std::move(columns)), model_(new Model(*this, std::move(source))) {
    setModel(model_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    SetUpHeader();
    connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { emit rowChosen(index.row()); });
}

void ListTable::SetUpHeader() {
    auto* captions = new Header(Qt::Horizontal, this);
    setHeader(captions);
    captions->setSectionsClickable(true);
    captions->setSortIndicatorShown(true);
    captions->setMinimumSectionSize(10);
    for (int i = 0; i < columns_.size(); ++i)
        captions->resizeSection(i, columns_[i].width);
    connect(captions, &QHeaderView::sectionClicked, this,
            [this](int section) { emit headerClicked(columns_[section].column); });
}

void ListTable::Mirror(unsigned revision, int chosenRow, const ListSort& sort,
                       const ListReveal& reveal) {
    mirroring_ = true;
    setAutoScroll(false);
    if (revision != revision_) {
        const int scrolled = verticalScrollBar()->value();
        model_->Reset();
        executeDelayedItemsLayout();
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
    Scroll(reveal);
    for (int i = 0; i < columns_.size(); ++i)
        if (columns_[i].column == sort.column)
            header()->setSortIndicator(i,
                                       sort.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    setAutoScroll(true);
    mirroring_ = false;
}

void ListTable::Scroll(const ListReveal& reveal) {
    if (reveal.count != revealed_)
        scrollTo(model_->index(reveal.row, 0));
    revealed_ = reveal.count;
}

void ListTable::CopyAll() const {
    QString text;
    for (int row = 0; row < model_->rowCount({}); ++row) {
        for (int column = 0; column < columns_.size(); ++column)
            text += (column > 0 ? "\t" : "") + model_->index(row, column).data().toString();
        text += '\n';
    }
    QApplication::clipboard()->setText(text);
}

void ListTable::keyboardSearch(const QString& letters) {
    const auto name = [this](int row) { return model_->index(row, 0).data().toString(); };
    const int found = typeAhead_.Find(letters, currentIndex().row(), model_->rowCount({}), name);
    if (found >= 0)
        setCurrentIndex(model_->index(found, 0));
}

void ListTable::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Delete) {
        emit deletePressed();
        return;
    }
    if (event->matches(QKeySequence::Copy)) {
        CopyAll();
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

void ListTable::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint row = visualRect(currentIndex()).bottomLeft();
    emit menuRequested(byKey ? viewport()->mapToGlobal(row) : event->globalPos());
}

// Not with the current row, which the focus moves as well, without picking anything.
void ListTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (!mirroring_ && !selected.isEmpty())
        emit rowChosen(selected.first().top());
}

} // namespace emporium::ui
