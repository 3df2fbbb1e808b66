#include "workbench/schedule.h"

#include "platform/format.h"
#include "workbench/plan/coverage.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace {

CScheduleRow MakeRow(const CRoom& room, const CHeatingSystem& system)
{
    CScheduleRow row{room, SelectRadiator(room, system), {}};
    if (row.HasRadiator()) {
        row.leistungRaum = row.outcome.radiator->daten.Leistung;
        row.ventile = FetchValves(room.ventile);
    }
    return row;
}

/// Makes the schedule with the rows that `appendRows` appends for a room.
template <class APPEND_ROWS>
CSchedule MakeScheduleOf(const CBuilding& building, APPEND_ROWS appendRows)
{
    CSchedule schedule;
    schedule.strBuilding = building.strName;
    schedule.system = building.system;
    for (const CFloor& floor : building.floors) {
        CScheduleFloor result;
        result.strName = floor.strName;
        for (const auto& room : floor.rooms) {
            appendRows(result.rows, *room);
        }
        for (const CScheduleRow& row : result.rows) {
            result.totals.Add(row);
        }
        schedule.totals.Add(result.totals);
        schedule.floors.push_back(std::move(result));
    }
    return schedule;
}

/// Most radiators of a building have the same valves.
class CValveFetcher
{
public:
    const CRoomValves& Fetch(const CValveKeys& keys)
    {
        const auto [found, isNew] =
            m_fetched.try_emplace({KeyOf(keys.vorlauf), KeyOf(keys.ruecklauf)});
        if (isNew) {
            found->second = FetchValves(keys);
        }
        return found->second;
    }

private:
    using Key = std::tuple<bool, CString, CString>;

    static Key KeyOf(const std::optional<CValveKey>& key)
    {
        return key ? Key{true, key->strHersteller, key->strVentilNr} : Key{};
    }

    std::map<std::pair<Key, Key>, CRoomValves> m_fetched;
};

CString DescribeLack(const CRoom& room)
{
    const double missing = RemainderOf(room);
    return L"mancano " + FormatFixed(missing, 0) + L" W (" +
           FormatFixed(100.0 * missing / room.GetLeistung(), 1) + L" %)";
}

CRoomOutcome OutcomeOf(const CRoom& room)
{
    switch (CoverageOf(room)) {
    case Coverage::notNeeded:
        return room.heizkoerper.empty()
                   ? CRoomOutcome{RoomStatus::covered, {}, L"nessun corpo scaldante necessario"}
                   : CRoomOutcome{RoomStatus::chosen, {}, {}};
    case Coverage::covered:
        return {RoomStatus::chosen, {}, {}};
    case Coverage::lacking:
        return {RoomStatus::lacking, {}, DescribeLack(room)};
    case Coverage::empty:
        return {RoomStatus::missing, {}, DescribeLack(room)};
    }
    return {};
}

void AppendPlacedRows(std::vector<CScheduleRow>& rows, const CRoom& room, CValveFetcher& valves)
{
    CScheduleRow row{room, OutcomeOf(room), {}, true, OutputOf(room)};
    row.room.heizkoerper.clear();
    if (room.heizkoerper.empty()) {
        rows.push_back(row);
        return;
    }
    for (const CPlacedRadiator& radiator : room.heizkoerper) {
        row.room.strHersteller = radiator.strHersteller;
        row.room.strArt = radiator.strArt;
        row.room.strProdukt = radiator.strProdukt;
        row.outcome.radiator = CRadiator{radiator.strTyp, radiator.daten};
        row.ventile = valves.Fetch(radiator.ventile);
        rows.push_back(row);
        row.bErster = false;
    }
}

} // namespace

bool CScheduleRow::HasRadiator() const
{
    return outcome.radiator &&
           (outcome.status == RoomStatus::chosen || outcome.status == RoomStatus::lacking);
}

void CScheduleTotals::Add(const CScheduleRow& row)
{
    if (row.bErster) {
        ++nRooms;
        bedarf += row.room.bedarf;
        required += GetRequired(row.room);
        nChosen += row.outcome.status == RoomStatus::chosen ? 1 : 0;
        nOpen += IsOpen(row.outcome.status) ? 1 : 0;
    }
    if (row.HasRadiator()) {
        ++nHeizkoerper;
        leistungEN442 += row.outcome.radiator->daten.LeistungEN442;
        leistung += row.outcome.radiator->daten.Leistung;
        inhalt += row.outcome.radiator->daten.Inhalt;
    }
}

void CScheduleTotals::Add(const CScheduleTotals& other)
{
    nRooms += other.nRooms;
    nChosen += other.nChosen;
    nOpen += other.nOpen;
    nHeizkoerper += other.nHeizkoerper;
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
    return MakeScheduleOf(building, [&](std::vector<CScheduleRow>& rows, const CRoom& room) {
        rows.push_back(MakeRow(room, building.system));
    });
}

CSchedule SchedulePlan(const CBuilding& building)
{
    CValveFetcher valves;
    return MakeScheduleOf(building, [&](std::vector<CScheduleRow>& rows, const CRoom& room) {
        AppendPlacedRows(rows, room, valves);
    });
}

bool IsOpen(RoomStatus status)
{
    return status != RoomStatus::chosen && status != RoomStatus::covered;
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
    case RoomStatus::missing:
        return L"manca il corpo scaldante";
    case RoomStatus::lacking:
        return L"insufficiente";
    }
    return {};
}
