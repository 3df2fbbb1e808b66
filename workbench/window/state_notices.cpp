#include "workbench/window/state_notices.h"

#include "workbench/building/qt_text.h"
#include "workbench/plan/coverage.h"

#include <utility>

namespace workbench {

QStringList CStateNotices::TakeNew(const CBuilding& building)
{
    QStringList lines;
    std::set<QString> present;
    for (const CFloor& floor : building.floors) {
        for (const auto& room : floor.rooms) {
            const Coverage coverage = CoverageOf(building, *room);
            if (!IsMissized(coverage)) {
                continue;
            }
            const QString line = ToQt(room->strName + L": " + GetCoverageText(coverage) + L", " +
                                      DescribeCoverage(building, *room));
            present.insert(line);
            if (!m_known.contains(line)) {
                lines += line;
            }
        }
    }
    m_known = std::move(present);
    return lines;
}

} // namespace workbench
