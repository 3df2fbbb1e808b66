#include "workbench/schedule/valve_text.h"

#include "platform/format.h"
#include "workbench/building/user_text.h"
#include "workbench/schedule/schedule_columns.h"
#include "workbench/schedule/text_columns.h"

#include <algorithm>
#include <cstddef>

namespace workbench {

namespace {

constexpr wchar_t kSupplyLabel[] = L"    mandata: ";
constexpr wchar_t kReturnLabel[] = L"   ritorno: ";

constexpr int kNumberWidth = 12;
constexpr int kMainGroupWidth = 14;
constexpr int kGroupWidth = 34;
/// A number, a blank, groups and a comma, a blank, "DN 15, kvs 0.880".
constexpr int kValveWidth = kNumberWidth + 1 + kGroupWidth + 1 + 1 + 16;

CString DescribeFound(const VDI3805_VENTIL_KV& ventil)
{
    // The group tells valves apart, so that the main group has to give way first.
    const CString groups = ShortenToWidth(
        ShortenToWidth(ventil.Hauptgruppe, kMainGroupWidth) + L"/" + ventil.Gruppe, kGroupWidth);
    return PadToWidth(ShortenToWidth(ventil.Bezeichnung, kNumberWidth), kNumberWidth) + L" " +
           PadToWidth(groups + L",", kGroupWidth + 1) + L" DN " + FormatExact(ventil.DN) +
           L", kvs " + FormatDecimals(ventil.Kvs, 3);
}

CString Describe(const CValveOutcome& valve)
{
    switch (valve.status) {
    case ValveStatus::none:
        return L"-";
    case ValveStatus::found:
        return DescribeFound(valve.ventil);
    case ValveStatus::notFound:
    case ValveStatus::badFile:
        break;
    }
    return MissingValveText(valve.status);
}

bool HasBypass(const VDI3805_VENTIL_KV& ventil)
{
    return ventil.VentilTyp == 1;
}

std::vector<CString> SplitLines(const CString& text)
{
    std::vector<CString> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find(L'\n'); end != CString::npos; end = text.find(L'\n', start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

std::vector<CString> MakeKvLines(const CValveOutcome& valve)
{
    if (valve.status != ValveStatus::found) {
        return {};
    }
    if (valve.ventil.AnzahlKv == 0) {
        return {L"senza tabella kv"};
    }
    const Output output = HasBypass(valve.ventil) ? Output::consoleBypass : Output::console;
    CTextColumns table(TextColumnsOf(KvColumns(), output));
    for (std::size_t i = 0; i < static_cast<std::size_t>(valve.ventil.AnzahlKv); ++i) {
        table.AddRow(MakeCells<CString>(KvColumns(), output, CKvLine{valve.ventil, i}, false,
                                        FormatTextCell));
    }
    return SplitLines(table.Format());
}

CString BlanksLike(const CString& text)
{
    return PadToWidth({}, GetDisplayWidth(text));
}

} // namespace

CString MissingValveText(ValveStatus status)
{
    return status == ValveStatus::notFound ? L"non trovata" : L"file illeggibile";
}

std::vector<CString> FormatValves(const CRoomValves& valves)
{
    if (valves.vorlauf.status == ValveStatus::none &&
        valves.ruecklauf.status == ValveStatus::none) {
        return {};
    }
    std::vector<CString> lines = {kSupplyLabel + PadToWidth(Describe(valves.vorlauf), kValveWidth) +
                                  kReturnLabel + Describe(valves.ruecklauf)};
    if (!valves.vorlauf.strNote.empty()) {
        lines.push_back(kSupplyLabel + valves.vorlauf.strNote);
    }
    if (!valves.ruecklauf.strNote.empty()) {
        lines.push_back(L" " + CString(kReturnLabel) + valves.ruecklauf.strNote);
    }
    return lines;
}

std::vector<CString> FormatKvTables(const CRoomValves& valves)
{
    const std::vector<CString> left = MakeKvLines(valves.vorlauf);
    const std::vector<CString> right = MakeKvLines(valves.ruecklauf);
    std::vector<CString> lines;
    for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
        CString line = BlanksLike(kSupplyLabel) + (i < left.size() ? left[i] : CString());
        if (i < right.size()) {
            line = PadToWidth(line, GetDisplayWidth(kSupplyLabel) + kValveWidth) +
                   BlanksLike(kReturnLabel) + right[i];
        }
        lines.push_back(line);
    }
    return lines;
}

CString FormatValveBill(const CValveBill& bill)
{
    if (bill.nValves + bill.nMissing == 0) {
        return {};
    }
    CTextColumns table(TextColumnsOf(BillColumns()));
    for (const CValveItem& item : bill.items) {
        table.AddRow(
            MakeCells<CString>(BillColumns(), Output::console, item, false, FormatTextCell));
    }
    return table.Format() + L"Valvole: " + FormatInt(bill.nValves) + L"; mancanti: " +
           FormatInt(bill.nMissing) + L".\n";
}

} // namespace workbench
