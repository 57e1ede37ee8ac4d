#include "documents/ShopExport.h"

#include "documents/ShopDocument.h"
#include "files/FileWriting.h"

namespace emporium {

void ExportShop(const ShopEditor& shop, const Platform& platform) {
    platform.disk.files.createFolder(platform.disk.folders.HtmlFolder);
    const auto target =
        platform.ShowSave(platform.disk.folders.HtmlFolder, "HTML-Dateien (*.html)|*.html");
    if (target.empty())
        return;
    platform.SetWaitPointer(true);
    std::string document;
    WriteShopExport(shop, document);
    const auto failure = WriteDocument(platform.disk.files, target, document);
    platform.SetWaitPointer(false);
    if (failure) {
        platform.ShowMessage(FailureText("Der Laden konnte nicht gespeichert werden.", *failure));
        return;
    }
    if (platform.AskYesNo(
            {"Der Shop wurde erfolgreich erstellt, wollt ihr euch diesen nun ansehen ?."}))
        platform.OpenInViewer(target);
}

} // namespace emporium
