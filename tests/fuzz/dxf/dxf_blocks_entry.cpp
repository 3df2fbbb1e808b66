#include "tests/fuzz/entries.h"
#include "workbench/dxf/dxf_blocks.h"
#include "workbench/dxf/dxf_writer.h"

#include <cmath>

using namespace workbench;

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

void CheckEntities(const std::vector<CDxfEntity>& entities)
{
    for (const CDxfEntity& entity : entities) {
        Require(entity.nColor >= 0 && entity.nColor <= 256, "every colour is an index");
        std::visit(CCheckShape(), entity.shape);
    }
}

} // namespace

void RunDxfBlocks(std::span<const std::uint8_t> bytes)
{
    const auto parsed = ParseDxf(bytes);
    if (const auto* const fault = std::get_if<CFileFault>(&parsed)) {
        Require(!fault->strMessage.empty() && fault->nLine >= 0, "a fault says what and where");
        return;
    }
    const auto& drawing = std::get<CDxfDrawing>(parsed);
    for (const CDxfBlock& block : drawing.blocks) {
        CheckEntities(block.entities);
    }
    CheckEntities(drawing.entities);
    for (const CDxfText& text : drawing.texts) {
        CheckPoint(text.punkt);
        Require(std::isfinite(text.dWinkel), "every angle is a number");
    }
    const std::string text = WriteDxf(drawing);
    const auto again = ParseDxf({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    if (const auto* const fault = std::get_if<CFileFault>(&again)) {
        // What the code page lacks takes more bytes to write than it took to read.
        Require(fault->strMessage.find(L"troppo lungo") != CString::npos,
                "what is written is sound");
        return;
    }
    Require(std::get<CDxfDrawing>(again) == drawing, "a drawing reads back as it was written");
}
