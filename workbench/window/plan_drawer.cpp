#include "workbench/window/plan_drawer.h"

#include "workbench/plan/confirmed_connection.h"
#include "workbench/toolkit/qt_text.h"

#include <set>

namespace workbench {

void CPlanDrawer::GetBlockNames(const CString& ordner, CStringArray& namen, int art)
{
    CSceneDrawer::GetBlockNames(ordner, namen, art);
    const auto comesBefore = [](const CString& a, const CString& b) {
        return ToQt(a).compare(ToQt(b), Qt::CaseInsensitive) < 0;
    };
    std::multiset<CString, decltype(comesBefore)> sorted(namen.begin(), namen.end(), comesBefore);
    sorted.emplace(kNoGraphic);
    namen.RemoveAll();
    for (const CString& name : sorted) {
        namen.Add(name);
    }
}

} // namespace workbench
