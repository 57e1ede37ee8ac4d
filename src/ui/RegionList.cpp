#include "ui/RegionList.h"

#include <QHelpEvent>

namespace emporium::ui {

RegionList::RegionList(QWidget* parent, std::function<QString(const QString& code)> describe)
    : OnePick(parent), describe_(std::move(describe)) {
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        const auto selected = selectedItems();
        if (!selected.isEmpty())
            emit picked(row(selected.first()));
    });
}

bool RegionList::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip)
        if (auto* entry = itemAt(dynamic_cast<QHelpEvent&>(*event).pos()))
            entry->setToolTip(describe_(entry->text()));
    return OnePick::viewportEvent(event);
}

} // namespace emporium::ui
