#include "workbench/plan/plan_history.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

StateId NextId()
{
    static StateId last = 0;
    return ++last;
}

} // namespace

CPlanHistory::CPlanHistory(CBuilding building)
{
    m_states.push_back({{}, std::move(building), NextId()});
}

void CPlanHistory::Do(const CString& what, CBuilding next)
{
    if (m_nSaved > m_nCurrent) {
        m_nSaved = kNever;
    }
    m_states.erase(m_states.begin() + static_cast<std::ptrdiff_t>(m_nCurrent) + 1, m_states.end());
    m_states.push_back({what, std::move(next), NextId()});
    ++m_nCurrent;
}

bool CPlanHistory::Has(StateId id) const
{
    // Later states have higher numbers.
    return std::ranges::binary_search(m_states, id, {}, &CState::nId);
}

bool CPlanHistory::IsReached(StateId id) const
{
    return Has(id) && id <= GetCurrentId();
}

CString CPlanHistory::GetUndoText() const
{
    return CanUndo() ? m_states[m_nCurrent].strWhat : CString();
}

CString CPlanHistory::GetRedoText() const
{
    return CanRedo() ? m_states[m_nCurrent + 1].strWhat : CString();
}

void CPlanHistory::Undo()
{
    if (CanUndo()) {
        --m_nCurrent;
    }
}

void CPlanHistory::Redo()
{
    if (CanRedo()) {
        ++m_nCurrent;
    }
}

} // namespace workbench
