#include "itemeditor/ItemView.h"

#include "store/CategoryFaults.h"
#include "store/RecordReader.h"
#include "store/RecordText.h"

#include <algorithm>
#include <utility>

namespace emporium {

void AddToView(ItemView& view, const std::string& name, const CategoryFile& file,
               std::vector<std::string>& faults) {
    const auto found = CategoryFaults(name, file);
    faults.insert(faults.end(), found.begin(), found.end());
    const auto room = static_cast<std::size_t>(MaxRows - view.ItemCount());
    const auto count = std::min(room, file.records.size());
    if (count < file.records.size())
        faults.push_back(
            CategoryLine(name, "Die Ansicht fasst höchstens 32767 Gegenstände. Was darüber "
                               "hinausgeht, wird nicht gezeigt, und die Datei wird von hier aus "
                               "nicht verändert."_ansi));
    const int home = static_cast<int>(view.viewFiles.size());
    for (std::size_t i = 0; i < count; ++i)
        view.Items.push_back({file.records[i], home});
    view.viewFiles.push_back(
        {name, file.bytes, file.CanBeWritten() && count == file.records.size()});
}

int ViewFileOf(const ItemView& view, std::string_view category) {
    const auto found =
        std::find_if(view.viewFiles.begin(), view.viewFiles.end(),
                     [category](const ViewFile& file) { return file.name == category; });
    return found == view.viewFiles.end() ? -1 : static_cast<int>(found - view.viewFiles.begin());
}

int RowLike(const ItemView& view, const ItemView& before, int row) {
    const auto& name = before.FileAt(before.HomeOf(row)).name;
    for (int i = 0; i < view.ItemCount(); ++i)
        if (view.Record(i) == before.Record(row) && view.FileAt(view.HomeOf(i)).name == name)
            return i;
    return -1;
}

std::string FileTextWith(const ItemView& view, const RowChange& change) {
    const std::string& bytes = *view.FileAt(change.home).bytes;
    if (change.row == view.ItemCount())
        return WithRecords(bytes, {*change.record});
    const RecordView& place = view.Record(change.row);
    return change.record ? WithRecordAt(bytes, place, *change.record)
                         : WithoutRecordAt(bytes, place);
}

void TakeOver(ItemView& view, const RowChange& change, SharedText text) {
    if (change.row == view.ItemCount())
        view.Items.push_back({{}, change.home});
    else if (!change.record)
        view.Items.erase(view.Items.begin() + change.row);
    RecordReader reader(*text);
    for (ItemRow& row : view.Items)
        if (row.home == change.home)
            reader.Next(row.record);
    view.viewFiles[static_cast<std::size_t>(change.home)].bytes = std::move(text);
}

} // namespace emporium
