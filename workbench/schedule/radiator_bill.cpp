#include "workbench/schedule/radiator_bill.h"

#include "reference_host/catalog/order_number.h"

#include <map>
#include <tuple>

namespace workbench {

namespace {

using Key = std::tuple<CString, CString, CString, CString, double, double, double, double>;

Key KeyOf(const CRoom& room, const CRadiatorChoice& radiator)
{
    const HK_DATEN_VDI3805& daten = radiator.daten;
    return {room.strHersteller, room.strArt, room.strProdukt, radiator.strTyp,
            daten.Hoehe,        daten.Tiefe, daten.Laenge,    daten.Elemente};
}

CRadiatorItem MakeItem(const CRoom& room, const CRadiatorChoice& radiator)
{
    const HK_DATEN_VDI3805& daten = radiator.daten;
    const CString number = reference_host::FindOrderNumber(room.strHersteller, room.strArt,
                                                           room.strProdukt, radiator.strTyp, daten);
    return {room.strHersteller,
            room.strArt,
            room.strProdukt,
            radiator.strTyp,
            {daten.Hoehe, daten.Tiefe, daten.Laenge},
            daten.Elemente,
            number};
}

} // namespace

CRadiatorBill MakeRadiatorBill(const CSchedule& schedule)
{
    std::map<Key, CRadiatorItem> items;
    CRadiatorBill bill;
    for (const CScheduleFloor& floor : schedule.floors) {
        for (const CScheduleRow& row : floor.rows) {
            if (!row.HasRadiator()) {
                continue;
            }
            const CRadiatorChoice& radiator = *row.outcome.radiator;
            const auto [item, isNew] = items.try_emplace(KeyOf(row.room, radiator));
            if (isNew) {
                item->second = MakeItem(row.room, radiator);
            }
            ++item->second.nAnzahl;
            ++bill.nRadiators;
        }
    }
    for (auto& [key, item] : items) {
        bill.items.push_back(std::move(item));
    }
    return bill;
}

} // namespace workbench
