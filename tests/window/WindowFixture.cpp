#include "window/WindowFixture.h"

#include "ui/Application.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QTest>

namespace emporium::test {

WindowTest::WindowTest() {
    program.Write("Emporium/ItemKategorien.dat", Lines({" 2 ", "Werkzeug", "Öle"_ansi}));
    program.Write("Emporium/Werkzeug.dat",
                  Lines({"Zange2", "40", "15S", "Greift fest zu.", "BO|GA|", "Ahle1", "2", "8H",
                         "Sticht.", "", "Öse1"_ansi, "1", "3P", "", "NO|"}));
    program.Write("Emporium/Öle.dat"_ansi, "");
    program.Write("Emporium/ShopgeneratorShops.dat", Lines({"Schmied", "Krämer"_ansi}));
    program.Write("Emporium/ShopgeneratorConfig.dat",
                  Lines({"[Schmied]", "WareCount=1", "Ware1=Werkzeug"}));
    program.Write("Atlas/Regionen.dat", Lines({"[NO]", "Desc=Hoher Norden"}));
    for (const auto list : {"GarethMännlich.dat"_ansi, std::string_view("GarethWeiblich.dat")})
        program.Write(std::string("Borough/").append(list), Lines({"Ada"}));
    program.Write("Borough/GarethNachname.dat", Lines({"Mek"}));
}

WindowTest::~WindowTest() {
    if (driver) {
        EXPECT_TRUE(driver->unexpected.isEmpty()) << qPrintable(driver->unexpected.join("\n"));
        EXPECT_EQ(driver->Pending(), 0) << "a dialog never opened";
    }
}

void WindowTest::Open() {
    window.emplace(program.root);
    driver.emplace(*window);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&*window));
}

void WindowTest::Answer(const QString& text, const QString& button) {
    driver->Expect([text, button](QWidget& dialog) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->text(), text);
        WindowDriver::Press(dialog, button);
    });
}

void WindowTest::Dismiss(const QString& beginning) {
    driver->Expect([beginning](QWidget& dialog) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_TRUE(box);
        EXPECT_TRUE(box->text().startsWith(beginning)) << qPrintable(box->text());
        WindowDriver::Press(dialog, "OK");
    });
}

void WindowTest::Enter(const QString& prompt, const QString& text) {
    driver->Expect([prompt, text](QWidget& dialog) {
        const auto* box = qobject_cast<QInputDialog*>(&dialog);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->labelText(), prompt);
        WindowDriver::TypeInto(dialog.findChild<QLineEdit*>(), text);
        WindowDriver::Press(dialog, "OK");
    });
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
