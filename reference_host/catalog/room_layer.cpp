#include "reference_host/catalog/room_layer.h"

#include "common/layer_text.h"
#include "host/host_catalog.h"

namespace reference_host {

CString LayerOfRoom(const CString& layerTemplate, const CString& roomId)
{
    return LayerAusVorlage(layerTemplate, CRoomTools::GetFloorName(roomId));
}

} // namespace reference_host
