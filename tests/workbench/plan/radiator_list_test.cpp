#include "workbench/plan/radiator_list.h"

#include "frame/vdi6030_start.h"
#include "host/host_fittings.h"
#include "host/host_prefs.h"
#include "tests/workbench/plan/plan_fixture.h"

namespace workbench {

namespace {

const CString kLeftTop = L"-0.5;0;0;0;0.5;0;180;0";
const CString kRightBottom = L"0.5;0;0;0;-0.5;0;0;0";

class RadiatorListTest : public CPlanFixture
{
protected:
    void Furnish(const CRoomRef& ref, const CPlacedRadiator& radiator)
    {
        CRoom room = RoomOf(m_building, ref);
        room.heizkoerper = {radiator};
        ReplaceRoom(m_building, ref, room);
    }
};

} // namespace

TEST_F(RadiatorListTest, ConnectionsLieWhereTheDesignerSeesThemFromTheRoom)
{
    // Below a window to the south, with the middle at x = 2.5: who looks at it has east on his
    // left.
    CPlacedRadiator radiator = Radiator(1000.0, 1200.0);
    radiator.abstandBoden = 0.1;
    radiator.anschluss.AnschlussAN = kLeftTop;
    radiator.anschluss.AnschlussRI = kRightBottom;
    Furnish(kCamera, radiator);
    radiator.daten.Laenge = 600.0;
    Furnish(kSala, radiator);

    CRadiatorList list(m_building, {{kCamera, 0}, {kSala, 0}});
    TGA_LIST* const first = list.GetList();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(AttributeOf(*first, L"H_LAENGE"), L"1.2");
    EXPECT_EQ(AttributeOf(*first->pNext, L"H_LAENGE"), L"0.6");
    EXPECT_EQ(first->pNext->pNext, nullptr);
    LM_APUNKT points[kMaxAnschlussPunkte];
    ASSERT_EQ(lmGet_K_APUNKT_BLOCK_Wc(first->Attribute, points, &first->Trafo, 0, L""), 4);
    EXPECT_NEAR(points[0].Punkt[0], 3.1, 1e-9);
    EXPECT_NEAR(points[0].Punkt[2], 0.7, 1e-9);
    EXPECT_NEAR(points[0].Richtung[0], 1.0, 1e-9);
    EXPECT_NEAR(points[1].Punkt[0], 1.9, 1e-9);
    EXPECT_NEAR(points[1].Punkt[2], 0.1, 1e-9);
}

TEST_F(RadiatorListTest, AnUnconnectedRadiatorShowsTheConnectionUsedLast)
{
    VDI6030START half;
    half.Anschluss.AnschlussAN = kLeftTop;
    VDI6030START whole = half;
    whole.Anschluss.AnschlussRI = kRightBottom;
    CPlacedRadiator flowOnly = Radiator(1000.0);
    flowOnly.anschluss.AnschlussAN = L"own";
    const struct
    {
        VDI6030START* kept;
        CPlacedRadiator radiator;
        CString flow, back;
    } cases[] = {
        {nullptr, Radiator(1000.0), kStandardVorlauf, kStandardRuecklauf},
        {&half, Radiator(1000.0), kStandardVorlauf, kStandardRuecklauf},
        {&whole, Radiator(1000.0), kLeftTop, kRightBottom},
        {&whole, flowOnly, L"own", L""},
    };
    for (const auto& test : cases) {
        if (test.kept != nullptr) {
            ASSERT_TRUE(WriteDefFile_VDI6030START(test.kept, false));
        }
        Furnish(kSala, test.radiator);
        CRadiatorList list(m_building, {{kSala, 0}});
        EXPECT_EQ(AttributeOf(*list.GetList(), L"H_VL_PUNKT"), test.flow);
        EXPECT_EQ(AttributeOf(*list.GetList(), L"H_RL_PUNKT"), test.back);
    }
    EXPECT_EQ(CRadiatorList(m_building, {}).GetList(), nullptr);
}

} // namespace workbench
