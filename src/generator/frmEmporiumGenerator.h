// The generator dialog: which shop is to be computed. Opening it empties the shop; its button
// starts the run (see ShopGeneration), which closes it.
#pragma once

#include "base/Controls.h"
#include "base/Platform.h"
#include "shopeditor/ShopEditor.h"

#include <string>

namespace emporium {

struct frmEmporiumGenerator {
    frmEmporiumGenerator();

    bool open = false;
    ChoiceList cmbShopBeruf{ChoiceList::Order::Sorted};
    ChoiceList cmbShopPreise;
    ChoiceList cmbShopQualität;
    CheckBox chkShopRegion;
    ChoiceList cmbShopRegion;
    Label lblRegionen;
    Button cmdStart;
};

/// The dialog's caption.
std::string GeneratorCaption();

/// Asks before a shop that has wares is thrown away, then opens the dialog with no choice made and
/// the shop emptied. Returns when the dialog has been closed.
void OpenGenerator(frmEmporiumGenerator& dialog, ShopEditor& shop, const Platform& platform);

/// Choices in the dialog's lists, and the check box.
void ChooseShopType(frmEmporiumGenerator& dialog, int index);
void ChooseGeneratorPrices(frmEmporiumGenerator& dialog, int index);
void ChooseGeneratorQuality(frmEmporiumGenerator& dialog, int index);
void ChooseGeneratorRegion(frmEmporiumGenerator& dialog, const Platform& platform, int index);
void TickShopRegion(frmEmporiumGenerator& dialog, bool ticked);

/// A run needs a type, prices and a quality, and a region if that is to count.
void UpdateStartButton(frmEmporiumGenerator& dialog);

} // namespace emporium
