#include "host/host_base.h"
#include "tests/support/temp_folder.h"
#include "workbench/drawing/hairline_item.h"
#include "workbench/drawing/scene_drawer.h"
#include "workbench/dxf/dxf_writer.h"

#include <gtest/gtest.h>

#include <QGraphicsView>

#include <limits>
#include <memory>
#include <tuple>

namespace workbench {

namespace {

const double kOrigin[3] = {0, 0, 0};
const double kEast[3] = {1, 0, 0};

std::vector<CString> Items(const CStringArray& array)
{
    return {array.begin(), array.end()};
}

class CSceneDrawerTest : public testing::Test
{
protected:
    void Draw(const double punkt[3], const double richtung[3], TgaGewerk gewerk, double wert = 0)
    {
        m_drawer.DrawConnectionPoint(punkt, richtung, wert, lmGetGewerkColor(gewerk),
                                     gewerk == kGewerkRuecklauf);
    }

    void Preview(const double punkt[3], const double richtung[3], TgaGewerk gewerk, double wert = 0)
    {
        m_drawer.ClearPreview();
        m_drawer.BeginPreview();
        Draw(punkt, richtung, gewerk, wert);
        m_drawer.EndPreview();
    }

    /// Where the symbols of the preview are filled.
    std::vector<QPolygonF> Heads() const
    {
        std::vector<QPolygonF> heads;
        for (const QGraphicsItem* item : m_scene.items(Qt::AscendingOrder)) {
            if (const auto* head = dynamic_cast<const QGraphicsPolygonItem*>(item)) {
                heads.push_back(head->mapToScene(head->polygon()));
            }
        }
        return heads;
    }

    QGraphicsScene m_scene;
    CSceneDrawer m_drawer{m_scene, {{L"0", 7}, {L"RISCALDAMENTO", 30}}};
};

} // namespace

TEST_F(CSceneDrawerTest, LayersAreThoseOfTheDrawing)
{
    CStringArray names;
    names.Add(L"before");
    m_drawer.GetLayerNames(names, 2);
    EXPECT_EQ(Items(names), (std::vector<CString>{L"0", L"RISCALDAMENTO"}));
    EXPECT_EQ(m_drawer.GetLayerColor(L"Riscaldamento"), 30);
    EXPECT_EQ(m_drawer.GetLayerColor(L"none"), 7);
}

TEST_F(CSceneDrawerTest, BlocksComeFromAFileInItsOrderOrFromAllFilesOfAFolder)
{
    const CTempFolder folder;
    const auto write = [&](const char* file, const std::vector<const wchar_t*>& blocks) {
        CDxfDrawing drawing;
        for (const wchar_t* name : blocks) {
            drawing.blocks.push_back({name, {}, {{L"0", 1, CDxfLine{{}, {1, 1}}}}});
        }
        folder.WriteBytes(file, WriteDxf(drawing));
    };
    write("b.DXF", {L"Z", L"A"});
    write("a.dxf", {L"M", L"a"});
    write("c.txt", {L"NO"});
    folder.WriteBytes("broken.dxf", "nothing");

    CStringArray names;
    m_drawer.GetBlockNames(folder.Path("b.dxf"), names, 0);
    EXPECT_EQ(Items(names), (std::vector<CString>{L"Z", L"A"}));
    EXPECT_TRUE(m_drawer.GetErrors().empty());
    m_drawer.GetBlockNames(folder.Path(), names, 0);
    EXPECT_EQ(Items(names), (std::vector<CString>{L"M", L"a", L"Z"}));
    ASSERT_EQ(m_drawer.GetErrors().size(), 1u);
    EXPECT_TRUE(m_drawer.GetErrors()[0].strFile.ends_with(L"broken.dxf"));
    m_drawer.GetBlockNames(folder.Path("missing"), names, 0);
    EXPECT_TRUE(names.IsEmpty());

    CBitmap picture(1, 1);
    EXPECT_FALSE(m_drawer.GetBlockPreview(folder.Path(), L"NO", picture, 0, 0));
    EXPECT_EQ(picture.GetWidth(), 1);
    EXPECT_TRUE(m_drawer.GetBlockPreview(folder.Path(), L"Z", picture, 0, 0));
    EXPECT_EQ(picture.GetWidth(), 120);
    EXPECT_TRUE(m_drawer.GetBlockPreview(folder.Path("a.dxf"), L"M", picture, 40, 30));
    EXPECT_EQ(picture.GetHeight(), 30);
}

TEST_F(CSceneDrawerTest, ThePreviewShowsAtItsEndAndGoesWhenCleared)
{
    const QGraphicsItem* const wall = m_scene.addRect(0, 0, 1, 1);
    for (const int radiators : {0, 1, 60}) {
        m_drawer.ClearPreview();
        m_drawer.BeginPreview();
        for (int i = 0; i < radiators; ++i) {
            const double flow[3] = {2.0 * i, 0, 0.9};
            const double back[3] = {2.0 * i, 0, 0.2};
            Draw(flow, kEast, kGewerkVorlauf);
            Draw(back, kEast, kGewerkRuecklauf);
        }
        EXPECT_TRUE(Heads().empty());
        m_drawer.EndPreview();
        EXPECT_EQ(Heads().size(), 2u * static_cast<std::size_t>(radiators));
    }
    m_drawer.EndPreview();
    m_drawer.ClearPreview();
    EXPECT_EQ(m_scene.items(), QList<QGraphicsItem*>{const_cast<QGraphicsItem*>(wall)});
}

TEST_F(CSceneDrawerTest, WithoutAPlaceOrAnOpenPreviewNothingIsDrawn)
{
    Draw(kOrigin, kEast, kGewerkVorlauf);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double noPlace[3] = {0, nan, 0};
    const double farPlace[3] = {1e300, 0, 0};
    m_drawer.BeginPreview();
    Draw(noPlace, kEast, kGewerkVorlauf);
    Draw(farPlace, kEast, kGewerkVorlauf);
    Draw(kOrigin, noPlace, kGewerkVorlauf);
    Draw(kOrigin, kEast, kGewerkVorlauf, nan);
    m_drawer.EndPreview();
    EXPECT_TRUE(Heads().empty());
}

TEST_F(CSceneDrawerTest, FlowArrowsRunToThePointAndReturnArrowsFromItAlongThePipe)
{
    const double punkt[3] = {3, 4, 1};
    const QPointF place(3, 4);
    const double directions[][3] = {{1, 0, 0}, {-1, 0, 0}, {0, 1, 0}, {0.6, -0.8, 0}};
    for (const auto& richtung : directions) {
        const QPointF along(richtung[0], richtung[1]);
        Preview(punkt, richtung, kGewerkVorlauf, 0.5);
        QPolygonF head = Heads().at(0);
        EXPECT_EQ(head[0], place);
        EXPECT_GT(QPointF::dotProduct(head[1] - head[0], along), 0);
        EXPECT_NEAR(QPointF::dotProduct(m_scene.itemsBoundingRect().center() - place, along), 0.25,
                    0.02);
        Preview(punkt, richtung, kGewerkRuecklauf, 0.5);
        head = Heads().at(0);
        EXPECT_NEAR(QLineF(head[0], place + 0.5 * along).length(), 0, 1e-9);
        EXPECT_LT(QPointF::dotProduct(head[1] - head[0], along), 0);
    }
}

TEST_F(CSceneDrawerTest, ArrowsCarryTheColourOfTheirTradeAboveTheDrawing)
{
    m_scene.addRect(-1, -1, 2, 2, Qt::NoPen, Qt::yellow)->setZValue(50);
    const QColor expected[] = {{220, 0, 0}, {0, 0, 220}, {64, 64, 64}};
    const TgaGewerk trades[] = {kGewerkVorlauf, kGewerkRuecklauf, 0};
    for (std::size_t i = 0; i < 3; ++i) {
        Preview(kOrigin, kEast, trades[i]);
        QImage image(400, 400, QImage::Format_RGB32);
        QPainter painter(&image);
        m_scene.render(&painter, {}, QRectF(-1, -1, 2, 2));
        painter.end();
        const QPolygonF head = Heads().at(0);
        const QPointF middle = (head[0] + head[1] + head[2]) / 3;
        EXPECT_EQ(image.pixelColor((middle * 200 + QPointF(200, 200)).toPoint()), expected[i]);
    }
}

TEST_F(CSceneDrawerTest, UprightPipesAreRingsThatTellUpFromDown)
{
    const std::tuple<double, TgaGewerk, bool> cases[] = {{1, kGewerkVorlauf, false},
                                                         {-1, kGewerkVorlauf, true},
                                                         {1, kGewerkRuecklauf, true},
                                                         {-1, kGewerkRuecklauf, false}};
    for (const auto& [up, gewerk, rises] : cases) {
        const double richtung[3] = {0, 0, up};
        Preview(kOrigin, richtung, gewerk);
        int dots = 0;
        int strokes = 0;
        for (const QGraphicsItem* item : m_scene.items()) {
            dots += dynamic_cast<const QGraphicsEllipseItem*>(item) ? 1 : 0;
            strokes += dynamic_cast<const CHairlineItem*>(item) ? 1 : 0;
        }
        // The ring, and a cross in it.
        EXPECT_EQ(dots, rises ? 1 : 0);
        EXPECT_EQ(strokes, rises ? 1 : 2);
    }
}

TEST_F(CSceneDrawerTest, SymbolsOneAboveTheOtherStandSideBySide)
{
    const double low[3] = {0, 0, -1};
    const double up[3] = {0, 0, 1};
    for (const auto& [first, second] : {std::pair(kEast, kEast), std::pair(up, low)}) {
        m_drawer.ClearPreview();
        m_drawer.BeginPreview();
        for (int i = 0; i < 30; ++i) {
            Draw(kOrigin, i % 2 == 0 ? first : second, kGewerkVorlauf);
        }
        m_drawer.EndPreview();
        std::vector<QRectF> places;
        for (const QGraphicsItem* item : m_scene.items(Qt::AscendingOrder)) {
            if (item->parentItem() && !item->parentItem()->parentItem()) {
                places.push_back((item->childrenBoundingRect() | item->boundingRect())
                                     .adjusted(0.0011, 0.0011, -0.0011, -0.0011));
            }
        }
        ASSERT_EQ(places.size(), 30u);
        EXPECT_FALSE(places[0].intersects(places[1]));
        EXPECT_FALSE(places[1].intersects(places[2]));
    }
}

TEST(SceneDrawer, SceneAndDrawerMayDieInAnyOrder)
{
    auto scene = std::make_unique<QGraphicsScene>();
    CSceneDrawer outliving(*scene, {});
    {
        CSceneDrawer passing(*scene, {});
        for (CSceneDrawer* drawer : {&outliving, &passing}) {
            drawer->BeginPreview();
            drawer->DrawConnectionPoint(kOrigin, kEast, 0, 0, false);
            drawer->EndPreview();
        }
    }
    EXPECT_EQ(scene->items().size(), 3);
    scene->clear();
    outliving.ClearPreview();
    scene.reset();
    outliving.BeginPreview();
    outliving.EndPreview();
    outliving.ClearPreview();
}

} // namespace workbench
