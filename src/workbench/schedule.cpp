#include "workbench/schedule.h"

#include <algorithm>

namespace {

CScheduleRow MakeRow(const CRoom& room, const CHeatingSystem& system)
{
    CScheduleRow row{room, SelectRadiator(room, system), {}};
    if (row.outcome.status == RoomStatus::chosen) {
        row.ventile = FetchValves(room.ventile);
    }
    return row;
}

} // namespace

void CScheduleTotals::Add(const CScheduleRow& row)
{
    ++nRooms;
    bedarf += row.room.bedarf;
    required += GetRequired(row.room);
    if (row.outcome.status == RoomStatus::chosen) {
        ++nChosen;
        leistungEN442 += row.outcome.radiator->daten.LeistungEN442;
        leistung += row.outcome.radiator->daten.Leistung;
        inhalt += row.outcome.radiator->daten.Inhalt;
    } else if (row.outcome.status != RoomStatus::covered) {
        ++nOpen;
    }
}

void CScheduleTotals::Add(const CScheduleTotals& other)
{
    nRooms += other.nRooms;
    nChosen += other.nChosen;
    nOpen += other.nOpen;
    bedarf += other.bedarf;
    required += other.required;
    leistungEN442 += other.leistungEN442;
    leistung += other.leistung;
    inhalt += other.inhalt;
}

bool CSchedule::HasBadCatalogue() const
{
    const auto isBad = [](const CScheduleRow& row) {
        return row.outcome.status == RoomStatus::badCatalogue ||
               row.ventile.vorlauf.status == ValveStatus::badFile ||
               row.ventile.ruecklauf.status == ValveStatus::badFile;
    };
    return std::any_of(floors.begin(), floors.end(), [&](const CScheduleFloor& floor) {
        return std::any_of(floor.rows.begin(), floor.rows.end(), isBad);
    });
}

CSchedule MakeSchedule(const CBuilding& building)
{
    CSchedule schedule;
    schedule.strBuilding = building.strName;
    schedule.system = building.system;
    for (const CFloor& floor : building.floors) {
        CScheduleFloor result;
        result.strName = floor.strName;
        for (const CRoom& room : floor.rooms) {
            result.rows.push_back(MakeRow(room, building.system));
            result.totals.Add(result.rows.back());
        }
        schedule.totals.Add(result.totals);
        schedule.floors.push_back(std::move(result));
    }
    return schedule;
}

double GetRequired(const CRoom& room)
{
    return std::max(0.0, room.GetLeistung());
}

double GetDeviation(double leistung, double required)
{
    return required > 0.0 ? 100.0 * (leistung - required) / required : 0.0;
}

CString GetStatusText(RoomStatus status)
{
    switch (status) {
    case RoomStatus::chosen:
        return L"scelto";
    case RoomStatus::covered:
        return L"già coperto";
    case RoomStatus::unfitting:
        return L"nessuna misura adatta";
    case RoomStatus::unknownProduct:
        return L"prodotto non trovato";
    case RoomStatus::badCatalogue:
        return L"catalogo illeggibile";
    }
    return {};
}
