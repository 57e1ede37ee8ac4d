// What a control of a window shows, without the window system: the operations of the program change
// these states, and the window mirrors them. Members of the window structs bear the controls'
// names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

struct Button {
    bool enabled = true;
    bool visible = true;
};

struct TextField {
    std::string text;
};

struct Label {
    std::string caption;
};

struct CheckBox {
    bool ticked = false;
};

/// A list of texts with at most one selected: a drop-down list without text entry, or a list box.
class ChoiceList {
public:
    enum class Order { AsAdded, Sorted };

    explicit ChoiceList(Order order = Order::AsAdded) : order_(order) {}
    ChoiceList(Order order, const std::vector<std::string_view>& entries);

    const std::vector<std::string>& Entries() const { return entries_; }

    /// Index of the selected entry, -1 for none.
    int Selection() const { return selection_; }

    /// The selected entry, empty if none is.
    std::string Text() const;

    /// Adds an entry, at its alphabetical place in a sorted list. The same entry stays selected.
    void Add(std::string_view entry);

    /// Adds entries, before any is selected, in one go, which takes far less time for many.
    void AddAll(const std::vector<std::string>& entries);

    /// Removes the selected entry; none is selected then. Nothing happens without a selection.
    void RemoveSelected();

    /// Selects the entry; an index outside the list selects none.
    void Select(int index);

    bool enabled = true;
    std::string toolTip;

private:
    Order order_;
    std::vector<std::string> entries_;
    int selection_ = -1;
};

/// The row that a list view scrolls to: one that has just been chosen, added or moved. Whatever
/// else changes leaves the list where the user has it.
struct ListReveal {
    int row = -1;
    unsigned count = 0; // grows with every row to be shown

    void Show(int shown) {
        row = shown;
        ++count;
    }
};

/// How a list view orders its rows. One direction serves all columns.
struct ListSort {
    int column = 0;
    bool descending = false;

    /// A click on a column's header: sorts by it, and turns the direction round.
    void Click(int clicked) {
        column = clicked;
        descending = !descending;
    }
};

} // namespace emporium
