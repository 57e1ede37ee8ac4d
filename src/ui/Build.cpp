#include "ui/Build.h"

namespace emporium::ui {

ChoiceBox* BuildChoice(Session& session, QWidget* parent, const char* name, const QString& meaning,
                       const ChoiceList& state, std::function<void(int index)> choose) {
    auto* list = Named(new ChoiceBox(parent), name);
    list->setAccessibleName(meaning);
    session.mirror.Bind(list, state);
    QObject::connect(
        list, &QComboBox::activated, list,
        [&session, choose = std::move(choose)](int index) { session.Do([&] { choose(index); }); });
    return list;
}

PictureButton* BuildButton(Session& session, QWidget* parent, const char* name, int left, int top,
                           const QString& toolTip, const QString& text,
                           std::function<void()> operation) {
    auto* button = Named(new PictureButton(parent, toolTip, text), name);
    QObject::connect(button, &QPushButton::clicked, button,
                     [&session, operation = std::move(operation)] { session.Do(operation); });
    return Place(button, left, top, 375, 375);
}

QLabel* BuildRegionName(Session& session, QWidget* parent, const Label& state) {
    auto* name = Named(new QLabel(parent), "lblRegionen");
    name->setTextFormat(Qt::PlainText);
    name->setWordWrap(true);
    name->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    session.mirror.Bind(name, state);
    return name;
}

} // namespace emporium::ui
