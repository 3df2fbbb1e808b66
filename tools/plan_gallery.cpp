#include "tools/plan_gallery.h"

#include "reference_host/prefs/host_settings.h"
#include "tools/large_floor.h"
#include "workbench/building/building_json.h"
#include "workbench/building/radiator_records.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/plan/sizing.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/floor_scene.h"

#include <QCoreApplication>

#include <cstdio>

using namespace reference_host;

using namespace workbench;

namespace {

constexpr QSize kWindow(1280, 900);
constexpr QSize kSmallWindow(420, 300);

/// Living room and kitchen of the sample building's ground floor.
constexpr CRoomRef kLivingRoom{0, 1};
constexpr CRoomRef kKitchen{0, 3};

/// A window with a plan in it, to be brought into a state and photographed.
class CPlanWindow
{
public:
    CPlanWindow(const QString& data, const QDir& folder) : m_folder(folder), m_view(&m_scene)
    {
        const CBlockLibrary valves(FromQt(data + "/drawing/ventile.dxf"));
        const auto radiators = ReadDxfFile(FromQt(data + "/drawing/heizkoerper.dxf"));
        if (const auto* const drawing = std::get_if<CDxfDrawing>(&radiators)) {
            m_scene.SetBlocks(*drawing, &valves);
        }
        m_view.resize(kWindow);
        m_view.show();
    }

    CFloorScene& Scene() { return m_scene; }
    CPlanView& View() { return m_view; }

    void Show(const CBuilding& building, std::size_t floor)
    {
        m_scene.ShowFloor(building, floor);
        m_view.FitToContent();
    }

    /// Shows so many pixels a metre about a place.
    void LookAt(const QPointF& place, double scale)
    {
        m_view.ZoomAt(m_view.viewport()->rect().center(), scale / m_view.transform().m11());
        m_view.centerOn(place);
    }

    void Save(const char* name)
    {
        QCoreApplication::processEvents();
        const QString path = m_folder.filePath(QString("plan-%1.png").arg(name));
        if (!m_view.grab().save(path)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            m_bWhole = false;
        }
    }

    bool IsWhole() const { return m_bWhole; }

private:
    QDir m_folder;
    CFloorScene m_scene;
    CPlanView m_view;
    bool m_bWhole = true;
};

/// Connects every radiator in the standard way, with a thermostatic valve and a lockshield.
void Connect(CBuilding& building)
{
    for (const CRoomRef& room : AllRooms(building)) {
        for (std::size_t i = 0; i < RoomOf(building, room).heizkoerper.size(); ++i) {
            CPlacedRadiator radiator = RadiatorOf(building, {room, i});
            radiator.anschluss.AnschlussAN = kStandardVorlauf;
            radiator.anschluss.AnschlussRI = kStandardRuecklauf;
            radiator.anschluss.GrafikAN = L"VALVOLA_SQUADRA_TERM_SX";
            radiator.anschluss.GrafikRI = L"DETENTORE_SQUADRA_DX";
            ReplaceRadiator(building, {room, i}, radiator);
        }
    }
}

void TakeHouse(CPlanWindow& window, CBuilding building)
{
    window.Show(building, 0);
    window.Save("vuoto");
    building = SizeRooms(building, AllRooms(building), {}).building;
    window.Show(building, 0);
    window.Save("terra");
    window.Show(building, 1);
    window.Save("primo");
    ChangeSystem(building, {55.0, 45.0});
    window.Show(building, 0);
    window.Save("sistema");
    window.Scene().MarkRooms({kLivingRoom, kKitchen});
    window.Save("locali");
}

void TakeNear(CPlanWindow& window, CBuilding building)
{
    building = SizeRooms(building, AllRooms(building), {}).building;
    Connect(building);
    window.Show(building, 0);
    const QRectF room = window.Scene().BoundsOf(kLivingRoom);
    window.LookAt(room.center(), 150.0);
    window.Save("locale");
    window.Scene().MarkRadiators({{kLivingRoom, 0}});
    window.LookAt({room.center().x(), room.top()}, 300.0);
    window.Save("corpo");
    window.View().resize(kSmallWindow);
    window.View().FitToContent();
    window.Save("piccolo");
    window.View().resize(kWindow);
}

void TakeLarge(CPlanWindow& window)
{
    window.Show(MakeLargeFloor(2000), 0);
    window.Save("grande");
    const QPointF corner = window.Scene().BoundsOf({0, 5}).center();
    for (const auto& [scale, name] : {std::pair(12.0, "grande-12"), {30.0, "grande-30"}}) {
        window.LookAt(corner, scale);
        window.Save(name);
    }
}

} // namespace

bool WritePlanPictures(const QString& data, const QDir& folder)
{
    OverrideHostSetting(kSettingHKDir, FromQt(data + "/catalogues"));
    const CBuilding house = ReadBuilding(FromQt(data + "/buildings/villa-dei-tigli.json"));
    CPlanWindow window(data, folder);
    TakeHouse(window, house);
    TakeNear(window, house);
    TakeLarge(window);
    return window.IsWhole();
}
