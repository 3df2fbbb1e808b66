#include "workbench/report/plan_tables.h"

#include "workbench/report/plan_picture.h"
#include "workbench/schedule/valve_bill.h"

#include <QStringList>

namespace workbench {

namespace {

using Cells = std::vector<QString>;

QString Text(const CString& text)
{
    return QString::fromStdWString(text);
}

/// A number as Italians write it.
QString Number(double value, int decimals)
{
    return QString::number(value, 'f', decimals).replace('.', ',');
}

QString Percent(double value)
{
    return (value > 0.0 ? "+" : "") + Number(value, 1);
}

QString Joined(const QString& a, const QString& b, const QString& separator)
{
    return a.isEmpty() || b.isEmpty() ? a + b : a + separator + b;
}

QString ValveText(const CValveOutcome& valve)
{
    switch (valve.status) {
    case ValveStatus::none:
        return QStringLiteral("–");
    case ValveStatus::found:
        return Text(valve.ventil.Bezeichnung);
    case ValveStatus::notFound:
        return "non trovata";
    case ValveStatus::badFile:
        return "file illeggibile";
    }
    return {};
}

Cells RadiatorCells(const CScheduleRow& row)
{
    const HK_DATEN_VDI3805& daten = row.outcome.radiator->daten;
    const QString times = QStringLiteral(" × ");
    return {
        Joined(Text(row.room.strHersteller), Text(row.room.strProdukt), ", "),
        Text(row.outcome.radiator->strTyp),
        Number(daten.Hoehe, 0) + times + Number(daten.Tiefe, 0) + times + Number(daten.Laenge, 0),
        daten.Elemente > 0.0 ? Number(daten.Elemente, 0) : QString(),
        Number(daten.LeistungEN442, 0),
        Number(daten.Leistung, 0),
        row.bErster ? Percent(GetDeviation(row.leistungRaum, GetRequired(row.room))) : QString(),
        Number(daten.Inhalt, 1),
        ValveText(row.ventile.vorlauf),
        ValveText(row.ventile.ruecklauf)};
}

CReportRow MakeRow(const CScheduleRow& row, const QString& number)
{
    const CRoom& room = row.room;
    Cells cells = {number, Text(room.strName)};
    if (row.bErster) {
        cells.insert(cells.end(), {Number(room.raumtemperatur, 0), Number(room.bedarf, 0),
                                   Number(GetRequired(room), 0)});
    } else {
        cells.resize(5);
    }
    if (row.HasRadiator()) {
        const Cells radiator = RadiatorCells(row);
        cells.insert(cells.end(), radiator.begin(), radiator.end());
    } else {
        cells.push_back(Text(GetStatusText(row.outcome.status)));
    }
    return {cells, IsOpen(row.outcome.status) ? RowLook::warning : RowLook::plain};
}

CReportRow MakeTotalRow(const QString& name, const CScheduleTotals& totals)
{
    return {{QString(), name, QString(), Number(totals.bedarf, 0), Number(totals.required, 0),
             QString("%1 corpi scaldanti").arg(totals.nHeizkoerper), QString(), QString(),
             QString(), Number(totals.leistungEN442, 0), Number(totals.leistung, 0),
             Percent(GetDeviation(totals.leistung, totals.required)), Number(totals.inhalt, 1)},
            RowLook::total};
}

CReportRow MakeFloorRow(const QString& name, const CScheduleTotals& totals, RowLook look)
{
    return {{name, QString::number(totals.nRooms), QString::number(totals.nHeizkoerper),
             QString::number(totals.nOpen), Number(totals.bedarf, 0), Number(totals.required, 0),
             Number(totals.leistungEN442, 0), Number(totals.leistung, 0),
             Percent(GetDeviation(totals.leistung, totals.required)), Number(totals.inhalt, 1)},
            look};
}

CReportRow MakeOpenRow(const QString& floor, const CScheduleRow& row)
{
    const double required = GetRequired(row.room);
    const double missing = required - row.leistungRaum;
    return {{floor, Text(row.room.strName), Text(GetStatusText(row.outcome.status)),
             Number(required, 0), Number(row.leistungRaum, 0), Number(missing, 0),
             Number(required > 0.0 ? 100.0 * missing / required : 0.0, 1)},
            RowLook::plain};
}

} // namespace

CReportTable MakeTotalsTable(const CSchedule& schedule)
{
    CReportTable table{"Riepilogo",
                       {{"Piano", 67.0},
                        {"Locali", 18.0, true},
                        {"Corpi scaldanti", 26.0, true},
                        {"Locali aperti", 24.0, true},
                        {"Fabbisogno W", 24.0, true},
                        {"Richiesto W", 22.0, true},
                        {"EN 442 W", 22.0, true},
                        {"Resa W", 22.0, true},
                        {"Scost. %", 20.0, true},
                        {"Acqua l", 22.0, true}},
                       {}};
    for (const CScheduleFloor& floor : schedule.floors) {
        table.rows.push_back(MakeFloorRow(Text(floor.strName), floor.totals, RowLook::plain));
    }
    table.rows.push_back(MakeFloorRow("Totale dell'edificio", schedule.totals, RowLook::total));
    return table;
}

CReportTable MakeScheduleTable(const CSchedule& schedule)
{
    CReportTable table{"Elenco dei corpi scaldanti",
                       {{"Pos.", 11.0},
                        {"Locale", 34.0},
                        {QStringLiteral("°C"), 8.0, true},
                        {"Fabb. W", 14.0, true},
                        {"Rich. W", 14.0, true},
                        {"Produttore, prodotto", 40.0},
                        {"Tipo", 24.0},
                        {QStringLiteral("A × P × L mm"), 26.0},
                        {"El.", 7.0, true},
                        {"EN 442", 13.0, true},
                        {"Resa W", 13.0, true},
                        {"Scost. %", 14.0, true},
                        {"Acqua l", 13.0, true},
                        {"Mandata", 18.0},
                        {"Ritorno", 18.0}},
                       {}};
    for (std::size_t i = 0; i < schedule.floors.size(); ++i) {
        const CScheduleFloor& floor = schedule.floors[i];
        table.rows.push_back({{Text(floor.strName)}, RowLook::group});
        std::size_t number = 0;
        for (const CScheduleRow& row : floor.rows) {
            table.rows.push_back(
                MakeRow(row, row.HasRadiator() ? RadiatorNumber(i, number++) : QString()));
        }
        table.rows.push_back(MakeTotalRow("Totale del piano", floor.totals));
    }
    table.rows.push_back(MakeTotalRow("Totale dell'edificio", schedule.totals));
    return table;
}

CReportTable MakeOpenRoomsTable(const CSchedule& schedule)
{
    CReportTable table{"Locali aperti",
                       {{"Piano", 50.0},
                        {"Locale", 60.0},
                        {"Stato", 57.0},
                        {"Richiesto W", 25.0, true},
                        {"Resa W", 25.0, true},
                        {"Mancano W", 25.0, true},
                        {"Mancano %", 25.0, true}},
                       {}};
    for (const CScheduleFloor& floor : schedule.floors) {
        for (const CScheduleRow& row : floor.rows) {
            if (row.bErster && IsOpen(row.outcome.status)) {
                table.rows.push_back(MakeOpenRow(Text(floor.strName), row));
            }
        }
    }
    return table;
}

CReportTable MakeValveTable(const CSchedule& schedule)
{
    CReportTable table{"Valvole da ordinare",
                       {{"Produttore", 60.0},
                        {"Articolo", 50.0},
                        {"Codice", 107.0},
                        {"DN", 20.0, true},
                        {"Pezzi", 30.0, true}},
                       {}};
    const CValveBill bill = MakeValveBill(schedule);
    for (const CValveItem& item : bill.items) {
        table.rows.push_back(
            {{Text(item.strHersteller), Text(item.strBestellNr), Text(item.strVentilNr),
              Number(item.DN, 0), QString::number(item.nAnzahl)},
             RowLook::plain});
    }
    if (bill.nMissing > 0) {
        table.rows.push_back(
            {{"non trovate nei cataloghi", "", "", "", QString::number(bill.nMissing)},
             RowLook::warning});
    }
    if (bill.nValves > 0) {
        table.rows.push_back(
            {{"Totale", "", "", "", QString::number(bill.nValves)}, RowLook::total});
    }
    return table;
}

} // namespace workbench
