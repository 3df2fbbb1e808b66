#include "fuzz/entries.h"
#include "platform/format.h"
#include "workbench/drawing/dxf_blocks.h"
#include "workbench/drawing/dxf_writer.h"

#include <cmath>

namespace {

void CheckPoint(const CDxfPoint& point)
{
    Require(std::fabs(point.x) <= 1e9 && std::fabs(point.y) <= 1e9, "every place is in range");
}

struct CCheckShape
{
    void operator()(const CDxfLine& line) const
    {
        CheckPoint(line.von);
        CheckPoint(line.bis);
    }

    void operator()(const CDxfCircle& circle) const
    {
        CheckPoint(circle.mitte);
        Require(circle.dRadius > 0.0, "every circle has a radius");
    }

    void operator()(const CDxfArc& arc) const
    {
        CheckPoint(arc.mitte);
        Require(arc.dRadius > 0.0, "every arc has a radius");
        Require(std::isfinite(arc.dVon) && std::isfinite(arc.dBis), "every angle is a number");
    }

    void operator()(const CDxfPolyline& polyline) const
    {
        for (const CDxfVertex& vertex : polyline.punkte) {
            CheckPoint(vertex.punkt);
            Require(std::isfinite(vertex.dBulge), "every bulge is a number");
        }
    }
};

/// Names that any version of the format can hold in place of those of the file.
void Rename(CDxfDrawing& drawing)
{
    int number = 0;
    for (CDxfLayer& layer : drawing.layers) {
        layer.strName = FormatInt(++number);
    }
    for (CDxfBlock& block : drawing.blocks) {
        block.strName = FormatInt(++number);
        for (CDxfEntity& entity : block.entities) {
            entity.strLayer = L"0";
        }
    }
}

} // namespace

void RunDxfBlocks(std::span<const std::uint8_t> bytes)
{
    auto parsed = ParseDxf(bytes);
    if (const auto* const fault = std::get_if<CDxfFault>(&parsed)) {
        Require(!fault->strMessage.empty() && fault->nLine >= 0, "a fault says what and where");
        return;
    }
    auto& drawing = std::get<CDxfDrawing>(parsed);
    for (const CDxfBlock& block : drawing.blocks) {
        for (const CDxfEntity& entity : block.entities) {
            Require(entity.nColor >= 0 && entity.nColor <= 256, "every colour is an index");
            std::visit(CCheckShape(), entity.shape);
        }
    }
    Rename(drawing);
    const std::string text = WriteDxf(drawing);
    const auto again = ParseDxf({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    const auto* const same = std::get_if<CDxfDrawing>(&again);
    Require(same && *same == drawing, "a drawing reads back as it was written");
}
