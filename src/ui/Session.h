// One run of the program's window: the state, the platform behind it and the mirror that shows it.
#pragma once

#include "base/Platform.h"
#include "frame/frmEmporiumMain.h"
#include "ui/Mirror.h"

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

} // namespace emporium::ui
