#include "platform/encoding.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

TEST(Encoding, EveryByteOfCodePage1252ComesBack)
{
    std::vector<std::uint8_t> bytes(256);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i);
    }
    CString text;
    AppendCp1252(text, bytes);
    EXPECT_EQ(text[0x80], L'\u20AC');
    EXPECT_EQ(text[0x84], L'\u201E');
    EXPECT_EQ(text[0x81], wchar_t{0x81}) << "undefined, so the control character";
    EXPECT_EQ(text[0xE4], L'ä');
    EXPECT_EQ(Cp1252FromWide(text), std::string(bytes.begin(), bytes.end()));
    EXPECT_EQ(Cp1252FromWide(L"a\u4E00b\U0001F600c"), "a?b?c");
}

TEST(Encoding, Utf16KeepsEveryCodeUnitHoweverItIsCut)
{
    // A pair, a low and a high surrogate alone, two highs in a row, a high at the end.
    const std::u16string units = {u'a', 0xD83D, 0xDE00, 0xDC01, u'b',  0xD800,
                                  u'c', 0xD801, 0xD83D, 0xDE01, 0xDBFF};
    const CString expected = L"a\U0001F600" + CString(1, wchar_t{0xDC01}) + L"b" + wchar_t{0xD800} +
                             L"c" + wchar_t{0xD801} + L"\U0001F601" + wchar_t{0xDBFF};
    for (std::size_t cut = 0; cut <= units.size(); ++cut) {
        CString text;
        AppendUtf16(text, std::u16string_view(units).substr(0, cut));
        AppendUtf16(text, std::u16string_view(units).substr(cut));
        EXPECT_EQ(text, expected) << "two pairs join, cut at " << cut;
        EXPECT_EQ(Utf16FromWide(text), units);
    }
}

TEST(Encoding, AnyBytesSurviveTheTripThroughUtf8)
{
    EXPECT_EQ(WideFromUtf8("k\xC3\xBChl \xE2\x82\xAC \xF0\x9F\x98\x80"), L"kühl € \U0001F600");
    const char* const bad[] = {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80",
                               "\x80",     "\xC3",         "\xEF\x9F\x80" /* stands for a byte */};
    for (const char* bytes : bad) {
        EXPECT_EQ(Utf8FromWide(WideFromUtf8(bytes)), bytes);
    }
    std::mt19937 random(20261121);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes(random() % 12, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(random());
        }
        ASSERT_EQ(Utf8FromWide(WideFromUtf8(bytes)), bytes);
    }
    EXPECT_EQ(Utf8FromWide(CString(1, wchar_t{0xD800})), "\xEF\xBF\xBD");
}

} // namespace
