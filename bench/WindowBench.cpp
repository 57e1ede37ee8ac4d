// The window: its start and its memory beside those of an empty one, every operation of a user
// from the click to the painted result, and a print to a PDF file.
#include "Table.h"
#include "World.h"

#include "documents/ShopDocument.h"
#include "ui/Application.h"
#include "ui/MainWindow.h"
#include "ui/Text.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>

namespace emporium::bench {
namespace {

// The window over a world, used as a user uses it.
class Desk {
public:
    explicit Desk(std::int64_t items)
        : world(static_cast<int>(items), Categories), window(world.root) {
        window.show();
        Choose("cmbKategorien", "Alles");
        Paint();
    }

    template <typename Widget> Widget* Find(const char* name) const {
        return window.findChild<Widget*>(name);
    }

    void Paint() {
        QApplication::processEvents();
        window.repaint();
    }

    void Click(const char* button) const { Find<QAbstractButton>(button)->click(); }

    void Choose(const char* list, const QString& entry) const {
        auto* box = Find<QComboBox>(list);
        emit box->activated(box->findText(entry));
    }

    void ClickHeader(const char* list, int section) const {
        emit Find<ui::ListTable>(list)->header()->sectionClicked(section);
    }

    void PickRow(const char* list, int row) const {
        auto* table = Find<ui::ListTable>(list);
        table->setCurrentIndex(table->model()->index(row, 0));
    }

    int Rows(const char* list) const { return Find<ui::ListTable>(list)->model()->rowCount(); }

    // Fills the shop by the generator, which takes nearly all items.
    void Generate() const {
        AnswerNext();
        Click("cmdShopGenerator");
    }

    World world;
    ui::MainWindow window;

    // Has the next box be answered with yes, the generator's dialog with a run.
    void AnswerNext() const {
        QTimer::singleShot(0, &window, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                AnswerNext();
                box->button(QMessageBox::Yes)->click();
            } else if (QApplication::activeModalWidget()) {
                RunGenerator();
            }
        });
    }

private:
    void RunGenerator() const {
        const QWidget* dialog = QApplication::activeModalWidget();
        for (const auto& [name, entry] :
             {std::pair("cmbShopBeruf", 0), std::pair("cmbShopPreise", 3),
              std::pair("cmbShopQualität", 4)})
            emit dialog->findChild<QComboBox*>(name)->activated(entry);
        dialog->findChild<QPushButton*>("cmdStart")->click();
    }
};

void PrepareShop(Desk& desk) {
    desk.Click("cmdShopEditor");
    desk.Generate();
    desk.PickRow("lvLaden", desk.Rows("lvLaden") / 2);
}

void PrepareItem(Desk& desk) {
    desk.PickRow("lvGegenstände", desk.Rows("lvGegenstände") / 2);
}

// An operation of the user, from the click to the painted result.
std::function<void(benchmark::State&)> OnDesk(const std::function<void(Desk& desk)>& prepare,
                                              const std::function<void(Desk&, int turn)>& run) {
    return [prepare, run](benchmark::State& state) {
        Desk desk(state.range(0));
        prepare(desk);
        desk.Paint();
        int turn = 0;
        for (auto _ : state) {
            run(desk, turn++);
            desk.Paint();
        }
    };
}

// A window in a process of its own, from its start to its end, which follows its first frame: that
// of the program folder, or an empty one. Gives the memory in MB that it took at most.
double RunWindow(const std::filesystem::path& folder) {
    const std::string command = "exec " START_BENCH " '" + folder.string() + "'";
    FILE* child = popen(command.c_str(), "r");
    std::array<char, 64> kilobytes{};
    if (!std::fgets(kilobytes.data(), kilobytes.size(), child) || pclose(child) != 0)
        std::abort();
    return std::stoi(kilobytes.data()) / 1024.0;
}

void Start(const std::filesystem::path& folder, benchmark::State& state) {
    for (auto _ : state)
        RunWindow(folder);
}

// A copy of the starter folder that has been started before.
class StarterWorld {
    const QTemporaryDir folder_;

public:
    StarterWorld() {
        std::filesystem::copy(STARTER, root, std::filesystem::copy_options::recursive);
        RunWindow(root);
    }

    const std::filesystem::path root = ui::PathFrom(folder_.filePath("program"));
};

void StartProgram(benchmark::State& state) {
    const StarterWorld world;
    Start(world.root, state);
}

std::filesystem::path WritePage(const World& world, std::int64_t rows) {
    std::string document;
    WriteShopPrint(FilledShop(rows), document);
    auto page = world.folders.TempFolder / "Temp.html";
    std::ofstream(page, std::ios::binary) << document;
    return page;
}

void PrintPdf(benchmark::State& state) {
    const QTemporaryDir folder;
    const World world(1, 1);
    const auto page = WritePage(world, state.range(0));
    for (auto _ : state) {
        ui::HtmlView view(nullptr);
        view.Navigate(SystemFiles().read(page, LargestFile).bytes);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath("shop.pdf"));
        printer.setFullPage(true);
        if (!view.PrintTo(printer))
            state.SkipWithError("nothing was printed");
    }
}

// A page without rows shows what the browser's start takes.
void PrintByBrowser(benchmark::State& state) {
    const World world(1, 1);
    const std::string page = WritePage(world, state.range(0)).string();
    const std::string command = "chromium --headless --no-sandbox --no-pdf-header-footer 2>&- "
                                "--print-to-pdf=" +
                                page + ".pdf " + page;
    for (auto _ : state)
        if (std::system(command.c_str()) != 0)
            state.SkipWithError("nothing was printed");
}

const std::vector<Measurement> Measurements = {
    {"StartEmptyWindow", "", std::bind_front(Start, "empty"), true, {}},
    {"StartProgram", "StartEmptyWindow", StartProgram, true, {}},
    {"PrintPdf", "", PrintPdf, false, {100, 3000, 32767}},
    {"ChooseAlles", "",
     OnDesk([](Desk&) {}, [](Desk& d, int) { d.Choose("cmbKategorien", "Alles"); })},
    {"ClickItemHeader", "",
     OnDesk(PrepareItem, [](Desk& d, int turn) { d.ClickHeader("lvGegenstände", turn % 2); })},
    {"PickItem", "",
     OnDesk(PrepareItem,
            [](Desk& d, int turn) { d.PickRow("lvGegenstände", turn % d.Rows("lvGegenstände")); })},
    {"SaveItem", "",
     OnDesk(PrepareItem,
            [](Desk& d, int turn) {
                d.PickRow("lvGegenstände", turn % d.Rows("lvGegenstände"));
                d.Find<QLineEdit>("txtItem1")->setText(QString::number(1000 + turn));
                d.Click("cmdItemSave");
            }),
     true},
    {"DeleteItem", "",
     OnDesk(PrepareItem,
            [](Desk& d, int) {
                d.AnswerNext();
                d.Click("cmdItemDelete");
            }),
     true},
    {"ClickShopHeader", "",
     OnDesk(PrepareShop, [](Desk& d, int turn) { d.ClickHeader("lvLaden", turn % 2); })},
    {"ChoosePriceLevel", "",
     OnDesk(PrepareShop,
            [](Desk& d, int turn) {
                auto* levels = d.Find<QComboBox>("cmbShopPreise");
                emit levels->activated(turn % levels->count());
            })},
    {"GenerateShop", "", OnDesk(PrepareShop, [](Desk& d, int) { d.Generate(); })}};

void PrintMemory() {
    const double empty = RunWindow("empty");
    const double program = RunWindow(StarterWorld().root);
    std::cout << "\n| Memory | MB | Beside | Ratio |\n|---|---|---|---|\n"
              << "| An empty window | " << Digits(empty) << " | | |\n"
              << "| The window over the starter files | " << Digits(program)
              << " | an empty window | " << Digits(program / empty) << " |\n";
}

} // namespace
} // namespace emporium::bench

int main(int argc, char** argv) {
    emporium::ui::PrepareApplication();
    QApplication application(argc, argv);
    emporium::ui::SetUpApplication(application);
    using namespace emporium::bench;
    auto measurements = Measurements;
    if (std::find(argv, argv + argc, std::string("--peers")) != argv + argc)
        measurements.push_back({"BrowserPdf", "", PrintByBrowser, true, {0, 100, 3000}});
    RunAll(argc, argv, measurements);
    PrintMemory();
}
