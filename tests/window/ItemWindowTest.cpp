#include "window/WindowFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QLabel>
#include <QListWidget>
#include <QTest>

namespace emporium::test {
namespace {

TEST_F(WindowTest, AnItemIsEditedSavedAndDeleted) {
    Open();
    EXPECT_FALSE(Find("cmdItemSave")->isVisible() || Find("cmdItemHin")->isVisible());
    Pick("cmbKategorien", "Werkzeug");
    ClickRow("lvGegenstände", 1);
    EXPECT_EQ(FieldText("txtItem1"), "X1") << "what stands in a file shows unfiltered";
    ClickRow("lvGegenstände", 2);
    Type("txtItem0", "Beißzange");
    const std::string foreign =
        program.Read("Emporium/Werkzeug.dat") + "Rest1\r\n\r\n1H\r\n\r\n\r\n";
    program.Write("Emporium/Werkzeug.dat", foreign);
    Expect([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    Click("cmdItemSave");
    EXPECT_EQ(program.Read("Emporium/Werkzeug.dat"), foreign) << "the default overwrites nothing";
    Click("cmdItemSave");
    ClickRow("lvGegenstände", 1);
    EXPECT_EQ(FieldText("txtItem0"), "Beißzange") << "the lit row opens again";
    EXPECT_TRUE(program.Read("Emporium/Werkzeug.dat").starts_with("Bei\xDFzange2\r\n40\r\n15S"));

    Expect([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QTest::keyClick(Find("lvGegenstände"), Qt::Key_Delete);
    Answer("Wollt ihr den gewählten Gegenstand wirklich löschen ?", "Ja");
    Click("cmdItemDelete");
    EXPECT_TRUE(program.Read("Emporium/Werkzeug.dat").starts_with("Ahle1"));
}

// The list shows a first row as chosen while the form is still empty.
TEST_F(WindowTest, RowsOpenByKeyAndByLettersAndQuickHeaderClicksAreTwo) {
    Open();
    Pick("cmbKategorien", "Werkzeug");
    auto* list = Find<ui::ListTable>("lvGegenstände");
    for (const auto key : {Qt::Key_Return, Qt::Key_Space}) {
        Type("txtItem0", "");
        QTest::keyClick(list, key);
        EXPECT_EQ(FieldText("txtItem0"), "Zange");
    }
    QTest::keyClick(list, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(list->selectionModel()->hasSelection());
    QTest::mouseDClick(list->header()->viewport(), Qt::LeftButton, {}, {10, 5});
    EXPECT_EQ(Cell("lvGegenstände", 0, 0), "Ahle") << "the second click turns it back";
    EXPECT_EQ(list->header()->sortIndicatorSection(), 0);
    // A letter repeated goes on, a pause ends what was typed, other letters belong together.
    using Typed = std::tuple<int, const char*, const char*>;
    for (const auto& [pause, letters, name] :
         {Typed(60'000, "ee", "Öse"), Typed(0, "z", "Zange"), Typed(60'000, "a", "Zange")}) {
        QApplication::setKeyboardInputInterval(pause);
        QTest::keyClicks(list, letters);
        EXPECT_EQ(FieldText("txtItem0"), name) << letters;
    }
    auto* wert = Find<QComboBox>("cmbItemWert");
    for (const int pause : {60'000, 0}) {
        QApplication::setKeyboardInputInterval(pause);
        QTest::keyClicks(wert, "2 ");
        EXPECT_EQ(wert->currentIndex(), 1);
        EXPECT_EQ(wert->view()->isVisible(), pause == 0) << "a blank among letters is one of them";
    }
    wert->hidePopup();
}

TEST_F(WindowTest, RegionsArePickedByHandOnlyAndMove) {
    Open();
    Find<QTabWidget>("ItemTab")->setCurrentIndex(1);
    auto* others = Find<QListWidget>("lstRegionen");
    const auto* chosen = Find<QListWidget>("lstVerfügbar");
    others->setFocus(Qt::TabFocusReason);
    Click("cmdHin");
    EXPECT_EQ(chosen->count(), 0) << "the focus picks nothing";
    QTest::keyClick(others, Qt::Key_Down);
    EXPECT_EQ(others->currentRow(), 0);
    QTest::keyClicks(others, "N");
    EXPECT_EQ(Find<QLabel>("lblRegionen")->text(), "Hoher Norden");
    QTest::keyClick(Find("cmdHin"), Qt::Key_Return);
    ASSERT_EQ(chosen->count(), 1);
    EXPECT_EQ(chosen->item(0)->text(), "NO");
    EXPECT_TRUE(others->selectedItems().isEmpty());
    QTest::keyClick(others, Qt::Key_Down);
    QTest::mouseClick(chosen->viewport(), Qt::LeftButton, {},
                      chosen->visualItemRect(chosen->item(0)).center());
    Click("cmdZurück");
    EXPECT_EQ(others->currentRow(), 0) << "what is chosen there stays";
    EXPECT_EQ(others->count(), 20);
    Click("cmdAlleHin");
    EXPECT_EQ(chosen->count(), 20);
    Click("cmdAlleZurück");
    EXPECT_EQ(others->count(), 20);
}

TEST_F(WindowTest, ANewItemGoesIntoANewCategoryOnceItHasAUnit) {
    Open();
    std::filesystem::remove(program.folders.EmporiumFolder() / "ItemKategorien.dat");
    Answer("Die Liste der Kategorien fehlt.", "Ja");
    int listed = 0;
    look = [&](QWidget&) { listed = Find<QComboBox>("cmbKategorien")->count(); };
    Enter("Bitte gebt der Kategorie einen Namen.", "Kräuter");
    Click("cmdKategorieNeu");
    EXPECT_EQ(listed, 6) << "with the fixed ones, when the name was asked for";
    Pick("cmbKategorien", "Öle");
    Find<QTabWidget>("ItemTab")->setCurrentIndex(1);
    Click("cmdItemNeu");
    EXPECT_EQ(window->focusWidget(), Find("txtItem0"));
    Type("txtItem0", "Leinöl");
    Type("txtItem1", "3");
    Type("txtItem2", "7x,5,");
    Type("txtItem3", "Kühl");
    Pick("cmbItemWert", "1 - Gibts in jedem Fachgeschäft");
    Answer("Bitte wählt zum Preis auch eine Währung aus.");
    Click("cmdItemSave");
    EXPECT_EQ(window->focusWidget(), Find("cmbItemPreis"));
    Pick("cmbItemPreis", "Heller");
    Click("cmdItemSave");
    const std::string item = Lines({"Leinöl1"_ansi, "3", "7,5H", "Kühl"_ansi, ""});
    EXPECT_EQ(program.Read("Emporium/Öle.dat"_ansi), item);
    ClickRow("lvGegenstände", 0);
    Pick("cmbItemKategorien", "Kräuter");
    Answer("Ihr habt die Kategorie des Gegenstandes geändert,", "Ja");
    Click("cmdItemSave");
    EXPECT_EQ(program.Read("Emporium/Kräuter.dat"_ansi), item);
    Answer("Soll die gewählte Kategorie wirklich gelöscht werden ?", "Ja");
    Click("cmdKategorieDelete");
    EXPECT_EQ(program.Read("Emporium/Öle.dat"_ansi), "(absent)");
}

// Whatever road a text takes, what the program can't store stays outside.
TEST_F(WindowTest, PastedAndComposedTextIsCleaned) {
    Open();
    Pick("cmbKategorien", "Werkzeug");
    QLineEdit box; // stands for the field of an input box
    ui::GuardInput(box);
    // Between the marks is what is selected before; behind it is where the caret stands then.
    const QString table[][5] = {
        {"line ends and NUL", "txtItem0", "Z||e", QString("\r\nE\t i\u2028n\n") + QChar(0),
         "ZE in|e"},
        {"a decomposed umlaut", "txtItem0", "||", "Mu\u0308hle", "Mühle|"},
        {"beyond the code page", "txtItem0", "|ab|c", "Жﬁź5€", "fiz5€|c"},
        {"a sign behind a digit", "txtItem2", "7||", "-3", "7|"},
        {"a second comma", "txtItem2", "1||2,5", ",", "1|2,5"},
        {"blanks around a number", "txtItem2", "3|4|,5", " 12\n", "312|,5"},
        {"a number with a unit", "txtItem1", "1|7|", "5 kg", "1|7"},
        {"beyond the code page, in a box", "", "Kr||uter", "Жä\n", "Krä |uter"},
    };
    for (const auto& [what, name, before, entered, after] : table) {
        auto* field = name.isEmpty() ? &box : Find<QLineEdit>(name);
        const QStringList parts = before.split('|');
        for (const bool pasted : {true, false}) {
            field->setText(parts.join(""));
            field->setSelection(static_cast<int>(parts[0].size()),
                                static_cast<int>(parts[1].size()));
            QApplication::clipboard()->setText(entered);
            QInputMethodEvent composed;
            composed.setCommitString(entered);
            if (pasted)
                field->paste();
            else
                QApplication::sendEvent(field, &composed);
            EXPECT_EQ(field->text().insert(field->cursorPosition(), '|'), after)
                << qPrintable(what) << (pasted ? ", pasted" : ", composed");
        }
    }
    auto* price = Find<QLineEdit>("txtItem2");
    price->selectAll();
    QTest::keyClick(price, Qt::Key_X);
    EXPECT_TRUE(price->hasSelectedText()) << "a refused letter deletes nothing";
}

} // namespace
} // namespace emporium::test
