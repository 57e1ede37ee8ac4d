#include "base/Controls.h"

#include "text/GermanOrder.h"

#include <algorithm>

namespace emporium {

ChoiceList::ChoiceList(Order order, const std::vector<std::string_view>& entries) : order_(order) {
    AddAll({entries.begin(), entries.end()});
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

void ChoiceList::AddAll(const std::vector<std::string>& entries) {
    entries_.insert(entries_.end(), entries.begin(), entries.end());
    if (order_ == Order::AsAdded)
        return;
    const auto order = GermanOrderOf(
        entries_.size(), false, [this](std::size_t i) { return std::string_view(entries_[i]); });
    std::vector<std::string> sorted;
    sorted.reserve(order.size());
    for (const int i : order)
        sorted.push_back(std::move(entries_[static_cast<std::size_t>(i)]));
    entries_ = std::move(sorted);
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
