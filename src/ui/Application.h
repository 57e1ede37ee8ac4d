// What every program with the window sets up first: language, look and font, the same on every
// desktop and under every theme.
#pragma once

#include <QApplication>

namespace emporium::ui {

/// Before the application exists: a desktop's own fonts and colours do not reach in.
void PrepareApplication();

void SetUpApplication(QApplication& application);

} // namespace emporium::ui
