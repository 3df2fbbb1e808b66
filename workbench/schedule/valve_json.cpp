#include "workbench/schedule/valve_json.h"

#include "workbench/building/qt_text.h"
#include "workbench/schedule/json_values.h"
#include "workbench/schedule/schedule_columns.h"

#include <cstddef>

namespace workbench {

namespace {

/// Machines get a code that does not change with the user's language.
QString StatusCode(ValveStatus status)
{
    switch (status) {
    case ValveStatus::none:
        return QStringLiteral("none");
    case ValveStatus::found:
        return QStringLiteral("found");
    case ValveStatus::notFound:
        return QStringLiteral("notFound");
    case ValveStatus::badFile:
        return QStringLiteral("badFile");
    }
    return {};
}

QJsonObject MakeKvRow(const CKvLine& line)
{
    QJsonObject row;
    InsertValues(row, KvColumns(), JsonPart::item, line);
    for (QJsonValueRef value : row) {
        value = DecimalOf(static_cast<float>(value.toDouble()));
    }
    return row;
}

QJsonArray MakeKvRows(const VDI3805_VENTIL_KV& ventil)
{
    QJsonArray rows;
    for (std::size_t i = 0; i < static_cast<std::size_t>(ventil.AnzahlKv); ++i) {
        rows.append(MakeKvRow({ventil, i}));
    }
    return rows;
}

void InsertRecord(QJsonObject& object, const VDI3805_VENTIL_KV& ventil)
{
    object.insert("name", ToQt(ventil.Bezeichnung));
    object.insert("mainGroup", ToQt(ventil.Hauptgruppe));
    object.insert("group", ToQt(ventil.Gruppe));
    object.insert("kind", ventil.VentilArt);
    object.insert("bypass", ventil.VentilTyp == 1);
    object.insert("adjustable", ventil.Einstellbar != 0);
    object.insert("DN", ventil.DN);
    object.insert("kvs", DecimalOf(ventil.Kvs));
    object.insert("value5", DecimalOf(ventil.Wert5));
    object.insert("value6", DecimalOf(ventil.Wert6));
    object.insert("pressureMax", DecimalOf(ventil.DruckMax));
    object.insert("text", ToQt(ventil.Zusatz));
    object.insert("rows", MakeKvRows(ventil));
}

void InsertValve(QJsonObject& object, const QString& name, const CValveOutcome& valve)
{
    if (valve.status == ValveStatus::none) {
        return;
    }
    QJsonObject result = {{"status", StatusCode(valve.status)},
                          {"maker", ToQt(valve.ventil.Hersteller)},
                          {"number", ToQt(valve.ventil.VentilNr)}};
    if (valve.status == ValveStatus::found) {
        InsertRecord(result, valve.ventil);
    } else {
        result.insert("note", ToQt(valve.strNote));
    }
    object.insert(name, result);
}

} // namespace

QJsonObject MakeValvesJson(const CRoomValves& valves)
{
    QJsonObject object;
    InsertValve(object, QStringLiteral("supply"), valves.vorlauf);
    InsertValve(object, QStringLiteral("return"), valves.ruecklauf);
    return object;
}

} // namespace workbench
