// The item editor's part of the window: categories, item list, item form.
#pragma once

#include "itemeditor/ItemForm.h"
#include "ui/ListTable.h"
#include "ui/Session.h"
#include "ui/Widgets.h"

#include <QTabWidget>

namespace emporium::ui {

class ItemEditorPane : public QObject {
    Q_OBJECT

public:
    /// Builds the controls into the window.
    ItemEditorPane(QWidget* window, Session& session);

    /// Puts the focus on the name of the form, if that is on screen.
    void FocusName();

    /// Puts the focus on the list of units, if that is on screen.
    void FocusUnit();

    /// Puts the focus on the list of categories.
    void FocusCategories();

private:
    void BuildList(QWidget* window);
    void ConnectList();
    void BuildItemButtons(QWidget* frame);
    void BuildAdd(QWidget* window);
    void BuildCategories(QWidget* parent);
    QWidget* AddPage(const QString& caption);
    void BuildProperties();
    void BuildNotice();
    LineField* BuildText(QWidget* parent, ItemText field);

    Session& session_;
    QTabWidget* tab_ = nullptr;
    ListTable* list_ = nullptr;
    LineField* name_ = nullptr;
    ChoiceBox *categories_ = nullptr, *unit_ = nullptr;
};

} // namespace emporium::ui
