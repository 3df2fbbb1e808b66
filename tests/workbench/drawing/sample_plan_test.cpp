#include "host/host_fittings.h"
#include "platform/encoding.h"
#include "platform/number_scan.h"
#include "workbench/drawing/block_library.h"
#include "workbench/drawing/block_path.h"
#include "workbench/drawing/hairline_item.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/drawing/sample_plan.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGraphicsItem>

#include <utility>

namespace workbench {

namespace {

const CString kRadiators = WideFromUtf8(RADSEL_DATA_DIR "/drawing/heizkoerper.dxf");

CDxfDrawing Radiators()
{
    return std::get<CDxfDrawing>(ReadDxfFile(kRadiators));
}

const ALIST* Find(const ALIST* attribute, const wchar_t* name)
{
    while (attribute && attribute->Name != name) {
        attribute = attribute->pNext;
    }
    return attribute;
}

} // namespace

TEST(DrawingSamples, EveryBlockIsASymbolOfBelievableSizeOnKnownLayers)
{
    const struct
    {
        const char* file;
        std::size_t least;
        double smallest, largest;
    } cases[] = {{"heizkoerper.dxf", 6, 0.04, 1.3}, {"ventile.dxf", 8, 0.05, 0.3}};
    for (const auto& c : cases) {
        const CBlockLibrary library(
            WideFromUtf8(std::string(RADSEL_DATA_DIR "/drawing/") + c.file));
        EXPECT_TRUE(library.GetErrors().empty());
        EXPECT_GE(library.GetNames().size(), c.least);
        for (const CString& name : library.GetNames()) {
            SCOPED_TRACE(Utf8FromWide(name));
            const auto found = library.Find(name);
            const QRectF bounds =
                BoundsOf(MakeBlockPaths(CLayerColors(*found.pLayers), *found.pBlock));
            EXPECT_GT(std::min(bounds.width(), bounds.height()), c.smallest);
            EXPECT_LT(std::max(bounds.width(), bounds.height()), c.largest);
            for (const CDxfEntity& entity : found.pBlock->entities) {
                EXPECT_TRUE(
                    std::ranges::count(*found.pLayers, entity.strLayer, &CDxfLayer::strName));
            }
        }
    }
}

TEST(SamplePlan, RadiatorsAreHostRecordsWhereTheyAreDrawn)
{
    CSamplePlan plan;
    EXPECT_EQ(plan.GetList(), nullptr);
    const CDxfDrawing blocks = Radiators();
    for (const wchar_t* block : {L"RAD_PIASTRA_11_PIANTA", L"unknown"}) {
        const std::size_t before = static_cast<std::size_t>(plan.GetScene().items().size());
        plan.AddRadiator(blocks, {.strBlock = block,
                                  .dX = 10,
                                  .dY = 20,
                                  .dUeberBoden = 0.1,
                                  .dWinkel = 90,
                                  .dLaenge = 2,
                                  .dTiefe = 0.2,
                                  .dHoehe = 0.6,
                                  .strVorlauf = L"-0.5;0;0;0;0.5;-0.03;180;0",
                                  .strRuecklauf = L"0.5;0;0;0;-0.5;0.03;0;0"});
        EXPECT_GT(static_cast<std::size_t>(plan.GetScene().items().size()), before);
    }
    TGA_LIST* const first = plan.GetList();
    ASSERT_NE(first->pNext, nullptr);
    EXPECT_EQ(first->pNext->pNext, nullptr);
    for (const QGraphicsItem* item : plan.GetScene().items()) {
        EXPECT_TRUE(QRectF(9.8, 18.9, 0.4, 2.2).contains(item->sceneBoundingRect()));
    }
    const std::pair<const wchar_t*, double> sizes[] = {
        {L"H_LAENGE", 2}, {L"H_TIEFE", 0.2}, {L"H_HOEHE", 0.6}};
    for (const auto& [name, value] : sizes) {
        ASSERT_NE(Find(first->Attribute, name), nullptr);
        EXPECT_EQ(_wtof(Find(first->Attribute, name)->Wert), value);
    }
    LM_APUNKT points[kMaxAnschlussPunkte];
    ASSERT_EQ(lmGet_K_APUNKT_BLOCK_Wc(first->Attribute, points, &first->Trafo, 0, L""), 4);
    // The room lies to the west: who looks at the radiator from there has north on his left.
    const double expected[2][3] = {{10, 21, 0.67}, {10, 19, 0.13}};
    for (std::size_t i = 0; i < 2; ++i) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            EXPECT_NEAR(points[i].Punkt[axis], expected[i][axis], 1e-9);
        }
    }
    EXPECT_NEAR(points[0].Richtung[1], 1, 1e-9);
}

TEST(SamplePlan, TheSampleRoomFindsItsBlocksAndConnections)
{
    CSamplePlan plan;
    FillSampleRoom(plan, Radiators());
    int radiators = 0;
    for (TGA_LIST* record = plan.GetList(); record; record = record->pNext, ++radiators) {
        LM_APUNKT points[kMaxAnschlussPunkte];
        EXPECT_EQ(lmGet_K_APUNKT_BLOCK_Wc(record->Attribute, points, &record->Trafo, 0, L""), 4);
    }
    EXPECT_EQ(radiators, 3);
    // Without blocks a rectangle stands for each; with them there are two colours or more.
    CSamplePlan bare;
    FillSampleRoom(bare, {});
    EXPECT_GE(plan.GetScene().items().size(), bare.GetScene().items().size() + 3);
}

TEST(PlanView, TheContentStaysFittedUntilTheUserZooms)
{
    QGraphicsScene scene;
    QPainterPath outline;
    outline.addRect(100, 50, 10, 5);
    scene.addItem(new CHairlineItem(outline, Qt::black, 3));
    CPlanView view(&scene);
    view.show();
    for (const QSize size : {QSize(400, 300), QSize(900, 200)}) {
        view.resize(size);
        QApplication::processEvents();
        const QRect shown = view.mapFromScene(QRectF(100, 50, 10, 5)).boundingRect();
        EXPECT_TRUE(view.viewport()->rect().contains(shown));
        EXPECT_TRUE(shown.width() > 0.7 * size.width() || shown.height() > 0.7 * size.height());
        EXPECT_LT(view.mapFromScene(QPointF(100, 55)).y(), view.mapFromScene(QPointF(100, 50)).y());
    }
    const QPoint pointer(300, 120);
    const QPointF held = view.mapToScene(pointer);
    const double before = view.transform().m11();
    view.ZoomAt(pointer, 2.0);
    EXPECT_NEAR(view.transform().m11(), 2.0 * before, 1e-9);
    EXPECT_NEAR(QLineF(view.mapToScene(pointer), held).length(), 0.0, 2.0 / before);
    view.resize(500, 300);
    QApplication::processEvents();
    EXPECT_NEAR(view.transform().m11(), 2.0 * before, 1e-9);
    view.ZoomAt(pointer, 1e-9);
    EXPECT_GE(view.transform().m11(), 1.0);
    scene.clear();
    view.FitToContent();
    EXPECT_GT(view.transform().m11(), 10.0);
}

} // namespace workbench
