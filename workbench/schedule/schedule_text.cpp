#include "workbench/schedule/schedule_text.h"

#include "platform/format.h"
#include "workbench/building/user_text.h"
#include "workbench/schedule/schedule_columns.h"
#include "workbench/schedule/text_columns.h"
#include "workbench/schedule/valve_text.h"

namespace workbench {

namespace {

void AddSum(CTextColumns& table, const CString& name, const CScheduleTotals& totals)
{
    table.AddRow(MakeSumCells<CString>(ScheduleColumns(), Output::console,
                                       CScheduleSum{totals, {}, name, {}}, FormatTextCell));
}

void AddValves(CTextColumns& table, const CRoomValves& valves, bool kvTables)
{
    for (const CString& line : FormatValves(valves)) {
        table.AddLine(line);
    }
    if (!kvTables) {
        return;
    }
    for (const CString& line : FormatKvTables(valves)) {
        table.AddLine(line);
    }
}

void AddFloor(CTextColumns& table, const CScheduleFloor& floor, bool kvTables)
{
    table.AddLine(floor.strName);
    for (const CScheduleRow& row : floor.rows) {
        table.AddRow(MakeCells<CString>(ScheduleColumns(), Output::console,
                                        CScheduleLine{floor.strName, row, {}}, !row.bErster,
                                        FormatTextCell));
        const bool isPlain =
            row.outcome.status == RoomStatus::chosen && row.outcome.strNote.empty();
        if (row.bErster && !isPlain) {
            table.AddLine(L"    " + GetStatusText(row.outcome.status) + L": " +
                          row.outcome.strNote);
        }
        AddValves(table, row.ventile, kvTables);
    }
    AddSum(table, L"Totale del piano", floor.totals);
    table.AddRule();
}

CString FormatSummary(const CScheduleTotals& totals)
{
    const int covered = totals.nRooms - totals.nChosen - totals.nOpen;
    return L"Locali: " + FormatInt(totals.nRooms) + L"; con corpo scaldante: " +
           FormatInt(totals.nChosen) + L"; già coperti: " + FormatInt(covered) +
           L"; da sistemare: " + FormatInt(totals.nOpen) + L".\n";
}

} // namespace

CString FormatScheduleText(const CSchedule& schedule, bool kvTables)
{
    CTextColumns table(TextColumnsOf(ScheduleColumns()));
    for (const CScheduleFloor& floor : schedule.floors) {
        AddFloor(table, floor, kvTables);
    }
    AddSum(table, L"Totale dell'edificio", schedule.totals);
    const CString bill = FormatValveBill(MakeValveBill(schedule));
    return L"Corpi scaldanti: " + schedule.strBuilding + L", sistema " +
           FormatSystem(schedule.system) +
           L" °C\nFabbisogno, richiesta e resa in W; altezza x profondità x lunghezza in mm\n\n" +
           table.Format() + L"\n" + (bill.empty() ? bill : bill + L"\n") +
           FormatSummary(schedule.totals);
}

} // namespace workbench
