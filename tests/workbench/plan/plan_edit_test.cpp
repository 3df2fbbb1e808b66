#include "workbench/plan/plan_edit.h"

#include "frame/entry_points.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/plan/coverage.h"

namespace workbench {

namespace {

class PlanEditTest : public CPlanFixture
{
protected:
    /// What the module gives a radiator of this length of the product at these temperatures.
    static double OutputByModule(const CHeatingSystem& system, double raumtemperatur, double laenge)
    {
        HK_DATEN_VDI3805_UEBERGABE criteria;
        criteria.Hersteller = L"Prova";
        criteria.Art = L"Radiatori a piastra";
        criteria.Produkt = L"Tipo 22";
        criteria.HoeheMax = criteria.TiefeMax = 1000.0;
        criteria.LaengeMin = criteria.LaengeMax = laenge;
        criteria.Vorlauf = system.vorlauf;
        criteria.Ruecklauf = system.ruecklauf;
        criteria.Raumtemperatur = raumtemperatur;
        CString layer;
        int layerColor = 0;
        EXPECT_GE(HeizkoerperauswahlVDI3805(nullptr, &criteria, layer, layerColor, false, false),
                  0);
        return criteria.Daten.Leistung;
    }
};

} // namespace

TEST_F(PlanEditTest, AChangeOfOneRoomLeavesTheOthersShared)
{
    CRoom two = Room(L"Due", 2000.0);
    two.heizkoerper = {Radiator(500.0), Radiator(1000.0)};
    Add(1, two);
    const CRadiatorRef second{{1, 1}, 1};
    const CBuilding before = m_building;
    ReplaceRadiator(m_building, second, Radiator(1500.0));
    EXPECT_EQ(RadiatorOf(m_building, second).daten.Leistung, 1500.0);
    EXPECT_EQ(RadiatorOf(m_building, {{1, 1}, 0}).daten.Leistung, 500.0);
    EXPECT_EQ(RadiatorOf(before, second).daten.Leistung, 1000.0);
    for (const CRoomRef& ref : {kSala, kCamera}) {
        EXPECT_EQ(&RoomOf(m_building, ref), &RoomOf(before, ref));
    }
}

TEST_F(PlanEditTest, RemovalCountsRadiatorsAsTheyStoodBefore)
{
    CRoom three = Room(L"Tre", 2000.0);
    three.heizkoerper = {Radiator(500.0), Radiator(1000.0), Radiator(1500.0)};
    Add(0, three);
    const CBuilding before = m_building;
    const CRoomRef ref{0, 1};
    RemoveRadiators(m_building, {{ref, 0}, {ref, 1}, {ref, 0}, {ref, 7}, {{5, 0}, 0}, {kSala, 0}});
    ASSERT_EQ(RoomOf(m_building, ref).heizkoerper.size(), 1u);
    EXPECT_EQ(RadiatorOf(m_building, {ref, 0}).daten.Leistung, 1500.0);
    EXPECT_EQ(&RoomOf(m_building, kSala), &RoomOf(before, kSala));
}

TEST_F(PlanEditTest, ANewSystemGivesTheOutputsOfASilentSelection)
{
    CRoom warm = Room(L"Bagno", 1000.0);
    warm.raumtemperatur = 24.0;
    warm.heizkoerper = {Radiator(500.0, 500.0), Radiator(2000.0, 2000.0)};
    CPlacedRadiator foreign = Radiator(1814.0);
    foreign.strHersteller = L"Nessuno";
    CRoom cold = Room(L"Cantina", 1000.0);
    cold.heizkoerper = {Radiator(1500.0, 1500.0), foreign};
    Add(0, warm);
    Add(0, cold);
    Add(1, warm);
    const CBuilding before = m_building;
    for (const CHeatingSystem& system : {CHeatingSystem{70.0, 55.0}, CHeatingSystem{55.0, 45.0}}) {
        ChangeSystem(m_building, system);
        EXPECT_EQ(m_building.system.vorlauf, system.vorlauf);
        for (const CRoomRef& ref : {CRoomRef{0, 1}, CRoomRef{0, 2}, CRoomRef{1, 1}}) {
            const CRoom& room = RoomOf(m_building, ref);
            for (const CPlacedRadiator& radiator : room.heizkoerper) {
                if (radiator.strHersteller == L"Prova") {
                    EXPECT_EQ(radiator.daten.Leistung,
                              OutputByModule(system, room.raumtemperatur, radiator.daten.Laenge));
                }
            }
        }
    }
    // 55/45/20 has the factor 0.495: 1814 W give 897.93 W.
    EXPECT_EQ(RadiatorOf(m_building, {{0, 2}, 1}).daten.Leistung, 898.0);
    EXPECT_EQ(&RoomOf(m_building, kSala), &RoomOf(before, kSala));

    ChangeSystem(m_building, before.system);
    EXPECT_EQ(RadiatorOf(m_building, {{0, 2}, 1}).daten.Leistung, 1814.0);
}

} // namespace workbench
