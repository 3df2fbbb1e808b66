#include "workbench/report/plan_dxf.h"

#include "workbench/dxf/dxf_writer.h"
#include "workbench/report/plan_drawing.h"

namespace workbench {

std::string FormatPlanDxf(const CBuilding& building, const CDxfDrawing& radiators,
                          const CBlockLibrary* valves)
{
    return WriteDxf(MakePlanDrawing(building, radiators, valves));
}

} // namespace workbench
