#include "ui/ListMenu.h"

#include "ui/Text.h"

#include <QMenu>

namespace emporium::ui {

void AddListMenu(Session& session, ListTable& list,
                 std::function<std::vector<MenuEntry>()> entries) {
    QObject::connect(
        &list, &ListTable::menuRequested, &list,
        [&session, &list, entries = std::move(entries)](const QPoint& place) {
            QMenu menu(&list);
            for (MenuEntry& entry : entries()) {
                QAction* action = menu.addAction(entry.text);
                action->setEnabled(entry.enabled);
                QObject::connect(
                    action, &QAction::triggered, &list,
                    [&session, operation = std::move(entry.operation)] { session.Do(operation); },
                    Qt::QueuedConnection); // when the menu is gone
            }
            menu.exec(place);
        });
}

MenuEntry CopyEntry(const ListTable& list) {
    return {"Liste kopieren", list.model()->rowCount() > 0, [&list] { list.CopyAll(); }};
}

QString MenuText(std::string_view text) {
    return ToQString(text).replace("&", "&&");
}

} // namespace emporium::ui
