#include "platform/encoding.h"
#include "platform/file_limits.h"
#include "tests/support/temp_folder.h"
#include "tests/workbench/dxf/dxf_text.h"
#include "workbench/dxf/dxf_writer.h"

#include <locale>
#include <tuple>
#include <utility>

namespace workbench {

namespace {

/// Texts that are no texts of the code page, or look like the signs for what is none.
const wchar_t* const kOddTexts[] = {L"", L" Größe: 1,5 è già così ",
                                    L"\u0141\u00F3d\u017A \u0394t \U0001F321",
                                    L"\\U+00D8 \\U+12 \\\\U+00d8", L"due\nrighe\t?"};

CDxfDrawing EveryShape()
{
    CDxfDrawing drawing;
    drawing.layers = {{L"0", 7}, {L"Wände", 30}};
    drawing.blocks = {{L"EINS",
                       {0.5, -0.25},
                       {{L"0", kColorByLayer, CDxfLine{{0.1, -2e-7}, {1.0 / 3.0, 1e8}}},
                        {L"Wände", 5, CDxfCircle{{1, 2}, 0.1}},
                        {L"Wände", kColorByBlock, CDxfArc{{-1, 2}, 3.5, 350, 10}},
                        {L"0", 255, CDxfPolyline{{{{0, 0}, 0}, {{1, 0}, -0.5}, {{1, 1}, 1}}, true}},
                        {L"0", 1, CDxfPolyline{{{{0, 0}, 0}, {{1, 0}, 0}}, false}},
                        {L"0", 1, CDxfLine{}}}},
                      {L"leer", {}, {}, {{L"A", L" 0.5; 0.0;  0;0"}, {L"B", L""}}}};
    return drawing;
}

CDxfDrawing EveryEntity()
{
    CDxfDrawing drawing = EveryShape();
    drawing.entities = drawing.blocks[0].entities;
    drawing.inserts = {
        {L"Wände", 3, L"EINS", {1.0 / 3.0, -2}, 1.2, -0.7, 33.3, {}},
        {L"0", kColorByBlock, L"leer", {}, 1, 1, 0, {{L"A", L"x"}, {L"A", L""}, {L"B", L"y"}}},
        {L"0", kColorByLayer, L"leer", {}, 0.1, 1, -270, {}}};
    for (const wchar_t* text : kOddTexts) {
        drawing.inserts.back().attribute.push_back({L"T", text});
        drawing.texts.push_back({L"Wände", 2, {1, 2}, 0.15, 12.3456789, DxfAlign::left, text});
    }
    drawing.texts[0].ausrichtung = DxfAlign::middle;
    drawing.texts[1].ausrichtung = DxfAlign::right;
    return drawing;
}

/// Writes numbers as Germans do.
class CGermanNumbers : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class CGlobalLocale
{
public:
    explicit CGlobalLocale(const std::locale& locale) : m_before(std::locale::global(locale)) {}
    ~CGlobalLocale() { std::locale::global(m_before); }

private:
    std::locale m_before;
};

} // namespace

TEST(DxfBlocks, WhatIsWrittenReadsBackTheSame)
{
    EXPECT_EQ(ParseSound(WriteDxf(EveryEntity())), EveryEntity());
}

TEST(DxfBlocks, WhoWantsBlocksIsNotStoppedByTheDrawing)
{
    const std::string text = DxfWith("ENTITIES", "0 CIRCLE|10 x|");
    EXPECT_TRUE(std::holds_alternative<CDxfDrawing>(
        ParseDxf({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()},
                 DxfContent::layersAndBlocks)));
    EXPECT_TRUE(std::holds_alternative<CFileFault>(Parse(text)));
}

TEST(DxfBlocks, AttributesGoToTheInsertTheyFollow)
{
    const std::string attribute = "0 ATTRIB|1 v|2 A|";
    const CDxfDrawing drawing =
        ParseSound(DxfWith("ENTITIES", attribute + "0 INSERT|2 B|66 1|" + attribute + "0 SEQEND|" +
                                           attribute + "0 INSERT|2 C|0 LINE|10 1|" + attribute +
                                           "0 INSERT|2 D|0 INSERT|2 PAPER|67 1|66 1|" + attribute +
                                           "0 SEQEND|0 INSERT|2 E|" + attribute + attribute));
    ASSERT_EQ(drawing.inserts.size(), 4u);
    const std::size_t counts[] = {1, 0, 0, 2};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(drawing.inserts[i].attribute.size(), counts[i])
            << testing::PrintToString(drawing.inserts[i].strBlock);
    }
}

TEST(DxfBlocks, TextsStandWhereTheyAreAligned)
{
    const std::tuple<const char*, CDxfPoint, DxfAlign> cases[] = {
        {"72 0|", {1, 2}, DxfAlign::left},
        {"72 1|11 3|21 4|", {3, 4}, DxfAlign::middle},
        {"72 2|11 3|21 4|", {3, 4}, DxfAlign::right},
        {"72 2|", {1, 2}, DxfAlign::left},
        {"72 5|11 3|21 4|", {1, 2}, DxfAlign::left},
        {"72 1|73 2|11 3|21 4|", {1, 2}, DxfAlign::left}};
    for (const auto& [groups, punkt, ausrichtung] : cases) {
        const CDxfDrawing drawing = ParseSound(
            DxfWith("ENTITIES", std::string("0 TEXT|10 1|20 2|40 5|1 x|41 3|50 90|") + groups));
        ASSERT_EQ(drawing.texts.size(), 1u);
        EXPECT_EQ(drawing.texts[0].punkt, punkt) << groups;
        EXPECT_EQ(drawing.texts[0].ausrichtung, ausrichtung) << groups;
        EXPECT_EQ(drawing.texts[0].dWinkel, 90.0);
    }
}

TEST(DxfBlocks, TheProcessLocaleDecidesNothingAndStays)
{
    const std::locale german(std::locale::classic(), new CGermanNumbers);
    const CGlobalLocale global(german);
    EXPECT_EQ(ParseSound(WriteDxf(EveryShape())), EveryShape());
    EXPECT_EQ(std::locale(), german);
}

TEST(DxfBlocks, NewerPolylinesAreReadWithWhateverCountTheyState)
{
    const CDxfPolyline expected{{{{1, 2}, 0.5}, {{3, 4}, 0}, {{5, 6}, 0}}, true};
    for (const char* count : {"90 3|", "90 2|", "90 2147483647|", "90 -1|", ""}) {
        const CDxfDrawing drawing =
            ParseSound(DxfWithBlocks(std::string("0 BLOCK|2 B|0 LWPOLYLINE|8 0|") + count +
                                     "70 1|10 1|20 2|42 0.5|10 3|20 4|10 5|20 6|0 ENDBLK|"));
        ASSERT_EQ(drawing.blocks.size(), 1u);
        ASSERT_EQ(drawing.blocks[0].entities.size(), 1u);
        EXPECT_EQ(drawing.blocks[0].entities[0].shape, CDxfShape(expected)) << count;
    }
}

TEST(DxfBlocks, WhatIsNoSymbolIsLeftOut)
{
    const CDxfDrawing drawing = ParseSound(DxfWithBlocks(
        "0 BLOCK|2 *Model_Space|0 LINE|10 0|20 0|11 1|21 1|0 ENDBLK|"
        "0 LINE|10 0|20 0|11 1|21 1|"
        "0 BLOCK|2 B|0 HATCH|72 1|93 1|0 SPLINE|73 2147483647|10 x|0 TEXT|40 x|"
        "0 POLYLINE|70 16|0 VERTEX|10 1|20 1|0 SEQEND|0 VERTEX|10 1|20 1|0 CIRCLE|40 1|0 ENDBLK|"));
    ASSERT_EQ(drawing.blocks.size(), 1u);
    ASSERT_EQ(drawing.blocks[0].entities.size(), 1u);
    EXPECT_EQ(drawing.blocks[0].entities[0].shape, CDxfShape(CDxfCircle{{0, 0}, 1}));
}

TEST(DxfBlocks, NamesAreOfTheEncodingOfTheFilesVersion)
{
    const std::tuple<const char*, const char*, const wchar_t*> cases[] = {
        {"AC1009", "K\374che", L"Küche"},
        {"AC1021", "K\303\274che", L"Küche"},
        {"AC1032", "K\303\274che", L"Küche"},
        {"AC1015", "\\U+00D8 20 \\U+2C", L"\u00D8 20 \\U+2C"}};
    for (const auto& [version, bytes, name] : cases) {
        const CDxfDrawing drawing =
            ParseSound(DxfWithBlocks(std::string("0 BLOCK|2 ") + bytes + "|0 ENDBLK|", version));
        ASSERT_EQ(drawing.blocks.size(), 1u);
        EXPECT_EQ(drawing.blocks[0].strName, name) << version;
        EXPECT_NE(FindBlock(drawing, ToLower(name)), nullptr);
    }
}

TEST(DxfBlocks, BrokenFilesSayWhereTheyBreak)
{
    // The section of blocks begins on line 15.
    const std::string block = "0 BLOCK|2 B|";
    const std::string line = block + "0 LINE|";
    const auto entity = [](const std::string& groups) { return DxfWith("ENTITIES", groups); };
    const std::pair<std::string, int> cases[] = {
        {"", 1},
        {"0\n", 2},
        {"0\nSECTION\n2\nHEADER\n", 5},
        {"not a drawing\nat all\n", 1},
        {std::string("\0\1\2", 3), 1},
        {DxfWithBlocks(line + "10 nan|0 ENDBLK|"), 22},
        {DxfWithBlocks(line + "10 1e999|0 ENDBLK|"), 22},
        {DxfWithBlocks(line + "10 1e10|0 ENDBLK|"), 22},
        {DxfWithBlocks(line + "10 1,5|0 ENDBLK|"), 22},
        {DxfWithBlocks(line + "62 red|0 ENDBLK|"), 22},
        {DxfWithBlocks(line + "62 99999999999|0 ENDBLK|"), 22},
        {DxfWithBlocks(line + "8 " + std::string(2000, 'x') + "|0 ENDBLK|"), 22},
        {DxfWithBlocks(line + "x 1|0 ENDBLK|"), 21},
        {DxfWithBlocks("0 BLOCK|8 0|0 ENDBLK|"), 15},
        {DxfWithBlocks("0 BLOCK|2 |0 ENDBLK|"), 18},
        {DxfWithBlocks(block + "0 CIRCLE|10 1|20 1|40 0|0 ENDBLK|"), 19},
        {DxfWithBlocks(block + "0 ARC|10 1|20 1|40 -1|0 ENDBLK|"), 19},
        {DxfWithBlocks(block + "0 ENDBLK|0 BLOCK|2 b|0 ENDBLK|"), 21},
        {DxfWithBlocks(block + "0 BLOCK|2 C|0 ENDBLK|"), 19},
        {DxfWithBlocks(block + "0 ATTDEF|1 v|0 ENDBLK|"), 19},
        {entity("0 INSERT|66 1|0 ATTRIB|2 A|"), 15},
        {entity("0 INSERT|2 |"), 18},
        {entity("0 INSERT|2 B|0 ATTRIB|1 v|"), 19},
        {entity("0 INSERT|2 B|0 ATTRIB|2 A|1 " + std::string(1001, 'x') + "|"), 24},
        {entity("0 TEXT|1 a\rb|"), 18},
        {entity("0 TEXT|50 1e10|"), 18},
        {entity("0 CIRCLE|40 0|"), 15},
    };
    for (const auto& [text, nLine] : cases) {
        const auto parsed = Parse(text);
        const auto* const fault = std::get_if<CFileFault>(&parsed);
        ASSERT_NE(fault, nullptr) << text;
        EXPECT_EQ(fault->nLine, nLine) << text;
        EXPECT_FALSE(fault->strMessage.empty());
    }
}

TEST(DxfBlocks, AFaultInAFileNamesTheFile)
{
    const CTempFolder folder;
    folder.WriteBytes("rotto.dxf", "0\nSECTION\n");
    folder.WriteBytes("grande.dxf", "");
    std::filesystem::resize_file(folder.Root() / "grande.dxf", kLargestDrawing + 1);
    const std::tuple<const char*, int, const wchar_t*> cases[] = {
        {"rotto.dxf", 3, L""},
        {"manca.dxf", 0, L""},
        {"grande.dxf", 0, L"Il file è troppo grande: il limite è di 32 MB."},
    };
    for (const auto& [name, line, told] : cases) {
        const auto read = ReadDxfFile(folder.Path(name));
        const auto* const error = std::get_if<CFileFault>(&read);
        ASSERT_NE(error, nullptr) << name;
        EXPECT_TRUE(error->strFile.ends_with(WideFromUtf8(name)));
        EXPECT_EQ(error->nLine, line);
        EXPECT_TRUE(error->strMessage.ends_with(told)) << Utf8FromWide(error->strMessage);
    }
}

} // namespace workbench
