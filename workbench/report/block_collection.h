#pragma once

#include "workbench/drawing/block_library.h"
#include "workbench/dxf/layer_colors.h"

#include <QRectF>

#include <map>

namespace workbench {

/// Takes the blocks of radiators and valves that a plan needs over into its drawing, each once.
class CBlockCollection
{
public:
    /// All stay the caller's. `valves` may be null.
    CBlockCollection(CDxfDrawing& drawing, const CDxfDrawing& radiators,
                     const CBlockLibrary* valves)
        : m_drawing(drawing), m_radiators(radiators), m_pValves(valves)
    {
    }

    /// A block of the drawing.
    struct CTaken
    {
        CString strName;
        /// What it draws, from its base point.
        QRectF bounds;
    };

    /// The block of a radiator, or a plain rectangle in place of one that the library does not
    /// have. Its lines are on layer 0, and those of the default colour take the colour of what is
    /// inserted. It defines the radiators' attributes.
    const CTaken& TakeRadiator(const CString& name);

    /// The block of a valve as it is, with its layers under the names of LayerName(); null if the
    /// library does not have it.
    const CTaken* TakeValve(const CString& name);

private:
    const CTaken* Take(const CString& key, CDxfBlock block, const CLayerColors& layers);

    CDxfDrawing& m_drawing;
    const CDxfDrawing& m_radiators;
    const CBlockLibrary* m_pValves;
    /// By what it was asked for.
    std::map<CString, CTaken> m_taken;
};

/// A layer's name without what CAD programs refuse in one, and without blanks, at which command
/// lines and scripts end a name: floors lend theirs to layers.
CString LayerName(CString name);

/// Adds a layer, unless the drawing has one of that name.
void AddLayer(CDxfDrawing& drawing, const CDxfLayer& layer);

/// Names of the attributes of a radiator, in the order in which its block defines them.
inline constexpr const wchar_t* kRadiatorAttributes[] = {
    L"H_VL_PUNKT", L"H_RL_PUNKT", L"H_LAENGE", L"H_TIEFE", L"H_HOEHE", L"H_TYP", L"H_LEISTUNG"};

} // namespace workbench
