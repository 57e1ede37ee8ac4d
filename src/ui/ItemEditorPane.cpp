#include "ui/ItemEditorPane.h"

#include "documents/ItemListDocument.h"
#include "itemeditor/CategoryCare.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemSaving.h"
#include "shopeditor/ShopList.h"
#include "ui/AvailabilityPage.h"
#include "ui/Build.h"
#include "ui/ListMenu.h"
#include "ui/Pictures.h"
#include "ui/Text.h"

#include <QLabel>

namespace emporium::ui {

namespace {

constexpr auto Black = CaptionFrame::Look::Black;
constexpr auto Grey = CaptionFrame::Look::Grey;

} // namespace

ItemEditorPane::ItemEditorPane(QWidget* window, Session& session)
    : QObject(window), session_(session) {
    BuildList(window);
    tab_ = Named(new QTabWidget(window), "ItemTab"); // behind the list, as the Tab key goes
    Place(tab_, 3240, 360, 6255, 6255);
    BuildProperties();
    BuildAvailabilityPage(session_, AddPage("Verfügbarkeit"));
    BuildNotice();
    session_.mirror.Bind(tab_, [this] { return session_.state.mode == Mode::ItemEditor; });
}

void ItemEditorPane::BuildList(QWidget* window) {
    auto& items = session_.state.items;
    auto* frame = Place(Named(new CaptionFrame(window, Black, "Gegenstände"), "frmGegenstände"), 0,
                        480, 3135, 5895);
    BuildCategories(frame);
    const TableSource source{[&items] { return static_cast<int>(items.lvGegenstände.rows.size()); },
                             [&items](int row, int column) {
                                 const auto& rows = items.lvGegenstände.rows;
                                 return ItemCell(items.Record(rows[static_cast<std::size_t>(row)]),
                                                 column);
                             }};
    list_ = new ListTable(frame,
                          {{"Gegenstand", ItemNameColumn, Px(2000), Qt::AlignLeft},
                           {"Preis", ItemPriceColumn, Px(600), Qt::AlignRight}},
                          source);
    Place(Named(list_, "lvGegenstände"), 120, 1680, 2895, 3615);
    list_->setAccessibleName("Gegenstände der Kategorie");
    session_.mirror.Bind([this, &items] {
        const auto& view = items.lvGegenstände;
        list_->setVisible(view.visible);
        list_->setToolTip(ToToolTip(view.toolTip));
        list_->Mirror(view.revision, ChosenPlace(items), view.sort, view.reveal);
    });
    ConnectList();
    BuildItemButtons(frame);
    BuildAdd(window);
}

void ItemEditorPane::ConnectList() {
    auto& items = session_.state.items;
    auto& shop = session_.state.shop;
    const auto& platform = session_.platform;
    connect(list_, &ListTable::rowChosen, this, [&](int row) {
        session_.Do([&] {
            ChooseItemRow(items, platform, items.lvGegenstände.rows[static_cast<std::size_t>(row)]);
        });
    });
    connect(list_, &ListTable::headerClicked, this,
            [&](int column) { session_.Do([&] { SortItemList(items, column); }); });
    connect(list_, &ListTable::deletePressed, this,
            [&] { session_.Do([&] { ConfirmDeleteItem(items, platform); }); });
    AddListMenu(session_, *list_, [&]() -> std::vector<MenuEntry> {
        return {
            {"In den Shop legen", items.cmdItemHin.visible && items.cmdItemHin.enabled,
             [&] { AddItemToShop(shop, items, platform); }},
            {"Löschen …", items.cmdItemDelete.enabled, [&] { ConfirmDeleteItem(items, platform); }},
            CopyEntry(*list_)};
    });
}

void ItemEditorPane::BuildItemButtons(QWidget* frame) {
    auto& items = session_.state.items;
    auto* itemNew =
        BuildButton(session_, frame, "cmdItemNeu", 120, 5400, "Neuen Gegenstand erstellen", "+",
                    [&] { StartNewItem(items, session_.platform); });
    auto* itemDelete =
        BuildButton(session_, frame, "cmdItemDelete", 480, 5400, "Gewählten Gegenstand löschen",
                    "–", [&] { ConfirmDeleteItem(items, session_.platform); });
    auto* itemSave = BuildButton(session_, frame, "cmdItemSave", 840, 5400, "Gegenstand speichern",
                                 "✓", [&] { SaveItem(items, session_.platform); });
    session_.mirror.Bind(itemNew, items.cmdItemNeu);
    session_.mirror.Bind(itemDelete, items.cmdItemDelete, list_);
    session_.mirror.Bind(itemSave, items.cmdItemSave, list_);
}

void ItemEditorPane::BuildAdd(QWidget* window) {
    auto& state = session_.state;
    auto* add = Place(Named(new QPushButton(">", window), "cmdItemHin"), 3240, 2160, 495, 3615);
    add->setToolTip("Gegenstand dem Shopangebot hinzufügen");
    add->setAccessibleName(add->toolTip());
    add->setAutoDefault(true);
    session_.mirror.Bind(add, state.items.cmdItemHin);
    connect(add, &QPushButton::clicked, this, [&] {
        session_.Do([&] { AddItemToShop(state.shop, state.items, session_.platform); });
    });
}

void ItemEditorPane::BuildCategories(QWidget* parent) {
    auto& state = session_.state;
    auto& items = state.items;
    auto* frame =
        Place(Named(new CaptionFrame(parent, Black, "Kategorien"), "Frame5"), 120, 360, 2895, 1095);
    const auto choose = [&](int index) { ChooseCategory(items, session_.platform, index); };
    categories_ = Place(BuildChoice(session_, frame, "cmbKategorien", "Kategorie der Liste",
                                    items.cmbKategorien, choose),
                        120, 240, 2655, 315);
    categories_->setPlaceholderText("Kategorie wählen …");

    auto* categoryNew =
        BuildButton(session_, frame, "cmdKategorieNeu", 120, 600, "Neue Kategorie erstellen", "+",
                    [&] { NewCategory(items, session_.platform); });
    auto* categoryDelete =
        BuildButton(session_, frame, "cmdKategorieDelete", 480, 600, "Gewählte Kategorie löschen",
                    "–", [&] { DeleteCategory(items, session_.platform); });
    auto* print = BuildButton(
        session_, frame, "cmdListeDrucken", 840, 600, "Gegenstandsliste drucken", "▤", [&] {
            PrintTempDocument(state.print, session_.platform,
                              [&items](std::string& document) { WriteItemList(items, document); });
        });
    session_.mirror.Bind(categoryNew, items.cmdKategorieNeu);
    session_.mirror.Bind(categoryDelete, items.cmdKategorieDelete);
    session_.mirror.Bind(print, items.cmdListeDrucken);
}

QWidget* ItemEditorPane::AddPage(const QString& caption) {
    auto* page = new QWidget;
    QPalette palette = page->palette();
    palette.setColor(QPalette::Window, CaptionFrame::Grey);
    page->setPalette(palette);
    page->setAutoFillBackground(true);
    tab_->addTab(page, caption);
    return page;
}

LineField* ItemEditorPane::BuildText(QWidget* parent, ItemText field) {
    auto& items = session_.state.items;
    auto* text = new LineField(parent, [field](std::string_view entered, const std::string& held,
                                               std::size_t place, std::size_t replaced) {
        return FilterItemPaste(field, entered, held, place, replaced);
    });
    Named(text, QString("txtItem%1").arg(field));
    text->setAccessibleName(parent->accessibleName());
    session_.mirror.Bind(text, items.txtItem[field]);
    connect(text, &LineField::entered, this, [this, &items, field](const std::string& entered) {
        session_.Do([&] { EditItemText(items, field, entered); });
    });
    return text;
}

void ItemEditorPane::BuildProperties() {
    auto& items = session_.state.items;
    QWidget* page = AddPage("Grundeigenschaften");
    const auto frame = [page](const char* name, const QString& caption, int left, int top,
                              int width) {
        return Place(Named(new CaptionFrame(page, Grey, caption), name), left, top, width, 615);
    };
    constexpr int wide = 5955;
    constexpr int inner = wide - 240;

    name_ =
        Place(BuildText(frame("Frame1", "Name", 105, 120, wide), NameText), 120, 210, inner, 315);

    Place(BuildChoice(session_, frame("Frame6", "Kategorie", 105, 810, wide), "cmbItemKategorien",
                      "Kategorie des Gegenstands", items.cmbItemKategorien,
                      [&](int index) { ChooseItemCategory(items, index); }),
          120, 210, inner, 315);

    Place(BuildText(frame("Frame7", "Gewicht", 105, 1500, 1800), WeightText), 120, 210, 1560, 315);

    auto* prices = frame("Frame8", "Preis", 2010, 1500, wide - 1905);
    Place(BuildText(prices, PriceText), 120, 210, 1560, 315);
    unit_ = Place(BuildChoice(session_, prices, "cmbItemPreis", "Währung", items.cmbItemPreis,
                              [&](int index) { ChooseItemUnit(items, index); }),
                  1800, 210, 2130, 315);
    unit_->setPlaceholderText("Währung …");

    Place(BuildChoice(session_, frame("Frame9", "Wert", 105, 2190, wide), "cmbItemWert", "Wert",
                      items.cmbItemWert, [&](int index) { ChooseItemWert(items, index); }),
          120, 210, inner, 315);

    Place(BuildText(frame("Frame2", "Beschreibung", 105, 2880, wide), DescriptionText), 120, 210,
          inner, 315);

    auto* picture = Place(Named(new Picture(page), "imgItem"), 105, 3630, wide, 2130);
    picture->setAccessibleName("Blick in einen Laden");
    LoadPicture(*picture, session_.platform.disk);
    picture->Prepare(picture->size());
}

void ItemEditorPane::BuildNotice() {
    auto* notice = new QLabel(
        "Willkommen in der Tuchhalle!\n\n"
        "Was ihr hier speichert, steht sofort in den Dateien des Ordners Data. Sichert ihr diesen "
        "Ordner, so sichert ihr alle eure Gegenstände.\n\n"
        "Ein Laden dagegen lebt nur, solange das Programm läuft. Exportiert oder druckt ihn, bevor "
        "ihr das Programm schließt.\n\n"
        "Gegenstände der Kategorien Nahkampfwaffen, Fernwaffen und Rüstungen, die ihr löscht oder "
        "umbenennt, kommen beim nächsten Start unter ihrem alten Namen zurück, solange sie in den "
        "Dateien des Ordners Arsenal stehen.\n\n"
        "Alles Weitere erklärt die Hilfe hinter dem Knopf rechts oben.",
        AddPage("Gut zu wissen"));
    notice->setWordWrap(true);
    notice->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    Place(notice, 300, 300, 5550, 5250);
}

void ItemEditorPane::FocusCategories() {
    categories_->setFocus();
}

void ItemEditorPane::FocusUnit() {
    if (session_.state.mode != Mode::ItemEditor)
        return;
    tab_->setCurrentIndex(0);
    unit_->setFocus();
}

void ItemEditorPane::FocusName() {
    if (session_.state.mode != Mode::ItemEditor)
        return;
    tab_->setCurrentIndex(0);
    name_->setFocus();
}

} // namespace emporium::ui
