#include "host_defaults/answers.h"
#include "platform/format.h"
#include "platform/number_scan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>

namespace host_defaults {

namespace {

struct CPunktZahlen
{
    /// 0 behind the last one read.
    std::array<double, 12> values{};
    int nCount = 0;
};

bool BeginsWithNumber(std::wstring_view piece)
{
    const auto isDigit = [piece](std::size_t at) {
        return at < piece.size() && piece[at] >= L'0' && piece[at] <= L'9';
    };
    std::size_t at = std::min(piece.find_first_not_of(L" \t"), piece.size());
    if (at < piece.size() && (piece[at] == L'-' || piece[at] == L'+')) {
        ++at;
    }
    return isDigit(at) || (at < piece.size() && piece[at] == L'.' && isDigit(at + 1));
}

/// Takes the number of a piece; false, with `value` left alone, if it has none.
bool TakeNumber(std::wstring_view piece, double& value)
{
    if (!BeginsWithNumber(piece)) {
        return false;
    }
    const double number = _wtof(piece);
    if (!std::isfinite(number)) {
        return false;
    }
    value = number;
    return true;
}

CPunktZahlen ReadNumbers(std::wstring_view text)
{
    CPunktZahlen zahlen;
    for (double& value : zahlen.values) {
        const std::size_t end = std::min(text.find(L';'), text.size());
        if (!TakeNumber(text.substr(0, end), value)) {
            break;
        }
        ++zahlen.nCount;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return zahlen;
}

int CutToInt(double value)
{
    constexpr double low = std::numeric_limits<int>::min();
    constexpr double high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, low, high));
}

CString NumberText(double value)
{
    return FormatExact(std::isfinite(value) ? value : 0.0);
}

} // namespace

int lmGet_K_APUNKT_X(const CString& text, double position[3], double offset[3], double winkel[3],
                     double& seitAbstand, double& kreuzAbstand, int& kreuzTyp, double& wandAbstand)
{
    const CPunktZahlen zahlen = ReadNumbers(text);
    if (zahlen.nCount == 0) {
        return 0;
    }
    const auto& values = zahlen.values;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        position[axis] = values[2 * axis];
        offset[axis] = values[2 * axis + 1];
    }
    winkel[0] = values[6];
    winkel[1] = values[7];
    winkel[2] = 0.0;
    seitAbstand = values[8];
    kreuzAbstand = values[9];
    kreuzTyp = CutToInt(values[10]);
    wandAbstand = values[11];
    return zahlen.nCount;
}

void lmSet_K_APUNKT_X(CString& text, const double position[3], const double offset[3],
                      const double winkel[3], double seitAbstand, double kreuzAbstand, int kreuzTyp,
                      double wandAbstand)
{
    text.clear();
    for (const double value : {position[0], offset[0], position[1], offset[1], position[2],
                               offset[2], winkel[0], winkel[1], seitAbstand, kreuzAbstand}) {
        text += NumberText(value) + L";";
    }
    text += FormatInt(kreuzTyp) + L";" + NumberText(wandAbstand);
}

} // namespace host_defaults

int lmGet_K_APUNKT_X(const CString& text, double position[3], double offset[3], double winkel[3],
                     double& seitAbstand, double& kreuzAbstand, int& kreuzTyp, double& wandAbstand)
{
    return host_defaults::lmGet_K_APUNKT_X(text, position, offset, winkel, seitAbstand,
                                           kreuzAbstand, kreuzTyp, wandAbstand);
}

void lmSet_K_APUNKT_X(CString& text, const double position[3], const double offset[3],
                      const double winkel[3], double seitAbstand, double kreuzAbstand, int kreuzTyp,
                      double wandAbstand)
{
    host_defaults::lmSet_K_APUNKT_X(text, position, offset, winkel, seitAbstand, kreuzAbstand,
                                    kreuzTyp, wandAbstand);
}
