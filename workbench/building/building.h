#pragma once

#include "frame/conn_values.h"
#include "frame/handover.h"
#include "platform/text.h"

#include <memory>
#include <optional>
#include <vector>

namespace workbench {

/// Design temperatures of the heating water in degrees Celsius.
struct CHeatingSystem
{
    double vorlauf = 0.0;
    double ruecklauf = 0.0;

    /// True if the temperatures are those of a water heating: above 0, at most 110, and the return
    /// below the supply. The module has no guard of its own against equal temperatures.
    bool IsPlausible() const;

    bool operator==(const CHeatingSystem&) const = default;
};

/// The largest radiator that a room has space for, in mm.
struct CSizeLimits
{
    double hoeheMax = 0.0;
    double laengeMax = 0.0;
    double tiefeMin = 0.0;
    double tiefeMax = 0.0;

    bool operator==(const CSizeLimits&) const = default;
};

/// Stands for "no limit" on a depth.
inline constexpr double kAnyDepth = 20000.0;

/// A valve in the catalogues: the folder name of its maker and its ident of 36 digits.
struct CValveKey
{
    CString strHersteller;
    CString strVentilNr;
};

/// The valves of a radiator, as far as it gets any.
struct CValveKeys
{
    std::optional<CValveKey> vorlauf;
    std::optional<CValveKey> ruecklauf;
};

/// A rectangle of the floor plan in mm, with y upwards.
struct CFloorRect
{
    double x = 0.0;
    double y = 0.0;
    double breite = 0.0;
    double tiefe = 0.0;
};

/// The walls of a room, named by the side of the plan that they face.
enum class Wall
{
    sued,
    ost,
    nord,
    west,
};

enum class PlaceKind
{
    window,
    wall,
};

/// Where a radiator of a room can stand: below a window, or before a piece of wall.
struct CRadiatorPlace
{
    PlaceKind art = PlaceKind::window;
    /// Height of the sill above the floor, or free height of the wall, in mm.
    double hoehe = 0.0;
    /// Width of the window or of the free wall, in mm.
    double breite = 0.0;
    Wall wand = Wall::sued;
    /// From the western or southern end of the wall to where the place begins, in mm.
    double abstand = 0.0;
};

/// A radiator that stands in the plan.
struct CPlacedRadiator
{
    CString strHersteller;
    CString strArt;
    CString strProdukt;
    CString strTyp;
    /// The designer picked it himself, so that no sizing replaces it unless he says so.
    bool bVonHand = false;
    /// The row chosen. Leistung is that at the heating system for which it was chosen last.
    HK_DATEN_VDI3805 daten;
    /// Index of its place in the room.
    std::size_t nPlatz = 0;
    /// From the wall to its back, from the floor to its lower edge, in metres.
    double abstandWand = 0.0;
    double abstandBoden = 0.0;
    CString strLayer;
    /// Colour index of the layer.
    int nFarbe = 0;
    /// Block that shows it from above; empty for a plain rectangle.
    CString strBlock;
    /// How it is connected. Empty connection point texts mean that it is not yet.
    ConnValues anschluss;
    CValveKeys ventile;
};

/// A room, the products that the designer wishes for it, and the radiators that stand in it.
struct CRoom
{
    CString strName;
    double raumtemperatur = 0.0;
    /// Heat demand, and the part of it that other heating covers already, in watts.
    double bedarf = 0.0;
    double gedeckt = 0.0;
    /// The largest radiator at the first place.
    CSizeLimits grenzen;
    CString strHersteller;
    CString strArt;
    CString strProdukt;
    CValveKeys ventile;
    CFloorRect grundriss;
    /// At least one.
    std::vector<CRadiatorPlace> plaetze;
    /// At most one at a place.
    std::vector<CPlacedRadiator> heizkoerper;
    /// What the file has as "note", as JSON; empty without one.
    CString strNotiz;

    /// Output that the radiator has to give at design temperatures; 0 or less if none is needed.
    double GetLeistung() const { return bedarf - gedeckt; }
};

struct CFloor
{
    CString strName;
    /// Never null. Shared between the states of a building, so that a change to one room copies no
    /// other; whoever changes a room puts a new one in its place.
    std::vector<std::shared_ptr<const CRoom>> rooms;
    CString strNotiz;
};

/// Space that every radiator of a building keeps to the floor and to the sill above, in mm.
struct CClearance
{
    double boden = 0.0;
    double sturz = 0.0;
};

/// Per cent by which the radiators of a room may exceed what is asked of them, unless a building
/// has a limit of its own.
inline constexpr double kUsualExcess = 15.0;

/// Whose building it is and who plans it, as papers for the client say it. Empty texts are not
/// said.
struct CProject
{
    CString strClient;
    CString strDesigner;
    CString strNumber;
    /// Day of the project as "2026-03-01".
    CString strDate;

    bool operator==(const CProject&) const = default;
};

/// A building. A value whose copies share the rooms that they have in common. Rooms have names
/// unique in the whole building, floors among the floors.
struct CBuilding
{
    CString strName;
    CProject project;
    CHeatingSystem system;
    CClearance abstaende;
    /// Per cent by which the radiators of a room may exceed what is asked of them.
    double ueberschussMax = kUsualExcess;
    /// What a new room gets; rooms hold their own.
    CValveKeys ventile;
    std::vector<CFloor> floors;
    CString strNotiz;
};

/// The largest radiator that a place of the room has space for.
CSizeLimits LimitsOfPlace(const CRoom& room, const CRadiatorPlace& place,
                          const CClearance& clearance);

/// The first room whose air is not colder than the returning water, which no radiator can heat;
/// null if there is none.
const CRoom* FindRoomTooWarm(const CBuilding& building);

/// True if any room is to have a valve.
bool HasValves(const CBuilding& building);

/// Leaves the room of that name and its floor only. False if there is none, and then the building
/// stays as it was.
bool KeepRoom(CBuilding& building, const CString& name);

} // namespace workbench
