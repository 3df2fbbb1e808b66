#pragma once

#include "workbench/plan/radiator_product.h"

#include <cstddef>
#include <optional>

namespace workbench {

/// A layer of the drawing.
struct CRadiatorLayer
{
    CString strName;
    /// Colour index.
    int nFarbe = 0;
};

/// What is wished for a place of a room. The silent search (SelectRadiator) and the module's
/// dialogs are asked with it. Lengths are millimetres, outputs watts at design temperatures,
/// temperatures degrees Celsius.
struct CRadiatorWish
{
    /// The room as hosts name it in a hand-over (RoomIdOf).
    CString strRaum;
    CRadiatorProduct produkt;
    /// What the place has space for.
    CSizeLimits grenzen;
    /// What this radiator is to give: 0 if the others leave nothing, never less.
    double leistung = 0.0;
    /// Heat demand of the room, and what is met of it without this radiator, which may be more.
    double bedarf = 0.0;
    double gedeckt = 0.0;
    /// More radiators are to come beside this one, which is the room's first: the dialog then opens
    /// with half the demand, and not with all of it.
    bool bErster = false;
    CHeatingSystem system;
    double raumtemperatur = 0.0;
    /// The layer with which the dialog opens; nothing for the one that the host keeps.
    std::optional<CRadiatorLayer> layer;
    /// The block with which it opens, empty for a plain rectangle; nothing for the one that the
    /// host keeps.
    std::optional<CString> block;
};

/// How hosts name a room in a hand-over (CRoomTools).
CString RoomIdOf(const CString& floor, const CString& room);

/// A further radiator of the room's product at that place, which the room must have. It is to give
/// what the radiators that stand in the room leave.
CRadiatorWish WishForPlace(const CBuilding& building, const CFloor& floor, const CRoom& room,
                           std::size_t place);

/// The same for the first free place; for the first one if none is free.
CRadiatorWish WishForRoom(const CBuilding& building, const CFloor& floor, const CRoom& room);

/// The radiator of that index, which must exist, chosen anew: of its own product, at its place, on
/// its layer, and counting as not covering.
CRadiatorWish WishForRadiator(const CBuilding& building, const CFloor& floor, const CRoom& room,
                              std::size_t radiator);

} // namespace workbench
