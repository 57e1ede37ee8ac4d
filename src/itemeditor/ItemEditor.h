// The state of the item editor: the records of the view that is chosen, and the controls that show
// and edit them. The operations are in CategoryChoice (views and categories), ItemList, ItemForm,
// AvailabilityEditor and ItemSaving.
#pragma once

#include "base/Controls.h"
#include "base/Variablen.h"
#include "regions/AtlasEngine.h"
#include "store/CategoryFiles.h"

#include <array>
#include <string>
#include <vector>

namespace emporium {

/// A category file that the view shows.
struct ViewFile {
    std::string name;
    SharedText bytes;         // as last read or written
    bool canBeWritten = true; // false if the view does not hold all of it
};

/// A record of the view, within the bytes of its file.
struct ItemRow {
    RecordView record;
    int home = 0; // the index of its file in viewFiles
};

/// The item list. A row is the index of its record in Items; the rows stand in the sort order.
struct ItemListView {
    std::vector<int> rows;
    ListSort sort;
    std::string toolTip;
    bool visible = false;
    unsigned revision = 0; // grows with every change of what the rows show
};

struct ItemEditor {
    ItemEditor();

    std::vector<ViewFile> viewFiles;
    std::vector<ItemRow> Items;

    int CurrentItemRow = -1; // index in Items, also the list's chosen row; -1 for none
    bool EditingExisting = false;

    ChoiceList cmbKategorien{ChoiceList::Order::Sorted, {AllCategories}};
    Button cmdKategorieNeu, cmdKategorieDelete, cmdListeDrucken;
    ItemListView lvGegenstände;
    Button cmdItemNeu, cmdItemDelete, cmdItemSave;
    Button cmdItemHin;

    std::array<TextField, 4> txtItem; // name, weight, price number, description
    ChoiceList cmbItemKategorien{ChoiceList::Order::Sorted, {AllCategories}};
    ChoiceList cmbItemPreis;
    ChoiceList cmbItemWert;

    ChoiceList lstRegionen{ChoiceList::Order::Sorted};
    ChoiceList lstVerfügbar{ChoiceList::Order::Sorted};
    Label lblRegionen;

    int ItemCount() const { return static_cast<int>(Items.size()); }

    const RecordView& Record(int row) const { return Items[static_cast<std::size_t>(row)].record; }

    int HomeOf(int row) const { return Items[static_cast<std::size_t>(row)].home; }

    const ViewFile& FileAt(int home) const { return viewFiles[static_cast<std::size_t>(home)]; }
};

} // namespace emporium
