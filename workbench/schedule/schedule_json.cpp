#include "workbench/schedule/schedule_json.h"

#include "workbench/schedule/valve_json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace workbench {

namespace {

constexpr int kFormatVersion = 1;

QString Text(const CString& text)
{
    return QString::fromStdWString(text);
}

/// Machines get a code that does not change with the user's language.
QString StatusCode(RoomStatus status)
{
    switch (status) {
    case RoomStatus::chosen:
        return QStringLiteral("chosen");
    case RoomStatus::covered:
        return QStringLiteral("covered");
    case RoomStatus::unfitting:
        return QStringLiteral("unfitting");
    case RoomStatus::unknownProduct:
        return QStringLiteral("unknownProduct");
    case RoomStatus::badCatalogue:
        return QStringLiteral("badCatalogue");
    case RoomStatus::missing:
        return QStringLiteral("missing");
    case RoomStatus::lacking:
        return QStringLiteral("lacking");
    }
    return {};
}

QJsonObject MakeRadiator(const CRadiatorChoice& radiator)
{
    const HK_DATEN_VDI3805& daten = radiator.daten;
    return {{"type", Text(radiator.strTyp)},
            {"height", daten.Hoehe},
            {"depth", daten.Tiefe},
            {"length", daten.Laenge},
            {"outputEN442", daten.LeistungEN442},
            {"output", daten.Leistung},
            {"sections", daten.Elemente},
            {"litres", daten.Inhalt}};
}

/// The radiator of a room's first row. How far its room is covered is told with it.
QJsonObject MakeFirstRadiator(const CScheduleRow& row)
{
    QJsonObject object = MakeRadiator(*row.outcome.radiator);
    const double leistung =
        row.HasRadiator() ? row.leistungRaum : row.outcome.radiator->daten.Leistung;
    object.insert("deviationPercent", GetDeviation(leistung, GetRequired(row.room)));
    return object;
}

void InsertProduct(QJsonObject& object, const CRoom& room)
{
    object.insert("maker", Text(room.strHersteller));
    object.insert("kind", Text(room.strArt));
    object.insert("product", Text(room.strProdukt));
}

void InsertValves(QJsonObject& object, const CRoomValves& ventile)
{
    if (const QJsonObject valves = MakeValvesJson(ventile); !valves.isEmpty()) {
        object.insert("valves", valves);
    }
}

QJsonObject MakeFurther(const CScheduleRow& row)
{
    QJsonObject object;
    InsertProduct(object, row.room);
    object.insert("radiator", MakeRadiator(*row.outcome.radiator));
    InsertValves(object, row.ventile);
    return object;
}

QJsonObject MakeRoom(const CScheduleRow& row)
{
    const CRoom& room = row.room;
    const CRoomOutcome& outcome = row.outcome;
    QJsonObject object = {{"name", Text(room.strName)},
                          {"status", StatusCode(outcome.status)},
                          {"temperature", room.raumtemperatur},
                          {"demand", room.bedarf},
                          {"covered", room.gedeckt},
                          {"required", GetRequired(room)},
                          {"heightMax", room.grenzen.hoeheMax},
                          {"lengthMax", room.grenzen.laengeMax}};
    InsertProduct(object, room);
    if (outcome.radiator) {
        object.insert(row.HasRadiator() ? "radiator" : "nearest", MakeFirstRadiator(row));
    }
    InsertValves(object, row.ventile);
    if (!outcome.strNote.empty()) {
        object.insert("note", Text(outcome.strNote));
    }
    return object;
}

QJsonObject MakeTotals(const CScheduleTotals& totals)
{
    return {{"rooms", totals.nRooms},
            {"chosen", totals.nChosen},
            {"open", totals.nOpen},
            {"radiators", totals.nHeizkoerper},
            {"demand", totals.bedarf},
            {"required", totals.required},
            {"outputEN442", totals.leistungEN442},
            {"output", totals.leistung},
            {"deviationPercent", GetDeviation(totals.leistung, totals.required)},
            {"litres", totals.inhalt}};
}

/// The rooms of a floor; rows of one room follow each other.
QJsonArray MakeRooms(const std::vector<CScheduleRow>& rows)
{
    QJsonArray rooms;
    for (auto row = rows.begin(); row != rows.end();) {
        QJsonObject room = MakeRoom(*row);
        QJsonArray further;
        for (++row; row != rows.end() && !row->bErster; ++row) {
            further.append(MakeFurther(*row));
        }
        if (!further.isEmpty()) {
            room.insert("furtherRadiators", further);
        }
        rooms.append(room);
    }
    return rooms;
}

QJsonObject MakeFloor(const CScheduleFloor& floor)
{
    return {{"name", Text(floor.strName)},
            {"rooms", MakeRooms(floor.rows)},
            {"totals", MakeTotals(floor.totals)}};
}

} // namespace

std::string FormatScheduleJson(const CSchedule& schedule)
{
    QJsonArray floors;
    for (const CScheduleFloor& floor : schedule.floors) {
        floors.append(MakeFloor(floor));
    }
    const QJsonObject system = {{"supply", schedule.system.vorlauf},
                                {"return", schedule.system.ruecklauf}};
    const QJsonObject root = {{"version", kFormatVersion},
                              {"building", Text(schedule.strBuilding)},
                              {"system", system},
                              {"floors", floors},
                              {"totals", MakeTotals(schedule.totals)},
                              {"valves", MakeValveBillJson(MakeValveBill(schedule))}};
    return QJsonDocument(root).toJson().toStdString();
}

} // namespace workbench
