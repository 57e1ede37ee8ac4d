#include "shopeditor/ShopRow.h"

#include "text/Ansi.h"

namespace emporium {

ShopRow MakeShopRow(const RecordView& record, SharedText bytes) {
    const std::string_view price = record[PriceField];
    const std::string_view number = HasMark(record, PriceField) ? WithoutLast(price) : price;
    ShopRow row;
    row.bytes = std::move(bytes);
    row.ShopItemLine = record[NameField];
    row.Weight = record[WeightField];
    row.Unit = price.substr(number.size());
    row.ShopAvailability = record[AvailabilityField];
    row.base = ReadBasePrice(number);
    row.Price = price;
    return row;
}

ShopRow MakeShopRow(const RecordView& record) {
    std::string text;
    for (const std::string_view field : record)
        text += field;
    const auto bytes = std::make_shared<const std::string>(std::move(text));
    RecordView copy;
    for (std::size_t field = 0, begin = 0; field < copy.size(); begin += record[field++].size())
        copy[field] = std::string_view(*bytes).substr(begin, record[field].size());
    return MakeShopRow(copy, bytes);
}

std::string_view ShopCell(const ShopRow& row, int column) {
    if (column == ShopPriceColumn)
        return row.Price;
    return row.WithQuantity.empty() ? WithoutLast(row.ShopItemLine) : row.WithQuantity;
}

void SetQuantity(ShopRow& row, std::string_view quantity) {
    row.WithQuantity = WithoutLast(row.ShopItemLine);
    row.WithQuantity.append(" (x").append(quantity).append(")");
}

std::string QuantityOf(const ShopRow& row) {
    if (row.WithQuantity.empty())
        return "1";
    const std::size_t begin = WithoutLast(row.ShopItemLine).size() + std::string_view(" (x").size();
    return row.WithQuantity.substr(begin, row.WithQuantity.size() - begin - 1);
}

} // namespace emporium
