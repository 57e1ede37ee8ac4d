// The window: its first painted frame beside that of an empty one, the list of all items, and a
// print to a PDF file.
#include "World.h"

#include "documents/ShopDocument.h"
#include "shopeditor/ShopList.h"
#include "ui/Application.h"
#include "ui/MainWindow.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace emporium::bench {
namespace {

// Shows the window and returns when its contents have been painted.
void Paint(QWidget& window) {
    window.show();
    window.repaint();
    QApplication::processEvents();
}

void EmptyWindow(benchmark::State& state) {
    for (auto _ : state) {
        QWidget window;
        window.setFixedSize(632, 453);
        Paint(window);
    }
}

void MainWindowStart(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), 50);
    for (auto _ : state) {
        ui::MainWindow window(world.root);
        Paint(window);
    }
}

void ChooseAll(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), 50);
    ui::MainWindow window(world.root);
    Paint(window);
    auto* list = window.findChild<QComboBox*>("cmbKategorien");
    for (auto _ : state) {
        emit list->activated(list->findText("Alles"));
        window.repaint();
    }
}

void PrintPdf(benchmark::State& state) {
    QTemporaryDir folder;
    World world(1, 1);
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

BENCHMARK(EmptyWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(MainWindowStart)->Arg(500)->Arg(32767)->Unit(benchmark::kMillisecond);
BENCHMARK(ChooseAll)->Arg(500)->Arg(5000)->Arg(32767)->Unit(benchmark::kMillisecond);
BENCHMARK(PrintPdf)->Arg(100)->Arg(3000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace emporium::bench

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    emporium::ui::SetUpApplication(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
