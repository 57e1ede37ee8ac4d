#include "window/WindowFixture.h"

#include "text/Ansi.h"
#include "ui/Application.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTest>

namespace emporium::test {

WindowTest::WindowTest() {
    program.Write("Emporium/ItemKategorien.dat", Lines({" 2 ", "Werkzeug", "Öle"_ansi}));
    program.Write("Emporium/Werkzeug.dat",
                  Lines({"Zange2", "40", "15S", "Greift fest zu.", "BO|GA|", "Ahle1", "2", "8H",
                         "Sticht.", "", "Öse1"_ansi, "X1", "3P", "", "NO|"}));
    program.Write("Emporium/Öle.dat"_ansi, "");
    program.Write("Emporium/ShopgeneratorShops.dat", Lines({"Schmied", "Krämer"_ansi}));
    program.Write("Emporium/ShopgeneratorConfig.dat",
                  Lines({"[Schmied]", "WareCount=1", "Ware1=Werkzeug"}));
    program.Write("Atlas/Regionen.dat", Lines({"[NO]", "Desc=Hoher Norden"}));
    for (const auto list : {"GarethMännlich.dat"_ansi, std::string_view("GarethWeiblich.dat")})
        program.Write(std::string("Borough/").append(list), Lines({"Ada"}));
    program.Write("Borough/GarethNachname.dat", Lines({"Mek"}));
    QDesktopServices::setUrlHandler("file", this, "View");
    connect(&timer_, &QTimer::timeout, this, &WindowTest::AnswerDialog);
    timer_.start(10);
}

WindowTest::~WindowTest() {
    EXPECT_TRUE(handlers_.empty()) << "a dialog never opened";
}

void WindowTest::Open(const std::filesystem::path& folder) {
    window.emplace(folder);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&*window));
}

QString WindowTest::Cell(const QString& name, int row, int column) const {
    return Find<ui::ListTable>(name)->model()->index(row, column).data().toString();
}

void WindowTest::Click(QWidget* widget) {
    if (!widget->isVisible())
        qFatal("%s is hidden", qUtf8Printable(widget->objectName()));
    QTest::mouseClick(widget, Qt::LeftButton);
}

void WindowTest::Pick(const QWidget* parent, const QString& name, const QString& entry) {
    auto* list = Find<QComboBox>(parent, name);
    list->showPopup();
    QAbstractItemView* view = list->view();
    const QModelIndex index = view->model()->index(list->findText(entry), 0);
    view->setCurrentIndex(index);
    QTest::keyClick(view, Qt::Key_Return);
}

void WindowTest::Type(QWidget* field, const QString& text) {
    Click(field);
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClick(field, Qt::Key_Delete);
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Press, field, Qt::Key_unknown, c, {});
}

void WindowTest::ClickRow(const QString& name, int row) const {
    auto* list = Find<ui::ListTable>(name);
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
}

void WindowTest::ChooseFromMenu(const QString& name, const QString& entry) const {
    auto* list = Find<ui::ListTable>(name);
    QTimer::singleShot(50, list, [list, entry] {
        auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
        const QPoint row = list->visualRect(list->currentIndex()).bottomLeft();
        const QPoint off = menu.pos() - list->viewport()->mapToGlobal(row);
        EXPECT_LT(off.manhattanLength(), 30) << "the menu opens at the row";
        for (QAction* action : menu.actions())
            if (action->text() == entry)
                menu.setActiveAction(action);
        QTest::keyClick(&menu, Qt::Key_Return);
        menu.close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(list->viewport(), &event);
    QTest::qWait(10);
}

void WindowTest::Expect(std::function<void(QWidget& dialog)> handler) {
    handlers_.push_back(std::move(handler));
}

void WindowTest::Answer(const QString& beginning, const QString& button) {
    Expect([beginning, button](QWidget& dialog) {
        const QString text = dynamic_cast<QMessageBox&>(dialog).text();
        EXPECT_TRUE(text.startsWith(beginning)) << qPrintable(text);
        Press(dialog, button);
    });
}

void WindowTest::Enter(const QString& prompt, const QString& text) {
    Expect([prompt, text](QWidget& dialog) {
        EXPECT_EQ(dynamic_cast<QInputDialog&>(dialog).labelText(), prompt);
        Type(dialog.findChild<QLineEdit*>(), text);
        Press(dialog, "OK");
    });
}

void WindowTest::SaveAs(const QString& file) {
    Expect([file](QWidget& dialog) {
        auto* name = Find<QLineEdit>(&dialog, "fileNameEdit");
        name->setText(file);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

void WindowTest::PrintTo(const QString& file, std::function<void(QPrinter&)> choose) {
    Expect([this, file, choose = std::move(choose)](QWidget& widget) {
        EXPECT_FALSE(Find("cmdShopEditor")->isEnabled()) << "a print under way takes no commands";
        auto& dialog = dynamic_cast<QPrintDialog&>(widget);
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(file);
        choose(*dialog.printer());
        dialog.done(QDialog::Accepted);
    });
}

void WindowTest::Press(const QWidget& dialog, const QString& text) {
    for (auto* button : dialog.findChildren<QAbstractButton*>())
        if (button->text().remove('&') == text && button->isVisible())
            return Click(button);
    qFatal("no button %s", qUtf8Printable(text));
}

void WindowTest::AnswerDialog() {
    QWidget* dialog = QApplication::activeModalWidget();
    // A print on a busy machine takes long enough for its box, which goes by itself.
    if (!dialog || !dialog->isVisible() || handled_.contains(dialog) ||
        dialog->objectName() == "PrintProgress")
        return;
    handled_ += dialog;
    EXPECT_FALSE(dialog->windowTitle().isEmpty()) << "whose box?";
    look(*dialog);
    if (handlers_.empty()) {
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        ADD_FAILURE() << "unexpected: " << qPrintable(box ? box->text() : dialog->windowTitle());
    } else {
        const auto handler = handlers_.front();
        handlers_.pop_front();
        handler(*dialog);
    }
    EXPECT_FALSE(dialog->isVisible() && dialog->close()) << "no answer closes it";
    handled_.removeLast();
}

} // namespace emporium::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", TEST_PLATFORM);
    emporium::ui::PrepareApplication();
    QApplication application(argc, argv);
    emporium::ui::SetUpApplication(application);
    // The system's own file dialog can be answered by its user only.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    return RUN_ALL_TESTS();
}
