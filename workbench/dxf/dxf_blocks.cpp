#include "workbench/dxf/dxf_blocks.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file_limits.h"
#include "platform/path.h"
#include "platform/whole_file.h"

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <locale>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>
#include <utility>

namespace workbench {

namespace {

constexpr int kPolylineClosed = 1;
constexpr int kPolylineMesh = 16 | 64;

/// dxflib reads numbers through a stream, which follows the global locale. Where that is the
/// classic one already nothing is touched, since to set it resets the C locale of the toolkit too.
class CClassicLocale
{
public:
    CClassicLocale()
    {
        if (std::locale() != std::locale::classic()) {
            m_before = std::locale::global(std::locale::classic());
        }
    }

    ~CClassicLocale()
    {
        if (m_before) {
            std::locale::global(*m_before);
        }
    }

    CClassicLocale(const CClassicLocale&) = delete;
    CClassicLocale& operator=(const CClassicLocale&) = delete;

private:
    std::optional<std::locale> m_before;
};

/// The text with each "\U+xxxx", by which DXF writes what its code page lacks, as its character.
CString Unescaped(const CString& text)
{
    constexpr std::wstring_view mark = L"\\U+";
    constexpr std::size_t digits = 4;
    CString result;
    std::size_t at = 0;
    for (std::size_t found = text.find(mark); found != CString::npos; found = text.find(mark, at)) {
        const CString code = text.substr(found + mark.size(), digits);
        const bool isCode = code.size() == digits &&
                            code.find_first_not_of(L"0123456789abcdefABCDEF") == CString::npos;
        const std::size_t end = found + mark.size() + (isCode ? digits : 0);
        result += text.substr(at, (isCode ? found : end) - at);
        if (isCode) {
            const auto unit = static_cast<char16_t>(std::stoi(code, nullptr, 16));
            AppendUtf16(result, {&unit, 1});
        }
        at = end;
    }
    return result + text.substr(at);
}

/// Builds the drawing from what dxflib finds.
class CDxfBuilder : public DL_CreationAdapter
{
public:
    explicit CDxfBuilder(bool utf8) : m_bUtf8(utf8) {}

    /// Line of the record that dxflib delivers next.
    void SetLine(int line) { m_nLine = line; }

    CDxfDrawing TakeDrawing() { return std::move(m_drawing); }

    void addLayer(const DL_LayerData& data) override
    {
        // A layer that is switched off has its colour negative.
        m_drawing.layers.push_back({Text(data.name), IndexOf(std::abs(attributes.getColor()))});
        if (m_drawing.layers.back().nColor == kColorByLayer) {
            m_drawing.layers.back().nColor = kColorDefault;
        }
    }

    void addBlock(const DL_BlockData& data) override
    {
        RequireClosed();
        CDxfBlock block{Text(data.name), {data.bpx, data.bpy}};
        if (!block.strName.starts_with(L'*') && !m_names.insert(ToLower(block.strName)).second) {
            Refuse(L"Il blocco " + block.strName + L" è definito due volte.");
        }
        m_block = std::move(block);
    }

    void endBlock() override
    {
        if (m_block && !m_block->strName.starts_with(L'*')) {
            m_drawing.blocks.push_back(std::move(*m_block));
        }
        m_block.reset();
        EndOwner();
    }

    void addLine(const DL_LineData& data) override
    {
        Add(CDxfLine{{data.x1, data.y1}, {data.x2, data.y2}});
    }

    void addCircle(const DL_CircleData& data) override
    {
        RequireRadius(data.radius);
        Add(CDxfCircle{{data.cx, data.cy}, data.radius});
    }

    void addArc(const DL_ArcData& data) override
    {
        RequireRadius(data.radius);
        Add(CDxfArc{{data.cx, data.cy}, data.radius, data.angle1, data.angle2});
    }

    void addPolyline(const DL_PolylineData& data) override
    {
        EndOwner();
        if ((data.flags & kPolylineMesh) == 0) {
            Add(CDxfPolyline{{}, (data.flags & kPolylineClosed) != 0});
            m_polyline = std::get_if<CDxfPolyline>(&Entities().back().shape);
        }
    }

    void addVertex(const DL_VertexData& data) override
    {
        if (m_polyline) {
            m_polyline->punkte.push_back({{data.x, data.y}, data.bulge});
        }
    }

    void addInsert(const DL_InsertData& data) override
    {
        EndOwner();
        m_drawing.inserts.push_back({Text(attributes.getLayer()),
                                     IndexOf(attributes.getColor()),
                                     Text(data.name),
                                     {data.ipx, data.ipy},
                                     data.sx,
                                     data.sy,
                                     data.angle});
        m_attribute = &m_drawing.inserts.back().attribute;
    }

    void addAttribute(const DL_AttributeData& data) override
    {
        std::vector<CDxfAttribute>* const owned = m_block ? &m_block->attribute : m_attribute;
        if (owned) {
            owned->push_back({Text(data.tag), Text(data.text)});
        }
    }

    void addText(const DL_TextData& data) override
    {
        EndOwner();
        // dxflib writes no number for a point that the text does not have.
        const bool aligned = data.vJustification == 0 && std::isfinite(data.apx) &&
                             std::isfinite(data.apy) &&
                             (data.hJustification == 1 || data.hJustification == 2);
        const CDxfPoint punkt =
            aligned ? CDxfPoint{data.apx, data.apy} : CDxfPoint{data.ipx, data.ipy};
        m_drawing.texts.push_back(
            {Text(attributes.getLayer()), IndexOf(attributes.getColor()), punkt, data.height,
             data.xScaleFactor,
             aligned ? static_cast<DxfAlign>(data.hJustification) : DxfAlign::left,
             Text(data.text)});
    }

    void endSequence() override { EndOwner(); }

    /// A block that lacks its end would vanish without a word.
    void RequireClosed() const
    {
        if (m_block) {
            Refuse(L"Il blocco " + m_block->strName + L" non finisce.");
        }
    }

private:
    static int IndexOf(int color)
    {
        return color >= kColorByBlock && color <= kColorByLayer ? color : kColorByLayer;
    }

    CString Text(const std::string& bytes) const
    {
        CString text;
        if (m_bUtf8) {
            text = WideFromUtf8(bytes);
        } else {
            AppendCp1252(text, {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
        }
        return Unescaped(text);
    }

    std::vector<CDxfEntity>& Entities() { return m_block ? m_block->entities : m_drawing.entities; }

    void Add(CDxfShape shape)
    {
        EndOwner();
        Entities().push_back(
            {Text(attributes.getLayer()), IndexOf(attributes.getColor()), std::move(shape)});
    }

    /// What follows belongs to no polyline and to no insert.
    void EndOwner()
    {
        m_polyline = nullptr;
        m_attribute = nullptr;
    }

    void RequireRadius(double radius) const
    {
        if (!(radius > 0.0)) {
            Refuse(L"Un cerchio o un arco non ha raggio.");
        }
    }

    [[noreturn]] void Refuse(const CString& message) const { throw CFileFault{m_nLine, message}; }

    bool m_bUtf8;
    int m_nLine = 0;
    CDxfDrawing m_drawing;
    std::set<CString> m_names;
    std::optional<CDxfBlock> m_block;
    /// The polyline that vertices belong to; null outside one.
    CDxfPolyline* m_polyline = nullptr;
    /// Those of the insert that attributes belong to; null outside one.
    std::vector<CDxfAttribute>* m_attribute = nullptr;
};

CDxfDrawing Build(const CScreenedDxf& screened)
{
    const CClassicLocale locale;
    std::istringstream stream(screened.strText);
    CDxfBuilder builder(screened.bUtf8);
    DL_Dxf dxf;
    // Its constructor leaves open which record it stands in; reading nothing settles that.
    std::istringstream nothing;
    dxf.in(nothing, &builder);
    int line = 0;
    for (const int nextLine : screened.lines) {
        // A record is delivered at the head of the one behind it.
        builder.SetLine(line);
        dxf.readDxfGroups(stream, &builder);
        line = nextLine;
    }
    builder.RequireClosed();
    return builder.TakeDrawing();
}

std::variant<CDxfDrawing, CFileFault> ReadDrawing(const CString& path, DxfContent content)
{
    try {
        const auto bytes = ReadWholeFile(path, kLargestDrawing);
        if (!bytes) {
            return CFileFault{0, DescribeTooLarge(kLargestDrawing)};
        }
        return ParseDxf(BytesOf(*bytes), content);
    } catch (const CFileException&) {
        return CFileFault{0, L"Il file non si può leggere."};
    }
}

} // namespace

std::variant<CDxfDrawing, CFileFault> ParseDxf(std::span<const std::uint8_t> bytes,
                                               DxfContent content)
{
    try {
        return Build(ScreenDxf(bytes, content));
    } catch (const CFileFault& fault) {
        return fault;
    }
}

std::variant<CDxfDrawing, CFileFault> ReadDxfFile(const CString& path, DxfContent content)
{
    auto read = ReadDrawing(path, content);
    if (auto* const fault = std::get_if<CFileFault>(&read)) {
        fault->strFile = TextFromPath(ResolvePath(path));
    }
    return read;
}

} // namespace workbench
