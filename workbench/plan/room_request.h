#pragma once

#include "frame/handover.h"
#include "workbench/building/building.h"

#include <cstddef>
#include <optional>

namespace workbench {

/// How hosts name a room in a hand-over (CRoomTools).
CString RoomIdOf(const CString& floor, const CString& room);

/// The hand-over with which a host asks for a radiator of the room: its product, the sizes that the
/// place has space for, temperatures and room data. Sizes are narrowed to those of the product, as
/// far as it has some within.
///
/// With `radiator` the one of that index, which must exist, is chosen anew: it counts as not
/// covering, its place is the one with the limits, and the product is its own. Otherwise a further
/// one of the room's product is chosen for the first free place; the limits are those of the first
/// place if none is free.
///
/// Leistung is what is left for this radiator. Where nothing is left it is 0, for which the module
/// takes an output of its own.
HK_DATEN_VDI3805_UEBERGABE MakeRequest(const CBuilding& building, const CFloor& floor,
                                       const CRoom& room,
                                       std::optional<std::size_t> radiator = std::nullopt);

} // namespace workbench
