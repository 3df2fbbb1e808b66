#include "workbench/schedule/schedule_text.h"

#include "platform/format.h"
#include "workbench/schedule/text_columns.h"
#include "workbench/schedule/valve_text.h"

#include <algorithm>

namespace workbench {

namespace {

/// With the widest texts the table takes 160 places, as many as a wide terminal has. The files hold
/// every text whole.
std::vector<CTextColumn> MakeColumns()
{
    return {{L"Locale", false, 22},    {L"Fabb.", true},
            {L"Rich.", true},          {L"Produttore", false, 12},
            {L"Categoria", false, 18}, {L"Prodotto", false, 15},
            {L"Tipo", false, 14},      {L"A x P x L", true},
            {L"EN 442", true},         {L"Resa", true},
            {L"Scost.%", true},        {L"Elem.", true},
            {L"Litri", true}};
}

CString Watts(double value)
{
    return FormatFixed(value, 0);
}

CString Percent(double value)
{
    const CString text = FormatFixed(value, 1);
    return value > 0.0 ? L"+" + text : text;
}

CString FormatSize(const HK_DATEN_VDI3805& daten)
{
    return FormatFixed(daten.Hoehe, 0) + L" x " + FormatFixed(daten.Tiefe, 0, 3) + L" x " +
           FormatFixed(daten.Laenge, 0, 4);
}

std::vector<CString> MakeCells(const CScheduleRow& row)
{
    const CRoom& room = row.room;
    std::vector<CString> cells = {room.strName,       Watts(room.bedarf), Watts(GetRequired(room)),
                                  room.strHersteller, room.strArt,        room.strProdukt};
    if (!row.bErster) {
        std::fill_n(cells.begin(), 3, CString());
    }
    if (row.HasRadiator()) {
        const HK_DATEN_VDI3805& daten = row.outcome.radiator->daten;
        const double deviation = GetDeviation(row.leistungRaum, GetRequired(room));
        cells.insert(cells.end(),
                     {row.outcome.radiator->strTyp, FormatSize(daten), Watts(daten.LeistungEN442),
                      Watts(daten.Leistung), row.bErster ? Percent(deviation) : CString(),
                      daten.Elemente > 0.0 ? FormatExact(daten.Elemente) : CString(),
                      FormatFixed(daten.Inhalt, 1)});
    } else {
        cells.insert(cells.end(), {L"-", {}, {}, {}, {}, {}, {}});
    }
    return cells;
}

std::vector<CString> MakeTotalCells(const CString& name, const CScheduleTotals& totals)
{
    return {name,
            Watts(totals.bedarf),
            Watts(totals.required),
            {},
            {},
            {},
            {},
            {},
            Watts(totals.leistungEN442),
            Watts(totals.leistung),
            Percent(GetDeviation(totals.leistung, totals.required)),
            {},
            FormatFixed(totals.inhalt, 1)};
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
        table.AddRow(MakeCells(row));
        if (row.bErster && row.outcome.status != RoomStatus::chosen) {
            table.AddLine(L"    " + GetStatusText(row.outcome.status) + L": " +
                          row.outcome.strNote);
        }
        AddValves(table, row.ventile, kvTables);
    }
    table.AddRow(MakeTotalCells(L"Totale del piano", floor.totals));
    table.AddRule();
}

CString FormatSummary(const CScheduleTotals& totals)
{
    const int covered = totals.nRooms - totals.nChosen - totals.nOpen;
    return L"Locali: " + FormatInt(totals.nRooms) + L"; con corpo scaldante: " +
           FormatInt(totals.nChosen) + L"; già coperti: " + FormatInt(covered) +
           L"; senza corpo scaldante adatto: " + FormatInt(totals.nOpen) + L".\n";
}

} // namespace

CString FormatScheduleText(const CSchedule& schedule, bool kvTables)
{
    CTextColumns table(MakeColumns());
    for (const CScheduleFloor& floor : schedule.floors) {
        AddFloor(table, floor, kvTables);
    }
    table.AddRow(MakeTotalCells(L"Totale dell'edificio", schedule.totals));
    const CString bill = FormatValveBill(MakeValveBill(schedule));
    return L"Corpi scaldanti: " + schedule.strBuilding + L", sistema " +
           FormatExact(schedule.system.vorlauf) + L"/" + FormatExact(schedule.system.ruecklauf) +
           L" °C\nFabbisogno, richiesta e resa in W; altezza x profondità x lunghezza in mm\n\n" +
           table.Format() + L"\n" + (bill.empty() ? bill : bill + L"\n") +
           FormatSummary(schedule.totals);
}

} // namespace workbench
