#pragma once

#include "host/drawer.h"
#include "workbench/drawing/connection_symbol.h"
#include "workbench/dxf/dxf_blocks.h"
#include "workbench/dxf/layer_colors.h"

#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QPointer>

#include <memory>
#include <vector>

namespace workbench {

/// The drawing interface over a scene whose unit is the metre, seen from above with y upwards.
/// Block libraries are DXF files or folders of them (block_library.h). The scene may be cleared or
/// die before the drawer; calls that need it then do nothing.
class CSceneDrawer : public CDrawer
{
public:
    /// `layers` are the layers of the drawing in the scene, which stays the caller's.
    CSceneDrawer(QGraphicsScene& scene, std::vector<CDxfLayer> layers);

    /// Takes the preview out of the scene.
    ~CSceneDrawer() override;

    CSceneDrawer(const CSceneDrawer&) = delete;
    CSceneDrawer& operator=(const CSceneDrawer&) = delete;

    /// All layers, whatever `art` is, in place of what the array held.
    void GetLayerNames(CStringArray& namen, int art) override;

    /// The default colour, 7, for an unknown layer.
    int GetLayerColor(const CString& layer) override;

    /// All blocks, whatever `art` is, in place of what the array held. GetErrors() tells why some
    /// are missing.
    void GetBlockNames(const CString& ordner, CStringArray& namen, int art) override;

    /// The block on white paper (block_picture.h).
    bool GetBlockPreview(const CString& ordner, const CString& block, CBitmap& bild, int width,
                         int height) override;

    void ClearPreview() override;

    /// A preview opened within another goes on with that one.
    void BeginPreview() override;

    /// Puts what was drawn since BeginPreview() into the scene at once, above everything else.
    /// Without it nothing of the preview shows.
    void EndPreview() override;

    /// Outside a preview, and for numbers that are none or beyond 1e9, it does nothing. Where
    /// symbols would cover each other, as those of two pipes one above the other, the later one
    /// stands beside the earlier.
    void DrawConnectionPoint(const double punkt[3], const double richtung[3], double wert,
                             int farbe, bool ruecklauf) override;

    /// What went wrong in the last reading of a block library.
    const std::vector<CFileFault>& GetErrors() const { return m_errors; }

private:
    QPointer<QGraphicsScene> m_scene;
    std::vector<CDxfLayer> m_layers;
    CLayerColors m_colors;
    std::vector<CFileFault> m_errors;
    /// Previews in the scene, which owns them.
    std::vector<QPointer<QGraphicsObject>> m_previews;
    /// The open preview, not in the scene yet; owned.
    std::unique_ptr<QGraphicsObject> m_open;
    /// What stands in the open preview and those before it.
    CStandingMarks m_marks;
};

} // namespace workbench
