// The generator's dialog window.
#pragma once

#include "ui/Session.h"
#include "ui/Widgets.h"

#include <QDialog>

namespace emporium::ui {

class GeneratorDialog : public QDialog {
    Q_OBJECT

public:
    GeneratorDialog(QWidget* window, Session& session);

private:
    CaptionFrame* BuildFrame(const char* name, const QString& caption, int top, int height);
    void BuildRegion();

    Session& session_;
};

} // namespace emporium::ui
