// A window over a small program folder of its own, with a driver for it.
#pragma once

#include "support/ProgramFolder.h"
#include "text/Ansi.h"
#include "window/WindowDriver.h"

#include <gtest/gtest.h>

#include <optional>

namespace emporium::test {

class WindowTest : public testing::Test {
protected:
    WindowTest();
    ~WindowTest() override;

    ProgramFolder program;
    std::optional<ui::MainWindow> window; // over the folder as it is when Open is called
    std::optional<WindowDriver> driver;

    void Open();

    /// Answers the next yes/no box, which must bear the text.
    void Answer(const QString& text, const QString& button);

    /// Closes the next message box, which must begin with the text.
    void Dismiss(const QString& beginning);

    /// Types into the next input box and confirms it.
    void Enter(const QString& prompt, const QString& text);
};

} // namespace emporium::test
