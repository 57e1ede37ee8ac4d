#include "documents/PrintHost.h"

#include "files/FileWriting.h"
#include "text/Ansi.h"

namespace emporium {

namespace {

enum class Wait { Ready, Failed, WindowClosed };

Wait WaitForPage(const PrintHost& host, const Platform& platform) {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + platform.PreviewTimeout;
    while (!host.PreviewReady) {
        if (Clock::now() > deadline)
            return Wait::Failed;
        if (!platform.ProcessEvents())
            return Wait::WindowClosed;
    }
    return Wait::Ready;
}

// Writes the document and has the view load it. Leaves the text of a box in `fault` if that failed;
// true if the page is there.
bool Load(PrintHost& host, const Platform& platform, const DocumentWriter& writer,
          std::string& fault) {
    const auto page = platform.disk.folders.TempFolder / "Temp.html";
    host.PreviewReady = false;
    std::string document;
    writer(document);
    const auto& files = platform.disk.files;
    files.createFolder(page.parent_path());
    const auto written = WriteFiles(files, page.parent_path(), {{page, std::move(document)}});
    if (written.failure) {
        fault = FailureText("Die Druckseite konnte nicht geschrieben werden.", *written.failure);
        return false;
    }
    const Wait wait = platform.Browser.Navigate(page) ? WaitForPage(host, platform) : Wait::Failed;
    host.PreviewReady = false;
    if (wait == Wait::Failed)
        fault = "Die Druckseite konnte nicht geladen werden.\n\nDatei: " + FromPath(page);
    return wait == Wait::Ready;
}

// The result is the text of a box, empty if all is well.
std::string Print(PrintHost& host, const Platform& platform, const DocumentWriter& writer) {
    std::string fault;
    platform.SetWaitPointer(true);
    const bool loaded = Load(host, platform, writer, fault);
    platform.SetWaitPointer(false);
    if (loaded && !platform.Browser.Print())
        fault = "Es wurde nichts oder nicht alles gedruckt. Falls ihr nicht selbst abgebrochen "
                "habt, prüft den Drucker."_ansi;
    return fault;
}

} // namespace

void ReportPage(PrintHost& host) {
    host.PreviewReady = true;
}

void PrintTempDocument(PrintHost& host, const Platform& platform, const DocumentWriter& writer) {
    if (host.busy)
        return;
    host.busy = true;
    platform.Browser.SetVisible(true);
    const std::string fault = Print(host, platform, writer);
    platform.Browser.SetVisible(false);
    host.busy = false;
    if (!fault.empty())
        platform.ShowMessage(fault);
}

} // namespace emporium
