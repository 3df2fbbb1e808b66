#include "tools/make_drawings_samples.h"

#include "tools/make_drawings_radiators.h"
#include "tools/make_drawings_valves.h"
#include "workbench/dxf/dxf_writer.h"

namespace workbench {

std::vector<CSampleDrawing> MakeSampleDrawings()
{
    return {{"heizkoerper.dxf", WriteDxf(MakeRadiatorBlocks())},
            {"ventile.dxf", WriteDxf(MakeValveBlocks())}};
}

} // namespace workbench
