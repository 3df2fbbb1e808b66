#pragma once

#include "workbench/building/building.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace workbench {

/// One state of a building in a history, never to be met again.
using StateId = std::uint64_t;

/// The states of a building from opening on: what was done can be undone and done again, without
/// limit. States share their rooms, so that one costs little more than what it changed.
class CPlanHistory
{
public:
    explicit CPlanHistory(CBuilding building);

    const CBuilding& Current() const { return m_states[m_nCurrent].building; }

    /// Makes `next` the current state. `what` names the change, as menus show it. What had been
    /// undone before is gone.
    void Do(const CString& what, CBuilding next);

    bool CanUndo() const { return m_nCurrent > 0; }
    bool CanRedo() const { return m_nCurrent + 1 < m_states.size(); }

    StateId GetCurrentId() const { return m_states[m_nCurrent].nId; }
    /// True for a state that can be reached by undoing and doing again.
    bool Has(StateId id) const;
    /// True for the current state and those that undoing leads back to.
    bool IsReached(StateId id) const;

    /// Name of the change that the next Undo() or Redo() concerns; empty if there is none.
    CString GetUndoText() const;
    CString GetRedoText() const;

    /// Do nothing where there is nothing to undo or to do again.
    void Undo();
    void Redo();

    /// Whether the current state is the one that was stored last.
    bool IsSaved() const { return m_nSaved == m_nCurrent; }
    void MarkSaved() { m_nSaved = m_nCurrent; }
    /// The current state stands in no file, as one that was recovered.
    void MarkUnsaved() { m_nSaved = kNever; }

private:
    static constexpr std::size_t kNever = static_cast<std::size_t>(-1);

    struct CState
    {
        CString strWhat;
        CBuilding building;
        StateId nId = 0;
    };

    std::vector<CState> m_states;
    std::size_t m_nCurrent = 0;
    std::size_t m_nSaved = 0;
};

} // namespace workbench
