#include "frame/frmEmporiumMain.h"

#include "shopeditor/ShopList.h"

namespace emporium {

void ShowItemEditor(frmEmporiumMain& window) {
    window.mode = Mode::ItemEditor;
    window.items.cmdItemHin.visible = false;
}

void ShowShopEditor(frmEmporiumMain& window) {
    window.mode = Mode::ShopEditor;
    window.items.cmdItemHin.visible = true;
    if (!window.items.lvGegenstände.visible)
        window.items.cmdItemHin.enabled = false;
    UpdateShopButtons(window.shop);
}

void OpenHelp(const Platform& platform) {
    platform.OpenInViewer(platform.disk.folders.HilfeFolder / "Emporium.htm");
}

} // namespace emporium
