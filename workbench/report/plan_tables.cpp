#include "workbench/report/plan_tables.h"

#include "workbench/report/plan_picture.h"
#include "workbench/schedule/schedule_columns.h"
#include "workbench/toolkit/qt_text.h"

namespace workbench {

namespace {

/// A number as Italians write it.
QString NumberText(const CNumberForm& form, double value)
{
    if (form.bHideZero && value <= 0.0) {
        return {};
    }
    return (form.bSign && value > 0.0 ? "+" : "") +
           ToQt(form.nDecimals == kAllDecimals ? FormatNumber(value)
                                               : FormatDecimals(value, form.nDecimals));
}

QString FormatCell(const CNumberForm& form, const CCell& cell)
{
    if (const auto* const number = std::get_if<double>(&cell)) {
        return NumberText(form, *number);
    }
    if (const auto* const size = std::get_if<CMeasures>(&cell)) {
        return QStringLiteral("%1 × %2 × %3")
            .arg(NumberText({}, size->hoehe), NumberText({}, size->tiefe),
                 NumberText({}, size->laenge));
    }
    const auto* const text = std::get_if<CString>(&cell);
    return text ? ToQt(*text) : QString();
}

template <class COLUMN>
CReportTable MakeTable(const QString& title, const std::vector<COLUMN>& columns, Output output)
{
    CReportTable table{title, {}, {}};
    ForEachShown(columns, output, [&](const COLUMN& column, const CColumnLook& look) {
        table.columns.push_back({ToQt(column.HeadingOf(look)), look.breite, look.bRight});
    });
    return table;
}

CReportRow MakeRow(Output output, const CScheduleLine& line, RowLook look)
{
    return {MakeCells<QString>(ScheduleColumns(), output, line, !line.row.bErster, FormatCell),
            look};
}

CReportRow MakeSum(Output output, const CScheduleSum& sum, RowLook look)
{
    return {MakeSumCells<QString>(ScheduleColumns(), output, sum, FormatCell), look};
}

/// What is to be ordered, a row an item.
template <class ITEM>
CReportTable MakeBill(const QString& title, const std::vector<CColumn<ITEM, CBillSum>>& columns,
                      const std::vector<ITEM>& items)
{
    CReportTable table = MakeTable(title, columns, Output::paper);
    for (const ITEM& item : items) {
        table.rows.push_back(
            {MakeCells<QString>(columns, Output::paper, item, false, FormatCell), RowLook::plain});
    }
    return table;
}

template <class ITEM>
CReportRow MakeBillSum(const std::vector<CColumn<ITEM, CBillSum>>& columns, const CBillSum& sum,
                       RowLook look)
{
    return {MakeSumCells<QString>(columns, Output::paper, sum, FormatCell), look};
}

} // namespace

CReportTable MakeTotalsTable(const CSchedule& schedule)
{
    constexpr Output output = Output::paperSums;
    CReportTable table = MakeTable("Riepilogo", ScheduleColumns(), output);
    for (const CScheduleFloor& floor : schedule.floors) {
        table.rows.push_back(
            MakeSum(output, {floor.totals, floor.strName, {}, {}}, RowLook::plain));
    }
    table.rows.push_back(
        MakeSum(output, {schedule.totals, L"Totale dell'edificio", {}, {}}, RowLook::total));
    return table;
}

CReportTable MakeScheduleTable(const CSchedule& schedule)
{
    constexpr Output output = Output::paper;
    CReportTable table = MakeTable("Elenco dei corpi scaldanti", ScheduleColumns(), output);
    for (std::size_t i = 0; i < schedule.floors.size(); ++i) {
        const CScheduleFloor& floor = schedule.floors[i];
        table.rows.push_back({{ToQt(floor.strName)}, RowLook::group});
        std::size_t number = 0;
        for (const CScheduleRow& row : floor.rows) {
            const CString name =
                row.HasRadiator() ? FromQt(RadiatorNumber(i, number++)) : CString();
            table.rows.push_back(
                MakeRow(output, {floor.strName, row, name},
                        IsOpen(row.outcome.status) ? RowLook::warning : RowLook::plain));
        }
        table.rows.push_back(
            MakeSum(output, {floor.totals, {}, L"Totale del piano", {}}, RowLook::total));
    }
    table.rows.push_back(
        MakeSum(output, {schedule.totals, {}, L"Totale dell'edificio", {}}, RowLook::total));
    return table;
}

CReportTable MakeOpenRoomsTable(const CSchedule& schedule)
{
    constexpr Output output = Output::paperOpen;
    CReportTable table = MakeTable("Locali da sistemare", ScheduleColumns(), output);
    for (const CScheduleFloor& floor : schedule.floors) {
        for (const CScheduleRow& row : floor.rows) {
            if (row.bErster && IsOpen(row.outcome.status)) {
                table.rows.push_back(MakeRow(output, {floor.strName, row, {}}, RowLook::plain));
            }
        }
    }
    return table;
}

CReportTable MakeMissizedTable(const CSchedule& schedule)
{
    constexpr Output output = Output::paperMissized;
    CReportTable table = MakeTable("Misure da controllare", ScheduleColumns(), output);
    for (const CScheduleFloor& floor : schedule.floors) {
        for (const CScheduleRow& row : floor.rows) {
            if (row.bErster && IsMissized(row.outcome.status)) {
                table.rows.push_back(MakeRow(output, {floor.strName, row, {}}, RowLook::plain));
            }
        }
    }
    return table;
}

CReportTable MakeRadiatorOrderTable(const CSchedule& schedule)
{
    const CRadiatorBill bill = MakeRadiatorBill(schedule);
    CReportTable table = MakeBill("Corpi scaldanti da ordinare", RadiatorBillColumns(), bill.items);
    if (bill.nRadiators > 0) {
        table.rows.push_back(
            MakeBillSum(RadiatorBillColumns(), {L"Totale", bill.nRadiators}, RowLook::total));
    }
    return table;
}

CReportTable MakeValveTable(const CSchedule& schedule)
{
    const CValveBill bill = MakeValveBill(schedule);
    CReportTable table = MakeBill("Valvole da ordinare", BillColumns(), bill.items);
    if (bill.nMissing > 0) {
        table.rows.push_back(
            MakeBillSum(BillColumns(), {kMissingInBill, bill.nMissing}, RowLook::warning));
    }
    if (bill.nValves > 0) {
        table.rows.push_back(MakeBillSum(BillColumns(), {L"Totale", bill.nValves}, RowLook::total));
    }
    return table;
}

} // namespace workbench
