#include "platform/format.h"
#include "tests/fuzz/entries.h"
#include "workbench/dxf/dxf_blocks.h"
#include "workbench/dxf/dxf_writer.h"

#include <algorithm>
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

/// Names and texts that any version of the format can hold in place of those of the file: what the
/// code page lacks takes more bytes to write than it took to read.
class CShortener
{
public:
    void operator()(CString& text) const { text.resize(std::min<std::size_t>(text.size(), 35)); }

    template <class ITEM>
    void operator()(std::vector<ITEM>& items) const
    {
        std::ranges::for_each(items, *this);
    }

    void operator()(CDxfLayer& layer) const { (*this)(layer.strName); }
    void operator()(CDxfEntity& entity) const { (*this)(entity.strLayer); }

    void operator()(CDxfAttribute& attribute) const
    {
        (*this)(attribute.strName);
        (*this)(attribute.strWert);
    }

    void operator()(CDxfBlock& block) const
    {
        (*this)(block.entities);
        (*this)(block.attribute);
    }

    void operator()(CDxfInsert& insert) const
    {
        (*this)(insert.strLayer);
        (*this)(insert.strBlock);
        (*this)(insert.attribute);
    }

    void operator()(CDxfText& text) const
    {
        (*this)(text.strLayer);
        (*this)(text.strText);
    }
};

/// Block names must stay different from each other.
void Shorten(CDxfDrawing& drawing)
{
    const CShortener shorten;
    shorten(drawing.layers);
    shorten(drawing.blocks);
    shorten(drawing.entities);
    shorten(drawing.inserts);
    shorten(drawing.texts);
    int number = 0;
    for (CDxfBlock& block : drawing.blocks) {
        block.strName = FormatInt(++number);
    }
}

} // namespace

void RunDxfBlocks(std::span<const std::uint8_t> bytes)
{
    auto parsed = ParseDxf(bytes);
    if (const auto* const fault = std::get_if<CFileFault>(&parsed)) {
        Require(!fault->strMessage.empty() && fault->nLine >= 0, "a fault says what and where");
        return;
    }
    auto& drawing = std::get<CDxfDrawing>(parsed);
    for (const CDxfBlock& block : drawing.blocks) {
        CheckEntities(block.entities);
    }
    CheckEntities(drawing.entities);
    for (const CDxfText& text : drawing.texts) {
        CheckPoint(text.punkt);
        Require(std::isfinite(text.dWinkel), "every angle is a number");
    }
    Shorten(drawing);
    const std::string text = WriteDxf(drawing);
    const auto again = ParseDxf({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    const auto* const same = std::get_if<CDxfDrawing>(&again);
    Require(same && *same == drawing, "a drawing reads back as it was written");
}
