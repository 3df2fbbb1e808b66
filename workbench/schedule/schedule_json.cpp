#include "workbench/schedule/schedule_json.h"

#include "workbench/building/json_writer.h"
#include "workbench/building/qt_text.h"
#include "workbench/schedule/json_values.h"
#include "workbench/schedule/schedule_columns.h"
#include "workbench/schedule/valve_json.h"

namespace workbench {

namespace {

constexpr int kFormatVersion = 1;

constexpr CJsonWriter::CStyle kStyle{.nIndent = 4, .bOpenEmpty = true};

/// What the columns say in this part of a room.
void InsertPart(QJsonObject& object, JsonPart part, const CScheduleLine& line)
{
    InsertValues(object, ScheduleColumns(), part, line);
}

void InsertValves(QJsonObject& object, const CRoomValves& ventile)
{
    if (const QJsonObject valves = MakeValvesJson(ventile); !valves.isEmpty()) {
        object.insert("valves", valves);
    }
}

QJsonObject MakeRadiator(const CScheduleLine& line)
{
    QJsonObject object;
    InsertPart(object, JsonPart::radiator, line);
    if (line.row.bErster) {
        InsertPart(object, JsonPart::firstRadiator, line);
    }
    return object;
}

QJsonObject MakeFurther(const CScheduleLine& line)
{
    QJsonObject object;
    InsertPart(object, JsonPart::product, line);
    object.insert("radiator", MakeRadiator(line));
    InsertValves(object, line.row.ventile);
    return object;
}

QJsonObject MakeRoom(const CScheduleLine& line)
{
    QJsonObject object;
    InsertPart(object, JsonPart::room, line);
    InsertPart(object, JsonPart::product, line);
    if (line.row.outcome.radiator) {
        object.insert(line.row.HasRadiator() ? "radiator" : "nearest", MakeRadiator(line));
    }
    InsertValves(object, line.row.ventile);
    return object;
}

QJsonObject MakeTotals(const CScheduleTotals& totals)
{
    QJsonObject object;
    for (const CScheduleColumn& column : ScheduleColumns()) {
        const CCell cell = column.TotalOf({totals, {}, {}, {}});
        if (column.JsonName() && std::holds_alternative<double>(cell)) {
            object.insert(column.JsonName(), JsonOf(cell));
        }
    }
    return object;
}

/// The rooms of a floor; rows of one room follow each other.
QJsonArray MakeRooms(const CScheduleFloor& floor)
{
    const auto lineOf = [&floor](const CScheduleRow& row) {
        return CScheduleLine{floor.strName, row, {}, true};
    };
    const std::vector<CScheduleRow>& rows = floor.rows;
    QJsonArray rooms;
    for (auto row = rows.begin(); row != rows.end();) {
        QJsonObject room = MakeRoom(lineOf(*row));
        QJsonArray further;
        for (++row; row != rows.end() && !row->bErster; ++row) {
            further.append(MakeFurther(lineOf(*row)));
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
    return {{"name", ToQt(floor.strName)},
            {"rooms", MakeRooms(floor)},
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
    const CValveBill bill = MakeValveBill(schedule);
    QJsonObject root = {
        {"version", kFormatVersion},
        {"building", ToQt(schedule.strBuilding)},
        {"system", system},
        {"floors", floors},
        {"totals", MakeTotals(schedule.totals)},
        {"radiators", MakeItemsJson(MakeRadiatorBill(schedule).items, RadiatorBillColumns())},
        {"valves", MakeItemsJson(bill.items, BillColumns())}};
    if (bill.nMissing > 0) {
        root.insert("valvesMissing", bill.nMissing);
    }
    CJsonWriter writer(kStyle);
    writer.Value(nullptr, root);
    return writer.Take();
}

} // namespace workbench
