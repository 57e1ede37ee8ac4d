// One run of the program's window: the state, the platform behind it and the mirror that shows it.
#pragma once

#include "base/Platform.h"
#include "frame/frmEmporiumMain.h"
#include "ui/Mirror.h"

#include <QString>
#include <QWidget>

#include <functional>

namespace emporium::ui {

struct Session {
    frmEmporiumMain state;
    Platform platform;
    Mirror mirror;

    /// An operation that the user caused; then every window shows what it came to.
    void Do(const std::function<void()>& operation) const {
        operation();
        mirror.Update();
    }
};

/// Gives a widget the name by which it can be found.
template <typename Widget> Widget* Named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

/// Puts a widget at its place in the parent, in twips.
template <typename Widget> Widget* Place(Widget* widget, int left, int top, int width, int height) {
    widget->setGeometry(left / 15, top / 15, width / 15, height / 15);
    return widget;
}

} // namespace emporium::ui
