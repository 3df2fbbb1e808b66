#include "workbench/schedule/schedule.h"

#include "workbench/plan/coverage.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace workbench {

namespace {

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

RoomStatus StatusOf(const CRoom& room, Coverage coverage)
{
    switch (coverage) {
    case Coverage::notNeeded:
        return room.heizkoerper.empty() ? RoomStatus::covered : RoomStatus::chosen;
    case Coverage::covered:
        return RoomStatus::chosen;
    case Coverage::lacking:
        return RoomStatus::lacking;
    case Coverage::empty:
        return RoomStatus::missing;
    case Coverage::tooLarge:
        return RoomStatus::tooLarge;
    case Coverage::oversized:
        return RoomStatus::oversized;
    }
    return {};
}

CRoomOutcome OutcomeOf(const CBuilding& building, const CRoom& room)
{
    const RoomStatus status = StatusOf(room, CoverageOf(building, room));
    return {status,
            {},
            status == RoomStatus::covered ? GetCoverageText(Coverage::notNeeded)
                                          : DescribeCoverage(building, room)};
}

/// Makes the rows of rooms.
class CRowMaker
{
public:
    CRowMaker(const CBuilding& building, const std::vector<CSizingFault>& faults)
        : m_building(building)
    {
        for (const CSizingFault& fault : faults) {
            m_faults.emplace(fault.room, &fault.outcome);
        }
    }

    void AppendRows(std::vector<CScheduleRow>& rows, const CRoom& room, const CRoomRef& ref)
    {
        CScheduleRow row;
        row.room = room;
        row.outcome = OutcomeOf(m_building, room);
        row.leistungRaum = OutputOf(room);
        row.room.heizkoerper.clear();
        const auto fault = m_faults.find(ref);
        if (room.heizkoerper.empty()) {
            row.outcome = fault != m_faults.end() ? *fault->second : row.outcome;
            rows.push_back(row);
            return;
        }
        if (fault != m_faults.end() && fault->second->status == RoomStatus::badCatalogue) {
            row.outcome.strNote = L"non dimensionato di nuovo: " + fault->second->strNote;
        }
        for (const CPlacedRadiator& radiator : room.heizkoerper) {
            row.room.strHersteller = radiator.strHersteller;
            row.room.strArt = radiator.strArt;
            row.room.strProdukt = radiator.strProdukt;
            row.outcome.radiator = ChoiceOf(radiator);
            row.ventile = m_valves.Fetch(radiator.ventile);
            rows.push_back(row);
            row.bErster = false;
        }
    }

private:
    const CBuilding& m_building;
    std::map<CRoomRef, const CRoomOutcome*> m_faults;
    CValveFetcher m_valves;
};

CScheduleFloor MakeFloor(const CFloor& floor, std::size_t number, CRowMaker& rows)
{
    CScheduleFloor result;
    result.strName = floor.strName;
    for (std::size_t room = 0; room < floor.rooms.size(); ++room) {
        rows.AppendRows(result.rows, *floor.rooms[room], {number, room});
    }
    for (const CScheduleRow& row : result.rows) {
        result.totals.Add(row);
    }
    return result;
}

} // namespace

bool CScheduleRow::HasRadiator() const
{
    return outcome.radiator && outcome.status != RoomStatus::unfitting;
}

void CScheduleTotals::Add(const CScheduleRow& row)
{
    if (row.bErster) {
        ++nRooms;
        bedarf += row.room.bedarf;
        required += GetRequired(row.room);
        const RoomStatus status = row.outcome.status;
        nChosen += !IsOpen(status) && status != RoomStatus::covered ? 1 : 0;
        nOpen += IsOpen(status) ? 1 : 0;
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

std::vector<CString> CSchedule::GetUnread() const
{
    std::vector<CString> unread;
    const auto add = [&](const CString& reason) {
        if (std::ranges::find(unread, reason) == unread.end()) {
            unread.push_back(reason);
        }
    };
    std::ranges::for_each(unreadCatalogues, add);
    for (const CScheduleFloor& floor : floors) {
        for (const CScheduleRow& row : floor.rows) {
            for (const CValveOutcome* ventil : {&row.ventile.vorlauf, &row.ventile.ruecklauf}) {
                if (ventil->status == ValveStatus::badFile) {
                    add(ventil->strNote);
                }
            }
        }
    }
    return unread;
}

CSchedule SchedulePlan(const CBuilding& building, const std::vector<CSizingFault>& faults)
{
    CSchedule schedule;
    schedule.strBuilding = building.strName;
    schedule.system = building.system;
    for (const CSizingFault& fault : faults) {
        if (fault.outcome.status == RoomStatus::badCatalogue) {
            schedule.unreadCatalogues.push_back(fault.outcome.strNote);
        }
    }
    CRowMaker rows(building, faults);
    for (std::size_t floor = 0; floor < building.floors.size(); ++floor) {
        schedule.floors.push_back(MakeFloor(building.floors[floor], floor, rows));
        schedule.totals.Add(schedule.floors.back().totals);
    }
    return schedule;
}

bool IsOpen(RoomStatus status)
{
    return status != RoomStatus::chosen && status != RoomStatus::covered &&
           status != RoomStatus::oversized;
}

bool IsMissized(RoomStatus status)
{
    return status == RoomStatus::tooLarge || status == RoomStatus::oversized;
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
        return GetCoverageText(Coverage::empty);
    case RoomStatus::lacking:
        return GetCoverageText(Coverage::lacking);
    case RoomStatus::tooLarge:
        return GetCoverageText(Coverage::tooLarge);
    case RoomStatus::oversized:
        return GetCoverageText(Coverage::oversized);
    }
    return {};
}

} // namespace workbench
