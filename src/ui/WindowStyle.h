// The look of the controls where the system has none of its own.
#pragma once

#include <QDialogButtonBox>
#include <QProxyStyle>

namespace emporium::ui {

class WindowStyle : public QProxyStyle {
    Q_OBJECT

public:
    WindowStyle() : QProxyStyle("Fusion") {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        switch (hint) {
        // Drop-down lists with a scroll bar and an end, instead of menus as high as the screen.
        case SH_ComboBox_Popup:
            return 0;
        // The buttons of boxes, which some desktop's order lets vanish.
        case SH_DialogButtonLayout:
            return QDialogButtonBox::WinLayout;
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returned);
        }
    }
};

} // namespace emporium::ui
