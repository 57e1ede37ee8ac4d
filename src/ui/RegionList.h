// A list box of region codes whose entries tell the regions' long names.
#pragma once

#include "ui/OnePick.h"

#include <QListWidget>

#include <functional>

namespace emporium::ui {

class RegionList : public OnePick<QListWidget> {
    Q_OBJECT

public:
    /// The description gives the tool tip of a code.
    RegionList(QWidget* parent, std::function<QString(const QString& code)> describe);

signals:
    /// The user picks an entry.
    void picked(int row);

protected:
    bool viewportEvent(QEvent* event) override;

private:
    std::function<QString(const QString& code)> describe_;
};

} // namespace emporium::ui
