#include "workbench/window/plan_marks.h"

namespace workbench {

namespace {

template <typename Ref>
void Toggle(std::set<Ref>& marked, const Ref& ref)
{
    if (marked.erase(ref) == 0) {
        marked.insert(ref);
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

} // namespace workbench
