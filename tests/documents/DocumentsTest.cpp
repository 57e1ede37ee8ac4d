#include "documents/ItemListDocument.h"
#include "documents/PrintHost.h"
#include "documents/ShopDocument.h"
#include "documents/ShopExport.h"
#include "itemeditor/ItemList.h"
#include "regions/Availability.h"
#include "shopeditor/ShopFields.h"
#include "shopeditor/ShopList.h"
#include "shopeditor/ShopPricing.h"
#include "support/MemoryDisk.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

std::string Head(std::string_view title) {
    return Lines(
        {"<html>", "<head>", std::string("<title>").append(title).append("</title>"), "</head>"});
}

const std::string TableTop = Lines({
    R"(<table border="1" width="100%" bordercolor="#FFFFFF" cellspacing="0" bordercolorlight="#FFFFFF" bordercolordark="#C0C0C0">)",
    "<tr>",
    "<TD bgcolor=white FontColor=black><b>NAME:</b></TD>",
    "<TD bgcolor=white FontColor=black><b>GEWICHT:</b></TD>",
    "<TD bgcolor=white FontColor=black><b>PREIS:</b></TD>",
});
constexpr std::string_view RegionsCaption =
    "<TD bgcolor=white FontColor=black><b>VERFÜGBAR IN:</b></TD>"_ansi;
constexpr std::string_view ButFour =
    "Alle, ausser NO, TH, OR, WE, TO, HA, ZW, PU, LF, ZY, KH, MH, MA, SÜ, MO, WA, "_ansi;

// A row's lines, of the widths and texts of its cells.
std::string Row(std::initializer_list<std::pair<std::string_view, std::string_view>> cells) {
    std::string row = Lines({"<tr>"});
    for (const auto& [width, text] : cells)
        row += "<td width=\"" + std::string(width) + "\"><small><font face=\"Arial\">" +
               std::string(text) + "</font></small></td>\r\n";
    return row + Lines({"</tr>"});
}

ShopEditor FilledShop() {
    ShopEditor shop;
    AddShopRow(shop, MakeShopRow({"Seil (x3)2", "0,5", "12D", "Text", "BO|EL|FI|GA|"}));
    AddShopRow(shop, MakeShopRow({"<Öl> & Fett1"_ansi, "", "7S", "", "GA|"}));
    ChoosePriceLevel(shop, 1);
    SortShopList(shop, ShopTextColumn);
    EditShopText(shop.txtName, std::string("Zur Öse"_ansi));
    shop.txtShopart.text = "Krämer"_ansi;
    shop.txtBesitzerName.text = "Ada, Tochter des Olf";
    shop.cmbShopRegion.Select(13);
    shop.cmbShopQualität.Select(3);
    return shop;
}

const std::string Choices =
    Lines({"<B>Region: </B> SÜ</BR>"_ansi, "<B>Preise: </B> Billig</BR>",
           "<B>Qualität: </B> Sehr gut</BR>"_ansi, "</BR>", "</BR>", "</BR>"});

TEST(ShopDocument, TheExportIsTheKnownPageLineByLine) {
    std::string file;
    WriteShopExport(FilledShop(), file);
    EXPECT_EQ(file, Head("Zur Öse"_ansi) +
                        Lines({"<H1>Zur Öse</H1>"_ansi, "<B>Name des Shops: </B> Zur Öse</BR>"_ansi,
                               "<B>Shopart: </B> Krämer</BR>"_ansi,
                               "<B>Besitzer/in: </B> Ada, Tochter des Olf</BR>"}) +
                        Choices + TableTop + Lines({"</tr>"}) +
                        Row({{"50%", "Seil (x3)"}, {"40%", "0,5 Unzen"}, {"10%", "10,2D"}}) +
                        Row({{"50%", "<Öl> & Fett"_ansi}, {"40%", " Unzen"}, {"10%", "5,95S"}}) +
                        Lines({"</tr>", "</table>"}));
}

TEST(ShopDocument, ThePrintFormShowsTheRegionsAndNoUnit) {
    std::string file;
    WriteShopPrint(FilledShop(), file);
    EXPECT_EQ(
        file,
        Head("Zur Öse"_ansi) +
            Lines({"<H1>Zur Öse</H1>"_ansi, "<B>Shopart: </B> Krämer</BR>"_ansi,
                   "<B>Besitzer: </B> Ada, Tochter des Olf</BR>"}) +
            Choices + TableTop + Lines({RegionsCaption, "</tr>"}) +
            Row({{"35%", "Seil (x3)"}, {"15%", "0,5"}, {"15%", "10,2D"}, {"35%", ButFour}}) +
            Row({{"35%", "<Öl> & Fett"_ansi}, {"15%", ""}, {"15%", "5,95S"}, {"25%", "GA|"}}) +
            Lines({"</table>"}));
}

TEST(ItemListDocument, ThePageIsTheListInItsOrderLineByLine) {
    ItemEditor editor;
    editor.cmbKategorien.Select(0);
    editor.Items = {{"Zange 23", "12", "8S", "Text", "GA|PU|"},
                    {"Ähre1"_ansi, "0,5", "3H", "", ""},
                    {"Beil2", "", "5S", "", FullAvailability()}};
    FillItemList(editor);
    const std::string top = Head("Alles") + TableTop + Lines({RegionsCaption, "</tr>"});
    const std::string ear = Row({{"35%", "Ähre"_ansi}, {"15%", "0,5"}, {"15%", "3H"}, {"25%", ""}});
    const std::string axe =
        Row({{"35%", "Beil"}, {"15%", ""}, {"15%", "5S"}, {"35%", "Überall"_ansi}});
    const std::string tongs =
        Row({{"35%", "Zange 2"}, {"15%", "12"}, {"15%", "8S"}, {"25%", "GA|PU|"}});
    const std::string bottom = Lines({"</table>"});
    std::string byName, byPrice;
    WriteItemList(editor, byName);
    EXPECT_EQ(byName, top + ear + axe + tongs + bottom);
    SortItemList(editor, ItemPriceColumn);
    WriteItemList(editor, byPrice);
    EXPECT_EQ(byPrice, top + tongs + axe + ear + bottom);
}

TEST(ShopExport, IsWrittenAndShownOnlyIfTheUserWantsIt) {
    const ProgramFolder program;
    ScriptedPlatform script{program.folders};
    std::filesystem::path target = program.folders.HtmlFolder / "Laden.html";
    int viewed = 0;
    script.platform.ShowSave = [&](const auto& folder, std::string_view) {
        EXPECT_EQ(folder, program.folders.HtmlFolder);
        EXPECT_TRUE(std::filesystem::is_directory(folder)) << "made when it is needed";
        return target;
    };
    script.platform.OpenInViewer = [&](const auto& file) { viewed += file == target ? 1 : 10; };
    ShopEditor shop;
    std::string document;
    WriteShopExport(shop, document);
    std::filesystem::remove_all(program.folders.HtmlFolder);
    for (const bool show : {false, true}) {
        script.ExpectYesNo(
            "Der Shop wurde erfolgreich erstellt, wollt ihr euch diesen nun ansehen ?.", show);
        ExportShop(shop, script.platform);
        EXPECT_EQ(viewed, show ? 1 : 0);
        EXPECT_EQ(SystemFiles().read(target, LargestFile).bytes, document);
    }
    target = program.root / "fehlt" / "Laden.html";
    script.ExpectMessage("Der Laden konnte nicht gespeichert werden.\n\nDatei: ");
    ExportShop(shop, script.platform);
    target.clear();
    ExportShop(shop, script.platform);
}

struct Course {
    std::string calls, box;
    int readyAfter = 3; // rounds of events
    bool readable = true, staysOpen = true, printed = true;
};

struct Printing : Course {
    explicit Printing(const Course& course = {}) : Course(course) {
        script.platform.disk.files = disk.Files();
        script.platform.PreviewTimeout = std::chrono::hours(readyAfter);
        auto& [setVisible, navigate, print] = script.platform.Browser;
        setVisible = [this](bool visible) { made += visible ? "show " : "hide "; };
        navigate = [this](const std::filesystem::path& file) {
            EXPECT_FALSE(host.PreviewReady) << "a report of an earlier page";
            EXPECT_EQ(disk.Find(file)->bytes, "Seite");
            made += "load ";
            return readable;
        };
        print = [this] { return made += "print ", printed; };
        script.platform.ProcessEvents = [this] {
            PrintTempDocument(host, script.platform, [](std::string&) { FAIL() << "a second"; });
            host.PreviewReady = ++rounds == readyAfter;
            return staysOpen;
        };
        ReportPage(host);
    }

    void Print() {
        PrintTempDocument(host, script.platform, [](std::string& page) { page = "Seite"; });
    }

    MemoryDisk disk;
    ScriptedPlatform script{disk.folders};
    PrintHost host;
    std::string made; // calls
    int rounds = 0;
};

TEST(PrintHost, APrintIsLoadedAwaitedAndPrintedOrToldInABox) {
    constexpr auto notLoaded = "Die Druckseite konnte nicht geladen werden.\n\nDatei: ";
    for (const Course& course : {Course{"load print ", ""},
                                 {"load ", notLoaded, 0},
                                 {"load ", notLoaded, 3, false},
                                 {"load ", "", 3, true, false},
                                 {"load print ", "Es wurde nichts", 3, true, true, false}}) {
        Printing here(course);
        here.disk.names.erase(here.disk.folders.TempFolder.generic_u8string()); // made when needed
        if (!here.box.empty())
            here.script.ExpectMessage(here.box);
        here.Print();
        EXPECT_EQ(here.made, "show " + here.calls + "hide ");
        EXPECT_FALSE(here.host.busy || here.host.PreviewReady);
    }
}

TEST(PrintHost, WhicheverCallBreaksTheWholePageIsPrintedOrABoxTellsWhyNot) {
    Sweep([](Trouble trouble, int n) {
        Printing here;
        const auto temporary = here.disk.folders.TempFolder / "Temp.html";
        here.disk.Put(temporary, "Alt");
        here.script.platform.SetWaitPointer = [](bool) {};
        here.script.platform.ShowMessage = [&here](std::string_view text) {
            EXPECT_TRUE(text.starts_with("Die Druckseite konnte nicht geschrieben werden."));
            here.made += "told ";
        };
        const bool reached = here.disk.Suffer(trouble, n, 0, [&here] { here.Print(); });
        const bool printed = here.made == "show load print hide ";
        const bool killed = reached && trouble >= Trouble::Killed;
        EXPECT_TRUE(printed || here.made == (killed ? "show " : "show hide told ")) << here.made;
        here.disk.Restart(trouble);
        const std::string& page = here.disk.Find(temporary)->bytes;
        EXPECT_TRUE(page == "Seite" || (!printed && page == "Alt")) << page;
        return reached;
    });
}

} // namespace
} // namespace emporium::test
