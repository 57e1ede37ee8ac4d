#include "itemeditor/CategoryDropDowns.h"

#include "store/CategoryList.h"

#include <algorithm>

namespace emporium {

namespace {

// The entry that was chosen stays chosen if there still is one of that name.
void ShowNames(ChoiceList& list, const std::vector<std::string>& names) {
    const std::string chosen = list.Text();
    list = ChoiceList(ChoiceList::Order::Sorted, {AllCategories});
    list.AddAll(names);
    const auto& entries = list.Entries();
    const auto place = std::find(entries.begin(), entries.end(), chosen) - entries.begin();
    list.Select(static_cast<int>(place));
}

} // namespace

void SetCategoryNames(ItemEditor& editor, const std::vector<std::string>& names) {
    ShowNames(editor.cmbKategorien, names);
    ShowNames(editor.cmbItemKategorien, names);
}

void ReadCategoryList(ItemEditor& editor, const Disk& disk, std::vector<std::string>& faults) {
    const CategoryList list = ReadCategoryNames(disk);
    const bool whole = list.state == FileText::State::Whole;
    std::string fault = CategoryListFault(list);
    if (!whole)
        fault += " Deshalb gibt es nur die Auswahl „Alles“."_ansi;
    if (!fault.empty())
        faults.push_back(std::move(fault));
    editor.cmdKategorieNeu.enabled = list.state != FileText::State::Unreadable;
    SetCategoryNames(editor, list.names);
}

} // namespace emporium
