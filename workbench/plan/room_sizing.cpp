#include "workbench/plan/room_sizing.h"

#include "workbench/plan/coverage.h"
#include "workbench/plan/placement.h"

#include <algorithm>
#include <utility>

namespace workbench {

bool Stays(const CPlacedRadiator& radiator, Picked picked)
{
    return radiator.bVonHand && picked == Picked::stay;
}

CRoomSizing::CRoomSizing(const CBuilding& building, const CFloor& floor, const CRoom& room,
                         const CRadiatorStart& start, Picked picked)
    : m_building(building), m_floor(floor), m_start(start), m_picked(picked), m_room(room)
{
}

void CRoomSizing::Size()
{
    if (m_room.heizkoerper.empty()) {
        AddRadiator();
    } else {
        ResizeRadiators();
    }
}

std::optional<CRoomOutcome> CRoomSizing::FindFault() const
{
    if (!IsOpen(CoverageOf(m_building, m_room))) {
        return m_failure && m_failure->status == RoomStatus::badCatalogue ? m_failure
                                                                          : std::nullopt;
    }
    return m_failure.value_or(
        CRoomOutcome{RoomStatus::unfitting, {}, DescribeCoverage(m_building, m_room)});
}

void CRoomSizing::AddRadiator()
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

void CRoomSizing::ResizeRadiators()
{
    CRoom sized = m_room;
    std::erase_if(sized.heizkoerper,
                  [this](const auto& radiator) { return Stays(radiator, m_picked); });
    const double all = OutputOf(sized);
    const double need = m_room.GetLeistung() - (OutputOf(m_room) - all);
    const double even = 1.0 / static_cast<double>(sized.heizkoerper.size());
    for (std::size_t i = 0; i < m_room.heizkoerper.size(); ++i) {
        CPlacedRadiator& radiator = m_room.heizkoerper[i];
        if (Stays(radiator, m_picked)) {
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

std::optional<CRadiatorChoice> CRoomSizing::Select(const CRadiatorWish& wish)
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

} // namespace workbench
