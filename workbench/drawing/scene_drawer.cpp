#include "workbench/drawing/scene_drawer.h"

#include "platform/color.h"
#include "workbench/drawing/block_library.h"
#include "workbench/drawing/block_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace workbench {

namespace {

/// Above anything that a drawing stacks.
constexpr double kPreviewZ = 1e6;

/// Holds the symbols of a preview. Unlike a plain group it tells the drawer when it dies.
class CPreviewItem : public QGraphicsObject
{
public:
    CPreviewItem()
    {
        setFlag(ItemHasNoContents);
        setZValue(kPreviewZ);
    }

    QRectF boundingRect() const override { return {}; }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override {}
};

/// Metres beyond which no drawing of a building goes.
constexpr double kMaxPlace = 1e9;

bool IsPlace(const double vector[3])
{
    return std::all_of(vector, vector + 3,
                       [](double value) { return std::fabs(value) <= kMaxPlace; });
}

QColor ColorFrom(int farbe)
{
    const auto color = static_cast<COLORREF>(farbe);
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

} // namespace

CSceneDrawer::CSceneDrawer(QGraphicsScene& scene, std::vector<CDxfLayer> layers)
    : m_scene(&scene), m_layers(std::move(layers)), m_colors(m_layers)
{
}

CSceneDrawer::~CSceneDrawer()
{
    CSceneDrawer::ClearPreview();
}

void CSceneDrawer::GetLayerNames(CStringArray& namen, int /*art*/)
{
    namen.RemoveAll();
    for (const CDxfLayer& layer : m_layers) {
        namen.Add(layer.strName);
    }
}

int CSceneDrawer::GetLayerColor(const CString& layer)
{
    return m_colors.Of(layer);
}

void CSceneDrawer::GetBlockNames(const CString& ordner, CStringArray& namen, int /*art*/)
{
    namen.RemoveAll();
    const CBlockLibrary library(ordner);
    m_errors = library.GetErrors();
    for (const CString& name : library.GetNames()) {
        namen.Add(name);
    }
}

bool CSceneDrawer::GetBlockPreview(const CString& ordner, const CString& block, CBitmap& bild,
                                   int width, int height)
{
    const CBlockLibrary library(ordner);
    m_errors = library.GetErrors();
    const CBlockLibrary::CFound found = library.Find(block);
    if (!found.pBlock) {
        return false;
    }
    bild = DrawBlockPicture(*found.pLayers, *found.pBlock, width, height);
    return true;
}

void CSceneDrawer::ClearPreview()
{
    for (const QPointer<QGraphicsObject>& preview : m_previews) {
        delete preview;
    }
    m_previews.clear();
    m_open.reset();
    m_marks.Clear();
}

void CSceneDrawer::BeginPreview()
{
    if (!m_open) {
        m_open = std::make_unique<CPreviewItem>();
    }
}

void CSceneDrawer::EndPreview()
{
    if (!m_open || !m_scene) {
        return;
    }
    QGraphicsObject* const preview = m_open.release();
    m_scene->addItem(preview);
    m_previews.emplace_back(preview);
}

void CSceneDrawer::DrawConnectionPoint(const double punkt[3], const double richtung[3], double wert,
                                       int farbe, bool ruecklauf)
{
    if (!m_open || !IsPlace(punkt) || !IsPlace(richtung) || !(std::fabs(wert) <= kMaxPlace)) {
        return;
    }
    CConnectionMark mark{{punkt[0], punkt[1]}, {richtung[0], richtung[1]},
                         richtung[2],          wert,
                         ColorFrom(farbe),     ruecklauf};
    mark.punkt = m_marks.PlaceBeside(mark);
    MakeConnectionSymbol(mark)->setParentItem(m_open.get());
    m_marks.Add(mark);
}

} // namespace workbench
