#include "workbench/drawing/dxf_blocks.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file.h"
#include "platform/path.h"

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
            result += static_cast<wchar_t>(std::stoi(code, nullptr, 16));
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
        CDxfBlock block{Text(data.name), {data.bpx, data.bpy}, {}};
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
        m_polyline = nullptr;
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
        m_polyline = nullptr;
        if (m_block && (data.flags & kPolylineMesh) == 0) {
            Add(CDxfPolyline{{}, (data.flags & kPolylineClosed) != 0});
            m_polyline = std::get_if<CDxfPolyline>(&m_block->entities.back().shape);
        }
    }

    void addVertex(const DL_VertexData& data) override
    {
        if (m_polyline) {
            m_polyline->punkte.push_back({{data.x, data.y}, data.bulge});
        }
    }

    void endSequence() override { m_polyline = nullptr; }

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

    void Add(CDxfShape shape)
    {
        m_polyline = nullptr;
        if (m_block) {
            m_block->entities.push_back(
                {Text(attributes.getLayer()), IndexOf(attributes.getColor()), std::move(shape)});
        }
    }

    void RequireRadius(double radius) const
    {
        if (!(radius > 0.0)) {
            Refuse(L"Un cerchio o un arco non ha raggio.");
        }
    }

    [[noreturn]] void Refuse(const CString& message) const { throw CDxfFault{m_nLine, message}; }

    bool m_bUtf8;
    int m_nLine = 0;
    CDxfDrawing m_drawing;
    std::set<CString> m_names;
    std::optional<CDxfBlock> m_block;
    /// The polyline that vertices belong to; null outside one.
    CDxfPolyline* m_polyline = nullptr;
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

std::variant<std::vector<std::uint8_t>, CDxfFault> ReadAll(const CString& path)
{
    try {
        CFile file(path, CFile::modeRead);
        if (file.GetLength() > kMaxDxfBytes) {
            return CDxfFault{0, L"Il file è troppo grande."};
        }
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(file.GetLength()));
        bytes.resize(file.Read(bytes.data(), bytes.size()));
        return bytes;
    } catch (const CFileException&) {
        return CDxfFault{0, L"Il file non si può leggere."};
    }
}

std::variant<CDxfDrawing, CDxfFault> ReadDrawing(const CString& path)
{
    const auto bytes = ReadAll(path);
    if (const auto* const fault = std::get_if<CDxfFault>(&bytes)) {
        return *fault;
    }
    return ParseDxf(std::get<std::vector<std::uint8_t>>(bytes));
}

} // namespace

std::variant<CDxfDrawing, CDxfFault> ParseDxf(std::span<const std::uint8_t> bytes)
{
    try {
        return Build(ScreenDxf(bytes));
    } catch (const CDxfFault& fault) {
        return fault;
    }
}

std::variant<CDxfDrawing, CDxfError> ReadDxfFile(const CString& path)
{
    auto read = ReadDrawing(path);
    if (const auto* const fault = std::get_if<CDxfFault>(&read)) {
        return CDxfError{TextFromPath(ResolvePath(path)), fault->nLine, fault->strMessage};
    }
    return std::move(std::get<CDxfDrawing>(read));
}
