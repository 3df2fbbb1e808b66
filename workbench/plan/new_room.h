#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// What has to be known of a room that is added by hand. Lengths in mm.
struct CNewRoom
{
    CString strFloor;
    CString strName;
    double raumtemperatur = 20.0;
    /// In watts.
    double bedarf = 0.0;
    double breite = 4000.0;
    double tiefe = 4000.0;
    /// The window, which has the radiator below it: in the middle of the southern wall.
    double fensterBreite = 1200.0;
    double bruestung = 900.0;
};

/// A building without rooms, at a system and clearances that are usual.
CBuilding MakeBuilding(const CString& name);

/// Why the room cannot be added, for the user; empty if it can.
CString FindFault(const CBuilding& building, const CNewRoom& room);

/// Adds the room, which must have no fault, to the floor of that name, a new one if there is none,
/// east of its others and off their windows. It wishes for the product of the last room there, or
/// of the first floor that has rooms, and for the building's valves.
void AddRoom(CBuilding& building, const CNewRoom& room);

} // namespace workbench
