#include "workbench/dxf/dxf_writer.h"

#include "platform/encoding.h"
#include "platform/format.h"
#include "workbench/dxf/dxf_frame.h"

#include <cstdio>
#include <string_view>
#include <utility>

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

    /// A value that needs no escaping.
    void Plain(int code, std::string_view value) { Group(code, value); }

    void Int(int code, int value) { Group(code, std::to_string(value)); }

    void Real(int code, double value) { Group(code, Utf8FromWide(FormatExact(value))); }

    /// x and y; the codes of the two are ten apart.
    void FlatPoint(int code, const CDxfPoint& point)
    {
        Real(code, point.x);
        Real(code + 10, point.y);
    }

    /// x, y and z; the codes of the three are ten apart.
    void Point(int code, const CDxfPoint& point)
    {
        FlatPoint(code, point);
        Real(code + 20, 0.0);
    }

    /// Groups of the frame.
    void Frame(std::string_view groups)
    {
        while (!groups.empty()) {
            const std::string_view line = groups.substr(0, groups.find('\n'));
            const std::size_t blank = line.find(' ');
            m_text.append(line.substr(0, blank)).append("\r\n");
            m_text.append(line.substr(blank + 1)).append("\r\n");
            groups.remove_prefix(line.size() + 1);
        }
    }

    /// The head of a record, with a handle of its own and that of what it belongs to. Returns its
    /// own.
    std::string Record(std::string_view record, std::string_view owner)
    {
        Plain(0, record);
        std::string handle = HandleText(m_nNextHandle++);
        Plain(5, handle);
        Plain(330, owner);
        return handle;
    }

    /// The same of an entity on its layer.
    std::string Entity(std::string_view record, std::string_view owner, const CString& layer)
    {
        std::string handle = Record(record, owner);
        Plain(100, "AcDbEntity");
        Text(8, layer);
        return handle;
    }

    /// A handle that no record has.
    std::string FreeHandle() const { return HandleText(m_nNextHandle); }

    std::string TakeText() { return std::move(m_text); }

private:
    static std::string HandleText(unsigned handle)
    {
        char digits[16];
        std::snprintf(digits, sizeof digits, "%X", handle);
        return digits;
    }

    void Group(int code, std::string_view value)
    {
        m_text.append(std::to_string(code)).append("\r\n").append(value).append("\r\n");
    }

    std::string m_text;
    unsigned m_nNextHandle = dxf_frame::kFirstFreeHandle;
};

/// Writes an entity into a block or into model space.
class CEntityWriter
{
public:
    CEntityWriter(CGroupWriter& out, std::string_view owner, const CDxfEntity& entity)
        : m_out(out), m_owner(owner), m_entity(entity)
    {
    }

    void operator()(const CDxfLine& line) const
    {
        Head("LINE", "AcDbLine");
        m_out.Point(10, line.von);
        m_out.Point(11, line.bis);
    }

    void operator()(const CDxfCircle& circle) const
    {
        Head("CIRCLE", "AcDbCircle");
        m_out.Point(10, circle.mitte);
        m_out.Real(40, circle.dRadius);
    }

    void operator()(const CDxfArc& arc) const
    {
        Head("ARC", "AcDbCircle");
        m_out.Point(10, arc.mitte);
        m_out.Real(40, arc.dRadius);
        m_out.Plain(100, "AcDbArc");
        m_out.Real(50, arc.dVon);
        m_out.Real(51, arc.dBis);
    }

    void operator()(const CDxfPolyline& polyline) const
    {
        Head("LWPOLYLINE", "AcDbPolyline");
        m_out.Int(90, static_cast<int>(polyline.punkte.size()));
        m_out.Int(70, polyline.bGeschlossen ? 1 : 0);
        for (const CDxfVertex& vertex : polyline.punkte) {
            m_out.FlatPoint(10, vertex.punkt);
            m_out.Real(42, vertex.dBulge);
        }
    }

private:
    void Head(std::string_view record, std::string_view subclass) const
    {
        m_out.Entity(record, m_owner, m_entity.strLayer);
        m_out.Int(62, m_entity.nColor);
        m_out.Plain(100, subclass);
    }

    CGroupWriter& m_out;
    std::string_view m_owner;
    const CDxfEntity& m_entity;
};

void BeginSection(CGroupWriter& out, std::string_view name)
{
    out.Plain(0, "SECTION");
    out.Plain(2, name);
}

void EndSection(CGroupWriter& out)
{
    out.Plain(0, "ENDSEC");
}

void BeginTable(CGroupWriter& out, std::string_view name, std::string_view handle,
                std::size_t count)
{
    out.Plain(0, "TABLE");
    out.Plain(2, name);
    out.Plain(5, handle);
    out.Plain(330, "0");
    out.Plain(100, "AcDbSymbolTable");
    out.Int(70, static_cast<int>(count));
}

/// `freeHandle` is the first that nothing in the file has.
void WriteHeader(CGroupWriter& out, std::string_view freeHandle)
{
    constexpr int metres = 6;
    BeginSection(out, "HEADER");
    out.Plain(9, "$ACADVER");
    out.Plain(1, "AC1015");
    out.Plain(9, "$DWGCODEPAGE");
    out.Plain(3, "ANSI_1252");
    out.Plain(9, "$INSUNITS");
    out.Int(70, metres);
    out.Plain(9, "$MEASUREMENT");
    out.Int(70, 1);
    out.Plain(9, "$HANDSEED");
    out.Plain(5, freeHandle);
    EndSection(out);
}

void WriteLayers(CGroupWriter& out, const std::vector<CDxfLayer>& layers)
{
    BeginTable(out, "LAYER", dxf_frame::kLayerTable, layers.size());
    for (const CDxfLayer& layer : layers) {
        out.Record("LAYER", dxf_frame::kLayerTable);
        out.Plain(100, "AcDbSymbolTableRecord");
        out.Plain(100, "AcDbLayerTableRecord");
        out.Text(2, layer.strName);
        out.Int(70, 0);
        out.Int(62, layer.nColor);
        out.Plain(6, "Continuous");
        out.Plain(390, dxf_frame::kPlotStyle);
    }
    out.Plain(0, "ENDTAB");
}

/// Returns the handles of the blocks' records.
std::vector<std::string> WriteBlockRecords(CGroupWriter& out, const std::vector<CDxfBlock>& blocks)
{
    constexpr std::size_t spaces = 2;
    BeginTable(out, "BLOCK_RECORD", dxf_frame::kBlockRecordTable, blocks.size() + spaces);
    out.Frame(dxf_frame::kSpaceRecords);
    std::vector<std::string> handles;
    for (const CDxfBlock& block : blocks) {
        handles.push_back(out.Record("BLOCK_RECORD", dxf_frame::kBlockRecordTable));
        out.Plain(100, "AcDbSymbolTableRecord");
        out.Plain(100, "AcDbBlockTableRecord");
        out.Text(2, block.strName);
        out.Plain(340, "0");
    }
    out.Plain(0, "ENDTAB");
    return handles;
}

void WriteEntities(CGroupWriter& out, std::string_view owner,
                   const std::vector<CDxfEntity>& entities)
{
    for (const CDxfEntity& entity : entities) {
        std::visit(CEntityWriter(out, owner, entity), entity.shape);
    }
}

/// The text of an attribute or of its definition.
void WriteAttributeText(CGroupWriter& out, const CDxfPoint& punkt, const CDxfAttribute& attribute)
{
    out.Plain(100, "AcDbText");
    out.Point(10, punkt);
    out.Real(40, kAttributeHeight);
    out.Text(1, attribute.strWert);
}

void WriteDefinition(CGroupWriter& out, std::string_view owner, const CDxfPoint& punkt,
                     const CDxfAttribute& attribute)
{
    out.Entity("ATTDEF", owner, L"0");
    WriteAttributeText(out, punkt, attribute);
    out.Plain(100, "AcDbAttributeDefinition");
    out.Text(3, attribute.strName);
    out.Text(2, attribute.strName);
    out.Int(70, kInvisible);
}

void WriteBlock(CGroupWriter& out, const CDxfBlock& block, std::string_view record)
{
    constexpr int hasAttributes = 2;
    out.Entity("BLOCK", record, L"0");
    out.Plain(100, "AcDbBlockBegin");
    out.Text(2, block.strName);
    out.Int(70, block.attribute.empty() ? 0 : hasAttributes);
    out.Point(10, block.basis);
    out.Text(3, block.strName);
    out.Plain(1, "");
    WriteEntities(out, record, block.entities);
    for (const CDxfAttribute& attribute : block.attribute) {
        WriteDefinition(out, record, block.basis, attribute);
    }
    out.Entity("ENDBLK", record, L"0");
    out.Plain(100, "AcDbBlockEnd");
}

void WriteInsert(CGroupWriter& out, const CDxfInsert& insert)
{
    const std::string handle = out.Entity("INSERT", dxf_frame::kModelSpace, insert.strLayer);
    out.Int(62, insert.nColor);
    out.Plain(100, "AcDbBlockReference");
    if (!insert.attribute.empty()) {
        out.Int(66, 1);
    }
    out.Text(2, insert.strBlock);
    out.Point(10, insert.punkt);
    out.Real(41, insert.dSkalaX);
    out.Real(42, insert.dSkalaY);
    out.Real(50, insert.dWinkel);
    for (const CDxfAttribute& attribute : insert.attribute) {
        out.Entity("ATTRIB", handle, insert.strLayer);
        WriteAttributeText(out, insert.punkt, attribute);
        out.Plain(100, "AcDbAttribute");
        out.Text(2, attribute.strName);
        out.Int(70, kInvisible);
    }
    if (!insert.attribute.empty()) {
        out.Entity("SEQEND", handle, insert.strLayer);
    }
}

void WriteText(CGroupWriter& out, const CDxfText& text)
{
    out.Entity("TEXT", dxf_frame::kModelSpace, text.strLayer);
    out.Int(62, text.nColor);
    out.Plain(100, "AcDbText");
    out.Point(10, text.punkt);
    out.Real(40, text.dHoehe);
    out.Text(1, text.strText);
    out.Real(50, text.dWinkel);
    if (text.ausrichtung != DxfAlign::left) {
        out.Int(72, static_cast<int>(text.ausrichtung));
        out.Point(11, text.punkt);
    }
    out.Plain(100, "AcDbText");
}

void WriteBlocks(CGroupWriter& out, const std::vector<CDxfBlock>& blocks,
                 const std::vector<std::string>& records)
{
    BeginSection(out, "BLOCKS");
    out.Frame(dxf_frame::kSpaceBlocks);
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        WriteBlock(out, blocks[i], records[i]);
    }
    EndSection(out);
}

void WriteModelSpace(CGroupWriter& out, const CDxfDrawing& drawing)
{
    BeginSection(out, "ENTITIES");
    WriteEntities(out, dxf_frame::kModelSpace, drawing.entities);
    for (const CDxfInsert& insert : drawing.inserts) {
        WriteInsert(out, insert);
    }
    for (const CDxfText& text : drawing.texts) {
        WriteText(out, text);
    }
    EndSection(out);
}

} // namespace

std::string WriteDxf(const CDxfDrawing& drawing)
{
    CGroupWriter out;
    out.Frame(dxf_frame::kBeforeLayers);
    WriteLayers(out, drawing.layers);
    out.Frame(dxf_frame::kBeforeBlockRecords);
    const std::vector<std::string> records = WriteBlockRecords(out, drawing.blocks);
    EndSection(out);
    WriteBlocks(out, drawing.blocks, records);
    WriteModelSpace(out, drawing);
    out.Frame(dxf_frame::kObjects);
    out.Plain(0, "EOF");

    CGroupWriter header;
    WriteHeader(header, out.FreeHandle());
    return header.TakeText() + out.TakeText();
}

} // namespace workbench
