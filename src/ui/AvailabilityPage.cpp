#include "ui/AvailabilityPage.h"

#include "itemeditor/AvailabilityEditor.h"
#include "regions/AtlasEngine.h"
#include "ui/Build.h"
#include "ui/RegionList.h"
#include "ui/Text.h"

namespace emporium::ui {

namespace {

RegionList* BuildRegions(Session& session, QWidget* page, const char* frameName,
                         const QString& caption, int left, const char* name, int height) {
    auto* frame = Place(Named(new CaptionFrame(page, CaptionFrame::Look::Grey, caption), frameName),
                        left, 120, 2400, 5640);
    const auto describe = [&session](const QString& code) {
        return ToToolTip(RegionDescription(session.platform.disk, ToAnsi(code)));
    };
    auto* list = Place(Named(new RegionList(frame, describe), name), 120, 270, 2160, height);
    list->setAccessibleName(caption);
    return list;
}

void BuildMove(Session& session, QWidget* page, const char* name, const QString& caption,
               const QString& meaning, int top, std::function<void()> operation) {
    auto* button = Place(Named(new QPushButton(caption, page), name), 2610, top, 945, 375);
    button->setAccessibleName(meaning);
    button->setToolTip(meaning);
    button->setAutoDefault(true);
    QObject::connect(button, &QPushButton::clicked, page,
                     [&session, operation = std::move(operation)] { session.Do(operation); });
}

} // namespace

void BuildAvailabilityPage(Session& session, QWidget* page) {
    auto& items = session.state.items;
    auto* others = BuildRegions(session, page, "Frame3", "Regionen", 105, "lstRegionen", 4245);
    const auto move = [&](const char* name, const QString& caption, const QString& meaning, int top,
                          std::function<void()> operation) {
        BuildMove(session, page, name, caption, meaning, top, std::move(operation));
    };
    move("cmdHin", ">", "Region hinzufügen", 1350, [&] { MoveRegionIn(items); });
    move("cmdZurück", "<", "Region wegnehmen", 1800, [&] { MoveRegionOut(items); });
    move("cmdAlleHin", ">>>>>", "Alle Regionen hinzufügen", 2700,
         [&] { MoveAllRegionsIn(items, session.platform); });
    move("cmdAlleZurück", "<<<<<", "Alle Regionen wegnehmen", 3150,
         [&] { ReturnAllRegions(items); });
    auto* chosen =
        BuildRegions(session, page, "Frame4", "Wird hergestellt in", 3660, "lstVerfügbar", 5220);
    session.mirror.Bind(others, items.lstRegionen);
    session.mirror.Bind(chosen, items.lstVerfügbar);
    QObject::connect(others, &RegionList::picked, page, [&](int row) {
        session.Do([&] { SelectRegion(items, session.platform, row); });
    });
    QObject::connect(chosen, &RegionList::picked, page,
                     [&](int row) { session.Do([&] { SelectAvailableRegion(items, row); }); });
    Place(BuildRegionName(session, others->parentWidget(), items.lblRegionen), 120, 4560, 2160,
          960);
}

} // namespace emporium::ui
