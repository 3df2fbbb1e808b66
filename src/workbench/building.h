#pragma once

#include "platform/text.h"

#include <optional>
#include <vector>

/// Design temperatures of the heating water in degrees Celsius.
struct CHeatingSystem
{
    double vorlauf = 0.0;
    double ruecklauf = 0.0;

    /// True if the temperatures are those of a water heating: above 0, at most 110, and the return
    /// below the supply. The module has no guard of its own against equal temperatures.
    bool IsPlausible() const;
};

/// The largest radiator that a room has space for, in mm.
struct CSizeLimits
{
    double hoeheMax = 0.0;
    double laengeMax = 0.0;
    double tiefeMin = 0.0;
    double tiefeMax = 0.0;
};

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

/// A room and the products that the designer wishes for it.
struct CRoom
{
    CString strName;
    double raumtemperatur = 0.0;
    /// Heat demand, and the part of it that other heating covers already, in watts.
    double bedarf = 0.0;
    double gedeckt = 0.0;
    CSizeLimits grenzen;
    CString strHersteller;
    CString strArt;
    CString strProdukt;
    CValveKeys ventile;

    /// Output that the radiator has to give at design temperatures; 0 or less if none is needed.
    double GetLeistung() const { return bedarf - gedeckt; }
};

struct CFloor
{
    CString strName;
    std::vector<CRoom> rooms;
};

/// A building as the batch run works on it. Rooms have names unique in the whole building.
struct CBuilding
{
    CString strName;
    CHeatingSystem system;
    std::vector<CFloor> floors;
};

/// The first room whose air is not colder than the returning water, which no radiator can heat;
/// null if there is none.
const CRoom* FindRoomTooWarm(const CBuilding& building);

/// True if any room is to have a valve.
bool HasValves(const CBuilding& building);

/// Leaves the room of that name and its floor only. False if there is none, and then the building
/// stays as it was.
bool KeepRoom(CBuilding& building, const CString& name);
