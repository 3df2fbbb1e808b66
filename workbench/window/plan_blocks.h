#pragma once

#include "workbench/drawing/block_library.h"
#include "workbench/dxf/layer_colors.h"

#include <QColor>
#include <QPainterPath>

#include <map>
#include <memory>
#include <vector>

namespace workbench {

/// A block as the plan paints it, in metres.
struct CPlanBlock
{
    struct CPart
    {
        QPainterPath path;
        QColor farbe;
        /// True for lines that have the drawing's default colour, which take that of the layer on
        /// which the block stands.
        bool bStandard = false;
    };

    std::vector<CPart> parts;
    QRectF bounds;
};

/// The blocks of radiators and valves by name, case left aside, each made into paths once.
class CPlanBlocks
{
public:
    CPlanBlocks() = default;
    /// `valves` may be null. Neither is needed afterwards.
    CPlanBlocks(const CDxfDrawing& radiators, const CBlockLibrary* valves);

    /// Null for a name without a block, or whose block draws nothing.
    std::shared_ptr<const CPlanBlock> FindRadiator(const CString& name) const;
    std::shared_ptr<const CPlanBlock> FindValve(const CString& name) const;

private:
    using Blocks = std::map<CString, std::shared_ptr<const CPlanBlock>>;

    static void Add(Blocks& blocks, const CLayerColors& layers, const CDxfBlock& block);

    Blocks m_radiators;
    Blocks m_valves;
};

} // namespace workbench
