#include "ui/Application.h"

#include "base/Variablen.h"
#include "ui/Text.h"
#include "ui/WindowStyle.h"

#include <QFont>
#include <QFontMetrics>
#include <QIcon>
#include <QLocale>
#include <QPalette>
#include <QSettings>
#include <QStyle>
#include <QTranslator>

namespace emporium::ui {

namespace {

// Fixed, because a dark theme's light text would be unreadable on the window's own colours.
QPalette LightPalette() {
    const QColor face(240, 240, 240);
    const QColor faded(130, 130, 130);
    QPalette palette(face, face);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(247, 247, 247));
    palette.setColor(QPalette::Highlight, QColor(20, 84, 110));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    palette.setColor(QPalette::ToolTipText, Qt::black);
    palette.setColor(QPalette::PlaceholderText, faded);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
    return palette;
}

bool HasWindowsStyle() {
    return QApplication::style()->objectName().startsWith("windows");
}

// The size at which every caption and entry fits its place at scale factor 1. The first family is
// one that the system has: for another, Qt would search all fonts.
QFont WindowFont() {
    const char* family = HasWindowsStyle() ? "Microsoft Sans Serif" : "Liberation Sans";
    QFont font({family, "Liberation Sans", "Arial", "Sans Serif"});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(11);
    return font;
}

} // namespace

void PrepareApplication() {
    QApplication::setDesktopSettingsAware(false);
}

std::future<void> ListFonts() {
    return std::async(std::launch::async, [font = WindowFont()] { QFontMetrics(font).height(); });
}

void SetUpApplication(QApplication& application) {
    // No display name: the desktop would append it to the window's caption.
    QApplication::setApplicationName(ToQString(ProgramTitle));
    QApplication::setWindowIcon(QIcon(":/orvan-emporium3-256.png"));
    QApplication::setDesktopFileName("orvan-emporium3");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    auto* translator = new QTranslator(&application);
    if (translator->load(":/qtbase_de.qm"))
        QApplication::installTranslator(translator);

    if (!HasWindowsStyle()) {
        QApplication::setStyle(new WindowStyle);
        // A desktop's own file dialog would speak the desktop's language.
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        // Qt's own would leave its preferences in the user's home.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
    }
    QApplication::setPalette(LightPalette());
    QApplication::setFont(WindowFont());
}

} // namespace emporium::ui
