#include "workbench/report/plan_dxf.h"

#include "host/host_catalog.h"
#include "platform/encoding.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/drawing/block_library.h"
#include "workbench/drawing/block_path.h"
#include "workbench/dxf/dxf_writer.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/radiator_block.h"
#include "workbench/report/plan_drawing.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

using namespace reference_host;

namespace workbench {

namespace {

const CString kVorlauf = L" -0.5; 0.0;  0;0; 0.5; -0.03; 180;0;0.1;0;0;0.05 ";
const CString kRuecklauf = L"0.5;0;0;0;-0.5;0.03;0;0";

/// A block whose base point lies outside of what it draws, and whose details have their own colour.
CDxfDrawing RadiatorBlocks()
{
    CDxfDrawing drawing;
    drawing.layers = {{L"BORDO", kColorDefault}, {L"DETTAGLI", 30}};
    drawing.blocks = {{L"RAD",
                       {-1.0, 0.5},
                       {{L"BORDO", kColorByLayer, CDxfLine{{0.0, 0.0}, {2.0, 0.25}}},
                        {L"DETTAGLI", kColorByLayer, CDxfCircle{{1.0, 0.1}, 0.05}}}}};
    return drawing;
}

/// Radiators at all four walls of a room, and one on the other floor.
class PlanDxfTest : public CPlanFixture
{
protected:
    PlanDxfTest()
    {
        m_building.strName = L"Villa Łódź";
        CRoom room = Room(L"Küche è già \"ampia\"", 1000.0);
        room.plaetze = {{PlaceKind::window, 900.0, 2000.0, Wall::sued, 500.0},
                        {PlaceKind::window, 900.0, 1000.0, Wall::ost, 800.0},
                        {PlaceKind::wall, 900.0, 1500.0, Wall::nord, 0.0},
                        {PlaceKind::wall, 900.0, 1500.0, Wall::west, 100.0}};
        for (std::size_t i = 0; i < room.plaetze.size(); ++i) {
            CPlacedRadiator radiator = Radiator(300.0, 700.0 + 100.0 * static_cast<double>(i));
            radiator.nPlatz = i;
            radiator.abstandWand = 0.05;
            radiator.strLayer = L"HEIZ_Terra";
            radiator.nFarbe = 3;
            radiator.strBlock = L"rad";
            room.heizkoerper.push_back(radiator);
        }
        room.heizkoerper[0].strTyp = L"22/600 è";
        room.heizkoerper[0].daten.Leistung = 299.6;
        room.heizkoerper[0].anschluss.AnschlussAN = kVorlauf;
        room.heizkoerper[0].anschluss.AnschlussRI = kRuecklauf;
        room.heizkoerper[3].strBlock = L"MANCA";
        room.heizkoerper[3].nFarbe = 5;
        m_building.floors[0].rooms = {std::make_shared<const CRoom>(room)};
        CRoom upper = Room(L"Sopra", 500.0);
        upper.heizkoerper = {Radiator(500.0)};
        upper.heizkoerper[0].strLayer = L"HEIZ_1/2 alto";
        m_building.floors[1].rooms = {std::make_shared<const CRoom>(upper)};
    }

    CDxfDrawing Exported(const CBlockLibrary* valves = nullptr) const
    {
        const std::string text = FormatPlanDxf(m_building, m_blocks, valves);
        return std::get<CDxfDrawing>(
            ParseDxf({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}));
    }

    /// What an insert draws, in the drawing.
    static QRectF BoundsOfInsert(const CDxfDrawing& drawing, const CDxfInsert& insert)
    {
        QTransform place;
        place.translate(insert.punkt.x, insert.punkt.y);
        place.rotate(insert.dWinkel);
        place.scale(insert.dSkalaX, insert.dSkalaY);
        const CDxfBlock* const block = FindBlock(drawing, insert.strBlock);
        return block ? place.mapRect(BoundsOf(MakeBlockPaths(CLayerColors(drawing.layers), *block)))
                     : QRectF();
    }

    CDxfDrawing m_blocks = RadiatorBlocks();
};

} // namespace

TEST_F(PlanDxfTest, TheFileReadsBackAsItWasDrawn)
{
    EXPECT_EQ(Exported(), MakePlanDrawing(m_building, m_blocks, nullptr));
}

TEST_F(PlanDxfTest, AttributesAreTheRadiatorsOwnTextsToTheLetter)
{
    const CDxfDrawing drawing = Exported();
    ASSERT_EQ(drawing.inserts.size(), 5u);
    const std::vector<CDxfAttribute> expected = {
        {L"H_VL_PUNKT", kVorlauf}, {L"H_RL_PUNKT", kRuecklauf}, {L"H_LAENGE", L"0.7"},
        {L"H_TIEFE", L"0.1"},      {L"H_HOEHE", L"0.6"},        {L"H_TYP", L"22/600 è"},
        {L"H_LEISTUNG", L"300"}};
    EXPECT_EQ(drawing.inserts[0].attribute, expected);
    EXPECT_EQ(FindAttribute(drawing.inserts[1].attribute, L"H_VL_PUNKT"), L"");
    for (const CDxfInsert& insert : drawing.inserts) {
        const CDxfBlock* const block = FindBlock(drawing, insert.strBlock);
        ASSERT_NE(block, nullptr);
        EXPECT_TRUE(std::ranges::equal(block->attribute, expected, {}, &CDxfAttribute::strName,
                                       &CDxfAttribute::strName));
    }
}

TEST_F(PlanDxfTest, RadiatorsCoverTheirPlaceInThePlan)
{
    const CDxfDrawing drawing = Exported();
    ASSERT_EQ(drawing.inserts.size(), 5u);
    const CRoom& room = *m_building.floors[0].rooms[0];
    for (std::size_t i = 0; i < room.heizkoerper.size(); ++i) {
        const CRadiatorPose pose = PoseOf(room, room.heizkoerper[i]);
        const bool isLevel = std::fmod(pose.dWinkel, 180.0) == 0.0;
        const double width = isLevel ? pose.dLaenge : pose.dTiefe;
        const double height = isLevel ? pose.dTiefe : pose.dLaenge;
        const QRectF bounds = BoundsOfInsert(drawing, drawing.inserts[i]);
        EXPECT_NEAR(bounds.center().x(), pose.dX, 1e-5) << i;
        EXPECT_NEAR(bounds.center().y(), pose.dY, 1e-5) << i;
        EXPECT_NEAR(bounds.width(), width, 1e-5) << i;
        EXPECT_NEAR(bounds.height(), height, 1e-5) << i;
    }
}

TEST_F(PlanDxfTest, RadiatorsAreOnTheirLayersInTheirColours)
{
    const CDxfDrawing drawing = Exported();
    ASSERT_EQ(drawing.inserts.size(), 5u);
    EXPECT_EQ(FindLayerColor(drawing.layers, L"HEIZ_Terra"), 3);
    EXPECT_EQ(drawing.inserts[0].strLayer, L"HEIZ_Terra");
    EXPECT_EQ(drawing.inserts[0].nColor, kColorByLayer);
    EXPECT_EQ(drawing.inserts[3].nColor, 5);
    EXPECT_EQ(drawing.inserts[4].strLayer, L"HEIZ_1_2_alto");
    EXPECT_EQ(FindLayerColor(drawing.layers, L"HEIZ_1_2_alto"), kColorDefault);
    const CDxfBlock* const block = FindBlock(drawing, L"RAD");
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(block->entities[0].nColor, kColorByBlock);
    EXPECT_EQ(block->entities[1].nColor, 30);
    EXPECT_TRUE(std::ranges::all_of(
        block->entities, [](const CDxfEntity& entity) { return entity.strLayer == L"0"; }));
}

TEST_F(PlanDxfTest, FloorsStandSideBySideUnderTheirTitles)
{
    const CDxfDrawing drawing = Exported();
    const auto find = [&](const CString& text) {
        return *std::ranges::find(drawing.texts, text, &CDxfText::strText);
    };
    const CDxfText lower = find(L"Terra");
    const CDxfText upper = find(L"Primo");
    EXPECT_EQ(find(L"Villa Łódź, 75/65 °C").punkt.x, lower.punkt.x);
    // The room is 5 m wide and has a wall around it.
    EXPECT_GT(upper.punkt.x, lower.punkt.x + 5.6);
    EXPECT_EQ(find(L"Sopra").punkt.y, find(L"Küche è già \"ampia\"").punkt.y);
    const CDxfText name = find(L"Küche è già \"ampia\"");
    double below = name.punkt.y;
    for (const wchar_t* figure : {L"Fabbisogno 1000 W", L"Coperto 1200 W", L"Resto -200 W"}) {
        const CDxfText text = find(figure);
        EXPECT_LT(text.punkt.x, upper.punkt.x);
        EXPECT_EQ(text.dHoehe, name.dHoehe) << "one height a room";
        EXPECT_LT(text.punkt.y, below - text.dHoehe);
        below = text.punkt.y;
    }
}

TEST_F(PlanDxfTest, ValveGraphicsTurnTheirPipeAwayFromTheRadiator)
{
    CDxfDrawing valves;
    valves.layers = {{L"MANDATA NORD", 1}};
    // One of them has the name of a radiator's block.
    for (const wchar_t* name : {L"DIRITTA", L"RAD"}) {
        valves.blocks.push_back(
            {name, {}, {{L"MANDATA NORD", kColorByLayer, CDxfLine{{-0.1, 0.0}, {0.0, 0.02}}}}});
    }
    m_folder.WriteBytes("valvole.dxf", WriteDxf(valves));
    const CBlockLibrary library(m_folder.Path("valvole.dxf"));
    CRoom room = *m_building.floors[0].rooms[0];
    room.heizkoerper.resize(1);
    room.heizkoerper[0].anschluss.GrafikAN = L"diritta";
    room.heizkoerper[0].anschluss.GrafikRI = L"RAD";
    m_building.floors[0].rooms[0] = std::make_shared<const CRoom>(room);

    const CDxfDrawing drawing = Exported(&library);
    ASSERT_EQ(drawing.inserts.size(), 4u);
    // The radiator is 0.7 m long with its middle at x = 2.5. Seen from the room its left end, where
    // the flow is, lies in the east.
    const struct
    {
        double x, left, right;
    } cases[] = {{2.85, 2.85, 2.95}, {2.15, 2.05, 2.15}};
    for (std::size_t i = 0; i < 2; ++i) {
        const CDxfInsert& valve = drawing.inserts[i + 1];
        const QRectF bounds = BoundsOfInsert(drawing, valve);
        EXPECT_NEAR(valve.punkt.x, cases[i].x, 1e-5);
        EXPECT_NEAR(bounds.left(), cases[i].left, 1e-5);
        EXPECT_NEAR(bounds.right(), cases[i].right, 1e-5);
    }
    EXPECT_EQ(drawing.inserts[0].strBlock, L"RAD");
    EXPECT_EQ(drawing.inserts[2].strBlock, L"RAD_2");
    EXPECT_EQ(FindLayerColor(drawing.layers, L"MANDATA_NORD"), 1);
}

TEST(RadiatorBlock, EveryProductOfTheSampleCataloguesHasItsBlock)
{
    const CSettingOverride catalogues(kSettingHKDir, WideFromUtf8(RADSEL_DATA_DIR "/catalogues"));
    const CBlockLibrary library(WideFromUtf8(RADSEL_DATA_DIR "/drawing/heizkoerper.dxf"));
    int products = 0;
    for (auto* maker = ReadHKDaten(); maker != nullptr; maker = maker->pNext) {
        ReadVdiFile(maker->Name, &maker->pArt, 1000.0);
        for (const auto* art = maker->pArt; art != nullptr; art = art->pNext) {
            for (const auto* produkt = art->pProdukt; produkt; produkt = produkt->pNext) {
                ++products;
                EXPECT_NE(library.Find(BlockOf(art->Name, produkt->Name)).pBlock, nullptr)
                    << Utf8FromWide(art->Name + L" / " + produkt->Name);
            }
        }
    }
    EXPECT_GT(products, 40);

    const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*> cases[] = {
        {L"Radiatori a piastra compatti", L"Tipo 11", L"RAD_PIASTRA_11_PIANTA"},
        {L"Flachheizkörper mit Einbauventil", L"Typ V 22", L"RAD_PIASTRA_22_PIANTA"},
        {L"Radiatori tubolari in acciaio", L"3 colonne", L"RAD_TUBOLARE_PIANTA"},
        {L"Badheizkörper", L"Badwärmer gerade", L"RAD_SCALDASALVIETTE_PIANTA"},
        {L"Altro", L"Tipo 22", L""},
    };
    for (const auto& [art, produkt, block] : cases) {
        EXPECT_EQ(BlockOf(art, produkt), block);
    }
}

} // namespace workbench
