// What the category files and the item editor should hold, in the plainest form.
#pragma once

#include "support/EditorAtWork.h"
#include "text/GermanOrder.h"

#include <numeric>

namespace emporium::test {

struct Row {
    std::string category;
    ItemRecord record;
};

struct Model {
    std::vector<std::string> list;
    std::map<std::string, std::vector<ItemRecord>> files;
    std::string view, formCategory; // empty for none
    std::vector<Row> rows;
    int chosen = -1;
    bool editing = false;
    ItemRecord form;
    bool unit = false; // the form has one
    int column = ItemNameColumn;
    bool descending = false;
    int shown = -1; // the place that the list scrolled to last
    std::string toolTip;

    bool IsCategory(const std::string& name) const { return files.contains(name); }
    Row& Chosen() { return rows[static_cast<std::size_t>(chosen)]; }

    // The chosen record in its file.
    auto Stored() {
        const auto others =
            std::count_if(rows.begin(), rows.begin() + chosen,
                          [this](const Row& row) { return row.category == Chosen().category; });
        return files[Chosen().category].begin() + others;
    }

    void EndEditing() {
        editing = unit = false;
        form = {};
    }

    void Load(const std::string& wanted) {
        view = formCategory = wanted;
        rows.clear();
        for (const std::string& name : list)
            if (view == AllCategories || view == name)
                for (const ItemRecord& record : files[name])
                    rows.push_back({name, record});
        chosen = rows.empty() ? -1 : 0;
        shown = PlaceOf(chosen);
        toolTip.clear();
        EndEditing();
    }

    int PlaceOf(int row) const {
        const auto order = Order();
        const auto place = std::find(order.begin(), order.end(), row);
        return place == order.end() ? -1 : static_cast<int>(place - order.begin());
    }

    std::vector<int> Order() const {
        std::vector<int> order(rows.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(), [&](int left, int right) {
            if (descending)
                std::swap(left, right);
            const auto cell = [&](int row) {
                return ItemCell(ViewOf(rows[static_cast<std::size_t>(row)].record), column);
            };
            return GermanLess(cell(left), cell(right));
        });
        return order;
    }

    // The row that takes its place on the screen is chosen then, or the last one.
    void TakeOutChosen() {
        auto order = Order();
        auto next = order.erase(std::find(order.begin(), order.end(), chosen));
        if (next == order.end() && !order.empty())
            --next;
        files[Chosen().category].erase(Stored());
        rows.erase(rows.begin() + chosen);
        chosen = order.empty() ? -1 : *next - (*next > chosen ? 1 : 0);
        shown = PlaceOf(chosen);
        toolTip.clear();
        EndEditing();
    }

    bool CanSave() const {
        return form[NameField].size() > 1 && form[PriceField].size() > (unit ? 1U : 0U);
    }

    bool CanDrop() const { return rows.empty() && IsCategory(view) && !IsFixedCategory(view); }
};

} // namespace emporium::test
