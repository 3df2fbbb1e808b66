#pragma once

#include "workbench/building.h"
#include "workbench/room_selection.h"
#include "workbench/valve_selection.h"

#include <vector>

struct CScheduleRow
{
    CRoom room;
    CRoomOutcome outcome;
    /// Only a chosen radiator gets valves.
    CRoomValves ventile;
};

/// Sums over rooms, in watts and litres. Outputs and water count chosen radiators only, so that an
/// unfitting room shows as missing output.
struct CScheduleTotals
{
    int nRooms = 0;
    /// Rooms that got a radiator, and rooms that need one and got none.
    int nChosen = 0;
    int nOpen = 0;
    double bedarf = 0.0;
    double required = 0.0;
    double leistungEN442 = 0.0;
    double leistung = 0.0;
    double inhalt = 0.0;

    void Add(const CScheduleRow& row);
    void Add(const CScheduleTotals& other);
};

struct CScheduleFloor
{
    CString strName;
    std::vector<CScheduleRow> rows;
    CScheduleTotals totals;
};

/// The result of a batch run.
struct CSchedule
{
    CString strBuilding;
    CHeatingSystem system;
    std::vector<CScheduleFloor> floors;
    CScheduleTotals totals;

    /// True if the file of any radiator or valve could not be read.
    bool HasBadCatalogue() const;
};

/// Chooses a radiator for every room of the building and fetches its valves.
CSchedule MakeSchedule(const CBuilding& building);

/// Output that the room asks of its radiator: never below 0.
double GetRequired(const CRoom& room);

/// How far an output misses what is required, in per cent: above 0 if it is more. 0 if nothing is
/// required.
double GetDeviation(double leistung, double required);

/// The status as the user reads it.
CString GetStatusText(RoomStatus status);
