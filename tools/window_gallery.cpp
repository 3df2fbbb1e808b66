#include "tools/window_gallery.h"

#include "host/host_base.h"
#include "host/host_prompts.h"
#include "reference_host/prefs/host_settings.h"
#include "tools/dark_palette.h"
#include "workbench/building/building_json.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/drawing/scene_drawer.h"
#include "workbench/plan/coverage.h"
#include "workbench/plan/sizing.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/floor_scene.h"
#include "workbench/window/system_dialog.h"
#include "workbench/window/workbench_window.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

using namespace reference_host;

using namespace workbench;

namespace {

constexpr QSize kSizes[] = {{1240, 800}, {1366, 720}, {1024, 720}, {800, 552}};

bool Save(QWidget& window, const QDir& folder, const QString& name)
{
    QCoreApplication::processEvents();
    const QString path = folder.filePath(name + ".png");
    if (!window.grab().save(path)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

bool TakeWindows(const CBuilding& house, const QDir& folder, const QString& suffix)
{
    bool whole = true;
    CPlanDocument document(nullptr);
    CWorkbenchWindow window(document, ReadDrawingBlocks(), MakePrompts());
    window.show();
    whole = Save(window, folder, "finestra-vuota" + suffix);
    document.Do(L"", SizeRooms(house, AllRooms(house), {}).building);
    window.findChild<CFloorScene*>()->MarkRooms({{0, 1}});
    for (const QSize& size : kSizes) {
        window.resize(size);
        whole =
            Save(window, folder, QString("finestra-%1%2").arg(size.width()).arg(suffix)) && whole;
    }
    CBuilding open = document.Building();
    ChangeSystem(open, {55.0, 45.0});
    document.Do(L"", open);
    window.Tell("Un avviso.");
    return Save(window, folder, "finestra-avvisi" + suffix) && whole;
}

/// Takes the dialog that `open` shows, and closes it.
bool TakeDialog(const QDir& folder, const QString& name, const std::function<void()>& open)
{
    bool saved = false;
    QTimer::singleShot(0, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        saved = Save(*dialog, folder, name);
        dialog->close();
    });
    open();
    return saved;
}

bool TakeDialogs(const CBuilding& house, const QDir& folder, const QString& suffix)
{
    QGraphicsScene scene;
    CSceneDrawer drawer(scene, {{L"0", 7}, {L"RISCALDAMENTO_PT", 1}, {L"MURI", 8}});
    CString layer = L"MURI";
    int color = 3;
    int alpha = 200;
    CSystemDialog system(house, nullptr);
    const std::pair<const char*, std::function<void()>> dialogs[] = {
        {"ospite-layer", [&] { ShowBigLayerDlg(&drawer, layer, color); }},
        {"ospite-colore", [&] { GetColorDlg(color); }},
        {"ospite-trasparenza", [&] { ShowTransDlg(alpha); }},
        {"finestra-sistema", [&] { system.exec(); }},
    };
    bool whole = true;
    for (const auto& [name, open] : dialogs) {
        whole = TakeDialog(folder, name + suffix, open) && whole;
    }
    return whole;
}

} // namespace

bool WriteWindowPictures(const QString& data, const QDir& folder)
{
    OverrideHostSetting(kSettingHKBlockFolder, FromQt(data + "/drawing/heizkoerper.dxf"));
    OverrideHostSetting(kSettingValveBlockFolder, FromQt(data + "/drawing/ventile.dxf"));
    const CBuilding house = ReadBuilding(FromQt(data + "/buildings/villa-dei-tigli.json"));
    bool whole = true;
    for (const bool dark : {false, true}) {
        const CColors colors(dark ? DarkPalette() : QApplication::palette());
        const QString suffix = dark ? "_scuro" : "";
        whole = TakeWindows(house, folder, suffix) && TakeDialogs(house, folder, suffix) && whole;
    }
    return whole;
}
