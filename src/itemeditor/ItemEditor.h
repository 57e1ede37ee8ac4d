// The state of the item editor: the records of the view that is chosen, and the controls that show
// and edit them. The operations are in the files beside this one.
#pragma once

#include "base/Controls.h"
#include "itemeditor/ItemView.h"

#include <array>
#include <string>
#include <vector>

namespace emporium {

/// The item list. A row is the index of its record in Items; the rows stand in the sort order.
struct ItemListView {
    std::vector<int> rows;
    ListSort sort;
    std::string toolTip;
    bool visible = false;
    unsigned revision = 0; // grows with every change of what the rows show
    ListReveal reveal;
};

struct ItemEditor : ItemView {
    ItemEditor();

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
};

/// Ties buttons to the view's having records.
void UpdateItemButtons(ItemEditor& editor);

} // namespace emporium
