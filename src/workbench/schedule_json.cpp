#include "workbench/schedule_json.h"

#include "workbench/valve_json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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
    }
    return {};
}

QJsonObject MakeRadiator(const CRadiator& radiator, double required)
{
    const HK_DATEN_VDI3805& daten = radiator.daten;
    return {{"type", Text(radiator.strTyp)},
            {"height", daten.Hoehe},
            {"depth", daten.Tiefe},
            {"length", daten.Laenge},
            {"outputEN442", daten.LeistungEN442},
            {"output", daten.Leistung},
            {"deviationPercent", GetDeviation(daten.Leistung, required)},
            {"sections", daten.Elemente},
            {"litres", daten.Inhalt}};
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
                          {"maker", Text(room.strHersteller)},
                          {"kind", Text(room.strArt)},
                          {"product", Text(room.strProdukt)},
                          {"heightMax", room.grenzen.hoeheMax},
                          {"lengthMax", room.grenzen.laengeMax}};
    if (outcome.radiator) {
        object.insert(outcome.status == RoomStatus::chosen ? "radiator" : "nearest",
                      MakeRadiator(*outcome.radiator, GetRequired(room)));
    }
    if (const QJsonObject valves = MakeValvesJson(row.ventile); !valves.isEmpty()) {
        object.insert("valves", valves);
    }
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
            {"demand", totals.bedarf},
            {"required", totals.required},
            {"outputEN442", totals.leistungEN442},
            {"output", totals.leistung},
            {"deviationPercent", GetDeviation(totals.leistung, totals.required)},
            {"litres", totals.inhalt}};
}

QJsonObject MakeFloor(const CScheduleFloor& floor)
{
    QJsonArray rooms;
    for (const CScheduleRow& row : floor.rows) {
        rooms.append(MakeRoom(row));
    }
    return {{"name", Text(floor.strName)}, {"rooms", rooms}, {"totals", MakeTotals(floor.totals)}};
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
