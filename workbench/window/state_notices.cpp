#include "workbench/window/state_notices.h"

#include "workbench/plan/coverage.h"
#include "workbench/plan/plan_edit.h"
#include "workbench/toolkit/qt_text.h"

#include <utility>

namespace workbench {

std::vector<CNotice> CStateNotices::TakeNew(const CBuilding& building)
{
    std::vector<CNotice> notices;
    std::set<std::pair<QString, QString>> present;
    for (const CRoomRef& ref : AllRooms(building)) {
        const CRoom& room = RoomOf(building, ref);
        const Coverage coverage = CoverageOf(building, room);
        if (!IsMissized(coverage)) {
            continue;
        }
        const QString name = ToQt(room.strName);
        const QString text =
            ToQt(GetCoverageText(coverage) + L", " + DescribeCoverage(building, room));
        present.insert({name, text});
        if (!m_known.contains({name, text})) {
            notices.push_back({text, name});
        }
    }
    m_known = std::move(present);
    return notices;
}

} // namespace workbench
