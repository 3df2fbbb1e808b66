#pragma once

#include "frame/vdi6030_start.h"
#include "workbench/plan/confirmed_connection.h"

namespace workbench {

/// What the dialog of connections shows of a radiator.
ConnValues ConnectionToShow(const CPlacedRadiator& radiator);

/// A radiator's own values, lent to this process in place of the start values that the host keeps,
/// while the selection dialog is open: "Valvole..." and "Distanza..." open on them. The host stores
/// what the user confirms there, and nothing else.
class CLentStart
{
public:
    explicit CLentStart(const CPlacedRadiator& radiator);
    ~CLentStart();
    CLentStart(const CLentStart&) = delete;
    CLentStart& operator=(const CLentStart&) = delete;

    CConfirmedStart GetConfirmed() const;

private:
    VDI6030START m_lent;
};

/// The block that the host keeps for radiators, lent to this process only, so that the dialog opens
/// with the block that will be drawn. One that the user picks is stored by the dialog at once and
/// stays.
class CLentBlock
{
public:
    explicit CLentBlock(const CString& block);
    ~CLentBlock();
    CLentBlock(const CLentBlock&) = delete;
    CLentBlock& operator=(const CLentBlock&) = delete;

    /// The block shown now; empty for a plain rectangle.
    CString GetShown() const;

private:
    CString m_lent;
};

} // namespace workbench
