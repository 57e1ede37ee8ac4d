// What the program asks of the window system and the machine, handed down explicitly. The window
// library fills it; tests put a scripted stand-in here. While a box or dialog is open, events run
// and anything may have changed when the call returns.
#pragma once

#include "base/Dice.h"
#include "base/Disk.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace emporium {

enum class BoxIcon { Question, Warning };

/// A box with the buttons Yes and No, captioned with ProgramTitle.
struct YesNoBox {
    std::string text;
    BoxIcon icon = BoxIcon::Question;
    bool noIsDefault = false; // where Yes takes something away that nobody has seen
};

struct Platform {
    Disk disk;

    Die RollDice;

    /// True for Yes; a box that is closed without an answer counts as No.
    std::function<bool(const YesNoBox& box)> AskYesNo;

    /// A message with an exclamation mark and an OK button, captioned with ProgramTitle.
    std::function<void(std::string_view text)> ShowMessage;

    /// A line of text; empty if the box was cancelled. Captioned with ProgramTitle. The hint stands
    /// in the empty field and is no answer.
    std::function<std::string(std::string_view prompt, std::string_view hint)> AskText;

    /// A file to save to, empty if the dialog was cancelled. The dialog itself asks before an
    /// existing file is chosen. The filter is a caption and a pattern with "|" between them.
    std::function<std::filesystem::path(const std::filesystem::path& folder,
                                        std::string_view filter)>
        ShowSave;

    /// Opens the file in the viewer that the user's system has for it. A failure goes unseen.
    std::function<void(const std::filesystem::path& file)> OpenInViewer;

    /// The HTML view behind the window's frames.
    struct {
        std::function<void(bool visible)> SetVisible;

        /// Begins to load the file; ReportPage is called when it is there. False if it can't be
        /// read.
        std::function<bool(const std::filesystem::path& file)> Navigate;

        /// Opens the print dialog for the loaded page and prints. False if printing failed; a
        /// cancel is no failure.
        std::function<bool()> Print;
    } Browser;

    /// Lets the window system handle what has come up. False once the window was closed.
    std::function<bool()> ProcessEvents;

    /// How long a page may take to load.
    std::chrono::milliseconds PreviewTimeout{10'000};

    /// Shows the generator dialog and returns when it has been closed.
    std::function<void()> ShowGeneratorDialog;

    /// The hourglass, switched on and off in pairs.
    std::function<void(bool waiting)> SetWaitPointer;

    /// Puts the keyboard focus on the item form's name field, if that is on screen.
    std::function<void()> FocusItemName;

    /// Puts the keyboard focus on the item form's list of units, if that is on screen.
    std::function<void()> FocusItemUnit;
};

} // namespace emporium
