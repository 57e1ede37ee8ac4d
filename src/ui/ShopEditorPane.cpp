#include "ui/ShopEditorPane.h"

#include "documents/ShopDocument.h"
#include "documents/ShopExport.h"
#include "shopeditor/ShopFields.h"
#include "shopeditor/ShopList.h"
#include "shopeditor/ShopPricing.h"
#include "shopeditor/ShopRecovery.h"
#include "ui/Build.h"
#include "ui/ListMenu.h"
#include "ui/Text.h"

namespace emporium::ui {

namespace {

constexpr int FieldLeft = 7080;
constexpr int FieldWidth = 2415;

} // namespace

ShopEditorPane::ShopEditorPane(QWidget* window, Session& session)
    : QObject(window), window_(window), session_(session) {
    auto& state = session_.state;
    auto& shop = state.shop;
    BuildList();
    BuildText(BuildFrame(1, "Name des Shops", FieldLeft, 360, FieldWidth, 615), "txtName",
              shop.txtName);
    BuildText(BuildFrame(2, "Shopart", FieldLeft, 1320, FieldWidth, 615), "txtShopart",
              shop.txtShopart);
    BuildOwner();

    BuildField(BuildFrame(4, "Region", FieldLeft, 3600, FieldWidth, 855), "cmbShopRegion", 330,
               shop.cmbShopRegion,
               [&](int index) { ChooseShopRegion(shop, session_.platform, index); });
    BuildField(BuildFrame(5, "Preise", FieldLeft, 4800, FieldWidth, 615), "cmbShopPreise", 240,
               shop.cmbShopPreise,
               [&](int index) { PickPriceLevel(shop, session_.platform, index); });
    BuildField(BuildFrame(6, "Qualität", FieldLeft, 5760, FieldWidth, 615), "cmbShopQualität", 240,
               shop.cmbShopQualität, [&](int index) { ChooseShopQuality(shop, index); });
}

CaptionFrame* ShopEditorPane::BuildFrame(int index, const QString& caption, int left, int top,
                                         int width, int height) {
    auto* frame = new CaptionFrame(window_, CaptionFrame::Look::Black, caption);
    Place(Named(frame, QString("frmShop%1").arg(index)), left, top, width, height);
    session_.mirror.Bind(frame, [this] { return session_.state.mode == Mode::ShopEditor; });
    return frame;
}

void ShopEditorPane::BuildList() {
    auto& shop = session_.state.shop;
    auto* frame = BuildFrame(0, "Waren im Shop", 3840, 480, 3135, 5895);
    const TableSource source{[&shop] { return shop.ShopCount(); },
                             [&shop](int row, int column) {
                                 return ShopCell(shop.lvLaden.rows[static_cast<std::size_t>(row)],
                                                 column);
                             }};
    list_ = new ListTable(frame,
                          {{"Ware", ShopTextColumn, Px(1875), Qt::AlignLeft},
                           {"Preis", ShopPriceColumn, Px(725), Qt::AlignRight}},
                          source);
    Place(Named(list_, "lvLaden"), 120, 360, 2895, 4935);
    list_->setAccessibleName("Waren im Shop");
    list_->setTextElideMode(Qt::ElideMiddle); // a quantity stands at the end
    session_.mirror.Bind([this, &shop] {
        const auto& view = shop.lvLaden;
        list_->setToolTip(ToToolTip(view.toolTip));
        list_->Mirror(view.revision, view.current, view.sort, view.reveal);
    });
    const auto& platform = session_.platform;
    connect(list_, &ListTable::rowChosen, this,
            [&](int row) { session_.Do([&] { ChooseShopRow(shop, row); }); });
    connect(list_, &ListTable::headerClicked, this,
            [&](int column) { session_.Do([&] { SortShopList(shop, column); }); });
    connect(list_, &ListTable::deletePressed, this,
            [&] { session_.Do([&] { RemoveShopRow(shop, platform); }); });
    connect(list_, &ListTable::rowDoubleClicked, this,
            [&] { session_.Do([&] { SetShopRowPrice(shop, platform); }); });
    BuildMenu();
    BuildButtons(frame);
}

void ShopEditorPane::BuildMenu() {
    AddListMenu(session_, *list_, [this]() -> std::vector<MenuEntry> {
        auto& shop = session_.state.shop;
        const auto& platform = session_.platform;
        const std::string removed(LastRemovedWare(shop));
        return {{"Preis ändern …", shop.cmdShopAnzahl.enabled,
                 [&] { SetShopRowPrice(shop, platform); }},
                {"Anzahl ändern …", shop.cmdShopAnzahl.enabled,
                 [&] { SetShopRowQuantity(shop, platform); }},
                {"Aus dem Shop nehmen", shop.cmdShopDelete.enabled,
                 [&] { RemoveShopRow(shop, platform); }},
                {removed.empty() ? "Zurückholen" : "Zurückholen: " + MenuText(removed),
                 !shop.removed.empty(), [&] { RecoverShopRow(shop, platform); }},
                CopyEntry(*list_)};
    });
}

void ShopEditorPane::BuildButtons(CaptionFrame* frame) {
    auto& state = session_.state;
    auto& shop = state.shop;
    const auto& platform = session_.platform;
    const auto build = [&](const char* name, const QString& toolTip, const QString& text, int left,
                           std::function<void()> operation) {
        return BuildButton(session_, frame, name, left, 5400, toolTip, text, std::move(operation));
    };
    auto* quantity = build("cmdShopAnzahl", "Anzahl bearbeiten", "x", 120,
                           [&] { SetShopRowQuantity(shop, platform); });
    auto* remove = build("cmdShopDelete", "Gewählten Gegenstand löschen", "–", 480,
                         [&] { RemoveShopRow(shop, platform); });
    build("cmdShopDrucken", "Shop ausdrucken", "D", 1920, [&] {
        PrintTempDocument(state.print, platform,
                          [&shop](std::string& document) { WriteShopPrint(shop, document); });
    });
    build("cmdShopExport", "HTML-Export", "H", 2280, [&] { ExportShop(shop, platform); });
    build("cmdShopGenerator", "Shopgenerator", "W", 2640, [&] {
        OpenGenerator(state.generator, shop, platform);
    })->setShortcut(Qt::Key_F5);
    session_.mirror.Bind(quantity, shop.cmdShopAnzahl, list_);
    session_.mirror.Bind(remove, shop.cmdShopDelete, list_);
}

void ShopEditorPane::BuildOwner() {
    auto& state = session_.state;
    auto& shop = state.shop;
    auto* frame = BuildFrame(3, "Besitzer", FieldLeft, 2280, FieldWidth, 1095);
    auto* name = BuildText(frame, "txtBesitzerName", shop.txtBesitzerName);
    name->resize(Px(1785), name->height());
    auto* draw = Place(Named(new QPushButton("G", frame), "cmdGenName"), 1965, 240, 330, 330);
    draw->setToolTip("Zufallsnamen generieren");
    draw->setAccessibleName(draw->toolTip());
    draw->setAutoDefault(true);
    session_.mirror.Bind(draw, shop.cmdGenName);
    connect(draw, &QPushButton::clicked, this,
            [&] { session_.Do([&] { DrawOwnerName(shop, session_.platform); }); });
    BuildField(frame, "cmbRasse", 660, shop.cmbRasse, [&](int index) { ChooseRace(shop, index); });
    auto* race = frame->findChild<QComboBox*>("cmbRasse");
    race->setAccessibleName(ToQString(shop.cmbRasse.toolTip));
    race->setPlaceholderText("Volk wählen …");
}

LineField* ShopEditorPane::BuildText(CaptionFrame* frame, const char* name, TextField& state) {
    auto* text = Place(Named(new LineField(frame), name), 120, 240, FieldWidth - 240, 315);
    text->setAccessibleName(frame->accessibleName());
    session_.mirror.Bind(text, state);
    connect(text, &LineField::entered, this, [this, &state](const std::string& entered) {
        session_.Do([&] { EditShopText(state, entered); });
    });
    return text;
}

void ShopEditorPane::BuildField(CaptionFrame* frame, const char* name, int top,
                                const ChoiceList& state, std::function<void(int index)> choose) {
    Place(BuildChoice(session_, frame, name, frame->accessibleName(), state, std::move(choose)),
          120, top, FieldWidth - 240, 315);
}

} // namespace emporium::ui
