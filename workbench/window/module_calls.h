#pragma once

#include "workbench/plan/plan_edit.h"
#include "workbench/plan/radiator_choice.h"

#include <optional>

class CDrawer;

namespace workbench {

/// The module's dialogs, opened as a CAD does. Each runs until the user closes it and gives what he
/// chose, or the building with it; nothing if he cancelled. A call that the module breaks off, as
/// with a damaged file, raises a CModuleFault.

/// The selection dialog for a wish. The radiators of the wish's room stay as they are.
std::optional<CRadiatorChoice> AskForRadiator(const CRadiatorWish& wish, CDrawer& drawer);

/// The same for a further radiator of a room, which must have a free place, or with `radiator` for
/// another one in place of that.
std::optional<CRadiatorChoice> AskForRadiator(const CBuilding& building, const CRoomRef& room,
                                              std::optional<std::size_t> radiator, CDrawer& drawer);

/// The building with what was chosen so; nothing if there is no place for it. The product becomes
/// that of the room, unless others stand there. Outputs are those at the building's heating system.
std::optional<CBuilding> PutRadiator(const CBuilding& building, const CRoomRef& room,
                                     std::optional<std::size_t> radiator,
                                     const CRadiatorChoice& chosen);

/// Connection and valves of radiators, at least one. The dialog opens on those of the first and
/// shows the connection points of all in the drawing.
std::optional<CBuilding> ConnectRadiators(const CBuilding& building,
                                          const std::vector<CRadiatorRef>& radiators,
                                          CDrawer& drawer);

/// The product that rooms, at least one, are to get; the radiators in them stay. The tree opens on
/// the product of the first.
std::optional<CBuilding> ChooseProduct(const CBuilding& building,
                                       const std::vector<CRoomRef>& rooms);

} // namespace workbench
