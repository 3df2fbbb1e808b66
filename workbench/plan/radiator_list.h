#pragma once

#include "workbench/building/radiator_records.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/plan_edit.h"

namespace workbench {

/// Connection point texts of a radiator.
struct CConnectionTexts
{
    CString strVorlauf;
    CString strRuecklauf;
};

/// Where a radiator is connected. One that is not yet shows the connection that was used last, or
/// the standard one where none was.
CConnectionTexts ConnectionOf(const CPlacedRadiator& radiator);

/// Radiators of a plan as the records that the connection dialog works on: placement, and the
/// attributes "H_VL_PUNKT", "H_RL_PUNKT", "H_LAENGE", "H_TIEFE" and "H_HOEHE".
class CRadiatorList
{
public:
    /// The radiators must exist.
    CRadiatorList(const CBuilding& building, const std::vector<CRadiatorRef>& refs);

    /// The first record, in the order of `refs`; null without one. The list owns the records, and
    /// also attributes that others append, which must be made by `new`.
    TGA_LIST* GetList() { return m_records.GetList(); }

private:
    CRadiatorRecords m_records;
};

} // namespace workbench
