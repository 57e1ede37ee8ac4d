// The shop editor's part of the window: the wares and the fields of the shop.
#pragma once

#include "ui/ListTable.h"
#include "ui/Session.h"
#include "ui/Widgets.h"

namespace emporium::ui {

class ShopEditorPane : public QObject {
    Q_OBJECT

public:
    /// Builds the controls into the window.
    ShopEditorPane(QWidget* window, Session& session);

private:
    CaptionFrame* BuildFrame(int index, const QString& caption, int left, int top, int width,
                             int height);
    void BuildList();
    void BuildMenu();
    void BuildButtons(CaptionFrame* frame);
    void BuildOwner();
    LineField* BuildText(CaptionFrame* frame, const char* name, TextField& state);
    void BuildField(CaptionFrame* frame, const char* name, int top, const ChoiceList& state,
                    std::function<void(int index)> choose);

    QWidget* window_;
    Session& session_;
    ListTable* list_ = nullptr;
};

} // namespace emporium::ui
