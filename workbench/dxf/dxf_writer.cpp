#include "workbench/dxf/dxf_writer.h"

#include "platform/encoding.h"
#include "platform/format.h"

#include <cstdio>

namespace workbench {

namespace {

/// An attribute takes part in no picture, but CAD programs want a size for its text, in metres.
constexpr double kAttributeHeight = 0.05;
constexpr int kInvisible = 1;

/// True if a reader would take what stands at `at` for a character that the code page lacks.
bool IsEscape(const CString& text, std::size_t at)
{
    constexpr std::size_t length = 7;
    return text.compare(at, 3, L"\\U+") == 0 && at + length <= text.size() &&
           text.find_first_not_of(L"0123456789abcdefABCDEF", at + 3) >= at + length;
}

/// Bytes of code page 1252, with "\U+xxxx" for what it lacks and for what would break a line.
std::string EscapedText(const CString& text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string plain = Cp1252FromWide(text.substr(i, 1));
        const bool isLacking = plain == "?" && text[i] != L'?';
        if (!isLacking && text[i] >= L' ' && !IsEscape(text, i)) {
            bytes += plain;
            continue;
        }
        for (const char16_t unit : Utf16FromWide(text.substr(i, 1))) {
            char digits[16];
            std::snprintf(digits, sizeof digits, "\\U+%04X", static_cast<unsigned>(unit));
            bytes += digits;
        }
    }
    return bytes;
}

/// Writes groups: a line with the code, a line with the value.
class CGroupWriter
{
public:
    void Text(int code, const CString& value) { Group(code, EscapedText(value)); }

    void Int(int code, int value) { Group(code, std::to_string(value)); }

    void Real(int code, double value) { Group(code, Utf8FromWide(FormatExact(value))); }

    /// x, y and z; the codes of the three are ten apart.
    void Point(int code, const CDxfPoint& point)
    {
        Real(code, point.x);
        Real(code + 10, point.y);
        Real(code + 20, 0.0);
    }

    std::string TakeText() { return std::move(m_text); }

private:
    void Group(int code, const std::string& value)
    {
        m_text += std::to_string(code) + "\r\n" + value + "\r\n";
    }

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

void WriteEntities(CGroupWriter& out, const std::vector<CDxfEntity>& entities)
{
    for (const CDxfEntity& entity : entities) {
        std::visit(CEntityWriter(out, entity), entity.shape);
    }
}

/// `record` is that of an attribute or of its definition.
void WriteAttribute(CGroupWriter& out, const CString& record, const CString& layer,
                    const CDxfPoint& punkt, const CDxfAttribute& attribute)
{
    out.Text(0, record);
    out.Text(8, layer);
    out.Point(10, punkt);
    out.Real(40, kAttributeHeight);
    out.Text(1, attribute.strWert);
    out.Text(2, attribute.strName);
    out.Int(70, kInvisible);
}

void WriteBlock(CGroupWriter& out, const CDxfBlock& block)
{
    out.Text(0, L"BLOCK");
    out.Text(8, L"0");
    out.Text(2, block.strName);
    out.Int(70, 0);
    out.Point(10, block.basis);
    out.Text(3, block.strName);
    WriteEntities(out, block.entities);
    for (const CDxfAttribute& attribute : block.attribute) {
        WriteAttribute(out, L"ATTDEF", L"0", block.basis, attribute);
        out.Text(3, attribute.strName);
    }
    out.Text(0, L"ENDBLK");
    out.Text(8, L"0");
}

void WriteInsert(CGroupWriter& out, const CDxfInsert& insert)
{
    out.Text(0, L"INSERT");
    out.Text(8, insert.strLayer);
    out.Int(62, insert.nColor);
    if (!insert.attribute.empty()) {
        out.Int(66, 1);
    }
    out.Text(2, insert.strBlock);
    out.Point(10, insert.punkt);
    out.Real(41, insert.dSkalaX);
    out.Real(42, insert.dSkalaY);
    out.Real(50, insert.dWinkel);
    for (const CDxfAttribute& attribute : insert.attribute) {
        WriteAttribute(out, L"ATTRIB", insert.strLayer, insert.punkt, attribute);
    }
    if (!insert.attribute.empty()) {
        out.Text(0, L"SEQEND");
        out.Text(8, insert.strLayer);
    }
}

void WriteText(CGroupWriter& out, const CDxfText& text)
{
    out.Text(0, L"TEXT");
    out.Text(8, text.strLayer);
    out.Int(62, text.nColor);
    out.Point(10, text.punkt);
    out.Real(40, text.dHoehe);
    out.Text(1, text.strText);
    out.Real(50, text.dWinkel);
    if (text.ausrichtung != DxfAlign::left) {
        out.Int(72, static_cast<int>(text.ausrichtung));
        out.Point(11, text.punkt);
    }
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
    WriteEntities(out, drawing.entities);
    for (const CDxfInsert& insert : drawing.inserts) {
        WriteInsert(out, insert);
    }
    for (const CDxfText& text : drawing.texts) {
        WriteText(out, text);
    }
    out.Text(0, L"ENDSEC");
    out.Text(0, L"EOF");
    return out.TakeText();
}

} // namespace workbench
