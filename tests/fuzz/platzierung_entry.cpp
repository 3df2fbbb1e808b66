#include "common/platzierung_datei.h"
#include "tests/fuzz/entries.h"
#include "tests/src/common/lines.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <algorithm>
#include <string>

using namespace reference_host;

void RunPlatzierung(std::span<const std::uint8_t> bytes)
{
    static const CTempFolder folder;
    const CSettingOverride local(kSettingLocalPath, folder.Path());
    const CSettingOverride name(kSettingWinposFile, L"fenster.txt");
    folder.WriteBytes("fenster.txt", std::string(bytes.begin(), bytes.end()));
    const CString path = folder.Path("fenster.txt");
    const int before = LinesIn(path).GetSize();
    CRect rect;
    const bool wasThere = LesePlatzierung(L"CHIAVE", rect, nullptr);

    const CRect kept = {-5, 6, 700, 800};
    int alpha = 255;
    SchreibePlatzierung(L"CHIAVE", kept, 120);
    const int added = LinesIn(path).GetSize() - before;
    // Other characters may make the file, written again, look like one of another encoding.
    if (std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte < 0x80; })) {
        Require(added == 0 || (added == 1 && !wasThere), "the lines of other keys stay");
        Require(LesePlatzierung(L"CHIAVE", rect, &alpha), "what is kept is found");
        Require(rect == kept && alpha == 120, "the place comes back");
    }
}
