#include "base/Controls.h"

#include "base/GermanOrder.h"

#include <algorithm>

namespace emporium {

ChoiceList::ChoiceList(Order order, const std::vector<std::string_view>& entries) : order_(order) {
    for (const std::string_view entry : entries)
        Add(entry);
}

std::string ChoiceList::Text() const {
    return selection_ < 0 ? std::string() : entries_[static_cast<std::size_t>(selection_)];
}

void ChoiceList::Add(std::string_view entry) {
    auto place = entries_.end();
    if (order_ == Order::Sorted)
        place = std::upper_bound(entries_.begin(), entries_.end(), entry, GermanLess);
    if (place - entries_.begin() <= selection_)
        ++selection_;
    entries_.emplace(place, entry);
}

void ChoiceList::RemoveSelected() {
    if (selection_ < 0)
        return;
    entries_.erase(entries_.begin() + selection_);
    selection_ = -1;
}

void ChoiceList::Select(int index) {
    selection_ = index < static_cast<int>(entries_.size()) ? std::max(index, -1) : -1;
}

} // namespace emporium
