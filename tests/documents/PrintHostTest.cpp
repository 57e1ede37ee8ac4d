#include "documents/PrintHost.h"
#include "base/Ansi.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <fstream>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

class Printing : public testing::Test {
protected:
    Printing() {
        auto& browser = script.platform.Browser;
        browser.SetVisible = [this](bool visible) { log += visible ? "show " : "hide "; };
        browser.Navigate = [this](const fs::path& file) {
            EXPECT_EQ(file, page);
            EXPECT_FALSE(host.PreviewReady) << "a report of an earlier page";
            log += "load[" + SystemFiles().read(file).bytes + "] ";
        };
        browser.Print = [this] {
            log += "print ";
            return printerWorks;
        };
        script.platform.ProcessEvents = [this] {
            EXPECT_TRUE(host.busy);
            duringWait();
            host.PreviewReady = ++rounds == 3;
            return true;
        };
    }

    void Print(const std::string& document) {
        log.clear();
        rounds = 0;
        PrintTempDocument(host, script.platform, program.folders,
                          [&document](std::string& file) { file = document; });
        EXPECT_FALSE(host.busy || host.PreviewReady);
    }

    ProgramFolder program;
    ScriptedPlatform script;
    PrintHost host;
    fs::path page = program.folders.TempFolder / "Temp.html";
    std::function<void()> duringWait = [] {};
    bool printerWorks = true;
    int rounds = 0;
    std::string log;
};

TEST_F(Printing, ThePageIsWrittenLoadedAwaitedAndPrinted) {
    host.PreviewReady = true;
    Print("ein langes Dokument");
    EXPECT_EQ(log, "show load[ein langes Dokument] print hide ");
    Print("kurz");
    EXPECT_EQ(log, "show load[kurz] print hide ");
    EXPECT_EQ(rounds, 3);
    EXPECT_TRUE(fs::exists(page));
}

TEST_F(Printing, APageThatNeverComesEndsInABoxAndAClosedWindowQuietly) {
    using namespace std::chrono;
    script.platform.PreviewTimeout = milliseconds(20);
    duringWait = [this] { rounds = 10; };
    script.ExpectMessage("Die Druckseite konnte nicht geladen werden.\n\nDatei: " + page.string());
    const auto start = steady_clock::now();
    Print("a");
    EXPECT_GE(steady_clock::now() - start, milliseconds(20));
    EXPECT_EQ(log, "show load[a] hide ");
    script.platform.ProcessEvents = [] { return false; };
    Print("b");
    EXPECT_EQ(log, "show load[b] hide ");
}

TEST_F(Printing, APageThatCannotBeWrittenIsNeitherLoadedNorPrinted) {
    const std::vector<std::function<void()>> hindrances = {
        [this] { fs::permissions(page, fs::perms::owner_read); },
        [this] { fs::remove(page) && fs::create_directory(page); },
        [this] { fs::remove_all(program.folders.TempFolder); }};
    std::ofstream(page) << "alt";
    for (const auto& hinder : hindrances) {
        hinder();
        script.ExpectMessage("Die Druckseite konnte nicht geschrieben werden.\n\nDatei: " +
                             page.string() + "\nGrund: ");
        Print("neu");
        EXPECT_EQ(log, "show hide ");
    }
    fs::create_directory(program.folders.TempFolder);
    Print("neu");
    EXPECT_EQ(log, "show load[neu] print hide ");
}

TEST_F(Printing, AFailingPrinterIsToldAfterTheViewIsHidden) {
    printerWorks = false;
    script.platform.ShowMessage = [this](std::string_view text) {
        EXPECT_TRUE(text.starts_with("Der Drucker hat einen Fehler gemeldet"));
        EXPECT_FALSE(host.busy);
        log += "box";
    };
    Print("a");
    EXPECT_EQ(log, "show load[a] print hide box");
}

TEST_F(Printing, ASecondPrintDuringTheWaitDoesNothing) {
    int written = 0;
    duringWait = [&] {
        PrintTempDocument(host, script.platform, program.folders,
                          [&written](std::string&) { ++written; });
    };
    Print("a");
    EXPECT_EQ(log, "show load[a] print hide ");
    EXPECT_EQ(written, 0);
}

} // namespace
} // namespace emporium::test
