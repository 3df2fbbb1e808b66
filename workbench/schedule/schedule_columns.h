#pragma once

#include "workbench/schedule/columns.h"
#include "workbench/schedule/radiator_bill.h"
#include "workbench/schedule/schedule.h"
#include "workbench/schedule/valve_bill.h"

#include <cstddef>

namespace workbench {

/// Everything that the console, the CSV file, the workbook, the JSON file and the report show in
/// columns. A column more is an entry in one of these lists.

/// A line of the schedule.
struct CScheduleLine
{
    const CString& strFloor;
    const CScheduleRow& row;
    /// The radiator's number on the plan; empty where an output shows none.
    CString strNumber;
    /// The nearest radiator of a room that none fits counts as well.
    bool bNearest = false;
};

/// Sums of the schedule and what their line is called: outputs differ in the column for it.
struct CScheduleSum
{
    const CScheduleTotals& totals;
    CString strFloor;
    CString strRoom;
    CString strStatus;
};

using CScheduleColumn = CColumn<CScheduleLine, CScheduleSum>;

const std::vector<CScheduleColumn>& ScheduleColumns();

/// A line below the items of a bill: what it counts, and the count.
struct CBillSum
{
    CString strName;
    int nAnzahl = 0;
};

/// What the line is called that counts items which are wanted and were not found.
inline constexpr wchar_t kMissingInBill[] = L"non trovate nei cataloghi";

using CBillColumn = CColumn<CValveItem, CBillSum>;

const std::vector<CBillColumn>& BillColumns();

using CRadiatorBillColumn = CColumn<CRadiatorItem, CBillSum>;

const std::vector<CRadiatorBillColumn>& RadiatorBillColumns();

/// A row of a valve's kv table.
struct CKvLine
{
    const VDI3805_VENTIL_KV& ventil;
    std::size_t nZeile = 0;
};

struct CKvSum
{
};

using CKvColumn = CColumn<CKvLine, CKvSum>;

const std::vector<CKvColumn>& KvColumns();

} // namespace workbench
