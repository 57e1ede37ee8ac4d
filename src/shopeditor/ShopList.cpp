#include "shopeditor/ShopList.h"

#include "text/GermanOrder.h"

#include <algorithm>

namespace emporium {

namespace {

using Rows = std::vector<ShopRow>;

ShopRow* CurrentRow(ShopEditor& shop) {
    auto& list = shop.lvLaden;
    return list.current < 0 ? nullptr : &list.rows[static_cast<std::size_t>(list.current)];
}

Rows::iterator SortedPlace(ShopListView& list, const ShopRow& row) {
    const auto before = [&list](const ShopRow& left, const ShopRow& right) {
        const auto a = ShopCell(left, list.sort.column);
        const auto b = ShopCell(right, list.sort.column);
        return list.sort.descending ? GermanLess(b, a) : GermanLess(a, b);
    };
    return std::upper_bound(list.rows.begin(), list.rows.end(), row, before);
}

// Has a row whose text changed in a column take its sorted place.
void PlaceCurrentRow(ShopListView& list, int column) {
    ++list.revision;
    if (list.sort.column != column) {
        list.reveal.Show(list.current);
        return;
    }
    auto row = std::move(list.rows[static_cast<std::size_t>(list.current)]);
    list.rows.erase(list.rows.begin() + list.current);
    const auto place = SortedPlace(list, row);
    list.current = static_cast<int>(place - list.rows.begin());
    list.rows.insert(place, std::move(row));
    list.reveal.Show(list.current);
}

// The current row; null, after a box, if there are rows and none is current.
ShopRow* DemandCurrentRow(ShopEditor& shop, const Platform& platform) {
    ShopRow* row = CurrentRow(shop);
    if (!row && shop.ShopCount() > 0)
        platform.ShowMessage("Bitte wählt zuerst eine Ware im Laden aus."_ansi);
    return row;
}

} // namespace

void AddShopRow(ShopEditor& shop, ShopRow row) {
    auto& list = shop.lvLaden;
    const auto place = SortedPlace(list, row);
    if (place - list.rows.begin() <= list.current)
        ++list.current;
    list.reveal.Show(static_cast<int>(place - list.rows.begin()));
    list.rows.insert(place, std::move(row));
    ++list.revision;
}

bool ShopIsFull(const ShopEditor& shop) {
    return shop.ShopCount() >= MaxRows;
}

void AddItemToShop(ShopEditor& shop, const ItemEditor& items, const Platform& platform) {
    if (items.CurrentItemRow < 0) {
        if (!items.Items.empty())
            platform.ShowMessage("Bitte wählt zuerst einen Gegenstand aus."_ansi);
        return;
    }
    if (ShopIsFull(shop)) {
        platform.ShowMessage(ShopFullText);
        return;
    }
    AddShopRow(shop, MakeShopRow(items.Record(items.CurrentItemRow)));
    UpdateShopButtons(shop);
}

void RemoveShopRow(ShopEditor& shop, const Platform& platform) {
    auto& list = shop.lvLaden;
    ShopRow* row = DemandCurrentRow(shop, platform);
    if (!row)
        return;
    shop.removed.push_back(std::move(*row));
    list.rows.erase(list.rows.begin() + list.current);
    list.current = std::min(list.current, shop.ShopCount() - 1);
    list.toolTip.clear();
    list.reveal.Show(list.current);
    ++list.revision;
    UpdateShopButtons(shop);
}

void SetShopRowQuantity(ShopEditor& shop, const Platform& platform) {
    ShopRow* row = DemandCurrentRow(shop, platform);
    if (!row)
        return;
    const std::string answer = platform.AskText("Bitte gebt eine Zahl an, wie oft der Gegenstand "
                                                "im Shop vorhanden sein soll.",
                                                "bisher " + QuantityOf(*row));
    if (answer.empty())
        return;
    SetQuantity(*row, answer);
    shop.lvLaden.toolTip = row->WithQuantity;
    PlaceCurrentRow(shop.lvLaden, ShopTextColumn);
}

void SetShopRowPrice(ShopEditor& shop, const Platform& platform) {
    ShopRow* row = DemandCurrentRow(shop, platform);
    if (!row)
        return;
    std::string hint = "bisher " + row->Price.substr(0, row->Price.size() - row->Unit.size());
    if (!row->Unit.empty())
        hint.append(", die Währung "_ansi).append(row->Unit).append(" bleibt");
    const std::string answer = platform.AskText("Bitte gebt den neuen Preis ein.", hint);
    if (answer.empty())
        return;
    row->Price = std::string(answer).append(row->Unit);
    PlaceCurrentRow(shop.lvLaden, ShopPriceColumn);
}

void ChooseShopRow(ShopEditor& shop, int row) {
    shop.lvLaden.current = row;
    if (const ShopRow* current = CurrentRow(shop))
        shop.lvLaden.toolTip = ShopCell(*current, ShopTextColumn);
}

void ClearShop(ShopEditor& shop) {
    auto& list = shop.lvLaden;
    list.rows.clear();
    shop.removed.clear();
    list.current = -1;
    list.toolTip.clear();
    ++list.revision;
    shop.cmbShopPreise.Select(-1);
    UpdateShopButtons(shop);
}

void UpdateShopButtons(ShopEditor& shop) {
    const bool filled = shop.ShopCount() > 0;
    shop.cmdShopDelete.enabled = filled;
    shop.cmdShopAnzahl.enabled = filled;
    shop.cmbShopPreise.enabled = filled;
}

void SortShopList(ShopEditor& shop, int column) {
    shop.lvLaden.sort.Click(column);
    ArrangeShopList(shop);
}

void ArrangeShopList(ShopEditor& shop) {
    auto& list = shop.lvLaden;
    const auto order =
        GermanOrderOf(list.rows.size(), list.sort.descending, [&list](std::size_t row) {
            return ShopCell(list.rows[row], list.sort.column);
        });
    Rows arranged;
    arranged.reserve(order.size());
    for (const int row : order)
        arranged.push_back(std::move(list.rows[static_cast<std::size_t>(row)]));
    list.rows = std::move(arranged);
    if (list.current >= 0)
        list.current =
            static_cast<int>(std::find(order.begin(), order.end(), list.current) - order.begin());
    ++list.revision;
}

} // namespace emporium
