#pragma once

#include "workbench/plan/new_radiator.h"
#include "workbench/plan/room_selection.h"

#include <optional>

namespace workbench {

/// What becomes of radiators that the designer picked himself.
enum class Picked
{
    stay,
    sizedAnew,
};

/// True if sizing leaves the radiator as it is.
bool Stays(const CPlacedRadiator& radiator, Picked picked);

/// Sizes the radiators of one room with its product (SizeRooms).
class CRoomSizing
{
public:
    /// Building, floor and start outlive the sizing.
    CRoomSizing(const CBuilding& building, const CFloor& floor, const CRoom& room,
                const CRadiatorStart& start, Picked picked);

    void Size();

    const CRoom& GetRoom() const { return m_room; }

    /// Radiators chosen.
    int GetSized() const { return m_nSized; }

    /// The first search that found nothing.
    const std::optional<CRoomOutcome>& GetFailure() const { return m_failure; }

    /// Why the room is still open, or could not be sized anew although it is not; nothing if all
    /// went well.
    std::optional<CRoomOutcome> FindFault() const;

private:
    void AddRadiator();
    void ResizeRadiators();
    std::optional<CRadiatorChoice> Select(const CRadiatorWish& wish);

    const CBuilding& m_building;
    const CFloor& m_floor;
    const CRadiatorStart& m_start;
    Picked m_picked;
    CRoom m_room;
    int m_nSized = 0;
    std::optional<CRoomOutcome> m_failure;
};

} // namespace workbench
