#include "workbench/plan/connection_name.h"

#include "host/host_fittings.h"
#include "platform/exception.h"
#include "reference_host/files/short_list_file.h"

#include <optional>

namespace workbench {

namespace {

/// Fewer numbers make no point.
constexpr int kLeastNumbers = 3;

bool ReadPoint(const CString& text, ConnVector& position, ConnVector& offset, ConnVector& angles)
{
    double side = 0.0;
    double cross = 0.0;
    int kind = 0;
    double wall = 0.0;
    return lmGet_K_APUNKT_X(text, position.data(), offset.data(), angles.data(), side, cross, kind,
                            wall) >= kLeastNumbers;
}

CStringArray ReadLines()
{
    try {
        return reference_host::ReadShortList({}).lines;
    } catch (const CFileException&) {
        return {};
    }
}

} // namespace

bool HasSamePoints(const ConnValues& a, const ConnValues& b)
{
    return a.PosAN == b.PosAN && a.OffsetAN == b.OffsetAN && a.WinkelAN == b.WinkelAN &&
           a.PosRI == b.PosRI && a.OffsetRI == b.OffsetRI && a.WinkelRI == b.WinkelRI;
}

CString NameOfPoints(const ConnValues& anschluss)
{
    const CStringArray lines = ReadLines();
    std::optional<CString> found;
    CString name;
    for (int i = 0; i < lines.GetSize(); ++i) {
        const CString& line = lines[i];
        if (line.size() > 1 && line.starts_with(L'[')) {
            name = line.substr(1, line.size() - 2);
            continue;
        }
        ConnValues type;
        if (i + 1 < lines.GetSize() && line.starts_with(L'V') && lines[i + 1].starts_with(L'R') &&
            ReadPoint(line.substr(1), type.PosAN, type.OffsetAN, type.WinkelAN) &&
            ReadPoint(lines[i + 1].substr(1), type.PosRI, type.OffsetRI, type.WinkelRI) &&
            HasSamePoints(type, anschluss)) {
            if (name == anschluss.Name) {
                return name;
            }
            found = found ? found : name;
        }
    }
    return found.value_or(CString());
}

} // namespace workbench
