#include "common/text_file.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "tests/src/common/lines.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <tuple>

namespace {

using namespace std::string_literals;

constexpr unsigned kCreateAndWrite = CFile::modeCreate | CFile::modeWrite;
const std::string kMark = "\xFF\xFE";

/// UTF-16 code units as the bytes of a wide file behind its mark.
std::string Units(std::u16string_view units)
{
    return {reinterpret_cast<const char*>(units.data()), units.size() * sizeof(char16_t)};
}

/// An 8-bit ASCII text as a wide file.
std::string Widened(const std::string& text)
{
    return kMark + Units(std::u16string(text.begin(), text.end()));
}

CString Xs(std::size_t count)
{
    return CString(count, L'x');
}

class TextFile : public ::testing::Test
{
protected:
    CStringArray ReadBack(const std::string& bytes, int limit = -1, CStringArray lines = {}) const
    {
        m_folder.WriteBytes("file.txt", bytes);
        const int count = ReadTextFile(m_folder.Path("file.txt"), lines, CFile::modeRead, limit);
        EXPECT_EQ(count, lines.GetSize());
        EXPECT_EQ(BlockIn(m_folder.Path("file.txt")), LinesIn(m_folder.Path("file.txt")));
        return lines;
    }

    CTempFolder m_folder;
};

TEST_F(TextFile, APairOfLineEndCharactersCountsOnceInEitherEncoding)
{
    const std::pair<std::string, CStringArray> cases[] = {
        {"", Lines({})},
        {"a", Lines({})},
        {"a\r\nb", Lines({L"a"})},
        {"a\nb\n", Lines({L"a", L"b"})},
        {"a\rb\r", Lines({L"a", L"b"})},
        {"a\n\rb\n\r", Lines({L"a", L"b"})},
        {"a\n\nb\n\n", Lines({L"a", L"b"})},
        {"a\r\rb\r\r", Lines({L"a", L"b"})},
        {"a\r\n\r\nb\r\n", Lines({L"a", L"", L"b"})},
        {"a\n\n\nb\n", Lines({L"a", L"", L"b"})},
        {"\r\n", Lines({L""})},
        {"a\0b\tc\n"s, Lines({L"a\0b\tc"s})},
    };
    for (const auto& [text, lines] : cases) {
        EXPECT_EQ(ReadBack(text), lines) << ::testing::PrintToString(text);
        EXPECT_EQ(ReadBack(Widened(text)), lines) << ::testing::PrintToString(text);
    }
}

TEST_F(TextFile, ALineEndCutByAChunkBorderCountsTwice)
{
    const std::pair<std::size_t, CStringArray> cases[] = {
        {65533, Lines({Xs(65533), L"b"})},      {65534, Lines({Xs(65534), L"b"})},
        {65535, Lines({Xs(65535), L"", L"b"})}, {65536, Lines({Xs(65536), L"b"})},
        {131070, Lines({Xs(131070), L"b"})},    {131071, Lines({Xs(131071), L"", L"b"})},
    };
    for (const auto& [count, lines] : cases) {
        const std::string text = std::string(count, 'x') + "\r\nb\r\n";
        // No printing of arrays this long.
        EXPECT_TRUE(ReadBack(text) == lines) << count << " bytes";
        EXPECT_TRUE(ReadBack(Widened(text)) == lines) << count << " units";
    }
}

TEST_F(TextFile, AFinalBlankEndsTheLastLineOfAnEightBitFileInAShortChunk)
{
    const std::pair<std::size_t, bool> cases[] = {{2, true},     {65535, true},  {65536, false},
                                                  {65537, true}, {131071, true}, {131072, false}};
    for (const auto& [size, rescued] : cases) {
        const std::string text = std::string(size - 1, 'x') + " ";
        EXPECT_TRUE(ReadBack(text) == (rescued ? Lines({Xs(size - 1)}) : Lines({}))) << size;
        EXPECT_TRUE(ReadBack(Widened(text)).IsEmpty()) << size;
    }
    EXPECT_EQ(ReadBack("a\r\nb "), Lines({L"a", L"b"}));
    EXPECT_EQ(ReadBack("a  "), Lines({L"a "}));
    EXPECT_EQ(ReadBack("a\r\n "), Lines({L"a", L""}));
    EXPECT_EQ(ReadBack("a\r "), Lines({L"a"}));
    EXPECT_EQ(ReadBack(" "), Lines({L""}));
}

TEST_F(TextFile, OnlyTheLittleEndianMarkMakesAWideFile)
{
    const std::pair<std::string, CStringArray> cases[] = {
        {kMark, Lines({})},
        {"\xFF", Lines({})},
        {"\xFF ", Lines({L"\u00FF"})},
        {"\xFE\xFF\0a\0\n"s, Lines({L"\u00FE\u00FF\0a\0"s})},
        {"\xEF\xBB\xBF.\n", Lines({L"\u00EF\u00BB\u00BF."})},
        {"a\n" + kMark + "\n", Lines({L"a", L"\u00FF\u00FE"})},
        {kMark + Units(u"\xFEFFz\n"), Lines({L"\xFEFFz"})},
        {kMark + Units(u"a\nb\n") + "\n", Lines({L"a", L"b"})},
        {kMark + "\n", Lines({})},
    };
    for (const auto& [bytes, lines] : cases) {
        EXPECT_EQ(ReadBack(bytes), lines) << ::testing::PrintToString(bytes);
    }
}

TEST_F(TextFile, SurrogatePairsOfAWideFileSurviveAlsoOverAChunkBorder)
{
    EXPECT_EQ(ReadBack(kMark + Units(u"a\U0001F525b\n")), Lines({L"a\U0001F525b"}));
    for (const std::size_t count : {65534U, 65535U, 65536U}) {
        const std::u16string text = std::u16string(count, u'x') + u"\U0001F525\r\n";
        EXPECT_TRUE(ReadBack(kMark + Units(text)) == Lines({Xs(count) + L"\U0001F525"})) << count;
    }
    // Halves without a partner, the first of them at a line's end.
    const std::u16string halves = {0xD83D, u'\n', 0xDD25, 0xD83D, u'a', u'\n'};
    const CString first = {wchar_t{0xD83D}};
    const CString second = {wchar_t{0xDD25}, wchar_t{0xD83D}, L'a'};
    EXPECT_EQ(ReadBack(kMark + Units(halves)), Lines({first, second}));
}

TEST_F(TextFile, TheLimitStopsAWideFileOnlyAndOnlyWhenHitExactly)
{
    const struct
    {
        int held, limit, wide, narrow;
    } cases[] = {{0, -1, 3, 3}, {0, 1, 1, 3},  {0, 2, 2, 3}, {0, 3, 3, 3}, {0, 4, 3, 3},
                 {0, 0, 3, 3},  {0, -2, 3, 3}, {1, 2, 2, 4}, {1, 1, 4, 4}};
    for (const auto& c : cases) {
        CStringArray held;
        held.SetSize(c.held);
        const std::string text = "a\r\nb\r\nc\r\n";
        EXPECT_EQ(ReadBack(Widened(text), c.limit, held).GetSize(), c.wide) << c.limit;
        EXPECT_EQ(ReadBack(text, c.limit, held).GetSize(), c.narrow) << c.limit;
    }
}

TEST_F(TextFile, WhatCannotBeOpenedReadsAsNothingAndLeavesTheLinesAlone)
{
    CStringArray lines = Lines({L"held"});
    EXPECT_EQ(ReadTextFile(m_folder.Path("missing.txt"), lines, CFile::modeRead, -1), 0);
    EXPECT_EQ(ReadTextFile(m_folder.Path(), lines, CFile::modeRead, -1), 0);
    EXPECT_EQ(lines, Lines({L"held"}));
}

TEST_F(TextFile, AnErrorWhileReadingReachesTheCaller)
{
    m_folder.WriteBytes("file.txt", "a\r\n");
    CStringArray lines;
    EXPECT_THROW(ReadTextFile(m_folder.Path("file.txt"), lines, CFile::modeWrite, -1),
                 CFileException);
}

TEST_F(TextFile, WritingStartsWithTheMarkOnlyAtTheStartOfTheFile)
{
    const CStringArray lines = Lines({L"\u00E4", L"", L"\U0001F525"});
    const std::string written = Units(u"\u00E4\r\n\r\n\U0001F525\r\n");
    constexpr unsigned kKeep = kCreateAndWrite | CFile::modeNoTruncate;
    const struct
    {
        const char *name, *before;
        bool cut, append;
        unsigned flags;
        std::string after;
    } cases[] = {
        {"new", nullptr, false, false, kCreateAndWrite, kMark + written},
        {"replaced", "a longer text than the new one", false, false, kCreateAndWrite,
         kMark + written},
        {"cut", "a longer text than the new one", true, false, CFile::modeWrite, kMark + written},
        {"cut and append", "old", true, true, CFile::modeWrite, kMark + written},
        {"append", "old", false, true, CFile::modeWrite, "old" + written},
        {"append to nothing", "", false, true, CFile::modeWrite, kMark + written},
        {"append kept", "old", false, true, kKeep, "old" + written},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        if (c.before != nullptr) {
            m_folder.WriteBytes(c.name, c.before);
        }
        EXPECT_TRUE(WriteTextFile(m_folder.Path(c.name), lines, c.cut, c.append, c.flags));
        EXPECT_EQ(m_folder.ReadBytes(c.name), c.after);
    }
}

TEST_F(TextFile, WhatCannotBeOpenedForWritingGivesFalseAndIsLeftAlone)
{
    const CStringArray lines = Lines({L"new"});
    EXPECT_FALSE(WriteTextFile(m_folder.Path("no/folder"), lines, false, false, kCreateAndWrite));
    m_folder.WriteBytes("locked", "old");
    std::filesystem::permissions(m_folder.Root() / "locked", std::filesystem::perms::owner_read);
    EXPECT_FALSE(WriteTextFile(m_folder.Path("locked"), lines, true, false, CFile::modeWrite));
    EXPECT_EQ(m_folder.ReadBytes("locked"), "old");
}

TEST_F(TextFile, AnErrorWhileWritingReachesTheCallerAndLeavesTheOldFileWhole)
{
    m_folder.WriteBytes("file.txt", "old");
    {
        const CFileSizeLimit limit(4096);
        EXPECT_THROW(WriteTextFile(m_folder.Path("file.txt"), Lines({Xs(5000)}), false, false,
                                   kCreateAndWrite),
                     CFileException);
    }
    EXPECT_EQ(m_folder.ReadBytes("file.txt"), "old");
}

TEST(SplitString, CutsATextIntoFields)
{
    const std::tuple<CString, wchar_t, CStringArray> cases[] = {
        {L"", L';', Lines({})},
        {L"a", L';', Lines({L"a"})},
        {L";", L';', Lines({L""})},
        {L"a;b;", L';', Lines({L"a", L"b"})},
        {L"a;;b", L';', Lines({L"a", L"", L"b"})},
        {L"a;;", L';', Lines({L"a", L""})},
        {L";a", L';', Lines({L"", L"a"})},
        {L"x y  z", L' ', Lines({L"x", L"y", L"z"})},
        {L"  x  ", L' ', Lines({L"", L"x"})},
        {L"x\t\t\ty\t", L'\t', Lines({L"x", L"y"})},
        {L"x \ty", L' ', Lines({L"x", L"\ty"})},
        {L"a;b\nc;d", L';', Lines({L"a", L"b"})},
        {L"a  \n b", L' ', Lines({L"a"})},
        {L"\na", L';', Lines({})},
        {L"a;b\r\n", L';', Lines({L"a", L"b\r"})},
        {L"a;b\nc\n\nd\n", L'\n', Lines({L"a;b", L"c", L"", L"d"})},
        {L"\n", L'\n', Lines({L""})},
    };
    for (const auto& [text, separator, expected] : cases) {
        CStringArray fields;
        EXPECT_EQ(SplitString(fields, text, separator), expected.GetSize());
        EXPECT_EQ(fields, expected) << ::testing::PrintToString(text);
    }
}

TEST(SplitString, AppendsAlsoTheFieldsOfAnElementOfTheSameArray)
{
    CStringArray fields = Lines({L"a;b;c;d;e;f;g;h"});
    EXPECT_EQ(SplitString(fields, fields[0], L';'), 9);
    EXPECT_EQ(fields[1], L"a");
    EXPECT_EQ(fields[8], L"h");

    CStringArray shortText = Lines({L"a;b"});
    EXPECT_EQ(SplitString(shortText, shortText[0], L';'), 3);
    EXPECT_EQ(shortText, Lines({L"a;b", L"a", L"b"}));
}

TEST_F(TextFile, MoreTextThanOneChunkIsWrittenWholeAndOnce)
{
    CStringArray lines;
    for (int i = 0; i < 40000; ++i) {
        lines.Add(L"riga " + std::to_wstring(i));
    }
    ASSERT_TRUE(WriteTextFile(m_folder.Path("file.txt"), lines, false, false, kCreateAndWrite));
    // The mark, then 5 characters, the digits of 0 to 39999 (188890) and CR LF a line.
    EXPECT_EQ(m_folder.ReadBytes("file.txt").size(), 2U + 2U * (40000U * 7U + 188890U));
}

} // namespace
