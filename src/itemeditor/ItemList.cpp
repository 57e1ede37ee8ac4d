#include "itemeditor/ItemList.h"

#include "itemeditor/ItemForm.h"
#include "text/GermanOrder.h"

#include <algorithm>

namespace emporium {

std::string_view ItemCell(const RecordView& record, int column) {
    return column == ItemNameColumn ? ItemName(record) : record[PriceField];
}

namespace {

void ArrangeItemList(ItemEditor& editor) {
    auto& list = editor.lvGegenstände;
    list.rows = GermanOrderOf(editor.Items.size(), list.sort.descending, [&](std::size_t row) {
        return ItemCell(editor.Items[row].record, list.sort.column);
    });
    ++list.revision;
}

} // namespace

void FillItemList(ItemEditor& editor) {
    ArrangeItemList(editor);
    editor.lvGegenstände.reveal.Show(ChosenPlace(editor));
}

void AddItemRow(ItemEditor& editor, int record) {
    auto& list = editor.lvGegenstände;
    const auto cell = [&](int row) { return ItemCell(editor.Record(row), list.sort.column); };
    const auto before = [&](int left, int right) {
        if (cell(left) == cell(right))
            return left < right;
        return list.sort.descending ? GermanLess(cell(right), cell(left))
                                    : GermanLess(cell(left), cell(right));
    };
    const auto place = std::lower_bound(list.rows.begin(), list.rows.end(), record, before);
    list.reveal.Show(static_cast<int>(place - list.rows.begin()));
    list.rows.insert(place, record);
    ++list.revision;
}

void DropItemRow(ItemEditor& editor, int record) {
    auto& list = editor.lvGegenstände;
    auto& rows = list.rows;
    const auto gap = rows.erase(std::find(rows.begin(), rows.end(), record));
    const auto place = std::min(gap - rows.begin(), std::ssize(rows) - 1);
    for (int& row : rows)
        if (row > record)
            --row;
    editor.CurrentItemRow = place < 0 ? -1 : rows[static_cast<std::size_t>(place)];
    list.toolTip.clear();
    list.reveal.Show(static_cast<int>(place));
    ++list.revision;
}

void PlaceItemRow(ItemEditor& editor, int record) {
    auto& rows = editor.lvGegenstände.rows;
    rows.erase(std::find(rows.begin(), rows.end(), record));
    AddItemRow(editor, record);
    if (record == editor.CurrentItemRow)
        editor.lvGegenstände.toolTip = ItemName(editor.Record(record));
}

void SortItemList(ItemEditor& editor, int column) {
    editor.lvGegenstände.sort.Click(column);
    ArrangeItemList(editor);
}

void ChooseItemRow(ItemEditor& editor, const Platform& platform, int record) {
    editor.EditingExisting = true;
    editor.CurrentItemRow = record;
    ShowItemInForm(editor, platform, record);
    editor.lvGegenstände.toolTip = ItemName(editor.Record(record));
}

int ChosenPlace(const ItemEditor& editor) {
    const auto& rows = editor.lvGegenstände.rows;
    const auto found = std::find(rows.begin(), rows.end(), editor.CurrentItemRow);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

} // namespace emporium
