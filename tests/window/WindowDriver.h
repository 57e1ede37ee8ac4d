// Drives the window as its user does, with mouse and keyboard, and finds its controls by name.
// Boxes and dialogs that open meanwhile are answered by handlers, in the order in which they come.
#pragma once

#include "ui/ListTable.h"
#include "ui/MainWindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>

namespace emporium::test {

class WindowDriver : public QObject {
    Q_OBJECT

public:
    explicit WindowDriver(ui::MainWindow& window);

    /// The control of that name in the window or one of its dialogs; null if there is none.
    template <typename Widget = QWidget> Widget* Find(const QString& name) const {
        return Find<Widget>(&window_, name);
    }

    template <typename Widget = QWidget>
    static Widget* Find(const QWidget* parent, const QString& name) {
        return parent->findChild<Widget*>(name);
    }

    /// A click into the middle of a control.
    static void Click(QWidget* widget);
    void Click(const QString& name) const { Click(Find(name)); }

    /// Opens the list and clicks the entry.
    static void Pick(QComboBox* list, const QString& entry);
    void Pick(const QString& name, const QString& entry) const {
        Pick(Find<QComboBox>(name), entry);
    }

    /// Clicks into a text field, selects what it holds and types the text over it.
    void Type(const QString& name, const QString& text) const;

    /// Types into whatever takes text there.
    static void TypeInto(QWidget* field, const QString& text);

    /// Clicks a row of a list view, from 0 as it stands on the screen.
    void ClickRow(const QString& name, int row) const;
    void DoubleClickRow(const QString& name, int row) const;

    /// Clicks a column's header.
    void ClickHeader(const QString& name, int section) const;

    /// What a list view shows in a cell.
    QString Cell(const QString& name, int row, int column) const;

    /// The next box or dialog that opens is handed to the handler, which must close it.
    void Expect(std::function<void(QWidget& dialog)> handler);

    /// Clicks the button that bears the text, "&" left aside.
    static void Press(const QWidget& dialog, const QString& text);

    /// Dialogs that opened unexpectedly; they are closed.
    QStringList unexpected;

    /// Handlers whose dialog has not come.
    int Pending() const { return static_cast<int>(handlers_.size()); }

private:
    void LookForDialog();

    ui::MainWindow& window_;
    std::deque<std::function<void(QWidget&)>> handlers_;
    QList<QPointer<QWidget>> handled_; // the dialogs that are open and in a handler's hands
    QTimer timer_;
};

} // namespace emporium::test
