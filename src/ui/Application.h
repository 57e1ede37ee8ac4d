// What every program with the window sets up first: language, look and font, the same on every
// desktop and under every theme.
#pragma once

#include <QApplication>

#include <future>

namespace emporium::ui {

/// Before the application exists: a desktop's own fonts and colours do not reach in.
void PrepareApplication();

/// Begins to list the system's fonts, for which the first text would wait, beside the rest of the
/// start. The application must outlive the result.
[[nodiscard]] std::future<void> ListFonts();

void SetUpApplication(QApplication& application);

} // namespace emporium::ui
