// The page of the item form that tells where the item is made.
#pragma once

#include "ui/Session.h"

namespace emporium::ui {

/// Builds the two lists of regions and the buttons between them into the page.
void BuildAvailabilityPage(Session& session, QWidget* page);

} // namespace emporium::ui
