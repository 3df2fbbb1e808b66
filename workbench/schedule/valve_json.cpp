#include "workbench/schedule/valve_json.h"

#include <charconv>
#include <cstddef>

namespace workbench {

namespace {

QString Text(const CString& text)
{
    return QString::fromStdWString(text);
}

/// The double with the shortest decimal digits that stand for the float: 0.88 for 0.88F.
double Decimal(float value)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value);
    double result = 0.0;
    std::from_chars(digits, end.ptr, result);
    return result;
}

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

QJsonObject MakeKvRow(const VDI3805_VENTIL_KV& ventil, std::size_t i)
{
    return {{"presetting", Decimal(ventil.Einstellung[i])},
            {"xp", Decimal(ventil.Xp[i])},
            {"kv", Decimal(ventil.Kv[i])},
            {"kvs", Decimal(ventil.KvsTab[i])},
            {"kvBypass", Decimal(ventil.KvBypass[i])},
            {"kvRadiator", Decimal(ventil.KvHK[i])},
            {"radiatorPercent", Decimal(ventil.AnteilHK[i])}};
}

QJsonArray MakeKvRows(const VDI3805_VENTIL_KV& ventil)
{
    QJsonArray rows;
    for (std::size_t i = 0; i < static_cast<std::size_t>(ventil.AnzahlKv); ++i) {
        rows.append(MakeKvRow(ventil, i));
    }
    return rows;
}

void InsertRecord(QJsonObject& object, const VDI3805_VENTIL_KV& ventil)
{
    object.insert("name", Text(ventil.Bezeichnung));
    object.insert("mainGroup", Text(ventil.Hauptgruppe));
    object.insert("group", Text(ventil.Gruppe));
    object.insert("kind", ventil.VentilArt);
    object.insert("bypass", ventil.VentilTyp == 1);
    object.insert("adjustable", ventil.Einstellbar != 0);
    object.insert("DN", ventil.DN);
    object.insert("kvs", Decimal(ventil.Kvs));
    object.insert("value5", Decimal(ventil.Wert5));
    object.insert("value6", Decimal(ventil.Wert6));
    object.insert("pressureMax", Decimal(ventil.DruckMax));
    object.insert("text", Text(ventil.Zusatz));
    object.insert("rows", MakeKvRows(ventil));
}

void InsertValve(QJsonObject& object, const QString& name, const CValveOutcome& valve)
{
    if (valve.status == ValveStatus::none) {
        return;
    }
    QJsonObject result = {{"status", StatusCode(valve.status)},
                          {"maker", Text(valve.ventil.Hersteller)},
                          {"number", Text(valve.ventil.VentilNr)}};
    if (valve.status == ValveStatus::found) {
        InsertRecord(result, valve.ventil);
    } else {
        result.insert("note", Text(valve.strNote));
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

QJsonArray MakeValveBillJson(const CValveBill& bill)
{
    QJsonArray items;
    for (const CValveItem& item : bill.items) {
        items.append(QJsonObject{{"maker", Text(item.strHersteller)},
                                 {"number", Text(item.strVentilNr)},
                                 {"name", Text(item.strBestellNr)},
                                 {"DN", item.DN},
                                 {"count", item.nAnzahl}});
    }
    return items;
}

} // namespace workbench
