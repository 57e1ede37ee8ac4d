#include "generator/ShopGeneration.h"

#include "files/FileFailure.h"
#include "generator/ShopTypes.h"
#include "generator/WareFiles.h"
#include "regions/AtlasEngine.h"
#include "regions/Availability.h"
#include "shopeditor/ShopFields.h"
#include "shopeditor/ShopList.h"
#include "shopeditor/ShopPricing.h"
#include "store/CategoryFaults.h"
#include "store/RecordReader.h"

#include <algorithm>
#include <array>

namespace emporium {

namespace {

// The first throw must reach N - quality, N by the Wert digits 1 to 5.
constexpr std::array<int, 5> RarityThresholds = {4, 5, 6, 7, 9};

constexpr int StartDistance = 20; // above every distance

bool PassesRarity(std::string_view nameLine, int quality, const Die& RollDice) {
    const char digit = nameLine.empty() ? ' ' : nameLine.back();
    if (digit < '1' || digit > '5')
        return false;
    return RollDice(6) >= RarityThresholds[static_cast<std::size_t>(digit - '1')] - quality;
}

// The distance from the nearest region where the ware is made.
int NearestDistance(std::string_view availability, std::string_view region) {
    if (availability.find(region) != availability.npos)
        return 0;
    // Three characters a code, rounded; a string of another form may have fewer entries.
    const std::size_t codes = (availability.size() + 1) / 3;
    const auto entries = AvailabilityCodes(availability);
    int smallest = StartDistance;
    for (std::size_t i = 0; i < std::min(codes, entries.size()) && smallest != 1; ++i) {
        const int distance = RegionDistance(entries[i], region).value_or(0);
        smallest = std::min(smallest, distance);
    }
    return smallest;
}

bool PassesRegion(std::string_view availability, std::string_view region, const Die& RollDice) {
    if (availability.empty())
        return false;
    return RollDice(20) < 20 - 3 * NearestDistance(availability, region);
}

// Draws from one category into the shop, without regard to the list's order.
enum class Drawn { All, CutOff, ShopIsFull };

Drawn DrawCategory(const SharedText& text, const ShopWishes& wishes, const Die& RollDice,
                   ShopEditor& shop) {
    RecordReader reader(*text);
    for (RecordView record; reader.Next(record);) {
        if (!DrawRecord(record, wishes, RollDice))
            continue;
        if (ShopIsFull(shop))
            return Drawn::ShopIsFull;
        shop.lvLaden.rows.push_back(MakeShopRow(record, text));
    }
    return reader.CutOff() ? Drawn::CutOff : Drawn::All;
}

void DrawShop(const frmEmporiumGenerator& dialog, ShopEditor& shop, const Platform& platform,
              std::vector<std::string>& faults) {
    const std::string region = dialog.cmbShopRegion.Text();
    const ShopWishes wishes{dialog.cmbShopQualität.Selection() + 1, dialog.chkShopRegion.ticked,
                            region};
    const IniSection type = ReadTypeConfig(platform.disk, dialog.cmbShopBeruf.Text(), faults);
    const auto count = ReadWareCount(type);
    if (!count && faults.empty())
        faults.emplace_back("ShopgeneratorConfig.dat: Zu dieser Shopart fehlt die Zeile WareCount, "
                            "oder sie nennt keine Zahl.");
    shop.lvLaden.rows.reserve(MaxRows); // growing would move them all again and again
    WareFiles files(platform.disk, faults);
    for (int n = 1; n <= count.value_or(0); ++n) {
        const std::string name = ReadWareCategory(type, static_cast<std::int16_t>(n));
        switch (DrawCategory(files.Text(name), wishes, platform.RollDice, shop)) {
        case Drawn::All:
            break;
        case Drawn::CutOff:
            faults.push_back(CategoryLine(name, RecordIsCutOff));
            break;
        case Drawn::ShopIsFull:
            faults.emplace_back(ShopFullText);
            return;
        }
    }
}

// The choices count like choices of the user.
void HandOver(const frmEmporiumGenerator& dialog, ShopEditor& shop, const Platform& platform) {
    ChooseShopQuality(shop, dialog.cmbShopQualität.Selection());
    if (shop.ShopCount() > 0)
        ChoosePriceLevel(shop, dialog.cmbShopPreise.Selection());
    ChooseShopRegion(shop, platform, dialog.cmbShopRegion.Selection());
    EditShopText(shop.txtShopart, dialog.cmbShopBeruf.Text());
}

} // namespace

bool DrawRecord(const RecordView& record, const ShopWishes& wishes, const Die& RollDice) {
    return PassesRarity(record[NameField], wishes.quality, RollDice) &&
           (!wishes.regionCounts ||
            PassesRegion(record[AvailabilityField], wishes.region, RollDice));
}

void GenerateShop(frmEmporiumGenerator& dialog, ShopEditor& shop, const Platform& platform) {
    platform.SetWaitPointer(true);
    std::vector<std::string> faults;
    DrawShop(dialog, shop, platform, faults);
    ArrangeShopList(shop);
    UpdateShopButtons(shop);
    HandOver(dialog, shop, platform);
    platform.SetWaitPointer(false);
    dialog.open = false;
    if (!faults.empty())
        platform.ShowMessage(FaultsText(faults));
    if (const std::string unclear = UnclearPricesText(shop); !unclear.empty())
        platform.ShowMessage(unclear);
}

} // namespace emporium
