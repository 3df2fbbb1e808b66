#include "platform/bitmap.h"
#include "platform/environment.h"
#include "platform/exception.h"
#include "platform/message.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(Message, GoesToTheHandlerOrToStandardError)
{
    std::vector<CString> seen;
    SetMessageHandler([&](const MessageBoxText& message) { seen.push_back(message.text); });
    ShowMessage({L"", L"MAXKV", MessageIcon::warning});
    EXPECT_TRUE(SetMessageHandler({}) != nullptr) << "the handler in force comes back";
    ::testing::internal::CaptureStderr();
    ShowMessage({L"Titolo", L"testo è", MessageIcon::stop});
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "Titolo: testo è\n");
    EXPECT_EQ(seen, std::vector<CString>{L"MAXKV"});
}

TEST(Environment, AReaderStandsInForTheSystem)
{
    SetEnvironmentReader([](const CString& name) {
        return name == L"TGA"     ? std::optional<CString>(L"C:\\data")
               : name == L"EMPTY" ? std::optional<CString>(L"")
                                  : std::nullopt;
    });
    EXPECT_FALSE(GetEnvironment(L"EMPTY"));
    EXPECT_EQ(GetEnvironment(L"TGA"), L"C:\\data");
    EXPECT_FALSE(GetEnvironment(L"PATH"));
    SetEnvironmentReader({});
    EXPECT_TRUE(GetEnvironment(L"PATH"));
}

TEST(Bitmap, PixelsStandWhereTheyWerePut)
{
    CBitmap bitmap(3, 2);
    bitmap.Fill(RGB(1, 2, 3), 9);
    bitmap.SetPixel(2, 1, RGB(255, 128, 64));
    EXPECT_EQ(bitmap.GetPixel(2, 1), 0x004080FFU);
    EXPECT_EQ(bitmap.GetAlpha(2, 1), 255);
    EXPECT_EQ(bitmap.GetData()[20], 255) << "red comes first, rows from the top";
    EXPECT_EQ(bitmap.GetPixel(1, 1), RGB(1, 2, 3));
    EXPECT_EQ(bitmap.GetAlpha(0, 0), 9);
    for (const auto& [x, y] : {std::pair{3, 0}, {0, 2}, {-1, 0}, {0, -1}}) {
        EXPECT_THROW(bitmap.GetPixel(x, y), CInvalidArgException);
    }
    EXPECT_THROW(CBitmap(-1, 5), CInvalidArgException);
    EXPECT_THROW(CBitmap(5, 40000), CInvalidArgException);
}

} // namespace
