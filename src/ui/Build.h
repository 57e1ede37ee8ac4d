// Builds the controls that the panes and dialogs share, bound to the session: they show its state,
// and what the user does to them is one operation. Places are in twips.
#pragma once

#include "ui/Session.h"
#include "ui/Widgets.h"

#include <QLabel>

namespace emporium::ui {

/// A drop-down list.
ChoiceBox* BuildChoice(Session& session, QWidget* parent, const char* name, const QString& meaning,
                       const ChoiceList& state, std::function<void(int index)> choose);

/// A picture button of the usual size.
PictureButton* BuildButton(Session& session, QWidget* parent, const char* name, int left, int top,
                           const QString& toolTip, const QString& text,
                           std::function<void()> operation);

/// The label below a list of regions.
QLabel* BuildRegionName(Session& session, QWidget* parent, const Label& state);

} // namespace emporium::ui
