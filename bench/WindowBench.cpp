// The window: its start and its memory beside those of an empty one, every operation of a user
// from the click to the painted result, and a print to a PDF file.
#include "Table.h"
#include "World.h"

#include "documents/ShopDocument.h"
#include "shopeditor/ShopList.h"
#include "ui/Application.h"
#include "ui/MainWindow.h"
#include "ui/Text.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <chrono>
#include <cstdio>
#include <iostream>

namespace emporium::bench {
namespace {

// The window over a world, used as a user uses it.
class Desk {
public:
    explicit Desk(std::int64_t items) : world(static_cast<int>(items), 50), window(world.root) {
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

    void Press(const char* widget, int key, const QString& text = {}) const {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(Find<QWidget>(widget), &press);
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

struct Handler {
    const char* name;
    std::function<void(Desk& desk)> prepare;
    std::function<void(Desk& desk, int turn)> run;
    bool writes = false;
};

void PrepareShop(Desk& desk) {
    desk.Click("cmdShopEditor");
    desk.Generate();
    desk.PickRow("lvLaden", desk.Rows("lvLaden") / 2);
}

void PrepareItem(Desk& desk) {
    desk.PickRow("lvGegenstände", desk.Rows("lvGegenstände") / 2);
}

const std::vector<Handler>& Handlers() {
    static const std::vector<Handler> handlers = {
        {"ChooseAlles", [](Desk&) {}, [](Desk& d, int) { d.Choose("cmbKategorien", "Alles"); }},
        {"ClickItemHeader", PrepareItem,
         [](Desk& d, int turn) { d.ClickHeader("lvGegenstände", turn % 2); }},
        {"PickItem", PrepareItem,
         [](Desk& d, int turn) { d.PickRow("lvGegenstände", turn % d.Rows("lvGegenstände")); }},
        {"SearchByLetter", PrepareItem,
         [](Desk& d, int turn) { d.Press("lvGegenstände", 0, QString(QChar('a' + turn % 26))); }},
        {"TypeIntoField", PrepareItem,
         [](Desk& d, int turn) { d.Press("txtItem3", 0, QString(QChar('a' + turn % 26))); }},
        {"TickAvailability", PrepareItem,
         [](Desk& d, int turn) { d.Click(turn % 2 == 0 ? "cmdAlleHin" : "cmdAlleZurück"); }},
        {"SaveItem", PrepareItem,
         [](Desk& d, int turn) {
             d.PickRow("lvGegenstände", turn % d.Rows("lvGegenstände"));
             d.Find<QLineEdit>("txtItem1")->setText(QString::number(1000 + turn));
             d.Click("cmdItemSave");
         },
         true},
        {"DeleteItem", PrepareItem,
         [](Desk& d, int) {
             d.AnswerNext();
             d.Click("cmdItemDelete");
         },
         true},
        {"SwitchMode", PrepareShop,
         [](Desk& d, int turn) { d.Click(turn % 2 == 0 ? "cmdItemEditor" : "cmdShopEditor"); }},
        {"AddWare",
         [](Desk& d) {
             PrepareShop(d);
             PrepareItem(d);
         },
         [](Desk& d, int) { d.Click("cmdItemHin"); }},
        {"RemoveWare", PrepareShop, [](Desk& d, int) { d.Press("lvLaden", Qt::Key_Delete); }},
        {"ClickShopHeader", PrepareShop,
         [](Desk& d, int turn) { d.ClickHeader("lvLaden", turn % 2); }},
        {"ChoosePriceLevel", PrepareShop,
         [](Desk& d, int turn) {
             auto* levels = d.Find<QComboBox>("cmbShopPreise");
             emit levels->activated(turn % levels->count());
         }},
        {"GenerateShop", PrepareShop, [](Desk& d, int) { d.Generate(); }},
    };
    return handlers;
}

void Measure(benchmark::State& state, const Handler& handler) {
    Desk desk(state.range(0));
    handler.prepare(desk);
    desk.Paint();
    int turn = 0;
    for (auto _ : state) {
        handler.run(desk, turn++);
        desk.Paint();
    }
}

// A window in a process of its own, from its start to its end, which follows its first frame: that
// of the program folder, or an empty one. Gives the memory in MB that it took at most.
double RunWindow(const std::filesystem::path& folder, const std::string& category = "") {
    const std::string command = "exec " START_BENCH " '" + folder.string() + "' " + category;
    FILE* child = popen(command.c_str(), "r");
    std::array<char, 64> kilobytes{};
    const bool told = std::fgets(kilobytes.data(), kilobytes.size(), child);
    if (pclose(child) != 0 || !told)
        std::abort();
    return std::stoi(kilobytes.data()) / 1024.0;
}

void Start(benchmark::State& state, const std::filesystem::path& folder) {
    using Clock = std::chrono::steady_clock;
    for (auto _ : state) {
        const auto start = Clock::now();
        RunWindow(folder);
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
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

void StartEmptyWindow(benchmark::State& state) {
    Start(state, "empty");
}

void StartProgram(benchmark::State& state) {
    Beside(state, "StartEmptyWindow");
    const StarterWorld world;
    Start(state, world.root);
}

void PrintPdf(benchmark::State& state) {
    const QTemporaryDir folder;
    const World world(1, 1);
    ShopEditor shop;
    for (int i = 0; i < state.range(0); ++i) {
        const ItemRecord r = World::Record(i);
        AddShopRow(shop,
                   MakeShopRow(r[NameField], r[WeightField], r[PriceField], r[AvailabilityField]));
    }
    std::string document;
    WriteShopPrint(shop, document);
    const auto page = world.folders.TempFolder / "Temp.html";
    std::ofstream(page, std::ios::binary) << document;
    for (auto _ : state) {
        ui::HtmlView view(nullptr);
        view.Navigate(page);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath("shop.pdf"));
        if (!view.PrintTo(printer))
            state.SkipWithError("nothing was printed");
    }
}

BENCHMARK(StartEmptyWindow)->UseManualTime();
BENCHMARK(StartProgram)->UseManualTime();
BENCHMARK(PrintPdf)->Arg(100)->Arg(3000);

void DeclareHandlers() {
    for (const Handler& handler : Handlers()) {
        auto* declared = benchmark::RegisterBenchmark(handler.name, Measure, handler)->Apply(Sizes);
        if (handler.writes)
            declared->UseRealTime();
    }
}

void PrintMemory() {
    const StarterWorld starter;
    const World one(1, 1);
    const World full(32767, 50);
    const double empty = RunWindow("empty");
    const double program = RunWindow(starter.root);
    const double items = RunWindow(full.root, "Alles") - RunWindow(one.root, "Alles");
    std::cout << "\n| Memory | MB | Beside | Ratio |\n|---|---|---|---|\n"
              << "| An empty window | " << Digits(empty) << " | | |\n"
              << "| The window over the starter files | " << Digits(program)
              << " | an empty window | " << Digits(program / empty) << " |\n"
              << "| 32767 items in view, beyond a single one | " << Digits(items)
              << " | their bytes on disk | " << Digits(items / full.Megabytes()) << " |\n";
}

} // namespace
} // namespace emporium::bench

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    emporium::ui::SetUpApplication(application);
    emporium::bench::DeclareHandlers();
    emporium::bench::RunAll(argc, argv);
    emporium::bench::PrintMemory();
}
