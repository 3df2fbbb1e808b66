#include "workbench/window/plan_marks.h"

#include "workbench/plan/placement.h"

#include <unordered_map>

namespace workbench {

namespace {

template <typename Ref>
void Toggle(std::set<Ref>& marked, const Ref& ref)
{
    if (marked.erase(ref) == 0) {
        marked.insert(ref);
    }
}

/// Radiators of a room at places that are free in another state of it.
void AddMore(CPlanMarks& marks, const CRoomRef& ref, const CRoom& room, const CRoom& than)
{
    for (std::size_t i = 0; i < room.heizkoerper.size(); ++i) {
        if (!IsTaken(than, room.heizkoerper[i].nPlatz)) {
            marks.radiators.insert({ref, i});
        }
    }
}

} // namespace

CPlanMarks MarksAfter(CPlanMarks marks, const CRoomRef& room, bool extend)
{
    if (!extend) {
        return {{room}, {}};
    }
    marks.radiators.clear();
    Toggle(marks.rooms, room);
    return marks;
}

CPlanMarks MarksAfter(CPlanMarks marks, const CRadiatorRef& radiator, bool extend)
{
    if (!extend) {
        return {{}, {radiator}};
    }
    marks.rooms.clear();
    Toggle(marks.radiators, radiator);
    return marks;
}

CPlanMarks MarksOfMore(const CBuilding& building, const CBuilding& than)
{
    std::unordered_map<CString, const CRoom*> others;
    for (const CRoomRef& ref : AllRooms(than)) {
        others.emplace(RoomOf(than, ref).strName, &RoomOf(than, ref));
    }
    CPlanMarks marks;
    for (const CRoomRef& ref : AllRooms(building)) {
        const CRoom& room = RoomOf(building, ref);
        const auto other = others.find(room.strName);
        if (other != others.end()) {
            AddMore(marks, ref, room, *other->second);
        } else {
            marks.rooms.insert(ref);
        }
    }
    if (!marks.rooms.empty()) {
        marks.radiators.clear();
    }
    return marks;
}

} // namespace workbench
