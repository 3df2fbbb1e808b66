#include "workbench/schedule/valve_json.h"

#include "workbench/schedule/json_values.h"
#include "workbench/schedule/schedule_columns.h"

#include <cstddef>
#include <utility>
#include <variant>

namespace workbench {

namespace {

/// Machines get a code that does not change with the user's language.
const wchar_t* StatusCode(ValveStatus status)
{
    switch (status) {
    case ValveStatus::none:
        return L"none";
    case ValveStatus::found:
        return L"found";
    case ValveStatus::notFound:
        return L"notFound";
    case ValveStatus::badFile:
        return L"badFile";
    }
    return {};
}

CJsonObject MakeKvRow(const CKvLine& line)
{
    CJsonObject row;
    for (const auto& column : KvColumns()) {
        const CCell cell = column.ValueOf(line);
        const auto* const value = std::get_if<double>(&cell);
        if (value && column.GetJsonPart() == JsonPart::item) {
            row.Insert(column.JsonName(), DecimalOf(static_cast<float>(*value)));
        }
    }
    return row;
}

CJsonList MakeKvRows(const VDI3805_VENTIL_KV& ventil)
{
    CJsonList rows;
    for (std::size_t i = 0; i < static_cast<std::size_t>(ventil.AnzahlKv); ++i) {
        rows.push_back(MakeKvRow({ventil, i}));
    }
    return rows;
}

void InsertRecord(CJsonObject& object, const VDI3805_VENTIL_KV& ventil)
{
    object.Insert("name", ventil.Bezeichnung);
    object.Insert("mainGroup", ventil.Hauptgruppe);
    object.Insert("group", ventil.Gruppe);
    object.Insert("kind", ventil.VentilArt);
    object.Insert("bypass", ventil.VentilTyp == 1);
    object.Insert("adjustable", ventil.Einstellbar != 0);
    object.Insert("DN", ventil.DN);
    object.Insert("kvs", DecimalOf(ventil.Kvs));
    object.Insert("value5", DecimalOf(ventil.Wert5));
    object.Insert("value6", DecimalOf(ventil.Wert6));
    object.Insert("pressureMax", DecimalOf(ventil.DruckMax));
    object.Insert("text", ventil.Zusatz);
    object.Insert("rows", MakeKvRows(ventil));
}

void InsertValve(CJsonObject& object, const char* name, const CValveOutcome& valve)
{
    if (valve.status == ValveStatus::none) {
        return;
    }
    CJsonObject result;
    result.Insert("status", StatusCode(valve.status));
    result.Insert("maker", valve.ventil.Hersteller);
    result.Insert("number", valve.ventil.VentilNr);
    if (valve.status == ValveStatus::found) {
        InsertRecord(result, valve.ventil);
    } else {
        result.Insert("note", valve.strNote);
    }
    object.Insert(name, std::move(result));
}

} // namespace

CJsonObject MakeValvesJson(const CRoomValves& valves)
{
    CJsonObject object;
    InsertValve(object, "supply", valves.vorlauf);
    InsertValve(object, "return", valves.ruecklauf);
    return object;
}

} // namespace workbench
