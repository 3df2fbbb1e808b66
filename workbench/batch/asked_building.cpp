#include "workbench/batch/asked_building.h"

#include "workbench/batch/arguments.h"
#include "workbench/building/building_json.h"

namespace workbench {

CBuilding ReadAskedBuilding(const CArguments& arguments, const CString& roomOption)
{
    CBuilding building =
        ReadBuilding(arguments.strBuilding.empty() ? arguments.strSample : arguments.strBuilding);
    if (!arguments.strRoom.empty() && !KeepRoom(building, arguments.strRoom)) {
        throw CArgumentException(roomOption + L": l'edificio non ha il locale \"" +
                                 arguments.strRoom + L"\"");
    }
    if (arguments.system) {
        building.system = *arguments.system;
        if (const CRoom* room = FindRoomTooWarm(building)) {
            throw CArgumentException(L"--system: il ritorno non supera la temperatura del locale "
                                     L"\"" +
                                     room->strName + L"\"");
        }
    }
    return building;
}

} // namespace workbench
