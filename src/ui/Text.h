// Where the window's texts become bytes of the code page, and back.
#pragma once

#include <QString>

#include <filesystem>
#include <string>
#include <string_view>

namespace emporium::ui {

QString ToQString(std::string_view text);

/// A text that the window shows. A character that the code page lacks becomes "?".
std::string ToAnsi(const QString& text);

/// What of an entered text may reach the program: composed, with a blank for line ends and tabs
/// between its words and without other control characters. What the code page lacks is taken apart,
/// so that "ﬁ" becomes "fi"; what has no such parts is left out.
std::string CleanInput(const QString& text);

/// For a tool tip, which takes a text for HTML when it looks like it.
QString ToToolTip(std::string_view text);

QString PathText(const std::filesystem::path& path);
std::filesystem::path PathFrom(const QString& path);

} // namespace emporium::ui
