#include "ui/Mirror.h"

#include "ui/Text.h"

#include <QSignalBlocker>

namespace emporium::ui {

namespace {

QStringList ToStrings(const std::vector<std::string>& entries) {
    QStringList strings;
    for (const std::string& entry : entries)
        strings += ToQString(entry);
    return strings;
}

QStringList Texts(const QComboBox& box) {
    QStringList strings;
    for (int i = 0; i < box.count(); ++i)
        strings += box.itemText(i);
    return strings;
}

QStringList Texts(const QListWidget& list) {
    QStringList strings;
    for (int i = 0; i < list.count(); ++i)
        strings += list.item(i)->text();
    return strings;
}

template <typename List> void ShowEntries(List& widget, const QStringList& entries) {
    if (Texts(widget) == entries)
        return;
    widget.clear();
    widget.addItems(entries);
}

} // namespace

void Mirror::Bind(QAbstractButton* widget, const Button& state, QWidget* refuge) {
    Bind([widget, &state, refuge] {
        if (refuge && !state.enabled && widget->window()->focusWidget() == widget)
            refuge->setFocus();
        widget->setEnabled(state.enabled);
        widget->setVisible(state.visible);
    });
}

void Mirror::Bind(LineField* widget, const TextField& state) {
    Bind([widget, &state] { widget->Show(state.text); });
}

void Mirror::Bind(QComboBox* widget, const ChoiceList& state) {
    Bind([widget, &state] {
        const QSignalBlocker quiet(widget);
        ShowEntries(*widget, ToStrings(state.Entries()));
        widget->setCurrentIndex(state.Selection());
        widget->setEnabled(state.enabled);
        widget->setToolTip(ToToolTip(state.toolTip));
    });
}

void Mirror::Bind(QListWidget* widget, const ChoiceList& state) {
    Bind([widget, &state] {
        const QSignalBlocker quiet(widget);
        ShowEntries(*widget, ToStrings(state.Entries()));
        widget->setCurrentRow(state.Selection());
    });
}

void Mirror::Bind(QLabel* widget, const Label& state) {
    Bind([widget, &state] { widget->setText(ToQString(state.caption)); });
}

void Mirror::Bind(QCheckBox* widget, const CheckBox& state) {
    Bind([widget, &state] {
        const QSignalBlocker quiet(widget);
        widget->setChecked(state.ticked);
    });
}

void Mirror::Bind(QWidget* widget, std::function<bool()> visible) {
    Bind([widget, visible = std::move(visible)] { widget->setVisible(visible()); });
}

void Mirror::Bind(std::function<void()> update) {
    updates_.push_back(std::move(update));
}

void Mirror::Update() const {
    for (const auto& update : updates_)
        update();
}

} // namespace emporium::ui
