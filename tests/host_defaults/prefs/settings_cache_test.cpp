#include "host/host_prefs.h"
#include "tests/src/common/lines.h"

#include <gtest/gtest.h>

namespace {

TEST(SettingsCache, LinesComeBackAsTheyWereWhateverTheirCharacters)
{
    CSettingsCache& cache = *lmGetCacheObject();
    const CString separateSurrogates = {wchar_t{0xD83D}, wchar_t{0xDE00}};
    const std::vector<CString> cases[] = {
        {},
        {L""},
        {L"plain", L"", L"\u00FF last of the narrowest", L""},
        {L"first \u0100 of the middle", L"plain", L"\uFFFF"},
        {separateSurrogates, L"\uFFFF"},
        {L"\U00010000 first of the widest", L"plain", separateSurrogates},
    };
    for (const auto& texts : cases) {
        const CStringArray lines = Lines(texts);
        cache.AddFileToCache(L"settings-cache-test", lines, false);
        CStringArray held;
        held.Add(L"replaced");
        cache.GetCacheArray(L"settings-cache-test", held);
        EXPECT_TRUE(held == lines);
    }
    EXPECT_TRUE(cache.IsFileInCache(L"settings-cache-test"));
    EXPECT_FALSE(cache.IsFileInCache(L"settings-cache-Test"));
    CStringArray held;
    held.Add(L"emptied");
    cache.GetCacheArray(L"settings-cache-none", held);
    EXPECT_TRUE(held.IsEmpty());
}

} // namespace
