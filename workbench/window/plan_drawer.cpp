#include "workbench/window/plan_drawer.h"

#include "workbench/plan/confirmed_connection.h"
#include "workbench/toolkit/qt_text.h"

#include <algorithm>
#include <vector>

namespace workbench {

void CPlanDrawer::GetBlockNames(const CString& ordner, CStringArray& namen, int art)
{
    CSceneDrawer::GetBlockNames(ordner, namen, art);
    std::vector<CString> sorted(namen.begin(), namen.end());
    sorted.emplace_back(kNoGraphic);
    std::ranges::stable_sort(sorted, [](const CString& a, const CString& b) {
        return ToQt(a).compare(ToQt(b), Qt::CaseInsensitive) < 0;
    });
    namen.RemoveAll();
    for (const CString& name : sorted) {
        namen.Add(name);
    }
}

} // namespace workbench
