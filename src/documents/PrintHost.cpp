#include "documents/PrintHost.h"

#include "base/Outcome.h"
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

// Writes the document and has the view load it; stands if the page is there.
Outcome Load(PrintHost& host, const Platform& platform, const DocumentWriter& writer) {
    const auto page = platform.disk.folders.TempFolder / "Temp.html";
    host.PreviewReady = false;
    std::string document;
    writer(document);
    const auto& files = platform.disk.files;
    files.createFolder(page.parent_path());
    const auto written = WriteFiles(files, page.parent_path(), {{page, std::move(document)}});
    if (written.failure)
        return {false,
                FailureText("Die Druckseite konnte nicht geschrieben werden.", *written.failure)};
    const Wait wait = platform.Browser.Navigate(page) ? WaitForPage(host, platform) : Wait::Failed;
    host.PreviewReady = false;
    if (wait == Wait::Failed)
        return {false, "Die Druckseite konnte nicht geladen werden.\n\nDatei: " + FromPath(page)};
    return {wait == Wait::Ready, {}};
}

Outcome Print(PrintHost& host, const Platform& platform, const DocumentWriter& writer) {
    platform.SetWaitPointer(true);
    Outcome loaded = Load(host, platform, writer);
    platform.SetWaitPointer(false);
    if (loaded.stands && !platform.Browser.Print())
        return {false,
                std::string("Es wurde nichts oder nicht alles gedruckt. Falls ihr nicht selbst "
                            "abgebrochen habt, prüft den Drucker."_ansi)};
    return loaded;
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
    const Outcome outcome = Print(host, platform, writer);
    platform.Browser.SetVisible(false);
    host.busy = false;
    Tell(platform, outcome);
}

} // namespace emporium
