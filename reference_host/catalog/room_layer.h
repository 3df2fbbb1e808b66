#pragma once

#include "host/api.h"
#include "platform/text.h"

namespace reference_host {

/// The layer that a template of the settings gives for what stands in a room: "$d" becomes the name
/// of the room's floor. The module's selection dialog makes the same of it.
HOST_API CString LayerOfRoom(const CString& layerTemplate, const CString& roomId);

} // namespace reference_host
