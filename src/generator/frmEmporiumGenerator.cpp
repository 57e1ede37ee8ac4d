#include "generator/frmEmporiumGenerator.h"

#include "base/Variablen.h"
#include "files/FileFailure.h"
#include "generator/ShopTypes.h"
#include "regions/AtlasEngine.h"
#include "shopeditor/LevelTable.h"
#include "shopeditor/ShopList.h"

namespace emporium {

frmEmporiumGenerator::frmEmporiumGenerator()
    : cmbShopPreise(ChoiceList::Order::AsAdded, PriceLevelNames()),
      cmbShopRegion(ChoiceList::Order::AsAdded, AlphabeticalRegionCodes()) {
    for (std::size_t place = 0; place < Qualities.size(); ++place)
        cmbShopQualität.Add(std::to_string(place + 1).append(" - ").append(Qualities[place]));
    cmbShopRegion.enabled = false;
    cmdStart.enabled = false;
}

std::string GeneratorCaption() {
    return std::string(ProgramTitle) + " - Shopgenerator";
}

void OpenGenerator(frmEmporiumGenerator& dialog, ShopEditor& shop, const Platform& platform) {
    if (shop.ShopCount() > 0 &&
        !platform.AskYesNo({std::string("Ihr arbeitet momentan an einem Shop, beim Start des "
                                        "Generators werden sämtliche Werte verworfen ! Wollt ihr "
                                        "den Generator wirklich starten ?"_ansi),
                            BoxIcon::Warning}))
        return;
    dialog = frmEmporiumGenerator();
    std::vector<std::string> faults;
    dialog.cmbShopBeruf.AddAll(ReadShopTypes(platform.disk, faults));
    ClearShop(shop);
    if (!faults.empty())
        platform.ShowMessage(FaultsText(faults));
    dialog.open = true;
    platform.ShowGeneratorDialog();
    dialog.open = false;
}

void ChooseShopType(frmEmporiumGenerator& dialog, int index) {
    dialog.cmbShopBeruf.Select(index);
    UpdateStartButton(dialog);
}

void ChooseGeneratorPrices(frmEmporiumGenerator& dialog, int index) {
    dialog.cmbShopPreise.Select(index);
    UpdateStartButton(dialog);
}

void ChooseGeneratorQuality(frmEmporiumGenerator& dialog, int index) {
    dialog.cmbShopQualität.Select(index);
    UpdateStartButton(dialog);
}

void ChooseGeneratorRegion(frmEmporiumGenerator& dialog, const Platform& platform, int index) {
    dialog.cmbShopRegion.Select(index);
    dialog.lblRegionen.caption = RegionDescription(platform.disk, dialog.cmbShopRegion.Text());
    UpdateStartButton(dialog);
}

void TickShopRegion(frmEmporiumGenerator& dialog, bool ticked) {
    dialog.chkShopRegion.ticked = ticked;
    dialog.cmbShopRegion.enabled = ticked;
    UpdateStartButton(dialog);
    if (dialog.cmbShopRegion.Text().empty())
        dialog.cmdStart.enabled = false;
}

void UpdateStartButton(frmEmporiumGenerator& dialog) {
    if (dialog.cmbShopBeruf.Text().empty() || dialog.cmbShopPreise.Text().empty() ||
        dialog.cmbShopQualität.Text().empty())
        dialog.cmdStart.enabled = false;
    else if (!dialog.cmbShopRegion.Text().empty() || !dialog.chkShopRegion.ticked)
        dialog.cmdStart.enabled = true;
    // Otherwise the region is still missing, and the button keeps its state.
}

} // namespace emporium
