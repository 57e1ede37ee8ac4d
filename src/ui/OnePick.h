// A list of which one row at most is picked, and the lit row is the picked one: no click, drag or
// key of the user's takes the light away without giving it to another row.
#pragma once

#include <QAbstractItemView>

namespace emporium::ui {

template <typename View> class OnePick : public View {
public:
    using View::View;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent*) const override {
        return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                               : QItemSelectionModel::NoUpdate;
    }

    // The view would make a row current without lighting it; the first Down would then miss it.
    void focusInEvent(QFocusEvent* event) override {
        View::focusInEvent(event);
        if (!this->selectionModel()->hasSelection())
            this->selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
};

} // namespace emporium::ui
