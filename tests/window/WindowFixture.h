// A window over a small program folder of its own, driven as its user does, with mouse and
// keyboard; its controls are found by name. Boxes and dialogs that open meanwhile are answered by
// what is expected, in the order in which they come.
#pragma once

#include "support/ProgramFolder.h"
#include "ui/ListTable.h"
#include "ui/MainWindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPrinter>
#include <QTimer>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>

namespace emporium::test {

class WindowTest : public QObject, public testing::Test {
    Q_OBJECT

protected:
    WindowTest();
    ~WindowTest() override;

    ProgramFolder program;
    std::optional<ui::MainWindow> window; // over the folder as it is when Open is called
    std::function<void(QWidget& dialog)> look = [](QWidget&) {}; // sees dialogs before the answer
    QUrl viewed; // what the system's viewer was asked to open last

    void Open(const std::filesystem::path& folder);
    void Open() { Open(program.root); }

    /// The control of that name in the window or one of its dialogs; null if there is none.
    template <typename Widget = QWidget> Widget* Find(const QString& name) const {
        return Find<Widget>(&*window, name);
    }
    template <typename Widget = QWidget>
    static Widget* Find(const QWidget* parent, const QString& name) {
        return parent->findChild<Widget*>(name);
    }

    QString FieldText(const QString& name) const { return Find<QLineEdit>(name)->text(); }
    QString Cell(const QString& name, int row, int column) const;

    static void Click(QWidget* widget);
    void Click(const QString& name) const { Click(Find(name)); }

    /// Opens a drop-down list and chooses the entry.
    static void Pick(const QWidget* parent, const QString& name, const QString& entry);
    void Pick(const QString& name, const QString& entry) const { Pick(&*window, name, entry); }

    /// Clicks into a text field, selects what it holds and types the text over it.
    static void Type(QWidget* field, const QString& text);
    void Type(const QString& name, const QString& text) const { Type(Find(name), text); }

    /// Clicks a row of a list view, from 0 as it stands on the screen.
    void ClickRow(const QString& name, int row) const;

    /// Opens a list's menu by key and chooses the entry.
    void ChooseFromMenu(const QString& name, const QString& entry) const;

    /// The next box or dialog that opens is handed to the handler, which must close it.
    void Expect(std::function<void(QWidget& dialog)> handler);

    /// Presses a button of the next message box, which must begin with the text.
    void Answer(const QString& beginning, const QString& button = "OK");

    /// Types into the next input box and confirms it.
    void Enter(const QString& prompt, const QString& text);

    void SaveAs(const QString& file);

    /// Prints into a PDF file by the next dialog, where the user chooses that.
    void PrintTo(
        const QString& file, std::function<void(QPrinter&)> choose = [](QPrinter&) {});

    /// Clicks the button that bears the text, "&" left aside.
    static void Press(const QWidget& dialog, const QString& text);

private:
    Q_INVOKABLE void View(const QUrl& file) { viewed = file; }
    void AnswerDialog();

    std::deque<std::function<void(QWidget&)>> handlers_;
    QList<QWidget*> handled_; // the dialogs that are in a handler's hands
    QTimer timer_;
};

} // namespace emporium::test
