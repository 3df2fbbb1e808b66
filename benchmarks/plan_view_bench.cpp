// The drawing of a floor of 2,000 rooms, nearly all with a radiator. The window is painted, but on
// no screen.
//
// plan_pan: the plan moves by some pixels and is painted again, all of it in the window.
// plan_pan_marked: the same with every room marked.
// plan_pan_near: the same near enough for texts.
// plan_zoom: a step of the wheel there, painted.
// plan_change: the plan after a change to one room.
// plan_floor: the plan from nothing.

#include "platform/encoding.h"
#include "tools/large_floor.h"
#include "uikit/application.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/window/floor_scene.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>

#include <functional>

using namespace workbench;

namespace {

constexpr std::size_t kRooms = 2000;
constexpr QSize kWindow(1280, 900);
constexpr int kStep = 7;
constexpr double kZoom = 1.2;
/// Pixels a metre at which texts are many.
constexpr double kNear = 16.0;
/// A room in the middle of its wing.
constexpr CRoomRef kMiddle{0, 110};

const CBuilding& LargeFloor()
{
    static const CBuilding building = MakeLargeFloor(kRooms);
    return building;
}

/// Needs an application.
class CPlanRun
{
public:
    CPlanRun()
    {
        const CBlockLibrary valves(WideFromUtf8(RADSEL_DATA_DIR "/drawing/ventile.dxf"));
        scene.SetBlocks(std::get<CDxfDrawing>(
                            ReadDxfFile(WideFromUtf8(RADSEL_DATA_DIR "/drawing/heizkoerper.dxf"))),
                        &valves);
    }

    const CBuilding building = LargeFloor();
    CFloorScene scene;
};

using Step = std::function<void(CFloorScene&, CPlanView&)>;

/// A frame after every call of `move`, with the plan as `look` leaves it.
void Frames(benchmark::State& state, const Step& look, const Step& move)
{
    EnsureApplication();
    CPlanRun run;
    run.scene.ShowFloor(run.building, 0);
    CPlanView view(&run.scene);
    view.resize(kWindow);
    view.show();
    view.FitToContent();
    look(run.scene, view);
    QApplication::processEvents();
    for (auto _ : state) {
        move(run.scene, view);
        view.viewport()->repaint();
    }
}

/// Moves the plan to and fro.
Step Panning()
{
    return [step = kStep](CFloorScene&, CPlanView& view) mutable {
        view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->value() + step);
        step = -step;
    };
}

Step Zooming()
{
    return [factor = kZoom](CFloorScene&, CPlanView& view) mutable {
        view.ZoomAt(view.rect().center(), factor);
        factor = 1.0 / factor;
    };
}

void LookFar(CFloorScene&, CPlanView&) {}

void LookNear(CFloorScene& scene, CPlanView& view)
{
    view.ZoomAt({}, kNear / view.transform().m11());
    view.centerOn(scene.BoundsOf(kMiddle).center());
}

void MarkAll(CFloorScene& scene, CPlanView&)
{
    std::vector<CRoomRef> rooms;
    for (std::size_t i = 0; i < kRooms; ++i) {
        rooms.push_back({0, i});
    }
    scene.MarkRooms(rooms);
}

void PanMeasured(benchmark::State& state)
{
    Frames(state, LookFar, Panning());
}

void PanMarkedMeasured(benchmark::State& state)
{
    Frames(state, MarkAll, Panning());
}

void PanNearMeasured(benchmark::State& state)
{
    Frames(state, LookNear, Panning());
}

void ZoomMeasured(benchmark::State& state)
{
    Frames(state, LookNear, Zooming());
}

void ChangeMeasured(benchmark::State& state)
{
    EnsureApplication();
    CPlanRun run;
    CBuilding changed = run.building;
    CRoom room = RoomOf(changed, {0, 1});
    room.bedarf += 100.0;
    ReplaceRoom(changed, {0, 1}, room);
    run.scene.ShowFloor(run.building, 0);
    bool isChanged = false;
    for (auto _ : state) {
        isChanged = !isChanged;
        run.scene.ShowFloor(isChanged ? changed : run.building, 0);
    }
}

void FloorMeasured(benchmark::State& state)
{
    EnsureApplication();
    CPlanRun run;
    for (auto _ : state) {
        CPlanView view(&run.scene);
        view.resize(kWindow);
        run.scene.ShowFloor(run.building, 0);
        view.show();
        view.FitToContent();
        view.viewport()->repaint();
        run.scene.ShowFloor(run.building, 1);
    }
}

// A number of frames that is fixed, since each call makes a plan of its own.
BENCHMARK(PanMeasured)->Name("plan_pan/measured")->Iterations(20);
BENCHMARK(PanMarkedMeasured)->Name("plan_pan_marked/measured")->Iterations(20);
BENCHMARK(PanNearMeasured)->Name("plan_pan_near/measured")->Iterations(20);
BENCHMARK(ZoomMeasured)->Name("plan_zoom/measured")->Iterations(20);
BENCHMARK(ChangeMeasured)->Name("plan_change/measured")->Iterations(50);
BENCHMARK(FloorMeasured)->Name("plan_floor/measured")->Iterations(2);

} // namespace
