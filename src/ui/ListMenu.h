// The menu of a list, opened by the right button or the menu key.
#pragma once

#include "ui/ListTable.h"
#include "ui/Session.h"

#include <functional>
#include <vector>

namespace emporium::ui {

struct MenuEntry {
    QString text;
    bool enabled;
    std::function<void()> operation;
};

/// Gives the list a menu; the entries are asked for whenever it opens.
void AddListMenu(Session& session, ListTable& list,
                 std::function<std::vector<MenuEntry>()> entries);

/// The entry that puts the whole list on the clipboard.
MenuEntry CopyEntry(const ListTable& list);

/// A text of the program that shows as it is: a menu takes "&" for the mark of a key.
QString MenuText(std::string_view text);

} // namespace emporium::ui
