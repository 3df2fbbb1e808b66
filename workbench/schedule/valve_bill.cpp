#include "workbench/schedule/valve_bill.h"

#include <map>
#include <tuple>

namespace workbench {

namespace {

/// Collects items in the order in which the bill lists them.
class CBillMaker
{
public:
    void Add(const CValveOutcome& valve)
    {
        if (valve.status == ValveStatus::none) {
            return;
        }
        if (valve.status != ValveStatus::found) {
            ++m_nMissing;
            return;
        }
        const VDI3805_VENTIL_KV& ventil = valve.ventil;
        CValveItem& item = m_items[{ventil.Hersteller, ventil.Bezeichnung, ventil.VentilNr}];
        item = {ventil.Hersteller, ventil.Bezeichnung, ventil.VentilNr, ventil.DN,
                item.nAnzahl + 1};
        ++m_nValves;
    }

    CValveBill Make() const
    {
        CValveBill bill{{}, m_nValves, m_nMissing};
        for (const auto& [key, item] : m_items) {
            bill.items.push_back(item);
        }
        return bill;
    }

private:
    std::map<std::tuple<CString, CString, CString>, CValveItem> m_items;
    int m_nValves = 0;
    int m_nMissing = 0;
};

} // namespace

CValveBill MakeValveBill(const CSchedule& schedule)
{
    CBillMaker maker;
    for (const CScheduleFloor& floor : schedule.floors) {
        for (const CScheduleRow& row : floor.rows) {
            maker.Add(row.ventile.vorlauf);
            maker.Add(row.ventile.ruecklauf);
        }
    }
    return maker.Make();
}

} // namespace workbench
