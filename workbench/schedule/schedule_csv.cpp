#include "workbench/schedule/schedule_csv.h"

#include "platform/format.h"

#include <iterator>

namespace workbench {

namespace {

constexpr std::size_t kFieldsOfRadiator = 9;

/// The columns of each of the two valves.
constexpr const wchar_t* kValveHeadings[] = {L"produttore", L"codice",   L"articolo",
                                             L"DN",         L"kvs m³/h", L"regolabile"};

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

std::vector<CString> MakeHeadings()
{
    std::vector<CString> headings = {
        L"Piano",         L"Locale",       L"Stato",         L"Temperatura °C",
        L"Fabbisogno W",  L"Coperto W",    L"Richiesto W",   L"Produttore",
        L"Categoria",     L"Prodotto",     L"Tipo",          L"Altezza mm",
        L"Profondità mm", L"Lunghezza mm", L"Resa EN 442 W", L"Resa di progetto W",
        L"Scostamento %", L"Elementi",     L"Contenuto l"};
    for (const wchar_t* valve : {L"Mandata ", L"Ritorno "}) {
        for (const wchar_t* heading : kValveHeadings) {
            headings.push_back(CString(valve) + heading);
        }
    }
    headings.push_back(L"Nota");
    return headings;
}

/// A number of the room, which its further radiators do not repeat.
CString RoomNumber(const CScheduleRow& row, const CString& number)
{
    return row.bErster ? number : CString();
}

void AppendRadiator(std::vector<CString>& fields, const CScheduleRow& row)
{
    const CRadiatorChoice& radiator = *row.outcome.radiator;
    const HK_DATEN_VDI3805& daten = radiator.daten;
    const double deviation = GetDeviation(row.leistungRaum, GetRequired(row.room));
    fields.insert(fields.end(),
                  {radiator.strTyp, FormatExact(daten.Hoehe), FormatExact(daten.Tiefe),
                   FormatExact(daten.Laenge), FormatExact(daten.LeistungEN442),
                   FormatExact(daten.Leistung), RoomNumber(row, FormatFixed(deviation, 1)),
                   FormatExact(daten.Elemente), FormatLitres(daten.Inhalt)});
}

void AppendValve(std::vector<CString>& fields, const CValveOutcome& valve)
{
    const VDI3805_VENTIL_KV& ventil = valve.ventil;
    const bool found = valve.status == ValveStatus::found;
    fields.insert(fields.end(), {ventil.Hersteller, ventil.VentilNr, ventil.Bezeichnung,
                                 found ? FormatExact(ventil.DN) : CString(),
                                 found ? FormatFixed(ventil.Kvs, 3) : CString()});
    fields.push_back(!found ? L"" : ventil.Einstellbar != 0 ? L"sì" : L"no");
}

CString JoinNotes(const CScheduleRow& row)
{
    CString notes = row.outcome.strNote;
    const auto add = [&notes](const wchar_t* label, const CString& note) {
        if (!note.empty()) {
            notes += (notes.empty() ? L"" : L"; ") + CString(label) + note;
        }
    };
    add(L"mandata: ", row.ventile.vorlauf.strNote);
    add(L"ritorno: ", row.ventile.ruecklauf.strNote);
    return notes;
}

CString FormatRow(const CScheduleFloor& floor, const CScheduleRow& row)
{
    const CRoom& room = row.room;
    std::vector<CString> fields = {floor.strName,
                                   room.strName,
                                   GetStatusText(row.outcome.status),
                                   FormatExact(room.raumtemperatur),
                                   RoomNumber(row, FormatExact(room.bedarf)),
                                   RoomNumber(row, FormatExact(room.gedeckt)),
                                   RoomNumber(row, FormatExact(GetRequired(room))),
                                   room.strHersteller,
                                   room.strArt,
                                   room.strProdukt};
    if (row.HasRadiator()) {
        AppendRadiator(fields, row);
    } else {
        fields.resize(fields.size() + kFieldsOfRadiator);
    }
    AppendValve(fields, row.ventile.vorlauf);
    AppendValve(fields, row.ventile.ruecklauf);
    fields.push_back(JoinNotes(row));
    return JoinLine(fields);
}

CString FormatTotals(const CString& floor, const CString& status, const CScheduleTotals& totals)
{
    std::vector<CString> fields = {
        floor, {}, status, {}, FormatExact(totals.bedarf), {}, FormatExact(totals.required)};
    // Product, type and sizes.
    fields.resize(fields.size() + 7);
    fields.insert(fields.end(), {FormatExact(totals.leistungEN442),
                                 FormatExact(totals.leistung),
                                 FormatFixed(GetDeviation(totals.leistung, totals.required), 1),
                                 {},
                                 FormatLitres(totals.inhalt)});
    // Valves and note.
    fields.resize(fields.size() + 2 * std::size(kValveHeadings) + 1);
    return JoinLine(fields);
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
    CString text = JoinLine(MakeHeadings());
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

} // namespace workbench
