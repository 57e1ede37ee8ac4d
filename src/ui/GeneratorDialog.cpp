#include "ui/GeneratorDialog.h"

#include "generator/ShopGeneration.h"
#include "ui/Build.h"
#include "ui/Text.h"

#include <QCheckBox>

namespace emporium::ui {

GeneratorDialog::GeneratorDialog(QWidget* window, Session& session)
    : QDialog(window, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      session_(session) {
    auto& dialog = session_.state.generator;
    setObjectName("frmEmporiumGenerator");
    setWindowTitle(ToQString(GeneratorCaption()));
    setFixedSize(Px(4200), Px(4920));
    QPalette grey = palette();
    grey.setColor(QPalette::Window, CaptionFrame::Grey);
    setPalette(grey);
    const auto build = [&](const char* frame, const QString& caption, int top, const char* name,
                           const ChoiceList& state, void (*choose)(frmEmporiumGenerator&, int)) {
        Place(BuildChoice(session_, BuildFrame(frame, caption, top, 615), name, caption, state,
                          [&dialog, choose](int index) { choose(dialog, index); }),
              120, 240, 3735, 315);
    };
    build("Frame1", "Art des Shops", 120, "cmbShopBeruf", dialog.cmbShopBeruf, ChooseShopType);
    build("Frame3", "Preise", 960, "cmbShopPreise", dialog.cmbShopPreise, ChooseGeneratorPrices);
    build("Frame2", "Qualität", 1800, "cmbShopQualität", dialog.cmbShopQualität,
          ChooseGeneratorQuality);
    BuildRegion();

    auto* start = Place(Named(new QPushButton("Shop berechnen lassen", this), "cmdStart"), 0, 4440,
                        4215, 495);
    start->setDefault(true);
    session_.mirror.Bind(start, dialog.cmdStart);
    connect(start, &QPushButton::clicked, this, [&] {
        session_.Do([&] { GenerateShop(dialog, session_.state.shop, session_.platform); });
    });
    session_.mirror.Bind([this, &dialog] {
        if (!dialog.open && isVisible())
            accept();
    });
}

CaptionFrame* GeneratorDialog::BuildFrame(const char* name, const QString& caption, int top,
                                          int height) {
    auto* frame = new CaptionFrame(this, CaptionFrame::Look::Grey, caption);
    return Place(Named(frame, name), 120, top, 3975, height);
}

void GeneratorDialog::BuildRegion() {
    auto& state = session_.state;
    auto& dialog = state.generator;
    auto* frame = BuildFrame("Frame4", "Region", 2640, 1575);
    auto* counts = new QCheckBox("Region in die Berechnung miteinbeziehen", frame);
    Place(Named(counts, "chkShopRegion"), 120, 240, 3735, 255);
    session_.mirror.Bind(counts, dialog.chkShopRegion);
    connect(counts, &QCheckBox::clicked, this,
            [this, &dialog](bool ticked) { session_.Do([&] { TickShopRegion(dialog, ticked); }); });
    Place(BuildChoice(session_, frame, "cmbShopRegion", "Region", dialog.cmbShopRegion,
                      [&](int index) { ChooseGeneratorRegion(dialog, session_.platform, index); }),
          120, 600, 3735, 315);
    Place(BuildRegionName(session_, frame, dialog.lblRegionen), 120, 960, 3735, 495);
}

} // namespace emporium::ui
