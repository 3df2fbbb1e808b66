#include "workbench/drawing/dxf_writer.h"

#include "platform/encoding.h"
#include "platform/format.h"

namespace {

/// Writes groups: a line with the code, a line with the value.
class CGroupWriter
{
public:
    void Text(int code, const CString& value)
    {
        m_text += std::to_string(code) + "\r\n" + Cp1252FromWide(value) + "\r\n";
    }

    void Int(int code, int value) { Text(code, FormatInt(value)); }

    void Real(int code, double value) { Text(code, FormatExact(value)); }

    /// x, y and z; the codes of the three are ten apart.
    void Point(int code, const CDxfPoint& point)
    {
        Real(code, point.x);
        Real(code + 10, point.y);
        Real(code + 20, 0.0);
    }

    std::string TakeText() { return std::move(m_text); }

private:
    std::string m_text;
};

/// Writes the record of a shape behind the groups that all entities share.
class CEntityWriter
{
public:
    CEntityWriter(CGroupWriter& out, const CDxfEntity& entity) : m_out(out), m_entity(entity) {}

    void operator()(const CDxfLine& line) const
    {
        Head(L"LINE");
        m_out.Point(10, line.von);
        m_out.Point(11, line.bis);
    }

    void operator()(const CDxfCircle& circle) const
    {
        Head(L"CIRCLE");
        m_out.Point(10, circle.mitte);
        m_out.Real(40, circle.dRadius);
    }

    void operator()(const CDxfArc& arc) const
    {
        Head(L"ARC");
        m_out.Point(10, arc.mitte);
        m_out.Real(40, arc.dRadius);
        m_out.Real(50, arc.dVon);
        m_out.Real(51, arc.dBis);
    }

    void operator()(const CDxfPolyline& polyline) const
    {
        Head(L"POLYLINE");
        m_out.Int(66, 1);
        m_out.Point(10, {});
        m_out.Int(70, polyline.bGeschlossen ? 1 : 0);
        for (const CDxfVertex& vertex : polyline.punkte) {
            Head(L"VERTEX");
            m_out.Point(10, vertex.punkt);
            m_out.Real(42, vertex.dBulge);
        }
        Head(L"SEQEND");
    }

private:
    void Head(const CString& record) const
    {
        m_out.Text(0, record);
        m_out.Text(8, m_entity.strLayer);
        m_out.Int(62, m_entity.nColor);
    }

    CGroupWriter& m_out;
    const CDxfEntity& m_entity;
};

void BeginSection(CGroupWriter& out, const CString& name)
{
    out.Text(0, L"SECTION");
    out.Text(2, name);
}

void WriteHeader(CGroupWriter& out)
{
    BeginSection(out, L"HEADER");
    out.Text(9, L"$ACADVER");
    out.Text(1, L"AC1009");
    out.Text(9, L"$DWGCODEPAGE");
    out.Text(3, L"ANSI_1252");
    out.Text(0, L"ENDSEC");
}

void WriteLineTypes(CGroupWriter& out)
{
    out.Text(0, L"TABLE");
    out.Text(2, L"LTYPE");
    out.Int(70, 1);
    out.Text(0, L"LTYPE");
    out.Text(2, L"CONTINUOUS");
    out.Int(70, 0);
    out.Text(3, L"Solid line");
    out.Int(72, 65);
    out.Int(73, 0);
    out.Real(40, 0.0);
    out.Text(0, L"ENDTAB");
}

void WriteLayers(CGroupWriter& out, const std::vector<CDxfLayer>& layers)
{
    out.Text(0, L"TABLE");
    out.Text(2, L"LAYER");
    out.Int(70, static_cast<int>(layers.size()));
    for (const CDxfLayer& layer : layers) {
        out.Text(0, L"LAYER");
        out.Text(2, layer.strName);
        out.Int(70, 0);
        out.Int(62, layer.nColor);
        out.Text(6, L"CONTINUOUS");
    }
    out.Text(0, L"ENDTAB");
}

void WriteBlock(CGroupWriter& out, const CDxfBlock& block)
{
    out.Text(0, L"BLOCK");
    out.Text(8, L"0");
    out.Text(2, block.strName);
    out.Int(70, 0);
    out.Point(10, block.basis);
    out.Text(3, block.strName);
    for (const CDxfEntity& entity : block.entities) {
        std::visit(CEntityWriter(out, entity), entity.shape);
    }
    out.Text(0, L"ENDBLK");
    out.Text(8, L"0");
}

} // namespace

std::string WriteDxf(const CDxfDrawing& drawing)
{
    CGroupWriter out;
    WriteHeader(out);
    BeginSection(out, L"TABLES");
    WriteLineTypes(out);
    WriteLayers(out, drawing.layers);
    out.Text(0, L"ENDSEC");
    BeginSection(out, L"BLOCKS");
    for (const CDxfBlock& block : drawing.blocks) {
        WriteBlock(out, block);
    }
    out.Text(0, L"ENDSEC");
    BeginSection(out, L"ENTITIES");
    out.Text(0, L"ENDSEC");
    out.Text(0, L"EOF");
    return out.TakeText();
}
