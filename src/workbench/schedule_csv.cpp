#include "workbench/schedule_csv.h"

#include "platform/format.h"

namespace {

constexpr std::size_t kFieldsOfRadiator = 9;

/// Sums of litres carry binary fractions that nobody wants to read.
CString FormatLitres(double value)
{
    return FormatFixed(value, 3);
}

CString JoinLine(const std::vector<CString>& fields)
{
    CString line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        line += (i == 0 ? L"" : L";") + QuoteCsv(fields[i]);
    }
    return line + L"\r\n";
}

void AppendRadiator(std::vector<CString>& fields, const CRadiator& radiator, double required)
{
    const HK_DATEN_VDI3805& daten = radiator.daten;
    fields.insert(fields.end(), {radiator.strTyp, FormatExact(daten.Hoehe),
                                 FormatExact(daten.Tiefe), FormatExact(daten.Laenge),
                                 FormatExact(daten.LeistungEN442), FormatExact(daten.Leistung),
                                 FormatFixed(GetDeviation(daten.Leistung, required), 1),
                                 FormatExact(daten.Elemente), FormatLitres(daten.Inhalt)});
}

CString FormatRow(const CScheduleFloor& floor, const CScheduleRow& row)
{
    const CRoom& room = row.room;
    const double required = GetRequired(room);
    std::vector<CString> fields = {floor.strName,
                                   room.strName,
                                   GetStatusText(row.outcome.status),
                                   FormatExact(room.raumtemperatur),
                                   FormatExact(room.bedarf),
                                   FormatExact(room.gedeckt),
                                   FormatExact(required),
                                   room.strHersteller,
                                   room.strArt,
                                   room.strProdukt};
    if (row.outcome.status == RoomStatus::chosen) {
        AppendRadiator(fields, *row.outcome.radiator, required);
    } else {
        fields.resize(fields.size() + kFieldsOfRadiator);
    }
    fields.push_back(row.outcome.strNote);
    return JoinLine(fields);
}

CString FormatTotals(const CString& floor, const CString& status, const CScheduleTotals& totals)
{
    return JoinLine({floor,
                     {},
                     status,
                     {},
                     FormatExact(totals.bedarf),
                     {},
                     FormatExact(totals.required),
                     {},
                     {},
                     {},
                     {},
                     {},
                     {},
                     {},
                     FormatExact(totals.leistungEN442),
                     FormatExact(totals.leistung),
                     FormatFixed(GetDeviation(totals.leistung, totals.required), 1),
                     {},
                     FormatLitres(totals.inhalt),
                     {}});
}

} // namespace

CString QuoteCsv(const CString& text)
{
    if (text.find_first_of(L";\"\r\n") == CString::npos) {
        return text;
    }
    CString quoted = L"\"";
    for (const wchar_t c : text) {
        quoted += c == L'"' ? L"\"\"" : CString(1, c);
    }
    return quoted + L"\"";
}

CString FormatScheduleCsv(const CSchedule& schedule)
{
    CString text =
        JoinLine({L"Piano",         L"Locale",       L"Stato",         L"Temperatura °C",
                  L"Fabbisogno W",  L"Coperto W",    L"Richiesto W",   L"Produttore",
                  L"Categoria",     L"Prodotto",     L"Tipo",          L"Altezza mm",
                  L"Profondità mm", L"Lunghezza mm", L"Resa EN 442 W", L"Resa di progetto W",
                  L"Scostamento %", L"Elementi",     L"Contenuto l",   L"Nota"});
    for (const CScheduleFloor& floor : schedule.floors) {
        for (const CScheduleRow& row : floor.rows) {
            text += FormatRow(floor, row);
        }
    }
    for (const CScheduleFloor& floor : schedule.floors) {
        text += FormatTotals(floor.strName, L"totale del piano", floor.totals);
    }
    return text + FormatTotals({}, L"totale dell'edificio", schedule.totals);
}
