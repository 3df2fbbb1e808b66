#pragma once

#include "tests/workbench/building/json_at.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/schedule/schedule_json.h"

namespace workbench {

/// A room with two radiators that cover it, one with a radiator that is too weak, one without, and
/// one that needs none. The radiators are of another product than the rooms ask for.
class CScheduleFixture : public CPlanFixture
{
protected:
    CScheduleFixture()
    {
        m_building.strName = L"Casa";
        m_building.floors[0].rooms.clear();
        CRoom two = Room(L"Due", 1200.0);
        two.gedeckt = 200.0;
        two.heizkoerper = {Radiator(600.0), Radiator(390.0)};
        two.heizkoerper[0].strTyp = L"A";
        two.heizkoerper[0].daten.Inhalt = 2.5;
        two.heizkoerper[1].strTyp = L"B";
        two.heizkoerper[1].strProdukt = L"Tipo 11";
        two.heizkoerper[1].ventile.ruecklauf = CValveKey{L"Nessuno", CString(36, L'1')};
        Add(0, two);
        CRoom covered = Room(L"Coperto", 300.0);
        covered.gedeckt = 300.0;
        Add(0, covered);
        CRoom weak = Room(L"Debole", 1000.0);
        weak.heizkoerper = {Radiator(800.0)};
        Add(0, weak);
    }

    static CJsonAt JsonOf(const CSchedule& schedule)
    {
        return CJsonAt(FormatScheduleJson(schedule));
    }
};

} // namespace workbench
