#pragma once

#include "workbench/building/building.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace workbench {

/// Where a radiator stands in the plan of its floor. Metres, with y upwards.
struct CRadiatorPose
{
    /// Its middle, seen from above.
    double dX = 0.0;
    double dY = 0.0;
    /// Degrees from +x to its length, counter-clockwise. A radiator has its back to the wall: the
    /// room lies on the left of its length.
    double dWinkel = 0.0;
    double dLaenge = 0.0;
    double dTiefe = 0.0;
    double dHoehe = 0.0;
    double dUeberBoden = 0.0;
};

/// A window or a free piece of wall as a line along the inner face of the wall, in metres, running
/// so that the room lies on its left.
struct CPlaceLine
{
    double dX1 = 0.0;
    double dY1 = 0.0;
    double dX2 = 0.0;
    double dY2 = 0.0;
};

CPlaceLine LineOf(const CRoom& room, const CRadiatorPlace& place);

/// The radiator in the middle of its place, which the room must have, at its distances from wall
/// and floor.
CRadiatorPose PoseOf(const CRoom& room, const CPlacedRadiator& radiator);

/// What of a row is beyond the limits, each a text for the user ("altezza 900 mm, consentiti 720
/// mm"); nothing if it fits. The search for radiators asks here as the state of a room does.
std::vector<CString> FindExcess(const CSizeLimits& limits, const HK_DATEN_VDI3805& daten);

/// True if the radiator's row is within the limits of the place.
bool FitsPlace(const CRoom& room, const CRadiatorPlace& place, const CClearance& clearance,
               const HK_DATEN_VDI3805& daten);

/// The place for a new radiator: the narrowest free window that the row fits, else the narrowest
/// free wall that it fits, else the first free place at all. Nothing if every place is taken.
std::optional<std::size_t> FindFreePlace(const CRoom& room, const CClearance& clearance,
                                         const HK_DATEN_VDI3805& daten);

/// True if a radiator stands there.
bool IsTaken(const CRoom& room, std::size_t place);

/// The places without a radiator, in the order of the room.
std::vector<std::size_t> FreePlaces(const CRoom& room);

} // namespace workbench
