// The look of the controls where the system has none of its own.
#pragma once

#include <QProxyStyle>

namespace emporium::ui {

class WindowStyle : public QProxyStyle {
    Q_OBJECT

public:
    WindowStyle() : QProxyStyle("Fusion") {}

    // Drop-down lists with a scroll bar and an end, instead of menus as high as the screen.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_ComboBox_Popup ? 0
                                         : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace emporium::ui
