#include "window/WindowFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QWheelEvent>

namespace emporium::test {
namespace {

QString FieldText(const WindowDriver& driver, const char* name) {
    return driver.Find<QLineEdit>(name)->text();
}

TEST_F(WindowTest, AnItemIsEditedSavedAndDeleted) {
    Open();
    driver->Pick("cmbKategorien", "Werkzeug");
    EXPECT_EQ(driver->Cell("lvGegenstände", 1, 0), "Öse");
    driver->ClickRow("lvGegenstände", 2);
    EXPECT_EQ(FieldText(*driver, "txtItem0"), "Zange");
    driver->Type("txtItem0", "Beißzange");
    driver->Click("cmdItemSave");
    EXPECT_EQ(driver->Cell("lvGegenstände", 1, 0), "Beißzange");
    EXPECT_TRUE(program.Read("Emporium/Werkzeug.dat").starts_with("Bei\xDFzange2\r\n40\r\n15S"));

    Answer("Wollt ihr den gewählten Gegenstand wirklich löschen ?", "Nein");
    QTest::keyClick(driver->Find("lvGegenstände"), Qt::Key_Delete);
    QTest::qWait(50);
    Answer("Wollt ihr den gewählten Gegenstand wirklich löschen ?", "Ja");
    driver->Click("cmdItemDelete");
    EXPECT_TRUE(program.Read("Emporium/Werkzeug.dat").starts_with("Ahle1"));
}

TEST_F(WindowTest, EscapeNeverOverwritesWhatAnotherProgramWrote) {
    Open();
    driver->Pick("cmbKategorien", "Werkzeug");
    driver->ClickRow("lvGegenstände", 2);
    driver->Type("txtItem0", "Beißzange");
    const std::string foreign =
        program.Read("Emporium/Werkzeug.dat") + "Rest1\r\n\r\n1H\r\n\r\n\r\n";
    program.Write("Emporium/Werkzeug.dat", foreign);
    driver->Expect([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    driver->Click("cmdItemSave");
    EXPECT_EQ(program.Read("Emporium/Werkzeug.dat"), foreign);
    EXPECT_EQ(FieldText(*driver, "txtItem0"), "Beißzange");
    driver->Click("cmdItemSave");
    EXPECT_TRUE(program.Read("Emporium/Werkzeug.dat").ends_with("Rest1\r\n\r\n1H\r\n\r\n\r\n"));
    EXPECT_NE(program.Read("Emporium/Werkzeug.dat"), foreign);
}

// The list shows a first row as chosen while the form is still empty.
TEST_F(WindowTest, TheChosenRowOpensByKeyAndStaysHighlighted) {
    Open();
    driver->Pick("cmbKategorien", "Werkzeug");
    auto* list = driver->Find<ui::ListTable>("lvGegenstände");
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(FieldText(*driver, "txtItem0"), "Zange");
    const QRect row = list->visualRect(list->currentIndex());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, row.center());
    EXPECT_TRUE(list->selectionModel()->hasSelection());
    QTest::keyClick(list, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(list->selectionModel()->hasSelection());
}

TEST_F(WindowTest, TypingFindsBeginningsFirstAndQuickHeaderClicksAreTwo) {
    Open();
    driver->Pick("cmbKategorien", "Werkzeug");
    auto* list = driver->Find<ui::ListTable>("lvGegenstände");
    const QPoint header(10, list->header()->height() / 2);
    QTest::mouseDClick(list->header()->viewport(), Qt::LeftButton, {}, header);
    EXPECT_EQ(driver->Cell("lvGegenstände", 0, 0), "Ahle") << "the second click turns it back";
    QTest::keyClick(list, Qt::Key_A);
    EXPECT_EQ(FieldText(*driver, "txtItem0"), "Ahle");
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(list, "ang");
    EXPECT_EQ(FieldText(*driver, "txtItem0"), "Zange");
}

TEST_F(WindowTest, RegionsArePickedByHandOnlyAndMove) {
    Open();
    driver->Find<QTabWidget>("ItemTab")->setCurrentIndex(1);
    auto* others = driver->Find<QListWidget>("lstRegionen");
    const auto* chosen = driver->Find<QListWidget>("lstVerfügbar");
    others->setFocus(Qt::TabFocusReason);
    driver->Click("cmdHin");
    EXPECT_EQ(chosen->count(), 0) << "the focus picks nothing";
    QTest::keyClick(others, Qt::Key_Down);
    EXPECT_EQ(others->currentRow(), 0);
    QTest::mouseClick(others->viewport(), Qt::LeftButton, {},
                      others->visualItemRect(others->item(10)).center());
    EXPECT_EQ(driver->Find<QLabel>("lblRegionen")->text(), "Hoher Norden");
    const QPoint empty(5, others->viewport()->height() - 2);
    QTest::mouseClick(others->viewport(), Qt::LeftButton, Qt::ControlModifier, empty);
    QTest::keyClick(driver->Find("cmdHin"), Qt::Key_Return);
    ASSERT_EQ(chosen->count(), 1);
    EXPECT_EQ(chosen->item(0)->text(), "NO");
    EXPECT_TRUE(others->selectedItems().isEmpty());
    QTest::mouseClick(chosen->viewport(), Qt::LeftButton, {},
                      chosen->visualItemRect(chosen->item(0)).center());
    driver->Click("cmdZurück");
    EXPECT_EQ(others->count(), 20);
}

TEST_F(WindowTest, TheBoxAboutTheUnitLeadsToIt) {
    Open();
    driver->Pick("cmbKategorien", "Öle");
    driver->Click("cmdItemNeu");
    EXPECT_EQ(window->focusWidget(), driver->Find("txtItem0"));
    driver->Type("txtItem0", "Leinöl");
    driver->Type("txtItem2", "7x,5,");
    driver->Pick("cmbItemWert", "1 - Gibts in jedem Fachgeschäft");
    Dismiss("Bitte wählt zum Preis auch eine Währung aus.");
    driver->Click("cmdItemSave");
    EXPECT_EQ(window->focusWidget(), driver->Find("cmbItemPreis"));
    driver->Pick("cmbItemPreis", "Heller");
    driver->Click("cmdItemSave");
    EXPECT_EQ(program.Read("Emporium/Öle.dat"_ansi), Lines({"Leinöl1"_ansi, "", "7,5H", "", ""}));
}

struct Entered {
    const char* what;
    const char* field;
    QString before;
    QString entered;
    QString after;
};

// Whatever road a text takes, what the program can't store stays outside.
TEST_F(WindowTest, PastedAndComposedTextIsCleaned) {
    Open();
    driver->Pick("cmbKategorien", "Werkzeug");
    const Entered table[] = {
        {"line ends and tabs", "txtItem0", "", "Ei\r\nn\tBeil\n", "EinBeil"},
        {"U+2028 and NUL", "txtItem3", "", QString("a\u2028b") + QChar(0) + "c", "abc"},
        {"a decomposed umlaut", "txtItem0", "", "Mu\u0308hle", "Mühle"},
        {"beyond the code page", "txtItem0", "", "Ж5€", "5€"},
        {"a number with a unit", "txtItem1", "", "-1.5,0 kg", ""},
        {"a sign behind a digit", "txtItem2", "7", "-3", "7"},
        {"blanks around a number", "txtItem2", "", " 12,5\n", "12,5"},
        {"nothing that may enter", "txtItem2", "7", "abc", "7"},
    };
    for (const Entered& row : table) {
        auto* field = driver->Find<QLineEdit>(row.field);
        driver->Type(row.field, row.before);
        QApplication::clipboard()->setText(row.entered);
        field->paste();
        EXPECT_EQ(field->text(), row.after) << "pasted: " << row.what;

        driver->Type(row.field, row.before);
        QInputMethodEvent event;
        event.setCommitString(row.entered);
        QApplication::sendEvent(field, &event);
        EXPECT_EQ(field->text(), row.after) << "composed: " << row.what;
    }
}

TEST_F(WindowTest, ADroppedKeyLeavesTheSelection) {
    Open();
    driver->Type("txtItem2", "1,5");
    auto* price = driver->Find<QLineEdit>("txtItem2");
    price->setSelection(1, 1);
    QTest::keyClicks(price, ".");
    EXPECT_EQ(price->text(), "1,5");
    EXPECT_EQ(price->selectedText(), ",");
}

TEST_F(WindowTest, TheWheelChangesNoClosedList) {
    Open();
    driver->Pick("cmbItemWert", "5 - Extrem selten");
    auto* list = driver->Find<QComboBox>("cmbItemWert");
    QWheelEvent wheel(QPointF(5, 5), list->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &wheel);
    EXPECT_EQ(list->currentText(), "5 - Extrem selten");
}

} // namespace
} // namespace emporium::test
