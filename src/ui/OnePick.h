// A list of which one row at most is picked, and the lit row is the picked one: no click, drag or
// key of the user's takes the light away without giving it to another row.
#pragma once

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>

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

    // A lit row looks alike in the list that the keys go to and in the others.
    bool event(QEvent* event) override {
        const bool handled = View::event(event);
        if (event->type() == QEvent::Paint && this->hasFocus()) {
            QPainter painter(this);
            painter.setPen(QColor(240, 150, 0)); // stands out from black, grey and white
            painter.drawRect(this->rect().adjusted(0, 0, -1, -1));
        }
        return handled;
    }
};

} // namespace emporium::ui
