#pragma once

#include "workbench/plan/plan_edit.h"

#include <set>

namespace workbench {

/// What is marked in a plan: rooms or radiators, never both.
struct CPlanMarks
{
    std::set<CRoomRef> rooms;
    std::set<CRadiatorRef> radiators;

    bool operator==(const CPlanMarks&) const = default;

    bool IsEmpty() const { return rooms.empty() && radiators.empty(); }
};

/// The marks after a click: with `extend` what is marked loses this one or gets it besides, as long
/// as it is of the same kind; otherwise this one is all that is marked.
CPlanMarks MarksAfter(CPlanMarks marks, const CRoomRef& room, bool extend);
CPlanMarks MarksAfter(CPlanMarks marks, const CRadiatorRef& radiator, bool extend);

/// What a building has that another one, an earlier or later state of it, lacks: rooms, or else
/// radiators at places that are free there.
CPlanMarks MarksOfMore(const CBuilding& building, const CBuilding& than);

} // namespace workbench
