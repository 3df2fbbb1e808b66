// The plan of a large building.
//
// plan_sizing: every room of a building of 2,000 is given its radiator, from an empty plan.
// plan_sizing_again: the same for a building that has its radiators.

#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tools/make_building_samples.h"
#include "workbench/plan/sizing.h"

#include <benchmark/benchmark.h>

using namespace reference_host;

using namespace workbench;

namespace {

constexpr std::size_t kRooms = 2000;

void Size(benchmark::State& state, const CBuilding& building)
{
    for (auto _ : state) {
        const CSizingResult result = SizeRooms(building, AllRooms(building), {});
        if (result.nSized < static_cast<int>(kRooms / 2)) {
            state.SkipWithError("too few rooms were given a radiator");
        }
    }
}

CBuilding PrepareBuilding()
{
    OverrideHostSetting(kSettingHKDir, WideFromUtf8(RADSEL_DATA_DIR "/catalogues"));
    return MakeLargeBuilding(kRooms);
}

void PlanSizingMeasured(benchmark::State& state)
{
    Size(state, PrepareBuilding());
}

void PlanSizingAgainMeasured(benchmark::State& state)
{
    const CBuilding building = PrepareBuilding();
    Size(state, SizeRooms(building, AllRooms(building), {}).building);
}

BENCHMARK(PlanSizingMeasured)->Name("plan_sizing/measured")->Iterations(1);
BENCHMARK(PlanSizingAgainMeasured)->Name("plan_sizing_again/measured")->Iterations(1);

} // namespace
