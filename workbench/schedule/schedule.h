#pragma once

#include "workbench/building/building.h"
#include "workbench/plan/room_selection.h"
#include "workbench/plan/sizing.h"
#include "workbench/schedule/valve_selection.h"

#include <vector>

namespace workbench {

/// A radiator of a room, or a room without one.
struct CScheduleRow
{
    /// Its product is that of the radiator.
    CRoom room;
    CRoomOutcome outcome;
    /// Only a radiator of the building gets valves.
    CRoomValves ventile;
    /// False for a further radiator of the room in the row before, which counts the room no more.
    bool bErster = true;
    /// Output of all radiators of the room.
    double leistungRaum = 0.0;

    /// True if the radiator is one of the building; not for one that is told as the nearest.
    bool HasRadiator() const;
};

/// Sums over rooms, in watts and litres. Outputs and water count radiators of the building only, so
/// that an unfitting room shows as missing output.
struct CScheduleTotals
{
    int nRooms = 0;
    /// Rooms with radiators that cover them and fit, and rooms that need some and are not covered.
    int nChosen = 0;
    int nOpen = 0;
    /// Radiators of the building.
    int nHeizkoerper = 0;
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

/// The radiators of a building, of a batch run or of a plan.
struct CSchedule
{
    CString strBuilding;
    CHeatingSystem system;
    std::vector<CScheduleFloor> floors;
    CScheduleTotals totals;
    /// Why rooms could not be sized whose catalogues cannot be read; a text for the user.
    std::vector<CString> unreadCatalogues;

    /// Why files of radiators or valves could not be read, each reason once.
    std::vector<CString> GetUnread() const;
};

/// Lists the radiators that stand in the building, with their valves, a row each, and a row for
/// each room without one. Rooms that are not covered say what is missing; those without radiator
/// that are among `faults` say what their search came to, and others among them whose catalogue
/// cannot be read say that.
CSchedule SchedulePlan(const CBuilding& building, const std::vector<CSizingFault>& faults = {});

/// True for a room that someone has to look after: it needs radiators and is not covered, or one
/// does not fit its place.
bool IsOpen(RoomStatus status);

/// True for a room with a radiator that does not fit its place, or with more output than the
/// building allows.
bool IsMissized(RoomStatus status);

/// Output that the room asks of its radiators: never below 0.
double GetRequired(const CRoom& room);

/// How far an output misses what is required, in per cent: above 0 if it is more. 0 if nothing is
/// required.
double GetDeviation(double leistung, double required);

/// The status as the user reads it.
CString GetStatusText(RoomStatus status);

} // namespace workbench
