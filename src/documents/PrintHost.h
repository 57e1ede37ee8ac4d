// The road of a document to the printer: a temporary file, the HTML view that loads it, and the
// print dialog.
#pragma once

#include "base/Platform.h"

#include <functional>
#include <string>

namespace emporium {

/// Whether the HTML view has reported the page that was asked for last.
struct PrintHost {
    bool PreviewReady = false;
    bool busy = false; // while a print is under way, no other command takes input
};

/// Appends the document to the text.
using DocumentWriter = std::function<void(std::string& document)>;

/// The HTML view reports that it has loaded the page.
void ReportPage(PrintHost& host);

/// Prints the document that the writer makes. If the file can't be written, the page does not load
/// in time or the printer fails, a box says so; the editors stay as they are. Ends quietly if the
/// window is closed meanwhile. While a print is busy, a second one does nothing.
void PrintTempDocument(PrintHost& host, const Platform& platform, const DocumentWriter& writer);

} // namespace emporium
