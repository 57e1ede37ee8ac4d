#include "ui/QtPlatform.h"

#include "base/Variablen.h"
#include "ui/LineField.h"
#include "ui/Text.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QUrl>

namespace emporium::ui {

namespace {

// Boxes belong to the dialog that is open, or else to the window.
QWidget* Owner(QWidget& window) {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog ? dialog : &window;
}

bool AskYesNo(QWidget& window, const YesNoBox& box) {
    QMessageBox question(Owner(window));
    question.setTextFormat(Qt::PlainText);
    question.setText(ToQString(box.text));
    question.setIcon(box.icon == BoxIcon::Warning ? QMessageBox::Warning : QMessageBox::Question);
    question.setWindowTitle(ToQString(ProgramTitle));
    question.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    question.setDefaultButton(box.noIsDefault ? QMessageBox::No : QMessageBox::Yes);
    question.setEscapeButton(QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}

void ShowMessage(QWidget& window, std::string_view text) {
    QMessageBox message(Owner(window));
    message.setTextFormat(Qt::PlainText);
    message.setText(ToQString(text));
    message.setIcon(QMessageBox::Warning);
    message.setWindowTitle(ToQString(ProgramTitle));
    message.exec();
}

std::string AskText(QWidget& window, std::string_view prompt, std::string_view hint) {
    QInputDialog dialog(Owner(window));
    dialog.setWindowTitle(ToQString(ProgramTitle));
    dialog.setLabelText(ToQString(prompt));
    dialog.setInputMode(QInputDialog::TextInput);
    if (auto* field = dialog.findChild<QLineEdit*>()) {
        GuardInput(*field);
        field->setMinimumWidth(320); // or the title bar would cut the caption off
        field->setPlaceholderText(ToQString(hint));
    }
    return dialog.exec() == QDialog::Accepted ? CleanInput(dialog.textValue()) : std::string();
}

// The filter "caption|pattern" as Qt writes it; the caption holds the pattern already.
QString ToQtFilter(std::string_view filter) {
    return ToQString(filter.substr(0, filter.find('|')));
}

std::filesystem::path ShowSave(QWidget& window, const std::filesystem::path& folder,
                               std::string_view filter) {
    QFileDialog dialog(Owner(window), "Speichern unter", PathText(folder), ToQtFilter(filter));
    dialog.setObjectName("CD");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    return accepted ? PathFrom(dialog.selectedFiles().value(0)) : std::filesystem::path();
}

void SetWaitPointer(bool waiting) {
    if (waiting)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

} // namespace

Platform QtPlatform(QWidget& window, const Mirror& mirror) {
    Platform platform;
    platform.AskYesNo = [&](const YesNoBox& box) {
        mirror.Update();
        return AskYesNo(window, box);
    };
    platform.ShowMessage = [&](std::string_view text) {
        mirror.Update();
        ShowMessage(window, text);
    };
    platform.AskText = [&](std::string_view prompt, std::string_view hint) {
        mirror.Update();
        return AskText(window, prompt, hint);
    };
    platform.ShowSave = [&](const std::filesystem::path& folder, std::string_view filter) {
        mirror.Update();
        return ShowSave(window, folder, filter);
    };
    platform.OpenInViewer = [](const std::filesystem::path& file) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(PathText(file)));
    };
    platform.SetWaitPointer = SetWaitPointer;
    return platform;
}

} // namespace emporium::ui
