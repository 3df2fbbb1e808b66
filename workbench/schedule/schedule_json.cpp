#include "workbench/schedule/schedule_json.h"

#include "workbench/building/json_writer.h"
#include "workbench/schedule/json_values.h"
#include "workbench/schedule/schedule_columns.h"
#include "workbench/schedule/valve_json.h"

#include <utility>
#include <variant>

namespace workbench {

namespace {

constexpr int kFormatVersion = 1;

constexpr CJsonWriter::CStyle kStyle{.nIndent = 4, .bOpenEmpty = true};

/// What the columns say in this part of a room.
void InsertPart(CJsonObject& object, JsonPart part, const CScheduleLine& line)
{
    InsertValues(object, ScheduleColumns(), part, line);
}

void InsertValves(CJsonObject& object, const CRoomValves& ventile)
{
    if (CJsonObject valves = MakeValvesJson(ventile); !valves.IsEmpty()) {
        object.Insert("valves", std::move(valves));
    }
}

CJsonObject MakeRadiator(const CScheduleLine& line)
{
    CJsonObject object;
    InsertPart(object, JsonPart::radiator, line);
    if (line.row.bErster) {
        InsertPart(object, JsonPart::firstRadiator, line);
    }
    return object;
}

CJsonObject MakeFurther(const CScheduleLine& line)
{
    CJsonObject object;
    InsertPart(object, JsonPart::product, line);
    object.Insert("radiator", MakeRadiator(line));
    InsertValves(object, line.row.ventile);
    return object;
}

CJsonObject MakeRoom(const CScheduleLine& line)
{
    CJsonObject object;
    InsertPart(object, JsonPart::room, line);
    InsertPart(object, JsonPart::product, line);
    if (line.row.outcome.radiator) {
        object.Insert(line.row.HasRadiator() ? "radiator" : "nearest", MakeRadiator(line));
    }
    InsertValves(object, line.row.ventile);
    return object;
}

CJsonObject MakeTotals(const CScheduleTotals& totals)
{
    CJsonObject object;
    for (const CScheduleColumn& column : ScheduleColumns()) {
        const CCell cell = column.TotalOf({totals, {}, {}, {}});
        if (column.JsonName() && std::holds_alternative<double>(cell)) {
            object.Insert(column.JsonName(), JsonOf(cell));
        }
    }
    return object;
}

/// The rooms of a floor; rows of one room follow each other.
CJsonList MakeRooms(const CScheduleFloor& floor)
{
    const auto lineOf = [&floor](const CScheduleRow& row) {
        return CScheduleLine{floor.strName, row, {}, true};
    };
    const std::vector<CScheduleRow>& rows = floor.rows;
    CJsonList rooms;
    for (auto row = rows.begin(); row != rows.end();) {
        CJsonObject room = MakeRoom(lineOf(*row));
        CJsonList further;
        for (++row; row != rows.end() && !row->bErster; ++row) {
            further.push_back(MakeFurther(lineOf(*row)));
        }
        if (!further.empty()) {
            room.Insert("furtherRadiators", std::move(further));
        }
        rooms.push_back(std::move(room));
    }
    return rooms;
}

CJsonObject MakeFloor(const CScheduleFloor& floor)
{
    CJsonObject object;
    object.Insert("name", floor.strName);
    object.Insert("rooms", MakeRooms(floor));
    object.Insert("totals", MakeTotals(floor.totals));
    return object;
}

CJsonObject MakeSystem(const CHeatingSystem& system)
{
    CJsonObject object;
    object.Insert("supply", system.vorlauf);
    object.Insert("return", system.ruecklauf);
    return object;
}

} // namespace

std::string FormatScheduleJson(const CSchedule& schedule)
{
    CJsonList floors;
    for (const CScheduleFloor& floor : schedule.floors) {
        floors.push_back(MakeFloor(floor));
    }
    const CValveBill bill = MakeValveBill(schedule);
    CJsonObject root;
    root.Insert("version", kFormatVersion);
    root.Insert("building", schedule.strBuilding);
    root.Insert("system", MakeSystem(schedule.system));
    root.Insert("floors", std::move(floors));
    root.Insert("totals", MakeTotals(schedule.totals));
    root.Insert("radiators",
                MakeItemsJson(MakeRadiatorBill(schedule).items, RadiatorBillColumns()));
    root.Insert("valves", MakeItemsJson(bill.items, BillColumns()));
    if (bill.nMissing > 0) {
        root.Insert("valvesMissing", bill.nMissing);
    }
    CJsonWriter writer(kStyle);
    writer.Value(nullptr, std::move(root));
    return writer.Take();
}

} // namespace workbench
