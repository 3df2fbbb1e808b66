#include "workbench/plan/sizing.h"

#include "workbench/plan/coverage.h"
#include "workbench/plan/placement.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

/// Sizes the radiators of one room.
class CRoomSizing
{
public:
    CRoomSizing(const CBuilding& building, const CFloor& floor, const CRoom& room,
                const CRadiatorStart& start, Picked picked)
        : m_building(building), m_floor(floor), m_start(start), m_picked(picked), m_room(room)
    {
    }

    void Size()
    {
        if (m_room.heizkoerper.empty()) {
            AddRadiator();
        } else {
            ResizeRadiators();
        }
    }

    const CRoom& GetRoom() const { return m_room; }
    int GetSized() const { return m_nSized; }

    /// Why the room is still open, or could not be sized anew although it is not; nothing if all
    /// went well.
    std::optional<CRoomOutcome> FindFault() const
    {
        if (!IsOpen(CoverageOf(m_building, m_room))) {
            return m_failure && m_failure->status == RoomStatus::badCatalogue ? m_failure
                                                                              : std::nullopt;
        }
        return m_failure.value_or(
            CRoomOutcome{RoomStatus::unfitting, {}, DescribeCoverage(m_building, m_room)});
    }

private:
    void AddRadiator()
    {
        for (const std::size_t place : FreePlaces(m_room)) {
            if (const auto found = Select(WishForPlace(m_building, m_floor, m_room, place))) {
                m_room.heizkoerper.push_back(
                    PlaceRadiator(m_building, m_room, m_floor.strName, *found, m_start).value());
                return;
            }
            if (m_failure->status != RoomStatus::unfitting) {
                return;
            }
        }
    }

    void ResizeRadiators()
    {
        CRoom sized = m_room;
        std::erase_if(sized.heizkoerper, [this](const auto& radiator) { return Stays(radiator); });
        const double all = OutputOf(sized);
        const double need = m_room.GetLeistung() - (OutputOf(m_room) - all);
        const double even = 1.0 / static_cast<double>(sized.heizkoerper.size());
        for (std::size_t i = 0; i < m_room.heizkoerper.size(); ++i) {
            CPlacedRadiator& radiator = m_room.heizkoerper[i];
            if (Stays(radiator)) {
                continue;
            }
            const double share = all > 0.0 ? radiator.daten.Leistung / all : even;
            CRadiatorWish wish = WishForRadiator(m_building, m_floor, m_room, i);
            wish.produkt = ProductOf(m_room);
            wish.leistung = share * need;
            if (const auto found = Select(wish)) {
                TakeChoice(radiator, *found, m_start);
            }
        }
    }

    bool Stays(const CPlacedRadiator& radiator) const
    {
        return radiator.bVonHand && m_picked == Picked::stay;
    }

    std::optional<CRadiatorChoice> Select(const CRadiatorWish& wish)
    {
        CRoomOutcome outcome = SelectRadiator(wish);
        if (outcome.status == RoomStatus::chosen) {
            ++m_nSized;
            return std::move(outcome.radiator);
        }
        if (outcome.status != RoomStatus::covered && !m_failure) {
            m_failure = std::move(outcome);
        }
        return std::nullopt;
    }

    const CBuilding& m_building;
    const CFloor& m_floor;
    const CRadiatorStart& m_start;
    Picked m_picked;
    CRoom m_room;
    int m_nSized = 0;
    /// The first search that found nothing.
    std::optional<CRoomOutcome> m_failure;
};

void SizeRoom(CSizingResult& result, const CRoomRef& ref, const CRadiatorStart& start,
              Picked picked)
{
    if (!Exists(result.building, ref) || RoomOf(result.building, ref).GetLeistung() <= 0.0) {
        return;
    }
    CRoomSizing sizing(result.building, result.building.floors[ref.nFloor],
                       RoomOf(result.building, ref), start, picked);
    sizing.Size();
    if (sizing.GetSized() > 0) {
        result.nSized += sizing.GetSized();
        ReplaceRoom(result.building, ref, sizing.GetRoom());
    }
    if (std::optional<CRoomOutcome> outcome = sizing.FindFault()) {
        result.faults.push_back({ref, std::move(*outcome)});
    }
}

std::vector<CRoomRef> InOrder(std::vector<CRoomRef> rooms)
{
    std::ranges::sort(rooms);
    rooms.erase(std::unique(rooms.begin(), rooms.end()), rooms.end());
    return rooms;
}

} // namespace

bool HasPicked(const CBuilding& building, const std::vector<CRoomRef>& rooms)
{
    return std::ranges::any_of(rooms, [&](const CRoomRef& ref) {
        return Exists(building, ref) &&
               std::ranges::any_of(RoomOf(building, ref).heizkoerper, &CPlacedRadiator::bVonHand);
    });
}

CSizingResult SizeRooms(const CBuilding& building, const std::vector<CRoomRef>& rooms,
                        const SizingProgress& progress, Picked picked)
{
    const std::vector<CRoomRef> ordered = InOrder(rooms);
    const CRadiatorStart start = ReadRadiatorStart();
    CSizingResult result{building, 0, {}, false};
    for (std::size_t done = 0; done < ordered.size(); ++done) {
        SizeRoom(result, ordered[done], start, picked);
        if (progress && !progress(done + 1, ordered.size())) {
            return {building, 0, {}, true};
        }
    }
    return result;
}

} // namespace workbench
