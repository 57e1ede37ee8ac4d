#include "shopeditor/ShopList.h"

#include "text/GermanNumber.h"
#include "text/GermanOrder.h"

#include <algorithm>

namespace emporium {

namespace {

using Rows = decltype(ShopListView::rows);

ShopRow* CurrentRow(const ShopEditor& shop) {
    const auto& list = shop.lvLaden;
    return list.current < 0 ? nullptr : list.rows[static_cast<std::size_t>(list.current)].get();
}

int PlaceOf(const Rows& rows, const ShopRow* row) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [row](const auto& r) { return r.get() == row; });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

Rows::iterator SortedPlace(ShopListView& list, const ShopRow& row) {
    const auto before = [&list](const ShopRow& left, const std::unique_ptr<ShopRow>& right) {
        const auto a = ShopCell(left, list.sort.column);
        const auto b = ShopCell(*right, list.sort.column);
        return list.sort.descending ? GermanLess(b, a) : GermanLess(a, b);
    };
    return std::upper_bound(list.rows.begin(), list.rows.end(), row, before);
}

// Has a row whose text changed in a column take its sorted place.
void PlaceCurrentRow(ShopListView& list, int column) {
    ++list.revision;
    if (list.sort.column != column)
        return;
    auto row = std::move(list.rows[static_cast<std::size_t>(list.current)]);
    list.rows.erase(list.rows.begin() + list.current);
    const auto place = SortedPlace(list, *row);
    list.current = static_cast<int>(place - list.rows.begin());
    list.rows.insert(place, std::move(row));
}

} // namespace

std::unique_ptr<ShopRow> MakeShopRow(std::string_view nameLine, std::string_view weight,
                                     std::string_view price, std::string_view availability) {
    auto row = std::make_unique<ShopRow>();
    row->Text = WithoutLast(nameLine);
    row->Weight = weight;
    row->Price = price;
    row->ShopBasePrice = RoundToInt16(ReadGermanNumber(WithoutLast(price)).value_or(0));
    row->Unit = price.substr(WithoutLast(price).size());
    row->ShopItemLine = nameLine;
    row->ShopAvailability = availability;
    return row;
}

void AddShopRow(ShopEditor& shop, std::unique_ptr<ShopRow> row) {
    auto& list = shop.lvLaden;
    const auto place = SortedPlace(list, *row);
    if (place - list.rows.begin() <= list.current)
        ++list.current;
    list.rows.insert(place, std::move(row));
    ++list.revision;
}

bool ShopIsFull(const ShopEditor& shop) {
    return shop.ShopCount() >= MaxRows;
}

void AddItemToShop(ShopEditor& shop, const ItemEditor& items, const Platform& platform) {
    if (items.CurrentItemRow < 0)
        return;
    if (ShopIsFull(shop)) {
        platform.ShowMessage(ShopFullText);
        return;
    }
    const RecordView& record = items.Record(items.CurrentItemRow);
    AddShopRow(shop, MakeShopRow(record[NameField], record[WeightField], record[PriceField],
                                 record[AvailabilityField]));
    UpdateShopButtons(shop);
}

void RemoveShopRow(ShopEditor& shop) {
    auto& list = shop.lvLaden;
    if (list.current < 0)
        return;
    list.rows.erase(list.rows.begin() + list.current);
    list.current = std::min(list.current, shop.ShopCount() - 1);
    list.toolTip.clear();
    ++list.revision;
    UpdateShopButtons(shop);
}

void SetShopRowQuantity(ShopEditor& shop, const Platform& platform) {
    if (!CurrentRow(shop))
        return;
    const std::string answer = platform.AskText("Bitte gebt eine Zahl an, wie oft der Gegenstand "
                                                "im Shop vorhanden sein soll.");
    ShopRow* row = CurrentRow(shop);
    if (answer.empty() || !row)
        return;
    row->Text = std::string(WithoutLast(row->ShopItemLine)) + " (x" + answer + ")";
    PlaceCurrentRow(shop.lvLaden, ShopTextColumn);
}

void SetShopRowPrice(ShopEditor& shop, const Platform& platform) {
    if (!CurrentRow(shop))
        return;
    const std::string answer = platform.AskText("Bitte gebt den neuen Preis ein.");
    ShopRow* row = CurrentRow(shop);
    if (answer.empty() || !row)
        return;
    row->Price = answer + row->Unit;
    PlaceCurrentRow(shop.lvLaden, ShopPriceColumn);
}

void ChooseShopRow(ShopEditor& shop, int row) {
    shop.lvLaden.current = row;
    if (const ShopRow* current = CurrentRow(shop))
        shop.lvLaden.toolTip = current->Text;
}

void ClearShop(ShopEditor& shop) {
    auto& list = shop.lvLaden;
    list.rows.clear();
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
    const ShopRow* current = CurrentRow(shop);
    const auto order =
        GermanOrderOf(list.rows.size(), list.sort.descending, [&list](std::size_t row) {
            return ShopCell(*list.rows[row], list.sort.column);
        });
    Rows arranged;
    for (const int row : order)
        arranged.push_back(std::move(list.rows[static_cast<std::size_t>(row)]));
    list.rows = std::move(arranged);
    list.current = current ? PlaceOf(list.rows, current) : -1;
    ++list.revision;
}

std::string_view ShopCell(const ShopRow& row, int column) {
    return column == ShopPriceColumn ? row.Price : row.Text;
}

} // namespace emporium
