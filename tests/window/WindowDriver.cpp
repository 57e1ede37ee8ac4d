#include "window/WindowDriver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTest>

namespace emporium::test {

namespace {

QRect RowRect(const QTreeView& list, int row) {
    return list.visualRect(list.model()->index(row, 0));
}

} // namespace

WindowDriver::WindowDriver(ui::MainWindow& window) : window_(window) {
    connect(&timer_, &QTimer::timeout, this, &WindowDriver::LookForDialog);
    timer_.start(10);
}

void WindowDriver::Click(QWidget* widget) {
    if (!widget->isVisible())
        qFatal("%s is hidden", qUtf8Printable(widget->objectName()));
    QTest::mouseClick(widget, Qt::LeftButton);
}

void WindowDriver::Pick(QComboBox* list, const QString& entry) {
    list->showPopup();
    QAbstractItemView* view = list->view();
    const QModelIndex index = view->model()->index(list->findText(entry), 0);
    view->setCurrentIndex(index);
    QTest::keyClick(view, Qt::Key_Return);
}

void WindowDriver::Type(const QString& name, const QString& text) const {
    auto* field = Find<QLineEdit>(name);
    Click(field);
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClick(field, Qt::Key_Delete);
    TypeInto(field, text);
}

void WindowDriver::TypeInto(QWidget* field, const QString& text) {
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, c);
        QApplication::sendEvent(field, &press);
    }
}

void WindowDriver::ClickRow(const QString& name, int row) const {
    auto* list = Find<ui::ListTable>(name);
    list->scrollTo(list->model()->index(row, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, RowRect(*list, row).center());
}

void WindowDriver::DoubleClickRow(const QString& name, int row) const {
    ClickRow(name, row);
    auto* list = Find<ui::ListTable>(name);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, RowRect(*list, row).center());
}

void WindowDriver::ClickHeader(const QString& name, int section) const {
    QHeaderView* header = Find<ui::ListTable>(name)->header();
    const QPoint place(header->sectionViewportPosition(section) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
}

QString WindowDriver::Cell(const QString& name, int row, int column) const {
    const auto* model = Find<ui::ListTable>(name)->model();
    return model->index(row, column).data().toString();
}

void WindowDriver::Expect(std::function<void(QWidget& dialog)> handler) {
    handlers_.push_back(std::move(handler));
}

void WindowDriver::Press(const QWidget& dialog, const QString& text) {
    for (auto* button : dialog.findChildren<QAbstractButton*>())
        if (button->text().remove('&') == text && button->isVisible()) {
            Click(button);
            return;
        }
    qFatal("no button %s", qUtf8Printable(text));
}

void WindowDriver::LookForDialog() {
    handled_.removeIf([](const auto& shown) { return !shown || !shown->isVisible(); });
    QWidget* dialog = QApplication::activeModalWidget();
    // A print on a busy machine takes long enough for its box, which goes by itself.
    if (!dialog || !dialog->isVisible() || handled_.contains(dialog) ||
        dialog->objectName() == "PrintProgress")
        return;
    handled_ += dialog;
    if (handlers_.empty()) {
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        unexpected += box ? box->text() : dialog->windowTitle();
        dialog->close();
        return;
    }
    const auto handler = handlers_.front();
    handlers_.pop_front();
    const QPointer<QWidget> shown(dialog);
    handler(*dialog);
    if (shown && shown->isVisible())
        shown->close(); // a handler that met another dialog than it expected
}

} // namespace emporium::test
